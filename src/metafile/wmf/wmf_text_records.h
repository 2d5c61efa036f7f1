#pragma once

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "metafile/text_advances.h"

namespace kelvane {
inline namespace metafile {

// Text ([MS-WMF] 2.3.3), in bytes of the font's character set. Coordinates are logical units.
//
// Decoders take the record behind its size and type, and leave it short when fields or characters
// are missing, but not when advances are: a face has its own.

/// META_TEXTOUT ([MS-WMF] 2.3.3.20).
struct WmfTextOutRecord {
  PointL reference;
  ArrayView<char> text;
};
WmfTextOutRecord DecodeWmfTextOut(ByteView& bytes);

/// META_EXTTEXTOUT ([MS-WMF] 2.3.3.5).
struct WmfExtTextOutRecord {
  PointL reference;
  ExtTextOutOptions options{};
  RectangleL rectangle;  // of ETO_OPAQUE and ETO_CLIPPED; zeros with neither, for it is not stored
  ArrayView<char> text;
  TextAdvances<std::int16_t> advances;
};
WmfExtTextOutRecord DecodeWmfExtTextOut(ByteView& bytes);

}  // namespace metafile
}  // namespace kelvane
