#pragma once

#include <string>

#include "platform/svg/cg_svg_context.h"
#include "support/raster.h"
#include "support/surface.h"

namespace kelvane::test {

/// @return the bytes of the SVG document of one page on which `draw` drew.
std::string SvgOf(const Drawing& draw, const CGRect& box = kPageBox,
                  const CGSVGDescription& description = {});

/// @return what stands in the document behind its first element's beginning, before its end.
std::string SvgBodyOf(const Drawing& draw);

/// An SVG document as an external renderer paints it over white, `scale` pixels a point. Throws
/// std::runtime_error when the renderer fails or warns.
Raster RasterOfSvg(const std::string& svg, int scale = 1);

}  // namespace kelvane::test
