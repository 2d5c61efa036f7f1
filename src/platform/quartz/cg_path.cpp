#include "platform/quartz/cg_path.h"

namespace kelvane {

void CGPath::MoveTo(CGPoint point) {
  if (OpenMoveAtEnd()) {
    elements_.pop_back();
    points_.pop_back();
  }
  Append(Element::kMove);
  Append(point);
  subpathStart_ = currentPoint_ = point;
}

void CGPath::LineTo(CGPoint point) {
  if (IsEmpty()) return MoveTo(point);
  ReopenSubpath();
  Append(Element::kLine);
  Append(point);
  currentPoint_ = point;
  hasSegments_ = true;
}

void CGPath::CurveTo(CGPoint control1, CGPoint control2, CGPoint end) {
  if (IsEmpty()) return MoveTo(end);
  ReopenSubpath();
  Append(Element::kCurve);
  Append(control1);
  Append(control2);
  Append(end);
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
  Append(Element::kRectangle);
  Append(corner);
  Append({size.width, size.height});
  subpathStart_ = currentPoint_ = corner;
  hasSegments_ = true;
}

void CGPath::Clear() {
  elements_.clear();
  points_.clear();
  subpathStart_ = currentPoint_ = {};
  hasSegments_ = false;
  finite_ = true;
}

void CGPath::Append(Element element) {
  elements_.push_back(element);
}

void CGPath::Append(CGPoint point) {
  finite_ = finite_ && kelvane::IsFinite(point);
  points_.push_back(point);
}

// Output formats leave open where a segment after a closed subpath starts; a move says it.
void CGPath::ReopenSubpath() {
  if (elements_.back() == Element::kClose || elements_.back() == Element::kRectangle) {
    MoveTo(currentPoint_);
  }
}

}  // namespace kelvane
