#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_brush.h"
#include "metafile/emfplus/emfplus_path.h"
#include "metafile/emfplus/emfplus_pen.h"
#include "metafile/emfplus/emfplus_region.h"
#include "metafile/emfplus/emfplus_types.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane::gdiplus {

// The drawing methods of a Graphics, in world units.

/// Replaces all that the clip shows, alpha and all.
void Clear(Graphics& graphics, const Argb& color);

void FillRectangles(Graphics& graphics, const EmfPlusBrush& brush, std::span<const RectF> boxes);
void DrawRectangles(Graphics& graphics, const EmfPlusPen& pen, std::span<const RectF> boxes);
void FillPolygon(Graphics& graphics, const EmfPlusBrush& brush, std::span<const PointF> points);
void DrawLines(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points,
               bool isClosed);
void FillEllipse(Graphics& graphics, const EmfPlusBrush& brush, const RectF& box);
void DrawEllipse(Graphics& graphics, const EmfPlusPen& pen, const RectF& box);
void FillPie(Graphics& graphics, const EmfPlusBrush& brush, const RectF& box, float startAngle,
             float sweepAngle);
void DrawPie(Graphics& graphics, const EmfPlusPen& pen, const RectF& box, float startAngle,
             float sweepAngle);
void DrawArc(Graphics& graphics, const EmfPlusPen& pen, const RectF& box, float startAngle,
             float sweepAngle);
void FillRegion(Graphics& graphics, const EmfPlusBrush& brush, const EmfPlusRegion& region);
void FillPath(Graphics& graphics, const EmfPlusBrush& brush, const EmfPlusPath& path);
void DrawPath(Graphics& graphics, const EmfPlusPen& pen, const EmfPlusPath& path);
void FillClosedCurve(Graphics& graphics, const EmfPlusBrush& brush, std::span<const PointF> points,
                     float tension, PolyFillMode fillMode);
void DrawClosedCurve(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points,
                     float tension);
void DrawCurve(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points,
               float tension, std::size_t offset, std::size_t segments);
void DrawBeziers(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points);

}  // namespace kelvane::gdiplus
