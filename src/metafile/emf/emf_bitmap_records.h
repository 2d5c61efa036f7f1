#pragma once

#include <array>
#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/emf/emf_stored_dib.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Bitmaps ([MS-EMF] 2.3.1). Destinations are in logical units, sources in pixels. Negative sizes
// mirror.
//
// Decoders take the record behind its type and size, and leave it short when fields, or bytes of a
// bitmap, are missing.

/// What the bitmap of a blit is drawn from.
struct BlitSource {
  PointL position;      // of the source rectangle, from the top left of the picture
  SizeL size;           // of the source rectangle; EMR_BITBLT and EMR_MASKBLT use the destination's
  XForm transform;      // of the source's own device context, to pixels
  ColorRef background;  // what is background when the destination has one bit a pixel
  DibUsage usage{};     // of the colour table
  StoredDib dib;        // empty where the raster operation needs none
};

/// What a blit is masked with: where bits are set the foreground's operation holds.
struct BlitMask {
  PointL position;   // of the mask's rectangle, as large as the source's
  DibUsage usage{};  // of the colour table
  StoredDib dib;     // one bit a pixel; empty when there is no mask
};

/// EMR_BITBLT, EMR_STRETCHBLT ([MS-EMF] 2.3.1.2, .6). A BITBLT has no size of its source.
struct BlitRecord {
  RectangleL bounds;  // device units, a hint
  PointL destination;
  SizeL size;  // of the destination
  TernaryRasterOperation rop{};
  BlitSource source;
};
BlitRecord DecodeBitBlt(ByteView& bytes);
BlitRecord DecodeStretchBlt(ByteView& bytes);

/// EMR_MASKBLT ([MS-EMF] 2.3.1.3).
struct MaskBltRecord {
  RectangleL bounds;  // device units, a hint
  PointL destination;
  SizeL size;              // of the destination
  std::uint32_t rop4 = 0;  // bits 16 to 23 where the mask is set, 24 to 31 where it is not
  BlitSource source;
  BlitMask mask;
};
MaskBltRecord DecodeMaskBlt(ByteView& bytes);

/// EMR_PLGBLT ([MS-EMF] 2.3.1.4).
struct PlgBltRecord {
  RectangleL bounds;                  // device units, a hint
  std::array<PointL, 3> destination;  // upper left, upper right, lower left
  BlitSource source;
  BlitMask mask;
};
PlgBltRecord DecodePlgBlt(ByteView& bytes);

/// EMR_ALPHABLEND ([MS-EMF] 2.3.1.1).
struct AlphaBlendRecord {
  RectangleL bounds;  // device units, a hint
  PointL destination;
  SizeL size;  // of the destination
  BlendFunction blend;
  BlitSource source;
};
AlphaBlendRecord DecodeAlphaBlend(ByteView& bytes);

/// EMR_TRANSPARENTBLT ([MS-EMF] 2.3.1.8).
struct TransparentBltRecord {
  RectangleL bounds;  // device units, a hint
  PointL destination;
  SizeL size;            // of the destination
  ColorRef transparent;  // what is left out
  BlitSource source;
};
TransparentBltRecord DecodeTransparentBlt(ByteView& bytes);

/// EMR_SETDIBITSTODEVICE ([MS-EMF] 2.3.1.5): pixel for pixel, never scaled.
struct SetDIBitsToDeviceRecord {
  RectangleL bounds;  // device units, a hint
  PointL destination;
  PointL source;                // y from the lower edge of a bottom-up bitmap
  SizeL size;                   // pixels
  DibUsage usage{};             // of the colour table
  std::uint32_t startScan = 0;  // the lowest row whose pixels there are
  std::uint32_t scans = 0;      // rows whose pixels there are
  StoredDib dib;
};
SetDIBitsToDeviceRecord DecodeSetDIBitsToDevice(ByteView& bytes);

/// EMR_STRETCHDIBITS ([MS-EMF] 2.3.1.7).
struct StretchDIBitsRecord {
  RectangleL bounds;  // device units, a hint
  PointL destination;
  SizeL size;        // of the destination
  PointL source;     // y from the lower edge of a bottom-up bitmap
  SizeL sourceSize;  // pixels
  DibUsage usage{};  // of the colour table
  TernaryRasterOperation rop{};
  StoredDib dib;
};
StretchDIBitsRecord DecodeStretchDIBits(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
