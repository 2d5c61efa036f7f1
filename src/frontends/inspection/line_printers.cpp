#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_line_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void PrintMoveToEx(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Offset", DecodeMoveToEx(bytes).point);
}

void PrintLineTo(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Point", DecodeLineTo(bytes).point);
}

template <class Point>
void PrintPoly(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePoly<Point>(bytes);
  fields.Field("Bounds", record.bounds).Field("aPoints", record.points);
}

template <class Point>
void PrintPolyPolyline(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePolyPoly<Point>(bytes);
  fields.Field("Bounds", record.bounds)
      .Field("PolylinePointCount", record.counts)
      .Field("aPoints", record.points);
}

template <class Point>
void PrintPolyPolygon(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePolyPoly<Point>(bytes);
  fields.Field("Bounds", record.bounds)
      .Field("PolygonPointCount", record.counts)
      .Field("aPoints", record.points);
}

template <class Point>
void PrintPolyDraw(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePolyDraw<Point>(bytes);
  fields.Field("Bounds", record.bounds)
      .Field("aPoints", record.points)
      .Field("abTypes", record.types);
}

constexpr PrinterRow kLineRows[] = {
    {EMR_MOVETOEX, PrintMoveToEx},
    {EMR_LINETO, PrintLineTo},
    {EMR_POLYBEZIER, PrintPoly<PointL>},
    {EMR_POLYGON, PrintPoly<PointL>},
    {EMR_POLYLINE, PrintPoly<PointL>},
    {EMR_POLYBEZIERTO, PrintPoly<PointL>},
    {EMR_POLYLINETO, PrintPoly<PointL>},
    {EMR_POLYPOLYLINE, PrintPolyPolyline<PointL>},
    {EMR_POLYPOLYGON, PrintPolyPolygon<PointL>},
    {EMR_POLYDRAW, PrintPolyDraw<PointL>},
    {EMR_POLYBEZIER16, PrintPoly<Point16>},
    {EMR_POLYGON16, PrintPoly<Point16>},
    {EMR_POLYLINE16, PrintPoly<Point16>},
    {EMR_POLYBEZIERTO16, PrintPoly<Point16>},
    {EMR_POLYLINETO16, PrintPoly<Point16>},
    {EMR_POLYPOLYLINE16, PrintPolyPolyline<Point16>},
    {EMR_POLYPOLYGON16, PrintPolyPolygon<Point16>},
    {EMR_POLYDRAW16, PrintPolyDraw<Point16>},
};

}  // namespace

std::span<const PrinterRow> LinePrinters() {
  return kLineRows;
}

}  // namespace kelvane
