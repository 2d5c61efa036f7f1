#include "gdiplus/painting.h"

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

}  // namespace kelvane::gdiplus
