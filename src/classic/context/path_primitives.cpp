#include "classic/context/path_primitives.h"

#include "classic/context/coordinates.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

CGPoint ToPage(const AbstractContext& context, std::int32_t x, std::int32_t y) {
  ChangeXY(context, x, y);
  return {static_cast<CGFloat>(x), static_cast<CGFloat>(y)};
}

}  // namespace

void MoveToPoint(AbstractContext& context, std::int32_t x, std::int32_t y) {
  const CGPoint point = ToPage(context, x, y);
  CGContextMoveToPoint(context.context, point.x, point.y);
}

void AddLine(AbstractContext& context, std::int32_t x, std::int32_t y) {
  const CGPoint point = ToPage(context, x, y);
  CGContextAddLineToPoint(context.context, point.x, point.y);
}

void AddCurveToPoint(AbstractContext& context, std::int32_t x1, std::int32_t y1, std::int32_t x2,
                     std::int32_t y2, std::int32_t x3, std::int32_t y3) {
  const CGPoint control1 = ToPage(context, x1, y1);
  const CGPoint control2 = ToPage(context, x2, y2);
  const CGPoint end = ToPage(context, x3, y3);
  CGContextAddCurveToPoint(context.context, control1.x, control1.y, control2.x, control2.y, end.x,
                           end.y);
}

void AddArc(AbstractContext& context, PointL centre, std::uint32_t radius, float startDegrees,
            float endDegrees) {
  const CGPoint point = ToPage(context, centre.x, centre.y);
  CGContextAddArc(context.context, point.x, point.y, static_cast<CGFloat>(radius),
                  DegreesToRadians(startDegrees), DegreesToRadians(endDegrees), context.clockwise);
}

void AddRectangle(AbstractContext& context, const RectangleL& rectangle) {
  CGContextAddRect(context.context, RectangleToCGRect(context, rectangle));
}

void AddEllipseInRect(AbstractContext& context, const RectangleL& rectangle) {
  CGContextAddEllipseInRect(context.context, RectangleToCGRect(context, rectangle));
}

void AddRoundRectangle(AbstractContext& context, const RectangleL& rectangle) {
  AddEllipseInRect(context, rectangle);
}

void DrawPath(const AbstractContext& context, CGPathDrawingMode mode) {
  const bool fillsAndStrokes = mode == kCGPathFillStroke || mode == kCGPathEOFillStroke;
  const bool strokesOnly = context.hollowBrush != 0 && fillsAndStrokes;
  CGContextDrawPath(context.context, strokesOnly ? kCGPathStroke : mode);
}

void Clip(AbstractContext& context) {
  CGContextClip(context.context);
}

void ClipToRect(AbstractContext& context, const RectangleL& rectangle) {
  CGContextClipToRect(context.context, RectangleToCGRect(context, rectangle));
}

}  // namespace kelvane
