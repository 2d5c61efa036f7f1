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

/// @return the bits of a ternary operation that count: files hold others below, and flags above.
constexpr std::uint32_t CodeOf(TernaryRasterOperation operation) {
  return operation >> 16 & 0xFF;
}

/// @return the code of the ternary operation that does the same, whatever the source.
constexpr std::uint8_t CodeOf(BinaryRasterOperation operation) {
  const std::uint32_t bits = operation - R2_BLACK;  // two for each of the paint's
  return static_cast<std::uint8_t>((bits & 3) * 0x05 | (bits >> 2 & 3) * 0x50);
}

/// @return whether two ternary operations do the same.
constexpr bool AreAlike(TernaryRasterOperation one, TernaryRasterOperation other) {
  return CodeOf(one) == CodeOf(other);
}

/// @return the operation on paint and destination that a ternary one is where the source's bits are
///         all set, or all unset.
BinaryRasterOperation WhereSourceIs(bool isSet, TernaryRasterOperation operation);

/// @return the operation on source, which takes the paint's place, and destination that a ternary
///         one is where the paint's bits are all set, or all unset.
BinaryRasterOperation WherePaintIs(bool isSet, TernaryRasterOperation operation);

/// @return the operation on paint and destination that a ternary one without a source is; nothing
///         when it looks at the source.
std::optional<BinaryRasterOperation> WithoutSource(TernaryRasterOperation operation);

/// @return the operation on source, which takes the paint's place, and destination that a ternary
///         one without paint is; nothing when it looks at the paint.
std::optional<BinaryRasterOperation> WithoutPaint(TernaryRasterOperation operation);

bool NeedsDestination(TernaryRasterOperation operation);

/// @param destination  does not count for operations that do not look at it.
/// @return a colour bit by bit.
RgbColor Combine(TernaryRasterOperation operation, RgbColor paint, RgbColor source,
                 RgbColor destination);
std::uint8_t Combine(TernaryRasterOperation operation, std::uint8_t paint, std::uint8_t source,
                     std::uint8_t destination);
RgbColor Combine(BinaryRasterOperation operation, RgbColor paint, RgbColor destination);

/// @return whether the operation's result is the same whatever the paint.
constexpr bool IgnoresPaint(BinaryRasterOperation operation) {
  return operation == R2_BLACK || operation == R2_NOT || operation == R2_NOP ||
         operation == R2_WHITE;
}

}  // namespace kelvane
