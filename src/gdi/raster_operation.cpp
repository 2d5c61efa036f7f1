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

// The byte has a bit for each of paint, source and destination; it looks at the source unless the
// bits for both of its values are the same. The four bits left are the operation's number less 1.
std::optional<BinaryRasterOperation> WithoutSource(TernaryRasterOperation operation) {
  const std::uint32_t code = operation >> 16 & 0xFF;
  const std::uint32_t sourceUnset = code & 0x33;
  const std::uint32_t sourceSet = code >> 2 & 0x33;
  if (sourceUnset != sourceSet) return std::nullopt;
  return static_cast<BinaryRasterOperation>(R2_BLACK + (sourceUnset >> 2 | (sourceUnset & 3)));
}

}  // namespace kelvane
