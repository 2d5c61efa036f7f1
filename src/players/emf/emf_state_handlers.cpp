#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "metafile/emf/emf_mapping_records.h"
#include "metafile/emf/emf_state_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

constexpr EmfHandler kStateHandlers[] = {
    {EMR_SAVEDC, Calling([](DeviceContext& device) { SaveDC(device); })},
    {EMR_RESTOREDC, Playing<DecodeRestoreDC>([](EmfPlayback& p, const auto& r) {
       if (r.savedDC < 0) RestoreDC(p.device, r.savedDC);
     })},
    {EMR_SETMAPMODE, Playing<DecodeSetMapMode>(
                         [](EmfPlayback& p, const auto& r) { SetMapMode(p.device, r.mode); })},
    {EMR_SETWINDOWORGEX, Playing<DecodeOrigin>([](EmfPlayback& p, const auto& r) {
       SetWindowOrgEx(p.device, r.origin);
     })},
    {EMR_SETVIEWPORTORGEX, Playing<DecodeOrigin>([](EmfPlayback& p, const auto& r) {
       SetViewportOrgEx(p.device, r.origin);
     })},
    {EMR_SETWINDOWEXTEX, Playing<DecodeExtent>([](EmfPlayback& p, const auto& r) {
       SetWindowExtEx(p.device, r.extent);
     })},
    {EMR_SETVIEWPORTEXTEX, Playing<DecodeExtent>([](EmfPlayback& p, const auto& r) {
       SetViewportExtEx(p.device, r.extent);
     })},
    {EMR_SCALEWINDOWEXTEX, Playing<DecodeScaleExtent>([](EmfPlayback& p, const auto& r) {
       ScaleWindowExtEx(p.device, r.xNum, r.xDenom, r.yNum, r.yDenom);
     })},
    {EMR_SCALEVIEWPORTEXTEX, Playing<DecodeScaleExtent>([](EmfPlayback& p, const auto& r) {
       ScaleViewportExtEx(p.device, r.xNum, r.xDenom, r.yNum, r.yDenom);
     })},
    {EMR_SETWORLDTRANSFORM, Playing<DecodeSetWorldTransform>([](EmfPlayback& p, const auto& r) {
       SetWorldTransform(p.device, r.transform);
     })},
    {EMR_MODIFYWORLDTRANSFORM,
     Playing<DecodeModifyWorldTransform>([](EmfPlayback& p, const auto& r) {
       ModifyWorldTransform(p.device, r.transform, r.mode);
     })},
    {EMR_SETLAYOUT, Playing<DecodeSetLayout>(
                        [](EmfPlayback& p, const auto& r) { SetLayout(p.device, r.layout); })},
    {EMR_SETARCDIRECTION, Playing<DecodeSetArcDirection>([](EmfPlayback& p, const auto& r) {
       SetArcDirection(p.device, r.direction);
     })},
    {EMR_SETBKMODE,
     Playing<DecodeSetBkMode>([](EmfPlayback& p, const auto& r) { SetBkMode(p.device, r.mode); })},
    {EMR_SETBKCOLOR,
     Playing<DecodeSetColor>([](EmfPlayback& p, const auto& r) { SetBkColor(p.device, r.color); })},
    {EMR_SETTEXTCOLOR, Playing<DecodeSetColor>(
                           [](EmfPlayback& p, const auto& r) { SetTextColor(p.device, r.color); })},
    {EMR_SETROP2,
     Playing<DecodeSetRop2>([](EmfPlayback& p, const auto& r) { SetROP2(p.device, r.rop); })},
    {EMR_SETPOLYFILLMODE, Playing<DecodeSetPolyFillMode>([](EmfPlayback& p, const auto& r) {
       SetPolyFillMode(p.device, r.mode);
     })},
    {EMR_SETSTRETCHBLTMODE, Playing<DecodeSetStretchBltMode>([](EmfPlayback& p, const auto& r) {
       SetStretchBltMode(p.device, r.mode);
     })},
    {EMR_SETTEXTALIGN, Playing<DecodeSetTextAlign>(
                           [](EmfPlayback& p, const auto& r) { SetTextAlign(p.device, r.align); })},
    {EMR_SETMITERLIMIT, Playing<DecodeSetMiterLimit>([](EmfPlayback& p, const auto& r) {
       SetMiterLimit(p.device, r.limit);
     })},
    {EMR_SETBRUSHORGEX, Playing<DecodeOrigin>([](EmfPlayback& p, const auto& r) {
       SetBrushOrgEx(p.device, r.origin);
     })},
};

}  // namespace

std::span<const EmfHandler> EmfStateHandlers() {
  return kStateHandlers;
}

}  // namespace kelvane
