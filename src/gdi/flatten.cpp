#include <algorithm>
#include <cmath>

#include "gdi/polygons.h"

namespace kelvane {
namespace {

PointD Exactly(CGPoint point) {
  return {point.x, point.y};
}

/// How far a control point is off the middle of its neighbours.
double Bend(PointD a, PointD b, PointD c) {
  return std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y);
}

class Flattener {
 public:
  explicit Flattener(double tolerance) : tolerance_(tolerance) {}

  void MoveTo(PointD point) { figures.push_back({point}); }
  void LineTo(PointD point) { figures.back().push_back(point); }

  void CurveTo(PointD b, PointD c, PointD d) {
    const PointD a = figures.back().back();
    // The second derivative bounds the distance: it is at most 6 times the larger bend.
    const double bend = std::max(Bend(a, b, c), Bend(b, c, d));
    const double pieces = std::ceil(std::sqrt(0.75 * bend / tolerance_));
    const int count = static_cast<int>(std::clamp(pieces, 1.0, kMostPieces));
    for (int i = 1; i < count; ++i) {
      const double t = static_cast<double>(i) / count;
      const double u = 1 - t;
      const double wa = u * u * u;
      const double wb = 3 * u * u * t;
      const double wc = 3 * u * t * t;
      const double wd = t * t * t;
      LineTo(
          {wa * a.x + wb * b.x + wc * c.x + wd * d.x, wa * a.y + wb * b.y + wc * c.y + wd * d.y});
    }
    LineTo(d);
  }

  std::vector<std::vector<PointD>> figures;

 private:
  static constexpr double kMostPieces = 256;  // a full circle over 100 pages has fewer

  double tolerance_;
};

}  // namespace

Polygons Flattened(const CGPath& path, PolyFillMode fillMode, double tolerance) {
  Flattener flat(tolerance);
  path.ForEach([&](CGPath::Element element, const CGPoint* points) {
    switch (element) {
      case CGPath::Element::kMove:
        return flat.MoveTo(Exactly(points[0]));
      case CGPath::Element::kLine:
        return flat.LineTo(Exactly(points[0]));
      case CGPath::Element::kCurve:
        return flat.CurveTo(Exactly(points[0]), Exactly(points[1]), Exactly(points[2]));
      case CGPath::Element::kRectangle: {
        const auto [x, y] = Exactly(points[0]);
        const auto [width, height] = Exactly(points[1]);
        flat.figures.push_back({{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}});
        return;
      }
      case CGPath::Element::kClose:
        return;
    }
  });
  return {std::move(flat.figures), fillMode};
}

}  // namespace kelvane
