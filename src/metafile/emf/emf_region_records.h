#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/emf/emf_region_data.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Painted regions ([MS-EMF] 2.3.5): EMR_FILLRGN, EMR_FRAMERGN, EMR_INVERTRGN, EMR_PAINTRGN. Their
// rectangles are in logical units.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_FILLRGN ([MS-EMF] 2.3.5.10).
struct FillRgnRecord {
  RectangleL bounds;  // device units, a hint
  std::uint32_t ihBrush = 0;
  RegionData region;
};
inline FillRgnRecord DecodeFillRgn(ByteView& bytes) {
  const auto bounds = bytes.Read<RectangleL>();
  const auto size = bytes.Read<std::uint32_t>();
  return {bounds, bytes.Read<std::uint32_t>(), DecodeRegionData(bytes, size)};
}

/// EMR_FRAMERGN ([MS-EMF] 2.3.5.11).
struct FrameRgnRecord {
  RectangleL bounds;  // device units, a hint
  std::uint32_t ihBrush = 0;
  SizeL frame;  // of a vertical and a horizontal stroke, logical units
  RegionData region;
};
inline FrameRgnRecord DecodeFrameRgn(ByteView& bytes) {
  const auto bounds = bytes.Read<RectangleL>();
  const auto size = bytes.Read<std::uint32_t>();
  const auto brush = bytes.Read<std::uint32_t>();
  return {bounds, brush, bytes.Read<SizeL>(), DecodeRegionData(bytes, size)};
}

/// EMR_INVERTRGN, EMR_PAINTRGN ([MS-EMF] 2.3.11.3, 2.3.5.14).
struct PaintRgnRecord {
  RectangleL bounds;  // device units, a hint
  RegionData region;
};
inline PaintRgnRecord DecodePaintRgn(ByteView& bytes) {
  const auto bounds = bytes.Read<RectangleL>();
  const auto size = bytes.Read<std::uint32_t>();
  return {bounds, DecodeRegionData(bytes, size)};
}

}  // namespace metafile
}  // namespace kelvane
