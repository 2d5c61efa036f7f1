#include "gdi/stroking.h"

#include <cmath>
#include <numeric>
#include <vector>

namespace kelvane {
namespace {

CGLineCap CapOf(PenStyle endCap) {
  switch (endCap) {
    case PS_ENDCAP_SQUARE:
      return kCGLineCapSquare;
    case PS_ENDCAP_FLAT:
      return kCGLineCapButt;
    default:
      return kCGLineCapRound;
  }
}

CGLineJoin JoinOf(PenStyle join) {
  switch (join) {
    case PS_JOIN_BEVEL:
      return kCGLineJoinBevel;
    case PS_JOIN_MITER:
      return kCGLineJoinMiter;
    default:
      return kCGLineJoinRound;
  }
}

/// From logical units to points, without the origins, which pens do not see.
TransformD PenToPage(const TransformD& toDevice, const CGAffineTransform& deviceToPage) {
  const TransformD linear = {toDevice.m11, toDevice.m12, toDevice.m21, toDevice.m22, 0, 0};
  return linear.Then({deviceToPage.a, deviceToPage.b, deviceToPage.c, deviceToPage.d, 0, 0});
}

/// How long a unit comes out in the direction in which it is longest, and across it.
struct Stretch {
  double most;
  double least;
};

Stretch StretchOf(const TransformD& t) {
  const double turned = std::hypot((t.m11 + t.m22) / 2, (t.m12 - t.m21) / 2);
  const double mirrored = std::hypot((t.m11 - t.m22) / 2, (t.m12 + t.m21) / 2);
  return {turned + mirrored, std::abs(turned - mirrored)};
}

/// Lines finer than both a device unit and a quarter of a point are as thin as the output has them.
bool IsFine(double points, double pointsPerUnit) {
  constexpr double kFinestPoints = 0.25;
  return points < kFinestPoints && points < pointsPerUnit;
}

/// Dashes too short to be told apart are a solid line: a file could ask for millions of them.
/// @param scale   from the pen's lengths to the surface's.
/// @param points  in one of the pen's lengths.
void SetDashes(CGContext& surface, const std::vector<double>& dashes, double scale, double points) {
  constexpr double kShortestPeriod = 0.02;  // points
  std::vector<CGFloat> lengths;
  if (std::accumulate(dashes.begin(), dashes.end(), 0.0) * points >= kShortestPeriod) {
    for (const double length : dashes)
      lengths.push_back(static_cast<CGFloat>(length * scale));
  }
  surface.SetLineDash(0, lengths);
}

/// A width to thousandths of a point, which take few digits.
CGFloat WidthOnPage(double points) {
  constexpr double kParts = 1000;
  return static_cast<CGFloat>(std::ceil(points * kParts - 0.5) / kParts);
}

/// A pen that keeps its shape, in points.
void DrawEven(CGContext& surface, const PenStroke& stroke, double width, double pointsInDash,
              CGPathDrawingMode mode) {
  SetDashes(surface, stroke.dashes, pointsInDash, pointsInDash);
  surface.SetLineWidth(WidthOnPage(width));
  surface.DrawPath(mode);
}

/// A pen that the surface squeezes, in logical units.
void DrawSqueezed(CGContext& surface, const PenStroke& stroke, const TransformD& penToPage,
                  double pointsInDash, CGPathDrawingMode mode) {
  surface.SaveGState();
  surface.ConcatCTM({static_cast<CGFloat>(penToPage.m11), static_cast<CGFloat>(penToPage.m12),
                     static_cast<CGFloat>(penToPage.m21), static_cast<CGFloat>(penToPage.m22), 0,
                     0});
  SetDashes(surface, stroke.dashes, 1, pointsInDash);
  surface.SetLineWidth(static_cast<CGFloat>(stroke.width));
  surface.DrawPath(mode);
  surface.RestoreGState();
}

}  // namespace

// A pen is round in logical units. It is squeezed only where that can be seen.
void DrawStroked(DeviceContext& device, const PenStroke& stroke, CGPathDrawingMode mode) {
  constexpr double kVisible = 0.02;  // points
  Canvas& canvas = *device.canvas;
  CGContext& surface = canvas.Surface();
  surface.SetLineCap(CapOf(stroke.endCap));
  surface.SetLineJoin(JoinOf(stroke.join));
  surface.SetMiterLimit(device.state.miterLimit);

  const Mapping& mapping = device.state.mapping;
  const double pointsPerUnit = canvas.PointsPerUnit();
  if (stroke.width == 0 || stroke.dashesAreOnPage) {  // thin, and as wide in all directions
    const double width = stroke.width * mapping.HorizontalScale() * pointsPerUnit;
    const double pointsInDash =
        stroke.dashesAreOnPage ? canvas.ScreenPixel() * pointsPerUnit : pointsPerUnit;
    return DrawEven(surface, stroke, IsFine(width, pointsPerUnit) ? 0 : width, pointsInDash, mode);
  }
  const TransformD penToPage = PenToPage(mapping.ToDevice(), canvas.DeviceToPage());
  const Stretch stretch = StretchOf(penToPage);
  const bool isSqueezed = (stretch.most - stretch.least) * stroke.width > kVisible;
  if (isSqueezed && penToPage.Inverse() && !IsFine(stroke.width * stretch.most, pointsPerUnit)) {
    return DrawSqueezed(surface, stroke, penToPage, stretch.most, mode);
  }
  const double mean = std::sqrt(stretch.most * stretch.least);
  const double width = stroke.width * mean;
  DrawEven(surface, stroke, IsFine(width, pointsPerUnit) ? 0 : width, mean, mode);
}

}  // namespace kelvane
