#pragma once

#include <cstdint>
#include <optional>

#include "gdi/geometry.h"
#include "gdi/pen.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// What Widened is given up for.
inline constexpr std::uint64_t kMostWorkOfWidening = std::uint64_t{1} << 25;

/// @param path   device units. @param width  of the pen, device units.
/// @return how long Widened takes for it: the strokes of lines that lie beside each other, and far
///         more for those that meet. Beyond the most it is not counted on.
std::uint64_t WorkOfWidening(const CGPath& path, double width);

/// @param path      device units.
/// @param toDevice  from the logical units in which the pen is round.
/// @return the outline of a path's stroke, to be filled by its winding; dashes do not count, and
///         bevels stand out farther than those of a stroke, by up to half of the width.
///         nullopt when there is too much of the path, or the mapping has no area.
std::optional<CGPath> Widened(const CGPath& path, const PenStroke& stroke, double miterLimit,
                              const TransformD& toDevice);

}  // namespace kelvane
