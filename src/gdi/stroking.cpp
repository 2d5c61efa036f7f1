#include "gdi/stroking.h"

#include "gdi/surface_stroke.h"

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

}  // namespace

// A pen is round in logical units.
void DrawStroked(DeviceContext& device, const PenStroke& stroke, CGPathDrawingMode mode) {
  Canvas& canvas = *device.canvas;
  const SurfaceStroke onSurface = {CapOf(stroke.endCap), JoinOf(stroke.join),
                                   device.state.miterLimit, stroke.width, stroke.dashes};
  const Mapping& mapping = device.state.mapping;
  if (stroke.width == 0 || stroke.dashesAreOnPage) {  // thin, and as wide in all directions
    const double dashUnit = stroke.dashesAreOnPage ? canvas.ScreenPixel() : 1;
    return DrawEven(canvas, onSurface, mapping.HorizontalScale(), dashUnit, mode);
  }
  DrawThrough(canvas, onSurface, mapping.ToDevice(), mode);
}

}  // namespace kelvane
