#pragma once

#include <cstdint>

#include "gdi/device_context.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

// Paths onto the page, in the state there is. They are in device units and empty afterwards, with
// their memory for the next; those with numbers that are not finite are left out.

enum class PaintKind : std::uint8_t { kFill, kStroke, kFillAndStroke };

/// Cuts the page to the clip there is, or another. @return false when nothing can be seen.
bool BringClip(DeviceContext& device);
bool BringClip(DeviceContext& device, const ClipState& clip);

/// Paints with the selected brush and pen under the raster operation.
void PaintPath(DeviceContext& device, CGPath& path, PaintKind kind);

/// Fills with another brush, or a plain colour.
void FillWith(DeviceContext& device, CGPath& path, PolyFillMode fillMode, const Brush& brush,
              BinaryRasterOperation operation);

void FillWith(DeviceContext& device, CGPath& path, PolyFillMode fillMode, RgbColor color,
              BinaryRasterOperation operation);

/// Draws lines and pixels that still wait for more of their kind.
void DrawPendingMarks(DeviceContext& device);

}  // namespace kelvane
