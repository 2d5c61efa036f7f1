#pragma once

#include "classic/bitmap/dib.h"
#include "classic/context/abstract_context.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// Draws the bitmap stretched into a rectangle of logical coordinates, upright. One without pixels
/// marks nothing.
/// @param dib  borrowed for the call. Throws std::bad_alloc.
void DrawImageInRect(AbstractContext& context, const DIB& dib, const RectangleL& rectangle);

}  // namespace kelvane
