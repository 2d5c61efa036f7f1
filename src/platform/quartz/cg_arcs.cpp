#include "platform/quartz/cg_arcs.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace kelvane {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;
constexpr double kFullTurn = 2 * std::numbers::pi;

// The signed angle to run through; not a number when one of the angles is not finite. Angles come
// in single precision, so a full turn is recognised within its rounding; without that a circle from
// 30 to 390 degrees could shrink to nothing.
double Sweep(double start, double end, bool clockwise) {
  if (!std::isfinite(start) || !std::isfinite(end)) return std::numeric_limits<double>::quiet_NaN();
  const double rounding = 1e-6 * std::max({1.0, std::abs(start), std::abs(end)});
  const double direction = clockwise ? -1 : 1;
  const double difference = direction * (end - start);
  if (std::abs(difference) >= kFullTurn - rounding) return direction * kFullTurn;
  return direction * (difference < 0 ? difference + kFullTurn : difference);
}

// Enough curves of at most a quarter turn; one for any sweep at all, none for no sweep.
int CurvesFor(double sweep) {
  if (sweep == 0) return 0;
  const double quarters = std::abs(sweep) / kQuarterTurn;
  return std::max(1, static_cast<int>(std::ceil(quarters - 1e-6)));
}

// Single precision holds no quarter turn exactly. What it misses by, up to two turns, is dropped,
// so that an arc of whole units has whole ends.
double WholeAtQuarters(double sineOrCosine) {
  constexpr double kAngleRounding = 5e-7;
  return std::abs(sineOrCosine) < kAngleRounding ? 0 : sineOrCosine;
}

class Circle {
 public:
  Circle(const CGAffineTransform& transform, CGPoint center, double radius)
      : transform_(transform), center_(center), radius_(radius) {}

  [[nodiscard]] CGPoint PointAt(double angle) const {
    return Map(WholeAtQuarters(std::cos(angle)), WholeAtQuarters(std::sin(angle)));
  }

  /// One Bezier curve, at most a quarter turn.
  void AddCurve(CGPath& path, double start, double end) const {
    const double reach = 4.0 / 3.0 * std::tan((end - start) / 4);
    path.CurveTo(
        Map(std::cos(start) - reach * std::sin(start), std::sin(start) + reach * std::cos(start)),
        Map(std::cos(end) + reach * std::sin(end), std::sin(end) - reach * std::cos(end)),
        PointAt(end));
  }

 private:
  // From the unit circle to page space.
  [[nodiscard]] CGPoint Map(double x, double y) const {
    return CGPointApplyAffineTransform({static_cast<CGFloat>(center_.x + radius_ * x),
                                        static_cast<CGFloat>(center_.y + radius_ * y)},
                                       transform_);
  }

  const CGAffineTransform& transform_;
  CGPoint center_;
  double radius_;
};

}  // namespace

void AddArc(CGPath& path, const CGAffineTransform& transform, CGPoint center, CGFloat radius,
            CGFloat startAngle, CGFloat endAngle, bool clockwise) {
  const Circle circle(transform, center, radius);
  const double sweep = Sweep(startAngle, endAngle, clockwise);
  if (std::isnan(sweep)) return path.LineTo(circle.PointAt(sweep));  // the path is never painted
  // Beside a huge angle a turn is nothing.
  const double start = std::remainder(startAngle, kFullTurn);
  path.LineTo(circle.PointAt(start));
  const int curves = CurvesFor(sweep);
  for (int i = 0; i < curves; ++i) {
    circle.AddCurve(path, start + sweep * i / curves, start + sweep * (i + 1) / curves);
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
