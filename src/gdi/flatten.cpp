#include "gdi/flatten.h"

#include "gdi/exactly.h"
#include "gdi/polygons.h"

namespace kelvane {
Polygons Flattened(const CGPath& path, PolyFillMode fillMode, double tolerance) {
  std::vector<std::vector<PointD>> figures;
  const auto add = [&](PointD point) { figures.back().push_back(point); };
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove:
        figures.push_back({Exactly(points[0])});
        return;
      case CGPath::Element::kLine:
        return add(Exactly(points[0]));
      case CGPath::Element::kCurve:
        return FlattenCurve(figures.back().back(), Exactly(points[0]), Exactly(points[1]),
                            Exactly(points[2]), tolerance, add);
      case CGPath::Element::kRectangle: {
        const auto [x, y] = Exactly(points[0]);
        const auto [width, height] = Exactly(points[1]);
        figures.push_back({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
        return;
      }
      case CGPath::Element::kClose:
        return;
    }
  });
  return {std::move(figures), fillMode};
}

}  // namespace kelvane
