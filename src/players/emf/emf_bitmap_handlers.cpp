#include "gdi/raster_operation.h"
#include "gdi/shapes.h"
#include "metafile/emf/emf_bitmap_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

constexpr std::string_view kNoBitmaps = "bitmaps are not drawn yet";

/// Without a bitmap a blit fills its rectangle, the commonest use of it; one that needs a bitmap
/// paints nothing then.
void PlayBlit(EmfPlayback& p, const BlitRecord& r) {
  const auto operation = WithoutSource(r.rop);
  if (operation) return PatBlt(p.device, r.destination, r.size, *operation);
  if (!r.source.dib.IsEmpty()) p.LeftOut(kNoBitmaps);
}

constexpr auto kLeaveOut = [](EmfPlayback& p, const auto&) { p.LeftOut(kNoBitmaps); };

constexpr EmfHandler kBitmapHandlers[] = {
    {EMR_BITBLT, Playing<DecodeBitBlt>([](EmfPlayback& p, const auto& r) { PlayBlit(p, r); })},
    {EMR_STRETCHBLT,
     Playing<DecodeStretchBlt>([](EmfPlayback& p, const auto& r) { PlayBlit(p, r); })},
    {EMR_MASKBLT, Playing<DecodeMaskBlt>(kLeaveOut)},
    {EMR_PLGBLT, Playing<DecodePlgBlt>(kLeaveOut)},
    {EMR_SETDIBITSTODEVICE, Playing<DecodeSetDIBitsToDevice>(kLeaveOut)},
    {EMR_STRETCHDIBITS, Playing<DecodeStretchDIBits>([](EmfPlayback& p, const auto& r) {
       const auto operation = WithoutSource(r.rop);
       if (operation) return PatBlt(p.device, r.destination, r.size, *operation);
       p.LeftOut(kNoBitmaps);
     })},
    {EMR_ALPHABLEND, Playing<DecodeAlphaBlend>(kLeaveOut)},
    {EMR_TRANSPARENTBLT, Playing<DecodeTransparentBlt>(kLeaveOut)},
};

}  // namespace

std::span<const EmfHandler> EmfBitmapHandlers() {
  return kBitmapHandlers;
}

}  // namespace kelvane
