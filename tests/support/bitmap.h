#pragma once

#include <string>

#include "platform/raster/cg_bitmap_context.h"
#include "support/raster.h"
#include "support/surface.h"

namespace kelvane::test {

/// @return the bytes of the PNG file of a page of kPageBox on which `draw` drew.
std::string PngOf(const Drawing& draw, const CGBitmapDescription& description);

/// @return the same as pixels, `scale` of them a point, on white.
Raster BitmapOf(const Drawing& draw, int scale = 1);

/// @return the colours of a PNG file. Throws std::runtime_error when it is none.
Raster RasterOfPng(const std::string& file);

}  // namespace kelvane::test
