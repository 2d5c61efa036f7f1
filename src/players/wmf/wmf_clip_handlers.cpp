#include "gdi/clipping.h"
#include "metafile/wmf/wmf_object_records.h"
#include "metafile/wmf/wmf_shape_records.h"
#include "metafile/wmf/wmf_state_records.h"
#include "players/wmf/wmf_handler.h"
#include "players/wmf/wmf_regions.h"

namespace kelvane {
namespace {

/// Most files mean no clip by the first index, which is a region in few.
void SelectClipRegion(WmfPlayback& p, std::uint16_t index) {
  if (index == 0 && !p.regions.contains(index)) {
    ExtSelectClipRgn(p.device, std::nullopt, RGN_COPY);
  }
  WithRegion(p, index, [&](auto region) { ExtSelectClipRgn(p.device, region, RGN_COPY); });
}

constexpr WmfHandler kWmfClipRows[] = {
    {META_INTERSECTCLIPRECT, PlayingWmf<DecodeWmfBox>([](WmfPlayback& p, const auto& r) {
       IntersectClipRect(p.device, r.box);
     })},
    {META_EXCLUDECLIPRECT, PlayingWmf<DecodeWmfBox>([](WmfPlayback& p, const auto& r) {
       ExcludeClipRect(p.device, r.box);
     })},
    {META_OFFSETCLIPRGN, PlayingWmf<DecodeWmfPoint>([](WmfPlayback& p, const auto& r) {
       OffsetClipRgn(p.device, r.point);
     })},
    {META_SELECTCLIPREGION, PlayingWmf<DecodeWmfObject>([](WmfPlayback& p, const auto& r) {
       SelectClipRegion(p, r.index);
     })},
};

}  // namespace

std::span<const WmfHandler> WmfClipHandlers() {
  return kWmfClipRows;
}

}  // namespace kelvane
