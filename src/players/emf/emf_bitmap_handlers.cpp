#include "gdi/blits.h"
#include "metafile/emf/emf_bitmap_records.h"
#include "players/emf/emf_handler.h"

namespace kelvane {
namespace {

SourceBitmap BitmapOf(const BlitSource& source) {
  return {BytesOf(source.dib, source.usage), source.position, source.size, source.transform};
}

MaskBitmap BitmapOf(const BlitMask& mask) {
  return {BytesOf(mask.dib, mask.usage), mask.position};
}

constexpr EmfHandler kBitmapHandlers[] = {
    {EMR_BITBLT, Playing<DecodeBitBlt>([](EmfPlayback& p, const auto& r) {
       BitBlt(p.device, r.destination, r.size, BitmapOf(r.source), r.rop);
     })},
    {EMR_STRETCHBLT, Playing<DecodeStretchBlt>([](EmfPlayback& p, const auto& r) {
       StretchBlt(p.device, r.destination, r.size, BitmapOf(r.source), r.rop);
     })},
    {EMR_MASKBLT, Playing<DecodeMaskBlt>([](EmfPlayback& p, const auto& r) {
       MaskBlt(p.device, r.destination, r.size, BitmapOf(r.source), BitmapOf(r.mask), r.rop4);
     })},
    {EMR_PLGBLT, Playing<DecodePlgBlt>([](EmfPlayback& p, const auto& r) {
       PlgBlt(p.device, r.destination, BitmapOf(r.source), BitmapOf(r.mask));
     })},
    {EMR_SETDIBITSTODEVICE, Playing<DecodeSetDIBitsToDevice>([](EmfPlayback& p, const auto& r) {
       SetDIBitsToDevice(p.device, r.destination, r.size, r.source, {r.startScan, r.scans},
                         BytesOf(r.dib, r.usage));
     })},
    {EMR_STRETCHDIBITS, Playing<DecodeStretchDIBits>([](EmfPlayback& p, const auto& r) {
       StretchDIBits(p.device, r.destination, r.size, r.source, r.sourceSize,
                     BytesOf(r.dib, r.usage), r.rop);
     })},
    {EMR_ALPHABLEND, Playing<DecodeAlphaBlend>([](EmfPlayback& p, const auto& r) {
       AlphaBlend(p.device, r.destination, r.size, BitmapOf(r.source), r.blend);
     })},
    {EMR_TRANSPARENTBLT, Playing<DecodeTransparentBlt>([](EmfPlayback& p, const auto& r) {
       TransparentBlt(p.device, r.destination, r.size, BitmapOf(r.source), r.transparent);
     })},
};

}  // namespace

std::span<const EmfHandler> EmfBitmapHandlers() {
  return kBitmapHandlers;
}

}  // namespace kelvane
