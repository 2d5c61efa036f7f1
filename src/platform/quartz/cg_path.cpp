#include "platform/quartz/cg_path.h"

#include <algorithm>
#include <cmath>

namespace kelvane {
namespace {

template <class T>
[[gnu::noinline]] void Grow(std::vector<T>& values, std::size_t more) {
  values.reserve(std::max(values.size() + more, 2 * values.capacity()));
}

template <class T>
void MakeRoom(std::vector<T>& values, std::size_t more) {
  if (values.capacity() - values.size() < more) Grow(values, more);
}

}  // namespace

// Elements and their points stay in step even when memory runs out.
template <class... Points>
void CGPath::Append(Element element, Points... points) {
  MakeRoom(elements_, 1);
  MakeRoom(points_, sizeof...(points));
  elements_.push_back(element);
  (points_.push_back(points), ...);
  finite_ = finite_ && (kelvane::IsFinite(points) && ...);
}

void CGPath::MoveTo(CGPoint point) {
  if (OpenMoveAtEnd()) {
    elements_.pop_back();
    points_.pop_back();
  }
  Append(Element::kMove, point);
  subpathStart_ = currentPoint_ = point;
}

void CGPath::LineTo(CGPoint point) {
  if (IsEmpty()) return MoveTo(point);
  ReopenSubpath();
  Append(Element::kLine, point);
  currentPoint_ = point;
  hasSegments_ = true;
}

void CGPath::CurveTo(CGPoint control1, CGPoint control2, CGPoint end) {
  if (IsEmpty()) return MoveTo(end);
  ReopenSubpath();
  Append(Element::kCurve, control1, control2, end);
  currentPoint_ = end;
  hasSegments_ = true;
}

void CGPath::Close() {
  if (IsEmpty()) return;
  const Element last = elements_.back();
  if (last != Element::kLine && last != Element::kCurve) return;
  Append(Element::kClose);
  currentPoint_ = subpathStart_;
}

void CGPath::AddRectangle(CGPoint corner, CGSize size) {
  if (OpenMoveAtEnd()) {
    elements_.pop_back();
    points_.pop_back();
  }
  Append(Element::kRectangle, corner, CGPoint{size.width, size.height});
  subpathStart_ = currentPoint_ = corner;
  hasSegments_ = true;
}

void CGPath::AddMappedRectangle(const CGRect& rect, const CGAffineTransform& transform) {
  const auto map = [&](CGFloat x, CGFloat y) {
    return CGPointApplyAffineTransform({x, y}, transform);
  };
  const auto [x, y] = rect.origin;
  const auto [width, height] = rect.size;
  if (transform.b == 0 && transform.c == 0) {
    return AddRectangle(map(x, y), {width * transform.a, height * transform.d});
  }
  MoveTo(map(x, y));
  LineTo(map(x + width, y));
  LineTo(map(x + width, y + height));
  LineTo(map(x, y + height));
  Close();
}

void CGPath::AddPath(const CGPath& other, const CGAffineTransform& transform) {
  const auto map = [&](CGPoint point) { return CGPointApplyAffineTransform(point, transform); };
  other.ForEach([&](Element element, const CGPoint* points) {
    switch (element) {
      case Element::kMove:
        return MoveTo(map(points[0]));
      case Element::kLine:
        return LineTo(map(points[0]));
      case Element::kCurve:
        return CurveTo(map(points[0]), map(points[1]), map(points[2]));
      case Element::kRectangle:
        return AddMappedRectangle({points[0], {points[1].x, points[1].y}}, transform);
      case Element::kClose:
        return Close();
    }
  });
}

CGPath CGPath::Mapped(const CGAffineTransform& transform) const {
  CGPath mapped;
  mapped.AddPath(*this, transform);
  return mapped;
}

void CGPath::Map(const CGAffineTransform& transform) {
  if (transform == CGAffineTransformIdentity) return;
  const bool keepsRectangles = transform.b == 0 && transform.c == 0;
  if (!keepsRectangles && std::ranges::find(elements_, Element::kRectangle) != elements_.end()) {
    *this = Mapped(transform);
    return;
  }
  const auto map = [&](CGPoint& point) { point = CGPointApplyAffineTransform(point, transform); };
  CGPoint* point = points_.data();
  for (const Element element : elements_) {
    if (element == Element::kRectangle) {
      map(point[0]);
      point[1] = {point[1].x * transform.a, point[1].y * transform.d};
      point += 2;
      continue;
    }
    for (std::size_t i = PointCount(element); i > 0; --i)
      map(*point++);
  }
  map(currentPoint_);
  map(subpathStart_);
  CheckPoints();
}

void CGPath::Round(CGFloat parts) {
  const auto round = [parts](CGPoint& point) {
    point.x = std::rint(point.x * parts) / parts;
    point.y = std::rint(point.y * parts) / parts;
  };
  std::ranges::for_each(points_, round);
  round(currentPoint_);
  round(subpathStart_);
  CheckPoints();
}

void CGPath::CheckPoints() {
  finite_ = finite_ && std::ranges::all_of(points_, [](CGPoint p) { return kelvane::IsFinite(p); });
}

void CGPath::GoBackTo(const Progress& progress) {
  elements_.resize(progress.elements);
  points_.resize(progress.points);
  if (OpenMoveAtEnd()) points_.back() = progress.currentPoint;  // lest a later move replaced it
  currentPoint_ = progress.currentPoint;
  subpathStart_ = progress.subpathStart;
  hasSegments_ = progress.hasSegments;
  finite_ = progress.finite;
}

void CGPath::Clear() {
  elements_.clear();
  points_.clear();
  subpathStart_ = currentPoint_ = {};
  hasSegments_ = false;
  finite_ = true;
}

// Output formats leave open where a segment after a closed subpath starts; a move says it.
void CGPath::ReopenSubpath() {
  if (elements_.back() == Element::kClose || elements_.back() == Element::kRectangle) {
    MoveTo(currentPoint_);
  }
}

}  // namespace kelvane
