#pragma once

#include <optional>

#include "gdiplus/graphics.h"
#include "gdiplus/paint.h"
#include "metafile/emfplus/emfplus_brush.h"

namespace kelvane::gdiplus {

/// @param bounds  as for PaintOf.
/// @return nullopt for a brush that leaves no mark.
std::optional<Paint> PathGradientPaint(Graphics& graphics, const EmfPlusPathGradientBrush& brush,
                                       const RectangleD& bounds);

}  // namespace kelvane::gdiplus
