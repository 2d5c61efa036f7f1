#pragma once

#include <limits>

#include "platform/quartz/cg_geometry.h"

namespace kelvane::test {

inline constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();
inline constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
inline constexpr CGAffineTransform kDouble = {2, 0, 0, 2, 0, 0};

/// What is painted, and a clip that leaves it whole.
inline constexpr CGRect kMark = {{10, 10}, {5, 5}};
inline constexpr CGRect kClipA = {{0, 0}, {50, 50}};

}  // namespace kelvane::test
