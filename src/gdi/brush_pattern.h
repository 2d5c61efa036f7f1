#pragma once

#include <cstdint>
#include <optional>

#include "gdi/brush.h"
#include "gdi/raster_operation.h"
#include "platform/quartz/cg_pattern.h"

namespace kelvane {

/// @return how many bytes the bitmap of a brush is, or pixels where a few bytes may be many.
std::uint64_t SizeOfPattern(const BrushPaint& paint);

/// @param halfBand  of diagonal lines, along either axis: half a pixel makes those that are as
///                  wide as one in each row.
/// @return the lines of a hatch in a cell of 8 by 8 pixels, a unit a pixel, y upwards.
CGPath HatchLines(HatchStyle hatch, CGFloat halfBand = 0.5F);

/// @param paint  hatched or of a bitmap. @param color  the step of a raster operation for which
///               all of its colours are changed.
/// @return a cell of the brush, a unit a pixel, its matrix still the identity; nullopt when the
///         bitmap cannot be read.
std::optional<CGPattern> MakePattern(const BrushPaint& paint, RasterStep::Color color);

}  // namespace kelvane
