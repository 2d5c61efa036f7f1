#pragma once

#include "gdi/device_context.h"
#include "metafile/array_view.h"
#include "metafile/gdi_types.h"

namespace kelvane {

// Colours that run from vertex to vertex. Pen, brush and raster operation have no part in them.
// Both functions draw what has all of its vertices, and return false when something lacks some.

/// Fills rectangles between two vertices each, which are opposite corners, in any order; right and
/// bottom edges are excluded.
/// @param mode  GRADIENT_FILL_RECT_H for colours that run from left to right in logical space, else
///              from top to bottom.
bool GradientFill(DeviceContext& device, ArrayView<TriVertex> vertices,
                  ArrayView<GradientRectangle> rectangles, GradientFillMode mode);

/// Fills triangles, the later ones over the earlier.
bool GradientFill(DeviceContext& device, ArrayView<TriVertex> vertices,
                  ArrayView<GradientTriangle> triangles);

}  // namespace kelvane
