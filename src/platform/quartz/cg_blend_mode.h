#pragma once

#include <cstdint>

namespace kelvane {

/// How a mark is mixed with what lies below it (ISO 32000-1, 11.3.5). The numbers are part of the
/// platform's interface.
enum CGBlendMode : std::uint8_t {
  kCGBlendModeNormal = 0,
  kCGBlendModeMultiply = 1,
  kCGBlendModeScreen = 2,
  kCGBlendModeOverlay = 3,
  kCGBlendModeDarken = 4,
  kCGBlendModeLighten = 5,
  kCGBlendModeColorDodge = 6,
  kCGBlendModeColorBurn = 7,
  kCGBlendModeSoftLight = 8,
  kCGBlendModeHardLight = 9,
  kCGBlendModeDifference = 10,
  kCGBlendModeExclusion = 11,
  kCGBlendModeHue = 12,
  kCGBlendModeSaturation = 13,
  kCGBlendModeColor = 14,
  kCGBlendModeLuminosity = 15,
};

inline constexpr int kCGBlendModes = 16;

}  // namespace kelvane
