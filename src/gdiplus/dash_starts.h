#pragma once

#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

/// Dashes of a closed figure begin with the line that closes it, not at the figure's first point.
/// @return the path with its figures closed by a line turned so that they start there. One whose
///         last point is its first again stays as it is.
CGPath StartedWhereDashesDo(const CGPath& path);

}  // namespace kelvane::gdiplus
