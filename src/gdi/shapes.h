#pragma once

#include "gdi/device_context.h"

namespace kelvane {

// Boxes, arcs and pixels. Coordinates are logical units; boxes have their corners in any order, and
// right and bottom edge belong to them. Boxes without width or height have no ellipse.

void Rectangle(DeviceContext& device, const RectangleL& box);
void Ellipse(DeviceContext& device, const RectangleL& box);
/// @param corner  the ellipse of which each corner is a quarter.
void RoundRect(DeviceContext& device, const RectangleL& box, SizeL corner);

/// @param start, end  give directions from the middle of the box.
void Arc(DeviceContext& device, const RectangleL& box, PointL start, PointL end);
void Chord(DeviceContext& device, const RectangleL& box, PointL start, PointL end);
void Pie(DeviceContext& device, const RectangleL& box, PointL start, PointL end);

/// A line from the current position to the arc and the arc, to whose end the position moves.
void ArcTo(DeviceContext& device, const RectangleL& box, PointL start, PointL end);

/// The same on a circle. @param startAngle, sweepAngle  degrees, counter-clockwise from +x.
void AngleArc(DeviceContext& device, PointL center, std::uint32_t radius, float startAngle,
              float sweepAngle);

/// Fills a device unit. Pixels of one colour in a row are drawn as one; brackets do not take them.
void SetPixelV(DeviceContext& device, PointL point, ColorRef color);

/// Fills a rectangle with the selected brush.
/// @param corner, size  a negative size leads the other way.
void PatBlt(DeviceContext& device, PointL corner, SizeL size, BinaryRasterOperation operation);

}  // namespace kelvane
