#pragma once

#include <string>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"
#include "platform/svg/svg_number.h"

namespace kelvane {

/// Writes path data (SVG 1.1, 8.3): differences between points on the grid.
/// @param transform  to the space that the data are for.
void AppendSvgPath(std::string& text, const CGPath& path, const CGAffineTransform& transform,
                   const SvgGrid& grid);

/// @return the same as a text of its own.
std::string SvgPathData(const CGPath& path, const CGAffineTransform& transform,
                        const SvgGrid& grid);

}  // namespace kelvane
