#include "platform/raster/raster_fill.h"

#include <cstddef>

#include "platform/raster/raster_coverage.h"
#include "platform/raster/raster_extent.h"
#include "platform/raster/raster_geometry.h"
#include "platform/raster/raster_lines.h"
#include "platform/raster/raster_mask.h"

namespace kelvane {
namespace {

// Cairo sorts the lines of a path in each row anew, one by one where they cross: a path may have as
// many crossings as the square of its lines. Of few lines it makes the nicer edges.
bool IsForCairo(const CGPath& path, const RasterExtent& extent) {
  constexpr std::size_t kFewLines = 1024;
  return path.IsEmpty() || extent.Lines() <= kFewLines;
}

}  // namespace

void FillPath(cairo_t* drawing, const CGPath& path, const CGAffineTransform& toPixels,
              bool isEvenOdd) {
  RasterExtent extent;
  GiveLines(path, toPixels, extent);
  if (IsForCairo(path, extent)) {
    SetPath(drawing, path, toPixels);
    cairo_set_fill_rule(drawing, isEvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
    return cairo_fill(drawing);
  }
  const RasterMask mask(drawing, extent.Box());
  if (mask.IsEmpty()) return;
  RasterCoverage coverage(mask);
  GiveLines(path, toPixels, coverage);
  coverage.Fill(isEvenOdd);
  mask.Paint(drawing);
}

}  // namespace kelvane
