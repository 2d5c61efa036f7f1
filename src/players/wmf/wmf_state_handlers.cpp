#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/text_output.h"
#include "metafile/wmf/wmf_state_records.h"
#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

constexpr WmfHandler kWmfStateRows[] = {
    {META_SAVEDC, [](WmfPlayback& p, ByteView&) { SaveDC(p.device); }},
    {META_RESTOREDC, PlayingWmf<DecodeWmfRestoreDC>(
                         [](WmfPlayback& p, const auto& r) { RestoreDC(p.device, r.savedDC); })},
    {META_SETMAPMODE, PlayingWmf<DecodeWmfMode<MapMode>>(
                          [](WmfPlayback& p, const auto& r) { SetMapMode(p.device, r.mode); })},
    {META_SETWINDOWORG, PlayingWmf<DecodeWmfPoint>([](WmfPlayback& p, const auto& r) {
       SetWindowOrgEx(p.device, r.point);
     })},
    {META_OFFSETWINDOWORG, PlayingWmf<DecodeWmfPoint>([](WmfPlayback& p, const auto& r) {
       OffsetWindowOrgEx(p.device, r.point);
     })},
    {META_SETWINDOWEXT, PlayingWmf<DecodeWmfExtent>([](WmfPlayback& p, const auto& r) {
       SetWindowExtEx(p.device, r.extent);
     })},
    {META_SCALEWINDOWEXT, PlayingWmf<DecodeWmfScaleExtent>([](WmfPlayback& p, const auto& r) {
       ScaleWindowExtEx(p.device, r.xNum, r.xDenom, r.yNum, r.yDenom);
     })},
    {META_SETVIEWPORTORG, PlayingWmf<DecodeWmfPoint>([](WmfPlayback& p, const auto& r) {
       p.viewport.SetOrigin(p.device, r.point);
     })},
    {META_OFFSETVIEWPORTORG, PlayingWmf<DecodeWmfPoint>([](WmfPlayback& p, const auto& r) {
       p.viewport.OffsetOrigin(p.device, r.point);
     })},
    {META_SETVIEWPORTEXT, PlayingWmf<DecodeWmfExtent>([](WmfPlayback& p, const auto& r) {
       p.viewport.SetExtent(p.device, r.extent);
     })},
    {META_SCALEVIEWPORTEXT, PlayingWmf<DecodeWmfScaleExtent>([](WmfPlayback& p, const auto& r) {
       ScaleViewportExtEx(p.device, r.xNum, r.xDenom, r.yNum, r.yDenom);
     })},
    {META_SETLAYOUT, PlayingWmf<DecodeWmfMode<Layout>>(
                         [](WmfPlayback& p, const auto& r) { SetLayout(p.device, r.mode); })},
    {META_MOVETO, PlayingWmf<DecodeWmfPoint>(
                      [](WmfPlayback& p, const auto& r) { MoveToEx(p.device, r.point); })},
    {META_SETBKMODE, PlayingWmf<DecodeWmfMode<BackgroundMode>>(
                         [](WmfPlayback& p, const auto& r) { SetBkMode(p.device, r.mode); })},
    {META_SETBKCOLOR, PlayingWmf<DecodeWmfColor>(
                          [](WmfPlayback& p, const auto& r) { SetBkColor(p.device, r.color); })},
    {META_SETTEXTCOLOR, PlayingWmf<DecodeWmfColor>([](WmfPlayback& p, const auto& r) {
       SetTextColor(p.device, r.color);
     })},
    {META_SETROP2, PlayingWmf<DecodeWmfMode<BinaryRasterOperation>>(
                       [](WmfPlayback& p, const auto& r) { SetROP2(p.device, r.mode); })},
    {META_SETPOLYFILLMODE,
     PlayingWmf<DecodeWmfMode<PolyFillMode>>(
         [](WmfPlayback& p, const auto& r) { SetPolyFillMode(p.device, r.mode); })},
    {META_SETSTRETCHBLTMODE,
     PlayingWmf<DecodeWmfMode<StretchMode>>(
         [](WmfPlayback& p, const auto& r) { SetStretchBltMode(p.device, r.mode); })},
    {META_SETTEXTALIGN, PlayingWmf<DecodeWmfMode<TextAlign>>(
                            [](WmfPlayback& p, const auto& r) { SetTextAlign(p.device, r.mode); })},
    {META_SETTEXTCHAREXTRA,
     PlayingWmf<DecodeWmfSetTextCharExtra>(
         [](WmfPlayback& p, const auto& r) { SetTextCharacterExtra(p.device, r.extra); })},
    {META_SETTEXTJUSTIFICATION,
     PlayingWmf<DecodeWmfSetTextJustification>([](WmfPlayback& p, const auto& r) {
       SetTextJustification(p.device, r.breakExtra, r.breakCount);
     })},
};

}  // namespace

std::span<const WmfHandler> WmfStateHandlers() {
  return kWmfStateRows;
}

}  // namespace kelvane
