#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"
#include "metafile/wmf/wmf_parameters.h"

namespace kelvane {
inline namespace metafile {

// What is drawn with pen and brush ([MS-WMF] 2.3.3): boxes, arcs, polygons, pixels, floods.
// META_LINETO is with the other points. Coordinates are logical units.
//
// Decoders take the record behind its size and type, and leave it short when fields are missing.

/// META_RECTANGLE, META_ELLIPSE ([MS-WMF] 2.3.3.17, .3), META_EXCLUDECLIPRECT and
/// META_INTERSECTCLIPRECT (2.3.5.2, .3).
struct WmfBoxRecord {
  RectangleL box;  // right and bottom edge excluded
};
inline WmfBoxRecord DecodeWmfBox(ByteView& bytes) {
  return {ReadReversedRectangle(bytes)};
}

/// META_ROUNDRECT ([MS-WMF] 2.3.3.18).
struct WmfRoundRectRecord {
  RectangleL box;  // right and bottom edge excluded
  SizeL corner;    // of the whole ellipse that rounds the corners
};
inline WmfRoundRectRecord DecodeWmfRoundRect(ByteView& bytes) {
  const SizeL corner = ReadReversedSize(bytes);
  return {ReadReversedRectangle(bytes), corner};
}

/// META_ARC, META_CHORD, META_PIE ([MS-WMF] 2.3.3.1, .2, .13): counter-clockwise.
struct WmfArcRecord {
  RectangleL box;  // of the whole ellipse, right and bottom edge excluded
  PointL start;    // only its direction from the centre counts
  PointL end;      // only its direction from the centre counts
};
inline WmfArcRecord DecodeWmfArc(ByteView& bytes) {
  const PointL end = ReadReversedPoint(bytes);
  const PointL start = ReadReversedPoint(bytes);
  return {ReadReversedRectangle(bytes), start, end};
}

/// META_POLYGON, META_POLYLINE ([MS-WMF] 2.3.3.15, .14).
struct WmfPolyRecord {
  ArrayView<Point16> points;  // the whole ones that are there, whatever the count says
};
inline WmfPolyRecord DecodeWmfPoly(ByteView& bytes) {
  return {bytes.Array<Point16>(bytes.Read<std::uint16_t>())};
}

/// META_POLYPOLYGON ([MS-WMF] 2.3.3.16).
struct WmfPolyPolygonRecord {
  ArrayView<std::uint16_t> counts;  // points of each polygon
  ArrayView<Point16> points;        // of all; as many as are counted, unless the record is short
};
inline WmfPolyPolygonRecord DecodeWmfPolyPolygon(ByteView& bytes) {
  const auto counts = bytes.Array<std::uint16_t>(bytes.Read<std::uint16_t>());
  std::size_t sum = 0;
  for (const std::uint16_t count : counts)
    sum += count;
  return {counts, bytes.Array<Point16>(sum)};
}

/// META_SETPIXEL ([MS-WMF] 2.3.3.19).
struct WmfSetPixelRecord {
  PointL pixel;
  ColorRef color;
};
inline WmfSetPixelRecord DecodeWmfSetPixel(ByteView& bytes) {
  const auto color = bytes.Read<ColorRef>();
  return {ReadReversedPoint(bytes), color};
}

/// META_FLOODFILL, META_EXTFLOODFILL ([MS-WMF] 2.3.3.7, .4).
struct WmfFloodFillRecord {
  PointL start;
  ColorRef color;
  FloodFillMode mode{};  // the older record goes up to the colour
};
inline WmfFloodFillRecord DecodeWmfFloodFill(ByteView& bytes) {
  const auto color = bytes.Read<ColorRef>();
  return {ReadReversedPoint(bytes), color, FLOODFILLBORDER};
}
inline WmfFloodFillRecord DecodeWmfExtFloodFill(ByteView& bytes) {
  const auto mode = ReadEnumeration16<FloodFillMode>(bytes);
  const auto color = bytes.Read<ColorRef>();
  return {ReadReversedPoint(bytes), color, mode};
}

}  // namespace metafile
}  // namespace kelvane
