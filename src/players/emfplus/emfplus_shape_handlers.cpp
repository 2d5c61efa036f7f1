#include "gdiplus/drawing.h"
#include "players/emfplus/emfplus_handler.h"

namespace kelvane {
namespace {

/// Calls `draw(graphics, pen)`.
template <class Draw>
void WithPen(EmfPlusPlayback& p, EmfPlusSlot slot, Draw&& draw) {
  WithEmfPlusObject<EmfPlusPen>(p, slot, [&](const EmfPlusPen& pen) { draw(p.graphics, pen); });
}

/// Calls `fill(graphics, brush)`.
template <class Fill>
void WithBrush(EmfPlusPlayback& p, const EmfPlusBrushUse& use, Fill&& fill) {
  WithEmfPlusBrush(p, use, [&](const EmfPlusBrush& brush) { fill(p.graphics, brush); });
}

constexpr EmfPlusHandler kShapeRows[] = {
    {kEmfPlusClear, PlayingEmfPlus<DecodeEmfPlusClear>([](EmfPlusPlayback& p, const auto& r) {
       gdiplus::Clear(p.graphics, r.color);
     })},
    {kEmfPlusFillRects,
     PlayingEmfPlus<DecodeEmfPlusFillRects>([](EmfPlusPlayback& p, const auto& r) {
       WithBrush(p, r.brush,
                 [&](auto& g, const auto& b) { gdiplus::FillRectangles(g, b, r.rectangles); });
     })},
    {kEmfPlusDrawRects,
     PlayingEmfPlus<DecodeEmfPlusDrawRects>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen,
               [&](auto& g, const auto& pen) { gdiplus::DrawRectangles(g, pen, r.rectangles); });
     })},
    {kEmfPlusFillPolygon,
     PlayingEmfPlus<DecodeEmfPlusFillPolygon>([](EmfPlusPlayback& p, const auto& r) {
       WithBrush(p, r.brush, [&](auto& g, const auto& b) { gdiplus::FillPolygon(g, b, r.points); });
     })},
    {kEmfPlusDrawLines,
     PlayingEmfPlus<DecodeEmfPlusDrawLines>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen,
               [&](auto& g, const auto& pen) { gdiplus::DrawLines(g, pen, r.points, r.isClosed); });
     })},
    {kEmfPlusFillEllipse,
     PlayingEmfPlus<DecodeEmfPlusFillEllipse>([](EmfPlusPlayback& p, const auto& r) {
       WithBrush(p, r.brush, [&](auto& g, const auto& b) { gdiplus::FillEllipse(g, b, r.box); });
     })},
    {kEmfPlusDrawEllipse,
     PlayingEmfPlus<DecodeEmfPlusDrawEllipse>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen, [&](auto& g, const auto& pen) { gdiplus::DrawEllipse(g, pen, r.box); });
     })},
    {kEmfPlusFillPie, PlayingEmfPlus<DecodeEmfPlusFillPie>([](EmfPlusPlayback& p, const auto& r) {
       WithBrush(p, r.brush, [&](auto& g, const auto& b) {
         gdiplus::FillPie(g, b, r.box, r.startAngle, r.sweepAngle);
       });
     })},
    {kEmfPlusDrawPie, PlayingEmfPlus<DecodeEmfPlusDrawArc>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen, [&](auto& g, const auto& pen) {
         gdiplus::DrawPie(g, pen, r.box, r.startAngle, r.sweepAngle);
       });
     })},
    {kEmfPlusDrawArc, PlayingEmfPlus<DecodeEmfPlusDrawArc>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen, [&](auto& g, const auto& pen) {
         gdiplus::DrawArc(g, pen, r.box, r.startAngle, r.sweepAngle);
       });
     })},
    {kEmfPlusFillRegion,
     PlayingEmfPlus<DecodeEmfPlusFillRegion>([](EmfPlusPlayback& p, const auto& r) {
       WithEmfPlusObject<EmfPlusRegion>(p, r.region, [&](const EmfPlusRegion& region) {
         WithBrush(p, r.brush, [&](auto& g, const auto& b) { gdiplus::FillRegion(g, b, region); });
       });
     })},
    {kEmfPlusFillPath, PlayingEmfPlus<DecodeEmfPlusFillPath>([](EmfPlusPlayback& p, const auto& r) {
       WithEmfPlusObject<EmfPlusPath>(p, r.path, [&](const EmfPlusPath& path) {
         WithBrush(p, r.brush, [&](auto& g, const auto& b) { gdiplus::FillPath(g, b, path); });
       });
     })},
    {kEmfPlusDrawPath, PlayingEmfPlus<DecodeEmfPlusDrawPath>([](EmfPlusPlayback& p, const auto& r) {
       WithEmfPlusObject<EmfPlusPath>(p, r.path, [&](const EmfPlusPath& path) {
         WithPen(p, r.pen, [&](auto& g, const auto& pen) { gdiplus::DrawPath(g, pen, path); });
       });
     })},
    {kEmfPlusFillClosedCurve,
     PlayingEmfPlus<DecodeEmfPlusFillClosedCurve>([](EmfPlusPlayback& p, const auto& r) {
       WithBrush(p, r.brush, [&](auto& g, const auto& b) {
         gdiplus::FillClosedCurve(g, b, r.points, r.tension, r.isWinding ? WINDING : ALTERNATE);
       });
     })},
    {kEmfPlusDrawClosedCurve,
     PlayingEmfPlus<DecodeEmfPlusDrawClosedCurve>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen, [&](auto& g, const auto& pen) {
         gdiplus::DrawClosedCurve(g, pen, r.points, r.tension);
       });
     })},
    {kEmfPlusDrawCurve,
     PlayingEmfPlus<DecodeEmfPlusDrawCurve>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen, [&](auto& g, const auto& pen) {
         gdiplus::DrawCurve(g, pen, r.points, r.tension, r.offset, r.segments);
       });
     })},
    {kEmfPlusDrawBeziers,
     PlayingEmfPlus<DecodeEmfPlusDrawBeziers>([](EmfPlusPlayback& p, const auto& r) {
       WithPen(p, r.pen, [&](auto& g, const auto& pen) { gdiplus::DrawBeziers(g, pen, r.points); });
     })},
};

}  // namespace

std::span<const EmfPlusHandler> EmfPlusShapeHandlers() {
  return kShapeRows;
}

}  // namespace kelvane
