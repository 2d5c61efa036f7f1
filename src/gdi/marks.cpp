#include "gdi/marks.h"

#include <utility>

#include "gdi/page_color.h"

namespace kelvane {
namespace {

/// A bitmap counts as one with colours of all kinds.
bool IsExact(BinaryRasterOperation operation, const BrushPaint& paint) {
  constexpr RgbColor kAnyColor = {1, 1, 1};
  if (paint.kind == Brush::Kind::kPattern) return IsExact(operation, kAnyColor);
  return IsExact(operation, paint.color) &&
         (!paint.background || IsExact(operation, *paint.background));
}

}  // namespace

Marks MarksOf(DeviceContext& device, const BrushPaint& paint, BinaryRasterOperation operation) {
  Marks found;
  if (paint.kind == Brush::Kind::kNull) return found;
  if (!IsExact(operation, paint)) device.shortfalls.Add(Shortfall::kBlendedColors);
  for (const RasterStep& step : StepsOf(operation)) {
    Mark mark = {ColorOnPage(ColorOf(step.color, paint.color)), nullptr, step.mode};
    if (paint.kind != Brush::Kind::kSolid) {
      mark.pattern = device.canvas->PatternOf(paint, device.state.brushOrigin, step.color);
      if (mark.pattern == nullptr) {
        device.shortfalls.Add(device.canvas->HasRunOut() ? Shortfall::kDrawnTooOften
                                                         : Shortfall::kUnreadablePattern);
        return {};
      }
    }
    found.marks[found.count++] = std::move(mark);
  }
  return found;
}

Marks MarksOf(DeviceContext& device, RgbColor color, BinaryRasterOperation operation) {
  return MarksOf(device, {.kind = Brush::Kind::kSolid, .color = color}, operation);
}

void SetFill(CGContext& surface, const Mark& mark) {
  surface.SetFillColor(mark.color);
  surface.SetFillPattern(mark.pattern);
  surface.SetBlendMode(mark.mode);
}

void SetStroke(CGContext& surface, const Mark& mark) {
  surface.SetStrokeColor(mark.color);
  surface.SetStrokePattern(mark.pattern);
  surface.SetBlendMode(mark.mode);
}

}  // namespace kelvane
