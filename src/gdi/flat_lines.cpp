#include "gdi/flat_lines.h"

#include "gdi/exactly.h"
#include "gdi/flatten.h"

namespace kelvane {

std::vector<FlatLine> FlatLinesOf(const CGPath& path, double tolerance) {
  std::vector<FlatLine> lines;
  const auto add = [&](PointD point) { lines.back().points.push_back(point); };
  path.ForEach([&](CGPath::Element element, const CGPoint* p) {
    switch (element) {
      case CGPath::Element::kMove:
        lines.push_back({{Exactly(p[0])}});
        return;
      case CGPath::Element::kLine:
        return add(Exactly(p[0]));
      case CGPath::Element::kCurve:
        return FlattenCurve(lines.back().points.back(), Exactly(p[0]), Exactly(p[1]), Exactly(p[2]),
                            tolerance, add);
      case CGPath::Element::kRectangle: {
        const auto [x, y] = Exactly(p[0]);
        const double width = p[1].x;
        const double height = p[1].y;
        lines.push_back({{{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}}, true});
        return;
      }
      case CGPath::Element::kClose:
        lines.back().isClosed = true;
        return;
    }
  });
  return lines;
}

}  // namespace kelvane
