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

EllipseD EllipseIn(const RectangleD& box) {
  return {{(box.left + box.right) / 2, (box.top + box.bottom) / 2},
          std::abs(box.right - box.left) / 2,
          std::abs(box.bottom - box.top) / 2};
}

}  // namespace

void FigurePath::AddArc(const EllipticArc& arc) {
  if (arc.sweep == 0) return;
  constexpr double kRounding = 1e-9;  // a quarter turn that came out longer is still one curve
  const int count =
      std::max(1, static_cast<int>(std::ceil(std::abs(arc.sweep) / kQuarterTurn - kRounding)));
  const double step = arc.sweep / count;
  const double handle = 4.0 / 3.0 * std::tan(step / 4);  // length of a control arm, in radii
  const EllipseD& ellipse = arc.ellipse;
  double cosine = std::cos(arc.angle);
  double sine = std::sin(arc.angle);
  for (int i = 1; i <= count; ++i) {
    const double nextCosine = std::cos(arc.angle + i * step);
    const double nextSine = std::sin(arc.angle + i * step);
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

void FigurePath::AddPlainRectangle(const RectangleD& box) {
  if (toDevice_.m12 != 0 || toDevice_.m21 != 0) return AddRectangle(box, AD_CLOCKWISE);
  const CGPoint corner = Mapped({box.left, box.top});
  const CGPoint opposite = Mapped({box.right, box.bottom});
  path_.AddRectangle(corner, {opposite.x - corner.x, opposite.y - corner.y});
}

void FigurePath::AddEllipse(const RectangleD& box, ArcDirection direction) {
  const EllipseD ellipse = EllipseIn(box);
  MoveTo(ellipse.At(1, 0));
  AddArc({ellipse, 0, direction == AD_CLOCKWISE ? kFullTurn : -kFullTurn});
  Close();
}

void FigurePath::AddRoundRectangle(const RectangleD& box, double width, double height,
                                   ArcDirection direction) {
  const auto [left, top, right, bottom] = Ordered(box);
  const double x = std::min(std::abs(width), right - left) / 2;
  const double y = std::min(std::abs(height), bottom - top) / 2;
  if (x == 0 || y == 0) return AddRectangle(box, direction);
  const EllipseD topRight = {{right - x, top + y}, x, y};
  const EllipseD topLeft = {{left + x, top + y}, x, y};
  const EllipseD bottomLeft = {{left + x, bottom - y}, x, y};
  const EllipseD bottomRight = {{right - x, bottom - y}, x, y};
  MoveTo(topRight.At(1, 0));
  if (direction == AD_CLOCKWISE) {
    LineTo(bottomRight.At(1, 0));
    AddArc({bottomRight, 0, kQuarterTurn});
    LineTo(bottomLeft.At(0, 1));
    AddArc({bottomLeft, kQuarterTurn, kQuarterTurn});
    LineTo(topLeft.At(-1, 0));
    AddArc({topLeft, 2 * kQuarterTurn, kQuarterTurn});
    LineTo(topRight.At(0, -1));
    AddArc({topRight, 3 * kQuarterTurn, kQuarterTurn});
  } else {
    AddArc({topRight, 0, -kQuarterTurn});
    LineTo(topLeft.At(0, -1));
    AddArc({topLeft, -kQuarterTurn, -kQuarterTurn});
    LineTo(bottomLeft.At(-1, 0));
    AddArc({bottomLeft, -2 * kQuarterTurn, -kQuarterTurn});
    LineTo(bottomRight.At(0, 1));
    AddArc({bottomRight, -3 * kQuarterTurn, -kQuarterTurn});
  }
  Close();
}

std::optional<EllipticArc> ArcIn(const RectangleD& box, PointD start, PointD end,
                                 ArcDirection direction) {
  const EllipseD ellipse = EllipseIn(box);
  if (!(ellipse.xRadius > 0 && ellipse.yRadius > 0)) return std::nullopt;
  const auto angleTo = [&](PointD point) {
    return AngleOf((point.x - ellipse.center.x) / ellipse.xRadius,
                   (point.y - ellipse.center.y) / ellipse.yRadius);
  };
  double from = angleTo(start);
  double to = angleTo(end);
  if (std::isnan(from)) from = std::isnan(to) ? 0 : to;
  if (std::isnan(to)) to = from;
  return EllipticArc{ellipse, from, SweepBetween(from, to, direction)};
}

std::optional<EllipticArc> ArcAround(PointD center, double radius, double startAngle,
                                     double sweepAngle) {
  constexpr double kRadiansPerDegree = std::numbers::pi / 180;
  if (!std::isfinite(startAngle) || std::isnan(sweepAngle)) return std::nullopt;
  return EllipticArc{{center, radius, radius},
                     -std::remainder(startAngle, 360) * kRadiansPerDegree,
                     -std::clamp(sweepAngle, -360.0, 360.0) * kRadiansPerDegree};
}

void AddQuadrilateral(CGPath& path, const std::array<PointD, 4>& corners) {
  path.MoveTo(Rounded(corners[0]));
  for (std::size_t i = 1; i < corners.size(); ++i)
    path.LineTo(Rounded(corners[i]));
  path.Close();
}

}  // namespace kelvane
