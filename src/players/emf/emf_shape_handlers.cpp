#include "gdi/region_painting.h"
#include "gdi/shapes.h"
#include "metafile/emf/emf_region_records.h"
#include "metafile/emf/emf_shape_records.h"
#include "players/emf/emf_handler.h"
#include "players/emf/emf_regions.h"

namespace kelvane {
namespace {

// A call that fails because its brush is none paints nothing on Windows either.
constexpr EmfHandler kShapeHandlers[] = {
    {EMR_RECTANGLE,
     Playing<DecodeBox>([](EmfPlayback& p, const auto& r) { Rectangle(p.device, r.box); })},
    {EMR_ELLIPSE,
     Playing<DecodeBox>([](EmfPlayback& p, const auto& r) { Ellipse(p.device, r.box); })},
    {EMR_ROUNDRECT, Playing<DecodeRoundRect>([](EmfPlayback& p, const auto& r) {
       RoundRect(p.device, r.box, r.corner);
     })},
    {EMR_ARC, Playing<DecodeArc>(
                  [](EmfPlayback& p, const auto& r) { Arc(p.device, r.box, r.start, r.end); })},
    {EMR_ARCTO, Playing<DecodeArc>(
                    [](EmfPlayback& p, const auto& r) { ArcTo(p.device, r.box, r.start, r.end); })},
    {EMR_CHORD, Playing<DecodeArc>(
                    [](EmfPlayback& p, const auto& r) { Chord(p.device, r.box, r.start, r.end); })},
    {EMR_PIE, Playing<DecodeArc>(
                  [](EmfPlayback& p, const auto& r) { Pie(p.device, r.box, r.start, r.end); })},
    {EMR_ANGLEARC, Playing<DecodeAngleArc>([](EmfPlayback& p, const auto& r) {
       AngleArc(p.device, r.center, r.radius, r.startAngle, r.sweepAngle);
     })},
    {EMR_SETPIXELV, Playing<DecodeSetPixelV>([](EmfPlayback& p, const auto& r) {
       SetPixelV(p.device, r.pixel, r.color);
     })},
    {EMR_EXTFLOODFILL, Playing<DecodeExtFloodFill>([](EmfPlayback& p, const auto&) {
       p.LeftOut("a flood fill needs the pixels of the page");
     })},
    {EMR_FILLRGN, Playing<DecodeFillRgn>([](EmfPlayback& p, const auto& r) {
       FillRgn(p.device, RectanglesOf(p, r.region), r.ihBrush);
     })},
    {EMR_FRAMERGN, Playing<DecodeFrameRgn>([](EmfPlayback& p, const auto& r) {
       FrameRgn(p.device, RectanglesOf(p, r.region), r.ihBrush, r.frame);
     })},
    {EMR_PAINTRGN, Playing<DecodePaintRgn>([](EmfPlayback& p, const auto& r) {
       PaintRgn(p.device, RectanglesOf(p, r.region));
     })},
    {EMR_INVERTRGN, Playing<DecodePaintRgn>([](EmfPlayback& p, const auto& r) {
       InvertRgn(p.device, RectanglesOf(p, r.region));
     })},
};

}  // namespace

std::span<const EmfHandler> EmfShapeHandlers() {
  return kShapeHandlers;
}

}  // namespace kelvane
