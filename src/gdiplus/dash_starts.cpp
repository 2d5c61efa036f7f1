#include "gdiplus/dash_starts.h"

#include <array>
#include <cstddef>
#include <utility>
#include <vector>

namespace kelvane::gdiplus {
namespace {

/// One figure after the other, each held back until it ends.
class FigureTurner {
 public:
  void Add(CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove:
        AddOpen();
        first_ = *points;
        return;
      case CGPath::Element::kLine:
        return parts_.push_back({element, {*points}, 1});
      case CGPath::Element::kCurve:
        return parts_.push_back({element, {points[0], points[1], points[2]}, 3});
      case CGPath::Element::kClose:
        return AddClosed();
      case CGPath::Element::kRectangle:
        AddOpen();
        return AddRectangle(points[0], points[1]);
    }
  }

  CGPath Take() {
    AddOpen();
    return std::move(path_);
  }

 private:
  struct Part {
    CGPath::Element element;
    std::array<CGPoint, 3> points;
    std::size_t count;

    [[nodiscard]] CGPoint End() const { return points[count - 1]; }
  };

  void AddParts() {
    for (const auto& [element, points, count] : parts_)
      count == 1 ? path_.LineTo(points[0]) : path_.CurveTo(points[0], points[1], points[2]);
    parts_.clear();
  }

  void AddOpen() {
    if (parts_.empty()) return;
    path_.MoveTo(first_);
    AddParts();
  }

  void AddClosed() {
    if (!parts_.empty() && parts_.back().End() != first_) {
      path_.MoveTo(parts_.back().End());
      path_.LineTo(first_);
      if (parts_.back().count == 1) parts_.pop_back();  // closing draws it
    } else {
      path_.MoveTo(first_);
    }
    AddParts();
    path_.Close();
  }

  void AddRectangle(CGPoint corner, CGPoint size) {
    path_.MoveTo({corner.x, corner.y + size.y});
    path_.LineTo(corner);
    path_.LineTo({corner.x + size.x, corner.y});
    path_.LineTo({corner.x + size.x, corner.y + size.y});
    path_.Close();
  }

  CGPoint first_;
  std::vector<Part> parts_;
  CGPath path_;
};

}  // namespace

CGPath StartedWhereDashesDo(const CGPath& path) {
  FigureTurner turner;
  path.ForEach(
      [&](CGPath::Element element, const CGPoint* points) { turner.Add(element, points); });
  return turner.Take();
}

}  // namespace kelvane::gdiplus
