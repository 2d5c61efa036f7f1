#pragma once

#include <cstddef>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_path.h"
#include "platform/raster/cairo_library.h"

namespace kelvane {

/// Strokes a path with the source of a drawing, as a state says.
/// @param toPixels    maps its points.
/// @param dashesLeft  how many dashes and gaps there may still be, see CutIntoDashes.
void StrokePath(cairo_t* drawing, const CGPath& path, const CGAffineTransform& toPixels,
                const CGStrokeGeometry& stroke, const CGGraphicsState& state,
                std::size_t& dashesLeft);

}  // namespace kelvane
