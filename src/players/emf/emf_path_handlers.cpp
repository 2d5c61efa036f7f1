#include "gdi/clipping.h"
#include "gdi/path_brackets.h"
#include "metafile/emf/emf_path_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

constexpr EmfHandler kPathHandlers[] = {
    {EMR_BEGINPATH, Calling([](DeviceContext& device) { BeginPath(device); })},
    {EMR_ENDPATH, Calling([](DeviceContext& device) { EndPath(device); })},
    {EMR_ABORTPATH, Calling([](DeviceContext& device) { AbortPath(device); })},
    {EMR_CLOSEFIGURE, Calling([](DeviceContext& device) { CloseFigure(device); })},
    {EMR_FLATTENPATH, Calling([](DeviceContext& device) { FlattenPath(device); })},
    {EMR_WIDENPATH, Calling([](DeviceContext& device) { WidenPath(device); })},
    {EMR_FILLPATH,
     Playing<DecodePaintPath>([](EmfPlayback& p, const auto&) { FillPath(p.device); })},
    {EMR_STROKEPATH,
     Playing<DecodePaintPath>([](EmfPlayback& p, const auto&) { StrokePath(p.device); })},
    {EMR_STROKEANDFILLPATH,
     Playing<DecodePaintPath>([](EmfPlayback& p, const auto&) { StrokeAndFillPath(p.device); })},
    {EMR_SELECTCLIPPATH, Playing<DecodeSelectClipPath>([](EmfPlayback& p, const auto& r) {
       SelectClipPath(p.device, r.mode);
     })},
};

}  // namespace

std::span<const EmfHandler> EmfPathHandlers() {
  return kPathHandlers;
}

}  // namespace kelvane
