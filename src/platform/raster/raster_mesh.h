#pragma once

#include "platform/quartz/cg_shading.h"
#include "platform/raster/cairo_library.h"
#include "platform/raster/raster_geometry.h"

namespace kelvane {

/// @param mesh  in pixels. @param page  nothing is painted beyond it.
/// @return the triangles as pixels, each of the colour in its middle, clear beside them. It takes
///         as long as they have pixels on the page, however far they reach.
CairoOwned<cairo_pattern_t> MeshPattern(const CGTriangleMesh& mesh, const PixelCount& page);

}  // namespace kelvane
