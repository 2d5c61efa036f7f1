#pragma once

#include <optional>

#include "gdiplus/graphics.h"
#include "gdiplus/paint.h"
#include "metafile/emfplus/emfplus_brush.h"

namespace kelvane::gdiplus {

/// @return nullopt for a hatch that leaves no mark.
std::optional<Paint> HatchPaint(Graphics& graphics, const EmfPlusHatchBrush& brush);

}  // namespace kelvane::gdiplus
