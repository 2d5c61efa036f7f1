#pragma once

#include <optional>

#include "gdiplus/paint.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane::gdiplus {

/// @param matrix  from the shading's space to the page; one that can be inverted.
/// @return the simplest paint that shows the shading; nullopt for one that shows nothing.
std::optional<Paint> ShadingPaint(CGShading shading, const CGAffineTransform& matrix);

}  // namespace kelvane::gdiplus
