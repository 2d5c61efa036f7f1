#pragma once

#include "gdi/blit.h"
#include "gdi/brush.h"
#include "gdi/device_context.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {

// Blits onto the page, which is cut to the clip they need. What does not come out as on Windows is
// noted as a shortfall.

/// @param paint  what the brush paints with, for operations that look at it.
void PaintBlit(DeviceContext& device, const Blit& blit, TernaryRasterOperation operation,
               const BrushPaint& paint);

/// Fills what is shown of a blit, whatever its colours.
void FillBlit(DeviceContext& device, const Blit& blit, BinaryRasterOperation operation,
              const BrushPaint& paint);

/// Draws an image in the place of a blit, as far as that is shown.
/// @param image  null is noted as unreadable.
void PaintImage(DeviceContext& device, const Blit& blit, CFOwned<const CGImage> image);

/// Lays a bitmap over what is there.
/// @param alpha          0 to 1, of all of it.
/// @param isMultiplied   the pixels have alpha of their own, by which their colours are multiplied.
void PaintTranslucent(DeviceContext& device, const Blit& blit, CGFloat alpha, bool isMultiplied);

}  // namespace kelvane
