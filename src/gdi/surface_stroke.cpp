#include "gdi/surface_stroke.h"

#include <cmath>
#include <numeric>

namespace kelvane {
namespace {

/// From the pen's lengths to points, without the origins, which pens do not see.
TransformD PenToPage(const TransformD& toDevice, const CGAffineTransform& deviceToPage) {
  const TransformD linear = {toDevice.m11, toDevice.m12, toDevice.m21, toDevice.m22, 0, 0};
  return linear.Then({deviceToPage.a, deviceToPage.b, deviceToPage.c, deviceToPage.d, 0, 0});
}

/// Lines finer than both a device unit and a quarter of a point are as thin as the output has them.
bool IsFine(double points, double pointsPerUnit) {
  constexpr double kFinestPoints = 0.25;
  return points < kFinestPoints && points < pointsPerUnit;
}

/// Dashes too short to be told apart are a solid line: a file could ask for millions of them.
/// @param scale   from the pen's lengths to the surface's.
/// @param points  in one of the pen's lengths.
void SetDashes(CGContext& surface, const SurfaceStroke& stroke, double scale, double points) {
  constexpr double kShortestPeriod = 0.02;  // points
  const std::vector<double>& dashes = stroke.dashes;
  std::vector<CGFloat> lengths;
  CGFloat phase = 0;
  if (std::accumulate(dashes.begin(), dashes.end(), 0.0) * points >= kShortestPeriod) {
    for (const double length : dashes)
      lengths.push_back(static_cast<CGFloat>(length * scale));
    phase = static_cast<CGFloat>(stroke.dashPhase * scale);
  }
  surface.SetLineDash(phase, lengths);
}

/// A width to thousandths of a point, which take few digits.
CGFloat WidthOnPage(double points) {
  constexpr double kParts = 1000;
  return static_cast<CGFloat>(std::ceil(points * kParts - 0.5) / kParts);
}

void SetShape(CGContext& surface, const SurfaceStroke& stroke) {
  surface.SetLineCap(stroke.cap);
  surface.SetLineJoin(stroke.join);
  surface.SetMiterLimit(stroke.miterLimit);
}

/// A pen that the surface squeezes, in its own lengths.
void DrawSqueezed(CGContext& surface, const SurfaceStroke& stroke, const TransformD& penToPage,
                  double pointsInDash, CGPathDrawingMode mode) {
  SetShape(surface, stroke);
  surface.SaveGState();
  surface.ConcatCTM({static_cast<CGFloat>(penToPage.m11), static_cast<CGFloat>(penToPage.m12),
                     static_cast<CGFloat>(penToPage.m21), static_cast<CGFloat>(penToPage.m22), 0,
                     0});
  SetDashes(surface, stroke, 1, pointsInDash);
  surface.SetLineWidth(static_cast<CGFloat>(stroke.width));
  surface.DrawPath(mode);
  surface.RestoreGState();
}

}  // namespace

double Stretch::Mean() const {
  return std::sqrt(most * least);
}

Stretch StretchOf(const TransformD& t) {
  const double turned = std::hypot((t.m11 + t.m22) / 2, (t.m12 - t.m21) / 2);
  const double mirrored = std::hypot((t.m11 - t.m22) / 2, (t.m12 + t.m21) / 2);
  return {turned + mirrored, std::abs(turned - mirrored)};
}

void DrawEven(Canvas& canvas, const SurfaceStroke& stroke, double widthUnit, double dashUnit,
              CGPathDrawingMode mode) {
  CGContext& surface = canvas.Surface();
  const double pointsPerUnit = canvas.PointsPerUnit();
  const double width = stroke.width * widthUnit * pointsPerUnit;
  SetShape(surface, stroke);
  SetDashes(surface, stroke, dashUnit * pointsPerUnit, dashUnit * pointsPerUnit);
  surface.SetLineWidth(WidthOnPage(IsFine(width, pointsPerUnit) ? 0 : width));
  surface.DrawPath(mode);
}

void DrawThrough(Canvas& canvas, const SurfaceStroke& stroke, const TransformD& penToDevice,
                 CGPathDrawingMode mode) {
  constexpr double kVisible = 0.02;  // points
  const double pointsPerUnit = canvas.PointsPerUnit();
  const TransformD penToPage = PenToPage(penToDevice, canvas.DeviceToPage());
  const Stretch stretch = StretchOf(penToPage);
  const bool isSqueezed = (stretch.most - stretch.least) * stroke.width > kVisible;
  if (isSqueezed && penToPage.Inverse() && !IsFine(stroke.width * stretch.most, pointsPerUnit)) {
    return DrawSqueezed(canvas.Surface(), stroke, penToPage, stretch.most, mode);
  }
  const double unit = stretch.Mean() / pointsPerUnit;
  DrawEven(canvas, stroke, unit, unit, mode);
}

}  // namespace kelvane
