#include "gdiplus/painting.h"

#include "gdi/surface_stroke.h"
#include "gdiplus/paint.h"
#include "gdiplus/path_bounds.h"

namespace kelvane::gdiplus {

void PaintFill(Graphics& graphics, CGPath& path, PolyFillMode fillMode, const EmfPlusBrush& brush) {
  if (!path.HasSegments() || !path.IsFinite() || !BringClip(graphics)) return path.Clear();
  const auto paint = PaintOf(graphics, brush, BoundsOf(path));
  if (!paint) return path.Clear();
  CGContext& surface = graphics.canvas->Surface();
  SetFill(surface, *paint);
  graphics.canvas->Load(path);
  surface.DrawPath(fillMode == WINDING ? kCGPathFill : kCGPathEOFill);
}

void PaintStroke(Graphics& graphics, CGPath& path, const EmfPlusPen& pen) {
  if (!path.HasSegments() || !path.IsFinite() || !BringClip(graphics)) return path.Clear();
  const auto paint = PaintOf(graphics, pen.brush, BoundsOf(path));
  if (!paint) return path.Clear();
  CGContext& surface = graphics.canvas->Surface();
  SetStroke(surface, *paint);
  graphics.canvas->Load(path);
  const SurfaceStroke stroke = {.miterLimit = pen.miterLimit, .width = pen.width};
  DrawThrough(*graphics.canvas, stroke, UnitToDevice(graphics, pen.unit), kCGPathStroke);
}

}  // namespace kelvane::gdiplus
