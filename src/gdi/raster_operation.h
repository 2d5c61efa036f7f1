#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "gdi/palette.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_blend_mode.h"

namespace kelvane {

/// A mark that is part of a raster operation.
struct RasterStep {
  enum class Color : std::uint8_t { kPaint, kInversePaint, kBlack, kWhite };

  Color color;       // in which the mark is made
  CGBlendMode mode;  // how it is mixed with what lies below it
};

/// @return the marks that come nearest to the operation, one on the other; none for R2_NOP.
///         Darkening and lightening stand for AND and OR, the difference for XOR.
std::span<const RasterStep> StepsOf(BinaryRasterOperation operation);

/// A blend mode mixes channels as fractions where the operation combines their bits.
/// @return whether both give the same with this paint, whatever lies below.
bool IsExact(BinaryRasterOperation operation, RgbColor paint);

/// @return the colour of a step's mark.
RgbColor ColorOf(RasterStep::Color color, RgbColor paint);

/// @return the operation on paint and destination that a ternary one without a source is; nothing
///         when it looks at the source.
std::optional<BinaryRasterOperation> WithoutSource(TernaryRasterOperation operation);

}  // namespace kelvane
