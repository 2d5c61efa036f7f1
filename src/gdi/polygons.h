#pragma once

#include <optional>
#include <vector>

#include "gdi/geometry.h"
#include "gdi/steps.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// Closed figures in device units.
struct Polygons {
  std::vector<std::vector<PointD>> figures;
  PolyFillMode fillMode = ALTERNATE;
};

/// @return the path with its curves as lines, which are at most `tolerance` away; every figure
///         counts as closed.
Polygons Flattened(const CGPath& path, PolyFillMode fillMode, double tolerance);

/// Both as sets of points, as Combine of regions has them. Points are rounded to 1/256, and what is
/// 2^21 or more away is drawn in to there: that is far outside of any page.
/// @return figures for the mode ALTERNATE; nullopt when the steps run out. Each place where two
///         edges cross takes some.
std::optional<Polygons> Combine(const Polygons& a, const Polygons& b, RegionMode mode,
                                Steps& steps);

}  // namespace kelvane
