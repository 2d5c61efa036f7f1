#include <optional>

#include "gdi/blits.h"
#include "metafile/wmf/wmf_bitmap_records.h"
#include "players/wmf/wmf_bitmaps.h"
#include "players/wmf/wmf_handler.h"

namespace kelvane {
namespace {

constexpr auto kStretchDib = [](WmfPlayback& p, const auto& r) {
  StretchBlt(p.device, r.destination, r.size, {BytesOf(r.bitmap, r.usage), r.source, r.sourceSize},
             r.rop);
};

constexpr auto kStretchDeviceBitmap = [](WmfPlayback& p, const auto& r) {
  const std::optional<DibBytes> bytes = r.bitmap.IsEmpty() ? DibBytes{} : BytesOf(p, r.bitmap);
  if (!bytes) return;
  StretchBlt(p.device, r.destination, r.size, {*bytes, r.source, r.sourceSize}, r.rop);
};

constexpr WmfHandler kWmfBitmapRows[] = {
    {META_BITBLT, PlayingWmf<DecodeWmfBitBlt>(kStretchDeviceBitmap)},
    {META_STRETCHBLT, PlayingWmf<DecodeWmfStretchBlt>(kStretchDeviceBitmap)},
    {META_DIBBITBLT, PlayingWmf<DecodeWmfDibBitBlt>(kStretchDib)},
    {META_DIBSTRETCHBLT, PlayingWmf<DecodeWmfDibStretchBlt>(kStretchDib)},
    {META_STRETCHDIB, PlayingWmf<DecodeWmfStretchDib>([](WmfPlayback& p, const auto& r) {
       StretchDIBits(p.device, r.destination, r.size, r.source, r.sourceSize,
                     BytesOf(r.bitmap, r.usage), r.rop);
     })},
    {META_SETDIBTODEV, PlayingWmf<DecodeWmfSetDibToDev>([](WmfPlayback& p, const auto& r) {
       SetDIBitsToDevice(p.device, r.destination, r.size, r.source, {r.startScan, r.scans},
                         BytesOf(r.dib, r.usage));
     })},
    {META_PATBLT, PlayingWmf<DecodeWmfPatBlt>([](WmfPlayback& p, const auto& r) {
       BitBlt(p.device, r.destination, r.size, {}, r.rop);
     })},
};

}  // namespace

std::span<const WmfHandler> WmfBitmapHandlers() {
  return kWmfBitmapRows;
}

}  // namespace kelvane
