#pragma once

#include "gdi/geometry.h"
#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

/// @return what holds all points of a path, those that curves are pulled to among them; zero for an
///         empty path.
RectangleD BoundsOf(const CGPath& path);

}  // namespace kelvane::gdiplus
