#pragma once

#include <limits>

#include "platform/quartz/cg_geometry.h"

namespace kelvane::test {

inline constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();
inline constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
inline constexpr CGAffineTransform kDouble = {2, 0, 0, 2, 0, 0};

}  // namespace kelvane::test
