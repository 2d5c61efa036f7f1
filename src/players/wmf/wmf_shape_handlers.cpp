#include "gdi/lines.h"
#include "gdi/region_painting.h"
#include "gdi/shapes.h"
#include "metafile/wmf/wmf_object_records.h"
#include "metafile/wmf/wmf_region_records.h"
#include "metafile/wmf/wmf_shape_records.h"
#include "metafile/wmf/wmf_state_records.h"
#include "players/wmf/wmf_handler.h"
#include "players/wmf/wmf_regions.h"

namespace kelvane {
namespace {

constexpr auto kFlood = [](WmfPlayback& p, const auto&) {
  p.LeftOut("a flood fill needs the pixels of the page");
};

// A call that fails because its brush is none paints nothing on Windows either.
constexpr WmfHandler kWmfShapeRows[] = {
    {META_LINETO,
     PlayingWmf<DecodeWmfPoint>([](WmfPlayback& p, const auto& r) { LineTo(p.device, r.point); })},
    {META_POLYLINE, PlayingWmf<DecodeWmfPoly>(
                        [](WmfPlayback& p, const auto& r) { Polyline(p.device, r.points); })},
    {META_POLYGON,
     PlayingWmf<DecodeWmfPoly>([](WmfPlayback& p, const auto& r) { Polygon(p.device, r.points); })},
    {META_POLYPOLYGON, PlayingWmf<DecodeWmfPolyPolygon>([](WmfPlayback& p, const auto& r) {
       PolyPolygon(p.device, r.counts, r.points);
     })},
    {META_RECTANGLE,
     PlayingWmf<DecodeWmfBox>([](WmfPlayback& p, const auto& r) { Rectangle(p.device, r.box); })},
    {META_ELLIPSE,
     PlayingWmf<DecodeWmfBox>([](WmfPlayback& p, const auto& r) { Ellipse(p.device, r.box); })},
    {META_ROUNDRECT, PlayingWmf<DecodeWmfRoundRect>([](WmfPlayback& p, const auto& r) {
       RoundRect(p.device, r.box, r.corner);
     })},
    {META_ARC, PlayingWmf<DecodeWmfArc>(
                   [](WmfPlayback& p, const auto& r) { Arc(p.device, r.box, r.start, r.end); })},
    {META_CHORD, PlayingWmf<DecodeWmfArc>([](WmfPlayback& p, const auto& r) {
       Chord(p.device, r.box, r.start, r.end);
     })},
    {META_PIE, PlayingWmf<DecodeWmfArc>(
                   [](WmfPlayback& p, const auto& r) { Pie(p.device, r.box, r.start, r.end); })},
    {META_SETPIXEL, PlayingWmf<DecodeWmfSetPixel>([](WmfPlayback& p, const auto& r) {
       SetPixelV(p.device, r.pixel, r.color);
     })},
    {META_FLOODFILL, PlayingWmf<DecodeWmfFloodFill>(kFlood)},
    {META_EXTFLOODFILL, PlayingWmf<DecodeWmfExtFloodFill>(kFlood)},
    {META_FILLREGION, PlayingWmf<DecodeWmfFillRegion>([](WmfPlayback& p, const auto& r) {
       WithRegion(p, r.region, [&](auto region) { FillRgn(p.device, region, HandleOf(r.brush)); });
     })},
    {META_FRAMEREGION, PlayingWmf<DecodeWmfFrameRegion>([](WmfPlayback& p, const auto& r) {
       WithRegion(p, r.region,
                  [&](auto region) { FrameRgn(p.device, region, HandleOf(r.brush), r.frame); });
     })},
    {META_PAINTREGION, PlayingWmf<DecodeWmfObject>([](WmfPlayback& p, const auto& r) {
       WithRegion(p, r.index, [&](auto region) { PaintRgn(p.device, region); });
     })},
    {META_INVERTREGION, PlayingWmf<DecodeWmfObject>([](WmfPlayback& p, const auto& r) {
       WithRegion(p, r.index, [&](auto region) { InvertRgn(p.device, region); });
     })},
};

}  // namespace

std::span<const WmfHandler> WmfShapeHandlers() {
  return kWmfShapeRows;
}

}  // namespace kelvane
