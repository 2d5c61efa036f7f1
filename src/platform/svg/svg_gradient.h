#pragma once

#include <string>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_shading.h"
#include "platform/svg/svg_definitions.h"

namespace kelvane {

/// @param matrix  from the shading's space to that of the marks it fills.
/// @return a reference to the gradient (SVG 1.1, 13.2.2).
std::string SvgGradient(const CGAxialShading& shading, const CGAffineTransform& matrix,
                        SvgDefinitions& definitions);

}  // namespace kelvane
