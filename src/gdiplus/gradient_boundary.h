#pragma once

#include <vector>

#include "gdi/geometry.h"
#include "metafile/emfplus/emfplus_brush.h"

namespace kelvane::gdiplus {

/// A corner of the boundary of a path gradient, with the colour that the gradient has there.
struct BoundaryCorner {
  PointD point;  // the brush's space
  Argb color;
};

/// @param tolerance  how far lines may lie from the curves of the boundary.
/// @return its figures, closed without their first point at the end; none when its points are no
///         numbers.
std::vector<std::vector<BoundaryCorner>> BoundaryOf(const EmfPlusPathGradientBrush& brush,
                                                    double tolerance);

}  // namespace kelvane::gdiplus
