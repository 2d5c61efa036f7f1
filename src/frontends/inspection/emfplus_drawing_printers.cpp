#include "frontends/inspection/emfplus_printers.h"

namespace kelvane {
namespace {

/// A colour, or where there is a brush.
void AddBrush(const EmfPlusBrushUse& brush, FieldWriter& fields) {
  std::visit([&](const auto& use) { fields.Field("Brush", use); }, brush);
}

void AddClear(const EmfPlusClear& r, FieldWriter& fields) {
  fields.Field("Color", r.color);
}
void AddFillRects(const EmfPlusFillRects& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  fields.Field("RectData", r.rectangles);
}
void AddDrawRects(const EmfPlusDrawRects& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen).Field("RectData", r.rectangles);
}
void AddFillPolygon(const EmfPlusFillPolygon& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  fields.Field("PointData", r.points);
}
void AddDrawLines(const EmfPlusDrawLines& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen).Field("Closed", r.isClosed).Field("PointData", r.points);
}
void AddFillEllipse(const EmfPlusFillEllipse& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  fields.Field("RectData", r.box);
}
void AddDrawEllipse(const EmfPlusDrawEllipse& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen).Field("RectData", r.box);
}

template <class Arc>
void AddArc(const Arc& r, FieldWriter& fields) {
  fields.Field("StartAngle", r.startAngle)
      .Field("SweepAngle", r.sweepAngle)
      .Field("RectData", r.box);
}
void AddFillPie(const EmfPlusFillPie& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  AddArc(r, fields);
}
void AddDrawArc(const EmfPlusDrawArc& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen);
  AddArc(r, fields);
}

void AddFillRegion(const EmfPlusFillRegion& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  fields.Field("Region", r.region);
}
void AddFillPath(const EmfPlusFillPath& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  fields.Field("Path", r.path);
}
void AddDrawPath(const EmfPlusDrawPath& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen).Field("Path", r.path);
}
void AddFillClosedCurve(const EmfPlusFillClosedCurve& r, FieldWriter& fields) {
  AddBrush(r.brush, fields);
  fields.Field("Tension", r.tension).Field("Winding", r.isWinding).Field("PointData", r.points);
}
void AddDrawClosedCurve(const EmfPlusDrawClosedCurve& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen).Field("Tension", r.tension).Field("PointData", r.points);
}
void AddDrawCurve(const EmfPlusDrawCurve& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen)
      .Field("Tension", r.tension)
      .Field("Offset", r.offset)
      .Field("NumSegments", r.segments)
      .Field("PointData", r.points);
}
void AddDrawBeziers(const EmfPlusDrawBeziers& r, FieldWriter& fields) {
  fields.Field("Pen", r.pen).Field("PointData", r.points);
}

template <class Image>
void AddSource(const Image& r, FieldWriter& fields) {
  fields.Field("Image", r.image)
      .Field("ImageAttributes", r.attributes)
      .Field("SrcUnit", NumberOf(r.sourceUnit))
      .Field("SrcRect", r.source);
}
void AddDrawImage(const EmfPlusDrawImage& r, FieldWriter& fields) {
  AddSource(r, fields);
  fields.Field("RectData", r.destination);
}
void AddDrawImagePoints(const EmfPlusDrawImagePoints& r, FieldWriter& fields) {
  AddSource(r, fields);
  fields.Field("Effect", r.hasEffect).Field("PointData", r.corners);
}

void AddDrawString(const EmfPlusDrawString& r, FieldWriter& fields) {
  fields.Field("Font", r.font);
  AddBrush(r.brush, fields);
  fields.Field("Format", r.format).Field("LayoutRect", r.layout).Field("StringData", r.text);
}
void AddDrawDriverString(const EmfPlusDrawDriverString& r, FieldWriter& fields) {
  fields.Field("Font", r.font);
  AddBrush(r.brush, fields);
  fields.Field("Options", r.options);
  if ((r.options & kEmfPlusCmapLookup) != 0) {
    fields.Field("Characters", r.values);
  } else {
    const std::vector<std::uint16_t> glyphs(r.values.begin(), r.values.end());
    fields.Field("Glyphs", glyphs);
  }
  fields.Field("GlyphPos", r.places);
  if (r.matrix) fields.Field("TransformMatrix", *r.matrix);
}

constexpr EmfPlusPrinterRow kEmfPlusDrawingRows[] = {
    {kEmfPlusClear, PrintDecoded<DecodeEmfPlusClear, AddClear>},
    {kEmfPlusFillRects, PrintDecoded<DecodeEmfPlusFillRects, AddFillRects>},
    {kEmfPlusDrawRects, PrintDecoded<DecodeEmfPlusDrawRects, AddDrawRects>},
    {kEmfPlusFillPolygon, PrintDecoded<DecodeEmfPlusFillPolygon, AddFillPolygon>},
    {kEmfPlusDrawLines, PrintDecoded<DecodeEmfPlusDrawLines, AddDrawLines>},
    {kEmfPlusFillEllipse, PrintDecoded<DecodeEmfPlusFillEllipse, AddFillEllipse>},
    {kEmfPlusDrawEllipse, PrintDecoded<DecodeEmfPlusDrawEllipse, AddDrawEllipse>},
    {kEmfPlusFillPie, PrintDecoded<DecodeEmfPlusFillPie, AddFillPie>},
    {kEmfPlusDrawPie, PrintDecoded<DecodeEmfPlusDrawArc, AddDrawArc>},
    {kEmfPlusDrawArc, PrintDecoded<DecodeEmfPlusDrawArc, AddDrawArc>},
    {kEmfPlusFillRegion, PrintDecoded<DecodeEmfPlusFillRegion, AddFillRegion>},
    {kEmfPlusFillPath, PrintDecoded<DecodeEmfPlusFillPath, AddFillPath>},
    {kEmfPlusDrawPath, PrintDecoded<DecodeEmfPlusDrawPath, AddDrawPath>},
    {kEmfPlusFillClosedCurve, PrintDecoded<DecodeEmfPlusFillClosedCurve, AddFillClosedCurve>},
    {kEmfPlusDrawClosedCurve, PrintDecoded<DecodeEmfPlusDrawClosedCurve, AddDrawClosedCurve>},
    {kEmfPlusDrawCurve, PrintDecoded<DecodeEmfPlusDrawCurve, AddDrawCurve>},
    {kEmfPlusDrawBeziers, PrintDecoded<DecodeEmfPlusDrawBeziers, AddDrawBeziers>},
    {kEmfPlusDrawImage, PrintDecoded<DecodeEmfPlusDrawImage, AddDrawImage>},
    {kEmfPlusDrawImagePoints, PrintDecoded<DecodeEmfPlusDrawImagePoints, AddDrawImagePoints>},
    {kEmfPlusDrawString, PrintDecoded<DecodeEmfPlusDrawString, AddDrawString>},
    {kEmfPlusDrawDriverString, PrintDecoded<DecodeEmfPlusDrawDriverString, AddDrawDriverString>},
};

}  // namespace

std::span<const EmfPlusPrinterRow> EmfPlusDrawingPrinters() {
  return kEmfPlusDrawingRows;
}

}  // namespace kelvane
