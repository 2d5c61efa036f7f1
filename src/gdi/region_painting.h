#pragma once

#include "gdi/device_context.h"
#include "metafile/array_view.h"

namespace kelvane {

// Regions onto the page. They are rectangles in logical units, right and bottom edges excluded.
// All return false when a region would take too long to put together.

/// @param brush  a handle; one that is no brush fails.
bool FillRgn(DeviceContext& device, ArrayView<RectangleL> region, std::uint32_t brush);

/// Fills the edge of a region, on its inner side.
/// @param frame  logical units: how wide the edge is at the sides, and how high above and below.
bool FrameRgn(DeviceContext& device, ArrayView<RectangleL> region, std::uint32_t brush,
              SizeL frame);

/// Fills with the selected brush.
bool PaintRgn(DeviceContext& device, ArrayView<RectangleL> region);

/// Inverts the colours in the region.
bool InvertRgn(DeviceContext& device, ArrayView<RectangleL> region);

}  // namespace kelvane
