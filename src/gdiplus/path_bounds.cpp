#include "gdiplus/path_bounds.h"

#include <algorithm>
#include <cstddef>
#include <limits>

#include "gdi/exactly.h"

namespace kelvane::gdiplus {

RectangleD BoundsOf(const CGPath& path) {
  constexpr double kFar = std::numeric_limits<double>::infinity();
  RectangleD bounds = {kFar, kFar, -kFar, -kFar};
  const auto add = [&](PointD point) {
    bounds = {std::min(bounds.left, point.x), std::min(bounds.top, point.y),
              std::max(bounds.right, point.x), std::max(bounds.bottom, point.y)};
  };
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    if (element == CGPath::Element::kRectangle) {
      const PointD corner = Exactly(points[0]);
      add(corner);
      return add({corner.x + points[1].x, corner.y + points[1].y});
    }
    for (std::size_t i = 0; i < CGPath::PointCount(element); ++i)
      add(Exactly(points[i]));
  });
  return bounds.left <= bounds.right ? bounds : RectangleD{};
}

}  // namespace kelvane::gdiplus
