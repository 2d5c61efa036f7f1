#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "metafile/stored_dib.h"

namespace kelvane {
inline namespace metafile {

// Bitmaps ([MS-WMF] 2.3.1, 2.3.4) and PATBLT. Destinations are in logical units, sources in pixels.
// Negative sizes mirror.
//
// Decoders take the record behind its size and type, and leave it short when fields, or bytes of a
// bitmap, are missing.

/// BITMAP16 ([MS-WMF] 2.2.2.1), a bitmap of the device it was made on. Of one bit a pixel 0 is the
/// text's colour; of more there is no saying which colours they are.
struct Bitmap16 {
  std::int32_t width = 0;       // pixels
  std::int32_t height = 0;      // rows, the top one first
  std::int32_t widthBytes = 0;  // from a row to the next, even
  std::uint8_t planes = 0;      // 1
  std::uint8_t bitsPixel = 0;
  ByteView bits;

  [[nodiscard]] constexpr bool IsEmpty() const { return bits.Bytes().empty(); }
};

/// META_BITBLT, META_STRETCHBLT, and the same with DIB before their names, and META_STRETCHDIB
/// ([MS-WMF] 2.3.1.1 to .3, .5, .6). Records of the first four leave out the bitmap where the
/// raster operation needs none, and are then of just the size that their type says.
template <class Bitmap>
struct WmfBlitRecord {
  PointL destination;
  SizeL size;  // of the destination
  PointL source;
  SizeL sourceSize;  // the destination's where a record has none
  TernaryRasterOperation rop{};
  DibUsage usage{};  // of the colour table
  Bitmap bitmap;     // empty where there is none
};
WmfBlitRecord<Bitmap16> DecodeWmfBitBlt(ByteView& bytes);
WmfBlitRecord<Bitmap16> DecodeWmfStretchBlt(ByteView& bytes);
WmfBlitRecord<StoredDib> DecodeWmfDibBitBlt(ByteView& bytes);
WmfBlitRecord<StoredDib> DecodeWmfDibStretchBlt(ByteView& bytes);
WmfBlitRecord<StoredDib> DecodeWmfStretchDib(ByteView& bytes);

/// META_SETDIBTODEV ([MS-WMF] 2.3.1.4): pixel for pixel, never scaled.
struct WmfSetDibToDevRecord {
  PointL destination;
  SizeL size;     // pixels
  PointL source;  // y from the lower edge of a bottom-up bitmap
  DibUsage usage{};
  std::uint16_t startScan = 0;  // the lowest row whose pixels there are
  std::uint16_t scans = 0;      // rows whose pixels there are
  StoredDib dib;
};
WmfSetDibToDevRecord DecodeWmfSetDibToDev(ByteView& bytes);

/// META_PATBLT ([MS-WMF] 2.3.3.12).
struct WmfPatBltRecord {
  PointL destination;
  SizeL size;
  TernaryRasterOperation rop{};
};
WmfPatBltRecord DecodeWmfPatBlt(ByteView& bytes);

/// META_DIBCREATEPATTERNBRUSH, META_CREATEPATTERNBRUSH ([MS-WMF] 2.3.4.8, .4). One of the two
/// bitmaps is empty: BS_PATTERN should go with the older kind, and mostly goes with the other.
struct WmfPatternBrushRecord {
  BrushStyle style{};
  DibUsage usage{};  // of the colour table
  StoredDib dib;
  Bitmap16 bitmap;
};
WmfPatternBrushRecord DecodeWmfDibCreatePatternBrush(ByteView& bytes);
WmfPatternBrushRecord DecodeWmfCreatePatternBrush(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
