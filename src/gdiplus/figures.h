#pragma once

#include <cstddef>
#include <span>

#include "gdi/geometry.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_types.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane::gdiplus {

// Figures into a path. Points are mapped by `toDevice` in double precision and rounded once.

void AddLines(CGPath& path, const TransformD& toDevice, std::span<const PointF> points,
              bool isClosed);
void AddBeziers(CGPath& path, const TransformD& toDevice, std::span<const PointF> points);
void AddRectangle(CGPath& path, const TransformD& toDevice, const RectF& rectangle);
void AddEllipse(CGPath& path, const TransformD& toDevice, const RectF& box);

/// @param startAngle, sweepAngle  degrees, clockwise with y downwards, to the ellipse as drawn; a
///                                sweep beyond a full turn is one.
void AddArc(CGPath& path, const TransformD& toDevice, const RectF& box, float startAngle,
            float sweepAngle);
void AddPie(CGPath& path, const TransformD& toDevice, const RectF& box, float startAngle,
            float sweepAngle);

/// A cardinal spline through points, from one of them over so many segments.
void AddCurve(CGPath& path, const TransformD& toDevice, std::span<const PointF> points,
              float tension, std::size_t offset, std::size_t segments);
void AddClosedCurve(CGPath& path, const TransformD& toDevice, std::span<const PointF> points,
                    float tension);

void AddPath(CGPath& path, const TransformD& toDevice, const EmfPlusPath& figures);

inline PolyFillMode FillModeOf(const EmfPlusPath& path) {
  return path.isWinding ? WINDING : ALTERNATE;
}

}  // namespace kelvane::gdiplus
