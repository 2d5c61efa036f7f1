#include "gdi/clipping.h"
#include "metafile/emf/emf_clip_records.h"
#include "players/emf/emf_handler.h"
#include "players/emf/emf_regions.h"

namespace kelvane {
namespace {

constexpr EmfHandler kClipHandlers[] = {
    {EMR_INTERSECTCLIPRECT, Playing<DecodeClipRect>([](EmfPlayback& p, const auto& r) {
       IntersectClipRect(p.device, r.clip);
     })},
    {EMR_EXCLUDECLIPRECT, Playing<DecodeClipRect>([](EmfPlayback& p, const auto& r) {
       ExcludeClipRect(p.device, r.clip);
     })},
    {EMR_OFFSETCLIPRGN, Playing<DecodeOffsetClipRgn>([](EmfPlayback& p, const auto& r) {
       OffsetClipRgn(p.device, r.offset);
     })},
    {EMR_EXTSELECTCLIPRGN, Playing<DecodeExtSelectClipRgn>([](EmfPlayback& p, const auto& r) {
       const auto region = r.hasRegion ? std::optional(RectanglesOf(p, r.region)) : std::nullopt;
       ExtSelectClipRgn(p.device, region, r.mode);
     })},
    {EMR_SETMETARGN, Calling([](DeviceContext& device) { SetMetaRgn(device); })},
};

}  // namespace

std::span<const EmfHandler> EmfClipHandlers() {
  return kClipHandlers;
}

}  // namespace kelvane
