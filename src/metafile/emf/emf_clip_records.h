#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/emf/emf_region_data.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Clipping ([MS-EMF] 2.3.2). EMR_SETMETARGN has no fields; EMR_SELECTCLIPPATH is with the paths.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_OFFSETCLIPRGN ([MS-EMF] 2.3.2.4).
struct OffsetClipRgnRecord {
  PointL offset;  // logical units
};
inline OffsetClipRgnRecord DecodeOffsetClipRgn(ByteView& bytes) {
  return {bytes.Read<PointL>()};
}

/// EMR_EXCLUDECLIPRECT, EMR_INTERSECTCLIPRECT ([MS-EMF] 2.3.2.1, .3).
struct ClipRectRecord {
  RectangleL clip;  // logical units, right and bottom edge excluded
};
inline ClipRectRecord DecodeClipRect(ByteView& bytes) {
  return {bytes.Read<RectangleL>()};
}

/// EMR_EXTSELECTCLIPRGN ([MS-EMF] 2.3.2.2).
struct ExtSelectClipRgnRecord {
  RegionMode mode{};
  bool hasRegion = false;  // without one RGN_COPY drops the clip
  RegionData region;       // device units
};
inline ExtSelectClipRgnRecord DecodeExtSelectClipRgn(ByteView& bytes) {
  const auto size = bytes.Read<std::uint32_t>();
  const auto mode = bytes.Read<RegionMode>();
  if (size == 0) return {mode, false, {}};
  return {mode, true, DecodeRegionData(bytes, size)};
}

}  // namespace metafile
}  // namespace kelvane
