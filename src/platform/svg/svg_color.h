#pragma once

#include <cmath>
#include <string>

#include "platform/quartz/cg_color_space.h"

namespace kelvane {

/// @param component  from 0 to 1. @return the byte that it is in an image.
inline unsigned char SvgByte(CGFloat component) {
  return static_cast<unsigned char>(std::lround(component * 255));
}

/// @return the colour without its alpha, as `#rgb` or `#rrggbb`.
std::string SvgColor(const CGColor& color);

}  // namespace kelvane
