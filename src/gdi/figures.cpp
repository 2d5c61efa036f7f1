#include "gdi/figures.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace kelvane {
namespace {

constexpr double kQuarterTurn = std::numbers::pi / 2;
constexpr double kFullTurn = 2 * std::numbers::pi;

RectangleD Ordered(const RectangleD& box) {
  return {std::min(box.left, box.right), std::min(box.top, box.bottom),
          std::max(box.left, box.right), std::max(box.top, box.bottom)};
}

/// @return radians from +x towards +y; nothing that is a number for the centre itself.
double AngleOf(double x, double y) {
  return x == 0 && y == 0 ? std::nan("") : std::atan2(y, x);
}

/// @return how far to turn from one angle to the other, which is a full turn between equal ones.
double SweepBetween(double start, double end, ArcDirection direction) {
  double sweep = end - start;
  if (direction == AD_CLOCKWISE) {
    if (sweep <= 0) sweep += kFullTurn;
  } else {
    if (sweep >= 0) sweep -= kFullTurn;
  }
  return sweep;
}

}  // namespace

FigurePath::Ellipse FigurePath::EllipseIn(const RectangleD& box) {
  return {{(box.left + box.right) / 2, (box.top + box.bottom) / 2},
          std::abs(box.right - box.left) / 2,
          std::abs(box.bottom - box.top) / 2};
}

void FigurePath::AddCurves(const Ellipse& ellipse, double angle, double sweep) {
  constexpr double kRounding = 1e-9;  // a quarter turn that came out longer is still one curve
  const int count =
      std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / kQuarterTurn - kRounding)));
  const double step = sweep / count;
  const double handle = 4.0 / 3.0 * std::tan(step / 4);  // length of a control arm, in radii
  double cosine = std::cos(angle);
  double sine = std::sin(angle);
  for (int i = 1; i <= count; ++i) {
    const double nextCosine = std::cos(angle + i * step);
    const double nextSine = std::sin(angle + i * step);
    CurveTo(ellipse.At(cosine - handle * sine, sine + handle * cosine),
            ellipse.At(nextCosine + handle * nextSine, nextSine - handle * nextCosine),
            ellipse.At(nextCosine, nextSine));
    cosine = nextCosine;
    sine = nextSine;
  }
}

void FigurePath::AddRectangle(const RectangleD& box, ArcDirection direction) {
  const auto [left, top, right, bottom] = Ordered(box);
  const bool isClockwise = direction == AD_CLOCKWISE;
  MoveTo({right, top});
  LineTo(isClockwise ? PointD{right, bottom} : PointD{left, top});
  LineTo({left, bottom});
  LineTo(isClockwise ? PointD{left, top} : PointD{right, bottom});
  Close();
}

void FigurePath::AddEllipse(const RectangleD& box, ArcDirection direction) {
  const Ellipse ellipse = EllipseIn(box);
  MoveTo(ellipse.At(1, 0));
  AddCurves(ellipse, 0, direction == AD_CLOCKWISE ? kFullTurn : -kFullTurn);
  Close();
}

void FigurePath::AddRoundRectangle(const RectangleD& box, double width, double height,
                                   ArcDirection direction) {
  const auto [left, top, right, bottom] = Ordered(box);
  const double x = std::min(std::abs(width), right - left) / 2;
  const double y = std::min(std::abs(height), bottom - top) / 2;
  if (x == 0 || y == 0) return AddRectangle(box, direction);
  const Ellipse topRight = {{right - x, top + y}, x, y};
  const Ellipse topLeft = {{left + x, top + y}, x, y};
  const Ellipse bottomLeft = {{left + x, bottom - y}, x, y};
  const Ellipse bottomRight = {{right - x, bottom - y}, x, y};
  MoveTo(topRight.At(1, 0));
  if (direction == AD_CLOCKWISE) {
    LineTo(bottomRight.At(1, 0));
    AddCurves(bottomRight, 0, kQuarterTurn);
    LineTo(bottomLeft.At(0, 1));
    AddCurves(bottomLeft, kQuarterTurn, kQuarterTurn);
    LineTo(topLeft.At(-1, 0));
    AddCurves(topLeft, 2 * kQuarterTurn, kQuarterTurn);
    LineTo(topRight.At(0, -1));
    AddCurves(topRight, 3 * kQuarterTurn, kQuarterTurn);
  } else {
    AddCurves(topRight, 0, -kQuarterTurn);
    LineTo(topLeft.At(0, -1));
    AddCurves(topLeft, -kQuarterTurn, -kQuarterTurn);
    LineTo(bottomLeft.At(-1, 0));
    AddCurves(bottomLeft, -2 * kQuarterTurn, -kQuarterTurn);
    LineTo(bottomRight.At(0, 1));
    AddCurves(bottomRight, -3 * kQuarterTurn, -kQuarterTurn);
  }
  Close();
}

bool FigurePath::AddArc(const RectangleD& box, PointD start, PointD end, ArcDirection direction) {
  const Ellipse ellipse = EllipseIn(box);
  if (!(ellipse.xRadius > 0 && ellipse.yRadius > 0)) return false;
  const auto angleTo = [&](PointD point) {
    return AngleOf((point.x - ellipse.center.x) / ellipse.xRadius,
                   (point.y - ellipse.center.y) / ellipse.yRadius);
  };
  double from = angleTo(start);
  double to = angleTo(end);
  if (std::isnan(from)) from = std::isnan(to) ? 0 : to;
  if (std::isnan(to)) to = from;
  LineTo(ellipse.At(std::cos(from), std::sin(from)));
  AddCurves(ellipse, from, SweepBetween(from, to, direction));
  return true;
}

void FigurePath::AddAngleArc(PointD center, double radius, double startAngle, double sweepAngle) {
  constexpr double kRadiansPerDegree = std::numbers::pi / 180;
  if (!std::isfinite(startAngle) || std::isnan(sweepAngle)) return;
  const Ellipse circle = {center, radius, radius};
  const double start = -std::remainder(startAngle, 360) * kRadiansPerDegree;
  const double sweep = -std::clamp(sweepAngle, -360.0, 360.0) * kRadiansPerDegree;
  LineTo(circle.At(std::cos(start), std::sin(start)));
  if (sweep != 0 && radius != 0) AddCurves(circle, start, sweep);
}

}  // namespace kelvane
