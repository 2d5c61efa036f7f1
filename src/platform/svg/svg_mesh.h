#pragma once

#include <string>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_shading.h"
#include "platform/svg/svg_definitions.h"
#include "platform/svg/svg_number.h"

namespace kelvane {

/// Draws triangles that change their colour from corner to corner, which SVG has none of. Where
/// colours change along one line, as between two of them, a gradient shows just that; other
/// triangles are cut into strips, so narrow that their steps are not seen.
/// @param matrix  from the mesh's space to that of the text.
/// @return elements to be drawn one after the other. Their edges meet, and must not be smoothed.
std::string SvgMesh(const CGTriangleMesh& mesh, const CGAffineTransform& matrix,
                    const SvgGrid& grid, SvgDefinitions& definitions);

}  // namespace kelvane
