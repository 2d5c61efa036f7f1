#pragma once

#include <cstdint>

#include "classic/context/abstract_context.h"
#include "classic/reader/geometry_types.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

// Each adds to the surface's current path in logical coordinates, mapped by ChangeXY. None of them
// paints.

void MoveToPoint(AbstractContext& context, std::int32_t x, std::int32_t y);

/// A line from the current point.
void AddLine(AbstractContext& context, std::int32_t x, std::int32_t y);

/// A Bezier curve: two control points, then its end.
void AddCurveToPoint(AbstractContext& context, std::int32_t x1, std::int32_t y1, std::int32_t x2,
                     std::int32_t y2, std::int32_t x3, std::int32_t y3);

/// An arc in the context's arc direction. The angles are not negated although y is.
/// @param radius  page units: not mapped.
void AddArc(AbstractContext& context, PointL centre, std::uint32_t radius, float startDegrees,
            float endDegrees);

void AddRectangle(AbstractContext& context, const RectangleL& rectangle);

/// The ellipse inscribed in the rectangle.
void AddEllipseInRect(AbstractContext& context, const RectangleL& rectangle);

/// The same ellipse: the corner size of a rounded rectangle is never used.
void AddRoundRectangle(AbstractContext& context, const RectangleL& rectangle);

/// Paints the current path and empties it. With a hollow brush fill-and-stroke only strokes; a
/// plain fill fills.
void DrawPath(const AbstractContext& context, CGPathDrawingMode mode);

/// Intersects the clip with the current path and empties it.
void Clip(AbstractContext& context);

/// Intersects the clip with a rectangle.
void ClipToRect(AbstractContext& context, const RectangleL& rectangle);

}  // namespace kelvane
