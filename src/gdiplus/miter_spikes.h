#pragma once

#include "gdi/geometry.h"
#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

/// Whether a corner of a path, be it of lines or of curves, is so sharp that its miter would go
/// past a limit.
/// @param path   device units. @param toPen  to the space in which the pen is round.
/// @param limit  the length of a miter in widths, at least 1.
bool HasSpikes(const CGPath& path, const TransformD& toPen, double limit);

}  // namespace kelvane::gdiplus
