#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "metafile/wmf/wmf_parameters.h"

namespace kelvane {
inline namespace metafile {

// The state of the device context ([MS-WMF] 2.3.5): modes, colours, mapping, spacing of text.
// META_SAVEDC and META_SETRELABS say nothing but their names. Records of one layout share a
// decoder.
//
// Decoders take the record behind its size and type, and leave it short when fields are missing. A
// word too many is common, and nothing is made of it.

/// META_SETBKMODE, META_SETMAPMODE, META_SETROP2, META_SETPOLYFILLMODE, META_SETSTRETCHBLTMODE,
/// META_SETTEXTALIGN, META_SETLAYOUT ([MS-WMF] 2.3.5.15 to .24). A Mode is what the call takes.
template <class Mode>
struct WmfModeRecord {
  Mode mode{};
};
template <class Mode>
WmfModeRecord<Mode> DecodeWmfMode(ByteView& bytes) {
  return {ReadEnumeration16<Mode>(bytes)};
}

/// META_SETBKCOLOR, META_SETTEXTCOLOR ([MS-WMF] 2.3.5.14, .26).
struct WmfColorRecord {
  ColorRef color;
};
inline WmfColorRecord DecodeWmfColor(ByteView& bytes) {
  return {bytes.Read<ColorRef>()};
}

/// META_RESTOREDC ([MS-WMF] 2.3.5.10).
struct WmfRestoreDCRecord {
  std::int32_t savedDC = 0;  // below zero from the last saved, -1, on; above it from the first, 1
};
inline WmfRestoreDCRecord DecodeWmfRestoreDC(ByteView& bytes) {
  return {bytes.Read<std::int16_t>()};
}

/// What has a point: META_SETWINDOWORG, META_OFFSETWINDOWORG and META_OFFSETCLIPRGN in logical
/// units
/// ([MS-WMF] 2.3.5.31, .7, .5), META_SETVIEWPORTORG and META_OFFSETVIEWPORTORG in device units
/// (.29, .6), META_MOVETO (.4) and META_LINETO (2.3.3.10).
struct WmfPointRecord {
  PointL point;
};
inline WmfPointRecord DecodeWmfPoint(ByteView& bytes) {
  return {ReadReversedPoint(bytes)};
}

/// META_SETWINDOWEXT, META_SETVIEWPORTEXT ([MS-WMF] 2.3.5.30, .28).
struct WmfExtentRecord {
  SizeL extent;  // the window's in logical units, the viewport's in device units
};
inline WmfExtentRecord DecodeWmfExtent(ByteView& bytes) {
  return {ReadReversedSize(bytes)};
}

/// META_SCALEWINDOWEXT, META_SCALEVIEWPORTEXT ([MS-WMF] 2.3.5.13, .12).
struct WmfScaleExtentRecord {
  std::int32_t xNum = 0;
  std::int32_t xDenom = 0;
  std::int32_t yNum = 0;
  std::int32_t yDenom = 0;
};
inline WmfScaleExtentRecord DecodeWmfScaleExtent(ByteView& bytes) {
  WmfScaleExtentRecord record;
  record.yDenom = bytes.Read<std::int16_t>();
  record.yNum = bytes.Read<std::int16_t>();
  record.xDenom = bytes.Read<std::int16_t>();
  record.xNum = bytes.Read<std::int16_t>();
  return record;
}

/// META_SETTEXTCHAREXTRA ([MS-WMF] 2.3.5.25).
struct WmfSetTextCharExtraRecord {
  std::int32_t extra = 0;  // logical units behind each character
};
inline WmfSetTextCharExtraRecord DecodeWmfSetTextCharExtra(ByteView& bytes) {
  return {bytes.Read<std::int16_t>()};
}

/// META_SETTEXTJUSTIFICATION ([MS-WMF] 2.3.5.27).
struct WmfSetTextJustificationRecord {
  std::int32_t breakExtra = 0;  // logical units, spread over the break characters
  std::int32_t breakCount = 0;
};
inline WmfSetTextJustificationRecord DecodeWmfSetTextJustification(ByteView& bytes) {
  const auto breakCount = bytes.Read<std::int16_t>();
  const auto breakExtra = bytes.Read<std::int16_t>();
  return {breakExtra, breakCount};
}

/// META_SETMAPPERFLAGS ([MS-WMF] 2.3.5.18).
struct WmfSetMapperFlagsRecord {
  std::uint32_t flags = 0;  // bit 0: only fonts that match the aspect of the device
};
inline WmfSetMapperFlagsRecord DecodeWmfSetMapperFlags(ByteView& bytes) {
  return {bytes.Read<std::uint32_t>()};
}

}  // namespace metafile
}  // namespace kelvane
