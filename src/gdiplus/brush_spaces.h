#pragma once

#include <optional>

#include "gdi/geometry.h"
#include "gdiplus/graphics.h"
#include "metafile/gdi_types.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane::gdiplus {

/// From a brush's own space to device units.
/// @param staysInPlace  the world transform does not move it.
TransformD BrushToDevice(const Graphics& graphics, const XForm& transform, bool staysInPlace);

/// @param toDevice  from a brush's space.
/// @return the matrix of a pattern in that space.
CGAffineTransform PatternMatrixOf(const Graphics& graphics, const TransformD& toDevice);

/// @param toDevice  from a brush's space. @param bounds  of a mark, device units.
/// @return what of the brush's space the mark can show, as far as the page does; nullopt when that
///         is nothing, or the brush's space is a line or a point on the page.
std::optional<RectangleD> SeenOf(const Graphics& graphics, const TransformD& toDevice,
                                 const RectangleD& bounds);

}  // namespace kelvane::gdiplus
