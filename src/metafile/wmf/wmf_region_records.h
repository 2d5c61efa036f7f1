#pragma once

#include <cstdint>
#include <vector>

#include "metafile/byte_view.h"
#include "metafile/gdi_types.h"
#include "metafile/wmf/wmf_parameters.h"

namespace kelvane {
inline namespace metafile {

// Regions ([MS-WMF] 2.3.4.6, 2.3.3). META_INVERTREGION and META_PAINTREGION are with the other
// records that name one object.
//
// Decoders take the record behind its size and type, and leave it short when fields are missing.

/// META_CREATEREGION ([MS-WMF] 2.3.4.6): an area as rectangles, right and bottom edges excluded.
struct WmfCreateRegionRecord {
  RectangleL bounds;
  std::vector<RectangleL> rectangles;  // from top to bottom, those of a scan from left to right
};
/// A region whose scans are not all there is its bounds.
WmfCreateRegionRecord DecodeWmfCreateRegion(ByteView& bytes);

/// META_FILLREGION ([MS-WMF] 2.3.3.6).
struct WmfFillRegionRecord {
  std::uint16_t region = 0;  // index of the table
  std::uint16_t brush = 0;   // index of the table
};
inline WmfFillRegionRecord DecodeWmfFillRegion(ByteView& bytes) {
  return {bytes.Read<std::uint16_t>(), bytes.Read<std::uint16_t>()};
}

/// META_FRAMEREGION ([MS-WMF] 2.3.3.8).
struct WmfFrameRegionRecord {
  std::uint16_t region = 0;  // index of the table
  std::uint16_t brush = 0;   // index of the table
  SizeL frame;               // of a vertical and a horizontal stroke, logical units
};
inline WmfFrameRegionRecord DecodeWmfFrameRegion(ByteView& bytes) {
  return {bytes.Read<std::uint16_t>(), bytes.Read<std::uint16_t>(), ReadReversedSize(bytes)};
}

}  // namespace metafile
}  // namespace kelvane
