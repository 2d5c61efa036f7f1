#pragma once

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_image.h"
#include "platform/quartz/cg_image.h"

namespace kelvane::gdiplus {

/// @param image  its bytes stay where and as they are while the graphics lives: by them it is found
///               again.
/// @return an image as the surface takes it, the same one each time, smoothed when it is enlarged
///         as the graphics interpolates; null for a metafile, and for one that cannot be read or
///         is far larger than its data, which is told the graphics.
CFOwned<const CGImage> ImageFrom(Graphics& graphics, const EmfPlusImage& image);

/// Whether a file is of a kind that can be drawn, as far as its header tells.
bool IsReadable(const EmfPlusImageFile& image);

}  // namespace kelvane::gdiplus
