#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Boxes, arcs and single pixels ([MS-EMF] 2.3.5): EMR_RECTANGLE, EMR_ELLIPSE, EMR_ROUNDRECT,
// EMR_ARC and its kin, EMR_ANGLEARC, EMR_SETPIXELV, EMR_EXTFLOODFILL. Coordinates are logical
// units.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_ELLIPSE, EMR_RECTANGLE ([MS-EMF] 2.3.5.5, .34).
struct BoxRecord {
  RectangleL box;  // right and bottom edge included
};
inline BoxRecord DecodeBox(ByteView& bytes) {
  return {bytes.Read<RectangleL>()};
}

/// EMR_ROUNDRECT ([MS-EMF] 2.3.5.35).
struct RoundRectRecord {
  RectangleL box;  // right and bottom edge included
  SizeL corner;    // of the whole ellipse that rounds the corners
};
inline RoundRectRecord DecodeRoundRect(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Read<SizeL>()};
}

/// EMR_ARC, EMR_ARCTO, EMR_CHORD, EMR_PIE ([MS-EMF] 2.3.5.2 to .4, .15).
struct ArcRecord {
  RectangleL box;  // of the whole ellipse, right and bottom edge included
  PointL start;    // only its direction from the centre counts
  PointL end;      // only its direction from the centre counts
};
inline ArcRecord DecodeArc(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Read<PointL>(), bytes.Read<PointL>()};
}

/// EMR_ANGLEARC ([MS-EMF] 2.3.5.1).
struct AngleArcRecord {
  PointL center;
  std::uint32_t radius = 0;
  float startAngle = 0;  // degrees from +x, counter-clockwise
  float sweepAngle = 0;  // degrees, counter-clockwise
};
inline AngleArcRecord DecodeAngleArc(ByteView& bytes) {
  return {bytes.Read<PointL>(), bytes.Read<std::uint32_t>(), bytes.Read<float>(),
          bytes.Read<float>()};
}

/// EMR_SETPIXELV ([MS-EMF] 2.3.5.36).
struct SetPixelVRecord {
  PointL pixel;
  ColorRef color;
};
inline SetPixelVRecord DecodeSetPixelV(ByteView& bytes) {
  return {bytes.Read<PointL>(), bytes.Read<ColorRef>()};
}

/// EMR_EXTFLOODFILL ([MS-EMF] 2.3.5.6).
struct ExtFloodFillRecord {
  PointL start;
  ColorRef color;
  FloodFillMode mode{};
};
inline ExtFloodFillRecord DecodeExtFloodFill(ByteView& bytes) {
  return {bytes.Read<PointL>(), bytes.Read<ColorRef>(), bytes.Read<FloodFillMode>()};
}

}  // namespace metafile
}  // namespace kelvane
