#pragma once

#include "classic/reader/geometry_types.h"

namespace kelvane {

inline constexpr XForm kIdentityTransform = {1, 0, 0, 1, 0, 0};

/// @return the single-precision product: applying it equals applying `a`, then `b`.
XForm CrossMultiply(const XForm& a, const XForm& b);

}  // namespace kelvane
