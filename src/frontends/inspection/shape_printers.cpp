#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_gradient_records.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emf/emf_shape_records.h"

namespace kelvane {
namespace {

void PrintBox(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Box", DecodeBox(bytes).box);
}

void PrintRoundRect(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeRoundRect(bytes);
  fields.Field("Box", record.box).Field("Corner", record.corner);
}

void PrintArc(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeArc(bytes);
  fields.Field("Box", record.box).Field("Start", record.start).Field("End", record.end);
}

void PrintAngleArc(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeAngleArc(bytes);
  fields.Field("Center", record.center)
      .Field("Radius", record.radius)
      .Field("StartAngle", record.startAngle)
      .Field("SweepAngle", record.sweepAngle);
}

void PrintSetPixelV(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeSetPixelV(bytes);
  fields.Field("Pixel", record.pixel).Field("Color", record.color);
}

void PrintExtFloodFill(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeExtFloodFill(bytes);
  fields.Field("Start", record.start)
      .Field("Color", record.color)
      .Field("FloodFillMode", record.mode);
}

void PrintGradientFill(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeGradientFill(bytes);
  fields.Field("Bounds", record.bounds)
      .Field("ulMode", record.mode)
      .Field("VertexObjects", record.vertices);
  if (record.mode == GRADIENT_FILL_TRIANGLE) {
    fields.Field("VertexIndexes", record.triangles);
  } else {
    fields.Field("VertexIndexes", record.rectangles);
  }
}

constexpr PrinterRow kShapeRows[] = {
    {EMR_ELLIPSE, PrintBox},
    {EMR_RECTANGLE, PrintBox},
    {EMR_ROUNDRECT, PrintRoundRect},
    {EMR_ARC, PrintArc},
    {EMR_ARCTO, PrintArc},
    {EMR_CHORD, PrintArc},
    {EMR_PIE, PrintArc},
    {EMR_ANGLEARC, PrintAngleArc},
    {EMR_SETPIXELV, PrintSetPixelV},
    {EMR_EXTFLOODFILL, PrintExtFloodFill},
    {EMR_GRADIENTFILL, PrintGradientFill},
};

}  // namespace

std::span<const PrinterRow> ShapePrinters() {
  return kShapeRows;
}

}  // namespace kelvane
