#include "platform/quartz/cg_arcs.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kelvane {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;
constexpr double kFullTurn = 2 * std::numbers::pi;

// The signed angle to run through. Angles come in single precision, so a full turn is recognised
// within its rounding; without that a circle from 30 to 390 degrees could shrink to nothing.
double Sweep(double start, double end, bool clockwise) {
  const double rounding = 1e-6 * std::max({1.0, std::abs(start), std::abs(end)});
  const double direction = clockwise ? -1 : 1;
  const double difference = direction * (end - start);
  if (std::abs(difference) >= kFullTurn - rounding) return direction * kFullTurn;
  return direction * (difference < 0 ? difference + kFullTurn : difference);
}

class Ellipse {
 public:
  Ellipse(const CGAffineTransform& transform, CGPoint center, double xRadius, double yRadius)
      : transform_(transform), center_(center), xRadius_(xRadius), yRadius_(yRadius) {}

  [[nodiscard]] CGPoint PointAt(double angle) const {
    return Map(std::cos(angle), std::sin(angle));
  }

  /// One Bezier curve from `start` to `start + sweep`, at most a quarter turn.
  void AddCurve(CGPath& path, double start, double sweep) const {
    const double end = start + sweep;
    const double reach = 4.0 / 3.0 * std::tan(sweep / 4);
    path.CurveTo(
        Map(std::cos(start) - reach * std::sin(start), std::sin(start) + reach * std::cos(start)),
        Map(std::cos(end) + reach * std::sin(end), std::sin(end) - reach * std::cos(end)),
        PointAt(end));
  }

 private:
  // From the unit circle to page space.
  [[nodiscard]] CGPoint Map(double x, double y) const {
    return CGPointApplyAffineTransform({static_cast<CGFloat>(center_.x + xRadius_ * x),
                                        static_cast<CGFloat>(center_.y + yRadius_ * y)},
                                       transform_);
  }

  const CGAffineTransform& transform_;
  CGPoint center_;
  double xRadius_;
  double yRadius_;
};

}  // namespace

void AddArc(CGPath& path, const CGAffineTransform& transform, CGPoint center, CGFloat radius,
            CGFloat startAngle, CGFloat endAngle, bool clockwise) {
  const Ellipse circle(transform, center, radius, radius);
  path.LineTo(circle.PointAt(startAngle));
  const double sweep = Sweep(startAngle, endAngle, clockwise);
  if (!std::isfinite(sweep))
    return;  // the start is not finite either, so the path is never painted
  const int curves = static_cast<int>(std::ceil(std::abs(sweep) / kQuarterTurn - 1e-6));
  for (int i = 0; i < curves; ++i) {
    circle.AddCurve(path, startAngle + sweep * i / curves, sweep / curves);
  }
}

void AddEllipse(CGPath& path, const CGAffineTransform& transform, const CGRect& rect) {
  // The four extreme points are exact, so that a circle of whole units has whole ends.
  constexpr double kReach = 0.5522847498307936;  // 4/3 * tan(pi/8)
  const double xRadius = rect.size.width / 2.0;
  const double yRadius = rect.size.height / 2.0;
  const double xCenter = rect.origin.x + xRadius;
  const double yCenter = rect.origin.y + yRadius;
  const auto at = [&](double x, double y) {
    return CGPointApplyAffineTransform(
        {static_cast<CGFloat>(xCenter + x * xRadius), static_cast<CGFloat>(yCenter + y * yRadius)},
        transform);
  };
  path.MoveTo(at(1, 0));
  path.CurveTo(at(1, kReach), at(kReach, 1), at(0, 1));
  path.CurveTo(at(-kReach, 1), at(-1, kReach), at(-1, 0));
  path.CurveTo(at(-1, -kReach), at(-kReach, -1), at(0, -1));
  path.CurveTo(at(kReach, -1), at(1, -kReach), at(1, 0));
  path.Close();
}

}  // namespace kelvane
