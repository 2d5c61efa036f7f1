#include "gdiplus/drawing.h"

#include "gdiplus/areas.h"
#include "gdiplus/figures.h"
#include "gdiplus/painting.h"

namespace kelvane::gdiplus {
namespace {

/// A record of a few bytes may name a path of any length.
bool Affords(Graphics& graphics, std::size_t points) {
  if (graphics.canvas == nullptr) return false;
  const bool isAfforded = graphics.canvas->Afford(points);
  if (!isAfforded) graphics.shortfalls.Add(Shortfall::kDrawnTooOften);
  return isAfforded;
}

bool IsOpaque(const EmfPlusBrush& brush) {
  constexpr std::uint8_t kOpaque = 255;
  const auto* color = std::get_if<Argb>(&brush);
  return color != nullptr && color->alpha == kOpaque;
}

}  // namespace

void Clear(Graphics& graphics, const Argb& color) {
  if (graphics.canvas == nullptr) return;
  const RectangleD& all = graphics.canvas->Whole();
  CGPath& path = graphics.scratch;
  path.AddRectangle(
      {static_cast<CGFloat>(all.left), static_cast<CGFloat>(all.top)},
      {static_cast<CGFloat>(all.right - all.left), static_cast<CGFloat>(all.bottom - all.top)});
  PaintFill(graphics, path, WINDING, color);
}

// Where rectangles overlap, each of them shows through the next.
void FillRectangles(Graphics& graphics, const EmfPlusBrush& brush, std::span<const RectF> boxes) {
  const TransformD toDevice = WorldToDevice(graphics);
  const bool areOneMark = IsOpaque(brush);
  for (const RectF& box : boxes) {
    if (!(box.width > 0 && box.height > 0)) continue;
    AddRectangle(graphics.scratch, toDevice, box);
    if (!areOneMark || !graphics.scratch.IsFinite()) {
      PaintFill(graphics, graphics.scratch, WINDING, brush);
    }
  }
  PaintFill(graphics, graphics.scratch, WINDING, brush);
}

void DrawRectangles(Graphics& graphics, const EmfPlusPen& pen, std::span<const RectF> boxes) {
  const TransformD toDevice = WorldToDevice(graphics);
  for (const RectF& box : boxes) {
    AddRectangle(graphics.scratch, toDevice, box);
    PaintStroke(graphics, graphics.scratch, pen);
  }
}

void FillPolygon(Graphics& graphics, const EmfPlusBrush& brush, std::span<const PointF> points) {
  AddLines(graphics.scratch, WorldToDevice(graphics), points, true);
  PaintFill(graphics, graphics.scratch, ALTERNATE, brush);
}

void DrawLines(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points,
               bool isClosed) {
  AddLines(graphics.scratch, WorldToDevice(graphics), points, isClosed);
  PaintStroke(graphics, graphics.scratch, pen);
}

void FillEllipse(Graphics& graphics, const EmfPlusBrush& brush, const RectF& box) {
  AddEllipse(graphics.scratch, WorldToDevice(graphics), box);
  PaintFill(graphics, graphics.scratch, WINDING, brush);
}

void DrawEllipse(Graphics& graphics, const EmfPlusPen& pen, const RectF& box) {
  AddEllipse(graphics.scratch, WorldToDevice(graphics), box);
  PaintStroke(graphics, graphics.scratch, pen);
}

void FillPie(Graphics& graphics, const EmfPlusBrush& brush, const RectF& box, float startAngle,
             float sweepAngle) {
  AddPie(graphics.scratch, WorldToDevice(graphics), box, startAngle, sweepAngle);
  PaintFill(graphics, graphics.scratch, WINDING, brush);
}

void DrawPie(Graphics& graphics, const EmfPlusPen& pen, const RectF& box, float startAngle,
             float sweepAngle) {
  AddPie(graphics.scratch, WorldToDevice(graphics), box, startAngle, sweepAngle);
  PaintStroke(graphics, graphics.scratch, pen);
}

void DrawArc(Graphics& graphics, const EmfPlusPen& pen, const RectF& box, float startAngle,
             float sweepAngle) {
  AddArc(graphics.scratch, WorldToDevice(graphics), box, startAngle, sweepAngle);
  PaintStroke(graphics, graphics.scratch, pen);
}

void FillRegion(Graphics& graphics, const EmfPlusBrush& brush, const EmfPlusRegion& region) {
  if (graphics.canvas == nullptr) return;
  graphics.clipSteps->Add(kStepsOfACall);
  const auto area = AreaOf(graphics, region);
  if (!area) return graphics.shortfalls.Add(Shortfall::kRegionTooComplex);
  const auto* outline = std::get_if<Outline>(&*area);
  const bool isWinding = outline != nullptr && outline->fillMode == WINDING;
  CGPath path = PathOf(*area, graphics.canvas->Whole());
  PaintFill(graphics, path, isWinding ? WINDING : ALTERNATE, brush);
}

void FillPath(Graphics& graphics, const EmfPlusBrush& brush, const EmfPlusPath& path) {
  if (!Affords(graphics, path.points.size())) return;
  AddPath(graphics.scratch, WorldToDevice(graphics), path);
  PaintFill(graphics, graphics.scratch, FillModeOf(path), brush);
}

void DrawPath(Graphics& graphics, const EmfPlusPen& pen, const EmfPlusPath& path) {
  if (!Affords(graphics, path.points.size())) return;
  AddPath(graphics.scratch, WorldToDevice(graphics), path);
  PaintStroke(graphics, graphics.scratch, pen);
}

void FillClosedCurve(Graphics& graphics, const EmfPlusBrush& brush, std::span<const PointF> points,
                     float tension, PolyFillMode fillMode) {
  AddClosedCurve(graphics.scratch, WorldToDevice(graphics), points, tension);
  PaintFill(graphics, graphics.scratch, fillMode, brush);
}

void DrawClosedCurve(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points,
                     float tension) {
  AddClosedCurve(graphics.scratch, WorldToDevice(graphics), points, tension);
  PaintStroke(graphics, graphics.scratch, pen);
}

void DrawCurve(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points,
               float tension, std::size_t offset, std::size_t segments) {
  AddCurve(graphics.scratch, WorldToDevice(graphics), points, tension, offset, segments);
  PaintStroke(graphics, graphics.scratch, pen);
}

void DrawBeziers(Graphics& graphics, const EmfPlusPen& pen, std::span<const PointF> points) {
  AddBeziers(graphics.scratch, WorldToDevice(graphics), points);
  PaintStroke(graphics, graphics.scratch, pen);
}

}  // namespace kelvane::gdiplus
