#pragma once

#include <cmath>

#include "gdi/palette.h"
#include "platform/quartz/cg_color_space.h"

namespace kelvane {

/// A channel of 8 bits as the surface has it: in thousandths, which are fine enough to tell all 256
/// values and take few digits.
inline CGFloat ChannelOnPage(std::uint8_t channel) {
  constexpr CGFloat kMost = 255;
  constexpr CGFloat kParts = 1000;
  return std::rint(static_cast<CGFloat>(channel) * kParts / kMost) / kParts;
}

/// The other way: each value of 8 bits comes back from its thousandths.
inline std::uint8_t ChannelFromPage(CGFloat channel) {
  return static_cast<std::uint8_t>(std::lround(channel * 255));
}

inline CGColor ColorOnPage(RgbColor color) {
  return {ChannelOnPage(color.red), ChannelOnPage(color.green), ChannelOnPage(color.blue), 1};
}

}  // namespace kelvane
