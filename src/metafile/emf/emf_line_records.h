#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// Lines, curves and polygons ([MS-EMF] 2.3.5): EMR_MOVETOEX, EMR_LINETO, the POLY records in both
// widths, EMR_POLYDRAW. Coordinates are logical units, in PointL or, in the records whose names end
// in 16, Point16.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_MOVETOEX ([MS-EMF] 2.3.11.4).
struct MoveToExRecord {
  PointL point;
};
inline MoveToExRecord DecodeMoveToEx(ByteView& bytes) {
  return {bytes.Read<PointL>()};
}

/// EMR_LINETO ([MS-EMF] 2.3.5.13).
struct LineToRecord {
  PointL point;  // the end
};
inline LineToRecord DecodeLineTo(ByteView& bytes) {
  return {bytes.Read<PointL>()};
}

/// EMR_POLYBEZIER, EMR_POLYGON, EMR_POLYLINE, EMR_POLYBEZIERTO, EMR_POLYLINETO, and the same in 16
/// bits ([MS-EMF] 2.3.5.16 to .27).
template <class Point>
struct PolyRecord {
  RectangleL bounds;        // device units, a hint
  ArrayView<Point> points;  // the whole ones that are there, whatever the count says
};
template <class Point>
PolyRecord<Point> DecodePoly(ByteView& bytes) {
  return {bytes.Read<RectangleL>(), bytes.Array<Point>(bytes.Read<std::uint32_t>())};
}

/// EMR_POLYPOLYLINE, EMR_POLYPOLYGON, and those in 16 bits ([MS-EMF] 2.3.5.28 to .31).
template <class Point>
struct PolyPolyRecord {
  RectangleL bounds;                // device units, a hint
  ArrayView<std::uint32_t> counts;  // points of each figure; their sum may be anything
  ArrayView<Point> points;          // of all figures
};
template <class Point>
PolyPolyRecord<Point> DecodePolyPoly(ByteView& bytes) {
  const auto bounds = bytes.Read<RectangleL>();
  const auto figures = bytes.Read<std::uint32_t>();
  const auto points = bytes.Read<std::uint32_t>();
  return {bounds, bytes.Array<std::uint32_t>(figures), bytes.Array<Point>(points)};
}

/// EMR_POLYDRAW and EMR_POLYDRAW16 ([MS-EMF] 2.3.5.20, .21).
template <class Point>
struct PolyDrawRecord {
  RectangleL bounds;  // device units, a hint
  ArrayView<Point> points;
  ArrayView<PointType>
      types;  // of each point; as many as there are points, unless the record is short
};
template <class Point>
PolyDrawRecord<Point> DecodePolyDraw(ByteView& bytes) {
  const auto bounds = bytes.Read<RectangleL>();
  const auto count = bytes.Read<std::uint32_t>();
  return {bounds, bytes.Array<Point>(count), bytes.Array<PointType>(count)};
}

}  // namespace metafile
}  // namespace kelvane
