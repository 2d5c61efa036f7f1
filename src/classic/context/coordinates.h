#pragma once

#include <cstdint>

#include "classic/context/abstract_context.h"
#include "classic/reader/geometry_types.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// Maps a logical point onto the page, in place: y is negated, and under MM_ANISOTROPIC the window
/// is scaled onto the viewport first, truncating toward zero. Every other mapping mode, the metric
/// ones included, only negates y. A window extent of 0 leaves its coordinate unscaled.
void ChangeXY(const AbstractContext& context, std::int32_t& x, std::int32_t& y);

/// @return the page box of a metafile's bounds: device units, no mapping, origin at the smaller x
///         and -bottom.
CGRect GetImageBox(const AbstractContext& context, const RectangleL& bounds);

/// @return radians, rounded once to single precision.
float DegreesToRadians(float degrees);

/// @return the mapped rectangle, corners put in order.
CGRect RectangleToCGRect(const AbstractContext& context, RectangleL rectangle);

/// Replaces the surface's CTM by `transform`, up to rounding. A singular CTM cannot be undone:
/// `transform` is then applied before it.
void ContextSetCTM(AbstractContext& context, const CGAffineTransform& transform);

/// Replaces the CTM by a world transform. Its vertical translation follows the page's negated y, as
/// a whole number.
void ContextSetCTM(AbstractContext& context, const XForm& transform);

/// Changes the world transform as ModifyWorldTransform does and makes the result the CTM.
void TransformContext(AbstractContext& context, std::int32_t mode, const XForm& transform);

/// Makes a rotation the surface's text matrix and the angle of the text that follows.
/// @param degrees  counter-clockwise.
void ContextSetTextMatrix(AbstractContext& context, float degrees);

}  // namespace kelvane
