#pragma once

#include <cstddef>
#include <vector>

#include "platform/quartz/cg_geometry.h"
#include "platform/raster/cairo_library.h"

namespace kelvane {

/// The dashes of a stroke.
struct RasterDashes {
  std::vector<double> lengths;  // dash, gap, …; none is less than 0, one at least is more
  double phase = 0;             // how far into them each figure starts
  CGAffineTransform toPixels;   // from their lengths; it has an inverse
};

/// Cuts the current path into its dashes, but for what lies beyond the part of the page that can be
/// seen: a line may be as long as it likes. Dashes shorter than pixels are made longer, all alike,
/// so that as much of the line is painted.
/// @param margin  how far a stroke reaches beyond its path, pixels.
/// @param left    how many dashes and gaps there may still be. Behind the last of them lines are
///                solid.
void CutIntoDashes(cairo_t* drawing, const RasterDashes& dashes, double margin, std::size_t& left);

}  // namespace kelvane
