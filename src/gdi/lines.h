#pragma once

#include "gdi/device_context.h"
#include "metafile/array_view.h"

namespace kelvane {

// Lines, curves and polygons. Points are logical units; a Point is PointL or Point16. Inside a path
// bracket they join the path, outside they are drawn with the selected pen and brush.

void MoveToEx(DeviceContext& device, PointL point);

/// A line from the current position, which moves to its end. Such lines in a row are drawn as one.
void LineTo(DeviceContext& device, PointL end);

template <class Point>
void Polyline(DeviceContext& device, ArrayView<Point> points);

template <class Point>
void PolylineTo(DeviceContext& device, ArrayView<Point> points);

/// @param points  the start, then three for each curve; what is left over is passed over.
template <class Point>
void PolyBezier(DeviceContext& device, ArrayView<Point> points);

/// @param points  three for each curve; what is left over is passed over.
template <class Point>
void PolyBezierTo(DeviceContext& device, ArrayView<Point> points);

template <class Point>
void Polygon(DeviceContext& device, ArrayView<Point> points);

/// @param counts  points of each line; those that the points do not reach are cut short.
/// @return whether none is.
template <class Point>
bool PolyPolyline(DeviceContext& device, ArrayView<std::uint32_t> counts, ArrayView<Point> points);

/// Filled as one, so that polygons are holes in one another. Counts and result are as above.
template <class Count, class Point>
bool PolyPolygon(DeviceContext& device, ArrayView<Count> counts, ArrayView<Point> points);

/// @param types  of the points, as many.
/// @return false, and draws what comes before, at a type that is none.
template <class Point>
bool PolyDraw(DeviceContext& device, ArrayView<Point> points, ArrayView<PointType> types);

}  // namespace kelvane
