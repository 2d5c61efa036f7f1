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

/// @return paint whose plain marks are the operation's on a ground of one colour.
BrushPaint OnGround(BrushPaint paint, BinaryRasterOperation operation, RgbColor ground) {
  paint.color = Combine(operation, paint.color, ground);
  if (paint.background) paint.background = Combine(operation, *paint.background, ground);
  return paint;
}

Marks MixedMarks(DeviceContext& device, const BrushPaint& paint, BinaryRasterOperation operation) {
  Marks found;
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

/// Where the surface combines bits, plain marks are all that is needed.
Marks CombinedMarks(DeviceContext& device, const BrushPaint& paint,
                    BinaryRasterOperation operation) {
  if (operation == R2_NOP) return {};
  Marks found = MixedMarks(device, paint, R2_COPYPEN);
  for (Mark& mark : found.marks)
    mark.operation = CodeOf(operation);
  return found;
}

}  // namespace

Marks MarksOf(DeviceContext& device, const BrushPaint& paint, BinaryRasterOperation operation,
              std::optional<RgbColor> ground) {
  if (paint.kind == Brush::Kind::kNull) return {};
  if (operation != R2_COPYPEN && device.canvas->Surface().Capabilities().combinesBits) {
    return CombinedMarks(device, paint, operation);
  }
  if (IsExact(operation, paint)) return MixedMarks(device, paint, operation);
  if (ground && paint.kind != Brush::Kind::kPattern) {
    return MixedMarks(device, OnGround(paint, operation, *ground), R2_COPYPEN);
  }
  device.shortfalls.Add(Shortfall::kBlendedColors);
  return MixedMarks(device, paint, operation);
}

Marks MarksOf(DeviceContext& device, RgbColor color, BinaryRasterOperation operation,
              std::optional<RgbColor> ground) {
  return MarksOf(device, {.kind = Brush::Kind::kSolid, .color = color}, operation, ground);
}

void SetFill(CGContext& surface, const Mark& mark) {
  surface.SetFillColor(mark.color);
  surface.SetFillPattern(mark.pattern);
  surface.SetBlendMode(mark.mode);
  surface.SetBitOperation(mark.operation);
}

void SetStroke(CGContext& surface, const Mark& mark) {
  surface.SetStrokeColor(mark.color);
  surface.SetStrokePattern(mark.pattern);
  surface.SetBlendMode(mark.mode);
  surface.SetBitOperation(mark.operation);
}

}  // namespace kelvane
