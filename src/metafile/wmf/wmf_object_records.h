#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_objects.h"
#include "metafile/wmf/wmf_parameters.h"

namespace kelvane {
inline namespace metafile {

// Objects of the metafile's table ([MS-WMF] 2.3.4): selecting, deleting, pens, brushes, fonts,
// palettes. Regions and brushes of bitmaps have files of their own. A record that creates an object
// takes the lowest index that is free; there are no stock objects. META_REALIZEPALETTE has no
// fields.
//
// Decoders take the record behind its size and type, and leave it short when fields are missing.

/// META_SELECTOBJECT, META_DELETEOBJECT, META_SELECTCLIPREGION, META_SELECTPALETTE,
/// META_INVERTREGION, META_PAINTREGION ([MS-WMF] 2.3.4.10, .7, .9, .11, 2.3.3.9, .11).
struct WmfObjectRecord {
  std::uint16_t index = 0;
};
inline WmfObjectRecord DecodeWmfObject(ByteView& bytes) {
  return {bytes.Read<std::uint16_t>()};
}

/// META_CREATEPENINDIRECT ([MS-WMF] 2.3.4.5, 2.2.1.4).
struct WmfCreatePenIndirectRecord {
  LogPen pen;
};
inline WmfCreatePenIndirectRecord DecodeWmfCreatePenIndirect(ByteView& bytes) {
  const auto style = ReadEnumeration16<PenStyle>(bytes);
  const auto width = bytes.Read<Point16>();
  return {{style, {width.x, width.y}, bytes.Read<ColorRef>()}};
}

/// META_CREATEBRUSHINDIRECT ([MS-WMF] 2.3.4.1, 2.2.2.10).
struct WmfCreateBrushIndirectRecord {
  LogBrush brush;
};
inline WmfCreateBrushIndirectRecord DecodeWmfCreateBrushIndirect(ByteView& bytes) {
  const auto style = ReadEnumeration16<BrushStyle>(bytes);
  const auto color = bytes.Read<ColorRef>();
  return {{style, color, ReadEnumeration16<HatchStyle>(bytes)}};
}

/// META_CREATEFONTINDIRECT ([MS-WMF] 2.3.4.2).
struct WmfCreateFontIndirectRecord {
  LogFont16 font;
};
/// Records end behind the name, or anywhere in what would be left of it.
WmfCreateFontIndirectRecord DecodeWmfCreateFontIndirect(ByteView& bytes);

/// META_CREATEPALETTE, META_SETPALENTRIES, META_ANIMATEPALETTE ([MS-WMF] 2.3.4.3, 2.3.5.19, .1).
struct WmfPaletteRecord {
  std::uint16_t start = 0;  // the first entry to be replaced; 0x300 when a palette is created
  ArrayView<PaletteEntry> entries;
};
inline WmfPaletteRecord DecodeWmfPalette(ByteView& bytes) {
  const auto start = bytes.Read<std::uint16_t>();
  return {start, bytes.Array<PaletteEntry>(bytes.Read<std::uint16_t>())};
}

/// META_RESIZEPALETTE ([MS-WMF] 2.3.5.9).
struct WmfResizePaletteRecord {
  std::uint16_t entries = 0;
};
inline WmfResizePaletteRecord DecodeWmfResizePalette(ByteView& bytes) {
  return {bytes.Read<std::uint16_t>()};
}

}  // namespace metafile
}  // namespace kelvane
