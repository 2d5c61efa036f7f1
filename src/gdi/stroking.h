#pragma once

#include "gdi/device_context.h"
#include "gdi/pen.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// Draws the surface's current path with a pen's stroke, in the stroke colour that is set.
/// @param mode  one that strokes.
void DrawStroked(DeviceContext& device, const PenStroke& stroke, CGPathDrawingMode mode);

}  // namespace kelvane
