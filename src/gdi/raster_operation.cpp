#include "gdi/raster_operation.h"

#include <array>

namespace kelvane {
namespace {

using Color = RasterStep::Color;

struct Operation {
  std::size_t count;
  std::array<RasterStep, 2> steps;
  bool isAlwaysExact = false;
};

constexpr RasterStep kInvert = {Color::kWhite, kCGBlendModeDifference};

constexpr Operation One(Color color, CGBlendMode mode, bool isAlwaysExact = false) {
  return {1, {{{color, mode}, {}}}, isAlwaysExact};
}

/// By operation, from R2_BLACK on.
constexpr std::array<Operation, 16> kOperations = {
    One(Color::kBlack, kCGBlendModeNormal, true),
    Operation{2, {{{Color::kPaint, kCGBlendModeLighten}, kInvert}}},
    One(Color::kInversePaint, kCGBlendModeDarken),
    One(Color::kInversePaint, kCGBlendModeNormal, true),
    Operation{2, {{kInvert, {Color::kPaint, kCGBlendModeDarken}}}},
    One(Color::kWhite, kCGBlendModeDifference, true),
    One(Color::kPaint, kCGBlendModeDifference),
    Operation{2, {{{Color::kPaint, kCGBlendModeDarken}, kInvert}}},
    One(Color::kPaint, kCGBlendModeDarken),
    One(Color::kInversePaint, kCGBlendModeDifference),
    Operation{0, {}, true},
    One(Color::kInversePaint, kCGBlendModeLighten),
    One(Color::kPaint, kCGBlendModeNormal, true),
    Operation{2, {{kInvert, {Color::kPaint, kCGBlendModeLighten}}}},
    One(Color::kPaint, kCGBlendModeLighten),
    One(Color::kWhite, kCGBlendModeNormal, true),
};

const Operation& OperationOf(BinaryRasterOperation operation) {
  return kOperations[operation - R2_BLACK];
}

bool IsExtreme(std::uint8_t channel) {
  return channel == 0 || channel == 255;
}

std::uint8_t Inverse(std::uint8_t channel) {
  return static_cast<std::uint8_t>(~channel);
}

}  // namespace

std::span<const RasterStep> StepsOf(BinaryRasterOperation operation) {
  const Operation& found = OperationOf(operation);
  return {found.steps.data(), found.count};
}

bool IsExact(BinaryRasterOperation operation, RgbColor paint) {
  return OperationOf(operation).isAlwaysExact ||
         (IsExtreme(paint.red) && IsExtreme(paint.green) && IsExtreme(paint.blue));
}

RgbColor ColorOf(RasterStep::Color color, RgbColor paint) {
  switch (color) {
    case Color::kPaint:
      return paint;
    case Color::kInversePaint:
      return {Inverse(paint.red), Inverse(paint.green), Inverse(paint.blue)};
    case Color::kBlack:
      return {0, 0, 0};
    case Color::kWhite:
      break;
  }
  return {255, 255, 255};
}

// The code's byte has the result's bit for each three bits of paint, source and destination.

BinaryRasterOperation WhereSourceIs(bool isSet, TernaryRasterOperation operation) {
  const std::uint32_t code = CodeOf(operation) >> (isSet ? 2 : 0);
  return static_cast<BinaryRasterOperation>(R2_BLACK + ((code & 3) | (code >> 4 & 3) << 2));
}

BinaryRasterOperation WherePaintIs(bool isSet, TernaryRasterOperation operation) {
  return static_cast<BinaryRasterOperation>(R2_BLACK +
                                            (CodeOf(operation) >> (isSet ? 4 : 0) & 0xF));
}

std::optional<BinaryRasterOperation> WithoutSource(TernaryRasterOperation operation) {
  const BinaryRasterOperation found = WhereSourceIs(false, operation);
  if (found != WhereSourceIs(true, operation)) return std::nullopt;
  return found;
}

std::optional<BinaryRasterOperation> WithoutPaint(TernaryRasterOperation operation) {
  const BinaryRasterOperation found = WherePaintIs(false, operation);
  if (found != WherePaintIs(true, operation)) return std::nullopt;
  return found;
}

bool NeedsDestination(TernaryRasterOperation operation) {
  constexpr std::uint32_t kUnset = 0x55;  // the bits of what is where the destination's are unset
  const std::uint32_t code = CodeOf(operation);
  return (code & kUnset) != (code >> 1 & kUnset);
}

RgbColor Combine(TernaryRasterOperation operation, RgbColor paint, RgbColor source,
                 RgbColor destination) {
  return {Combine(operation, paint.red, source.red, destination.red),
          Combine(operation, paint.green, source.green, destination.green),
          Combine(operation, paint.blue, source.blue, destination.blue)};
}

std::uint8_t Combine(TernaryRasterOperation operation, std::uint8_t paint, std::uint8_t source,
                     std::uint8_t destination) {
  // The bits of an operand, or those that it lacks.
  const auto where = [](std::uint32_t isSet, std::uint8_t bits) {
    return isSet != 0 ? std::uint32_t{bits} : ~std::uint32_t{bits};
  };
  const std::uint32_t code = CodeOf(operation);
  std::uint32_t result = 0;
  for (std::uint32_t i = 0; i < 8; ++i) {
    if ((code >> i & 1) == 0) continue;
    result |= where(i & 4, paint) & where(i & 2, source) & where(i & 1, destination);
  }
  return static_cast<std::uint8_t>(result);
}

RgbColor Combine(BinaryRasterOperation operation, RgbColor paint, RgbColor destination) {
  const std::uint32_t code = CodeOf(operation);
  return Combine(static_cast<TernaryRasterOperation>(code << 16), paint, {}, destination);
}

}  // namespace kelvane
