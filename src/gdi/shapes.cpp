#include "gdi/shapes.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "gdi/drawing.h"
#include "gdi/exactly.h"
#include "gdi/objects.h"
#include "gdi/raster_operation.h"

namespace kelvane {
namespace {

/// @return the box of a closed shape, moved inwards when its pen stays inside of it: by half of the
///         pen, less the half pixel by which the outermost pixels reach out.
RectangleD OutlineBox(const DeviceContext& device, const RectangleL& stored) {
  const RectangleD box = Exactly(stored);
  const RectangleD ordered = {std::min(box.left, box.right), std::min(box.top, box.bottom),
                              std::max(box.left, box.right), std::max(box.top, box.bottom)};
  if (device.state.pen->style != PS_INSIDEFRAME) return ordered;
  const PenStroke stroke = ResolvePen(device);
  const double scale = device.state.mapping.HorizontalScale();
  if (!stroke.staysInsideFrame || scale == 0) return ordered;
  const double inset = std::max(0.0, (stroke.width - 1 / scale) / 2);
  const double x = std::min(inset, (ordered.right - ordered.left) / 2);
  const double y = std::min(inset, (ordered.bottom - ordered.top) / 2);
  return {ordered.left + x, ordered.top + y, ordered.right - x, ordered.bottom - y};
}

/// Whether it may be seen where an outline begins; what becomes of a path is not known yet.
bool MayBeDashed(const DeviceState& state) {
  const PenStyle style = state.pen->style;
  return state.bracket || !(style == PS_SOLID || style == PS_INSIDEFRAME || style == PS_NULL);
}

template <class Build>
void DrawShape(DeviceContext& device, Build build) {
  DrawFigures(device, PaintKind::kFillAndStroke, build);
}

}  // namespace

void Rectangle(DeviceContext& device, const RectangleL& box) {
  const RectangleD outline = OutlineBox(device, box);
  DrawShape(device, [&](FigurePath& figures) {
    if (MayBeDashed(device.state)) return figures.AddRectangle(outline, device.state.arcDirection);
    figures.AddPlainRectangle(outline);
  });
}

void Ellipse(DeviceContext& device, const RectangleL& box) {
  DrawShape(device, [&](FigurePath& figures) {
    figures.AddEllipse(OutlineBox(device, box), device.state.arcDirection);
  });
}

void RoundRect(DeviceContext& device, const RectangleL& box, SizeL corner) {
  DrawShape(device, [&](FigurePath& figures) {
    figures.AddRoundRectangle(OutlineBox(device, box), corner.cx, corner.cy,
                              device.state.arcDirection);
  });
}

void Arc(DeviceContext& device, const RectangleL& box, PointL start, PointL end) {
  const auto arc = ArcIn(Exactly(box), Exactly(start), Exactly(end), device.state.arcDirection);
  if (!arc) return;
  DrawFigures(device, PaintKind::kStroke, [&](FigurePath& figures) {
    figures.MoveTo(arc->Start());
    figures.AddArc(*arc);
  });
}

void Chord(DeviceContext& device, const RectangleL& box, PointL start, PointL end) {
  const auto arc =
      ArcIn(OutlineBox(device, box), Exactly(start), Exactly(end), device.state.arcDirection);
  if (!arc) return;
  DrawShape(device, [&](FigurePath& figures) {
    figures.MoveTo(arc->Start());
    figures.AddArc(*arc);
    figures.Close();
  });
}

void Pie(DeviceContext& device, const RectangleL& box, PointL start, PointL end) {
  const auto arc =
      ArcIn(OutlineBox(device, box), Exactly(start), Exactly(end), device.state.arcDirection);
  if (!arc) return;
  DrawShape(device, [&](FigurePath& figures) {
    figures.MoveTo(arc->Start());
    figures.AddArc(*arc);
    figures.LineTo(arc->ellipse.center);
    figures.Close();
  });
}

void ArcTo(DeviceContext& device, const RectangleL& box, PointL start, PointL end) {
  const auto arc = ArcIn(Exactly(box), Exactly(start), Exactly(end), device.state.arcDirection);
  if (!arc) return;
  ContinueFigure(device, [&](FigurePath& figures) {
    figures.LineTo(arc->Start());
    figures.AddArc(*arc);
  });
  device.state.currentPosition = arc->End();
}

void AngleArc(DeviceContext& device, PointL center, std::uint32_t radius, float startAngle,
              float sweepAngle) {
  const auto arc = ArcAround(Exactly(center), radius, startAngle, sweepAngle);
  if (!arc) return;
  ContinueFigure(device, [&](FigurePath& figures) {
    figures.LineTo(arc->Start());
    figures.AddArc(*arc);
  });
  device.state.currentPosition = arc->End();
}

void SetPixelV(DeviceContext& device, PointL point, ColorRef color) {
  const PointD exact = device.state.mapping.ToDevice().Map(Exactly(point));
  if (!IsFinite(exact)) return;
  const CGPoint pixel = {static_cast<CGFloat>(std::floor(exact.x + 0.5)),
                         static_cast<CGFloat>(std::floor(exact.y + 0.5))};
  const RgbColor rgb = ResolveColor(device, color);
  PendingMarks& pending = device.pending;
  if (pending.kind != PendingMarks::Kind::kPixels || pending.color != rgb) {
    DrawPendingMarks(device);
    pending.kind = PendingMarks::Kind::kPixels;
    pending.color = rgb;
  } else if (pixel == pending.nextPixel) {
    pending.nextPixel.x += 1;
    return pending.path.GrowLastRectangle({1, 0});
  }
  pending.path.AddRectangle(pixel, {1, 1});
  pending.nextPixel = {pixel.x + 1, pixel.y};
}

void PatBlt(DeviceContext& device, PointL corner, SizeL size, BinaryRasterOperation operation) {
  const PointD from = Exactly(corner);
  const RectangleD box = {from.x, from.y, from.x + size.cx, from.y + size.cy};
  if (box.left == box.right || box.top == box.bottom) return;
  FigurePath figures(device.scratch, device.state.mapping.ToDevice());
  figures.AddPlainRectangle(box);
  if (IgnoresPaint(operation)) {  // even a brush that is none
    FillWith(device, device.scratch, WINDING, RgbColor(), operation);
  } else {
    FillWith(device, device.scratch, WINDING, *device.state.brush, operation);
  }
}

}  // namespace kelvane
