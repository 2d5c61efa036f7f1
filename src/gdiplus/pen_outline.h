#pragma once

#include <cstddef>
#include <optional>

#include "gdiplus/pen_shape.h"
#include "metafile/emfplus/emfplus_pen.h"
#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

/// What a surface does not stroke by itself, caps that differ, arrows, parallel bands and caps of
/// dashes, as one outline: with a paint that lets something through, line and caps do not add up.
/// @param path  device units.
/// @param mostPoints  of the outline.
/// @return figures to be filled by their winding; nullopt when there is too much of them.
std::optional<CGPath> OutlineOf(const CGPath& path, const PenShape& shape, const EmfPlusPen& pen,
                                std::size_t mostPoints);

}  // namespace kelvane::gdiplus
