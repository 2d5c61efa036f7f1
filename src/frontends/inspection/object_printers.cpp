#include "frontends/inspection/record_printers.h"
#include "frontends/inspection/shared_fields.h"
#include "metafile/emf/emf_object_records.h"
#include "metafile/emf/emf_palette_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void PrintObject(ByteView& bytes, FieldWriter& fields) {
  fields.Object("ihObject", DecodeObject(bytes).ihObject);
}

void PrintCreatePen(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeCreatePen(bytes);
  fields.Object("ihPen", record.ihPen)
      .Field("PenStyle", record.pen.style)
      .Field("Width", record.pen.width)
      .Field("ColorRef", record.pen.color);
}

/// What the number means depends on the style.
void AddPenHatch(FieldWriter& fields, const LogPenEx& pen) {
  if (pen.brushStyle == BS_HATCHED) {
    fields.Field("BrushHatch", static_cast<HatchStyle>(pen.hatch));
  } else {
    fields.Field("BrushHatch", pen.hatch);
  }
}

void PrintExtCreatePen(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeExtCreatePen(bytes);
  fields.Object("ihPen", record.ihPen)
      .Field("PenStyle", record.pen.style)
      .Field("Width", record.pen.width)
      .Field("BrushStyle", record.pen.brushStyle)
      .Field("ColorRef", record.pen.color);
  AddPenHatch(fields, record.pen);
  fields.Field("StyleEntry", record.styleEntries);
  AddDib(fields, "", record.pattern);
}

void PrintCreateBrushIndirect(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeCreateBrushIndirect(bytes);
  fields.Object("ihBrush", record.ihBrush)
      .Field("BrushStyle", record.brush.style)
      .Field("Color", record.brush.color)
      .Field("BrushHatch", record.brush.hatch);
}

void PrintCreatePatternBrush(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeCreatePatternBrush(bytes);
  fields.Object("ihBrush", record.ihBrush).Field("Usage", record.usage);
  AddDib(fields, "", record.pattern);
}

void PrintSelectPalette(ByteView& bytes, FieldWriter& fields) {
  fields.Object("ihPal", DecodeSelectPalette(bytes).ihPal);
}

void PrintCreatePalette(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeCreatePalette(bytes);
  fields.Object("ihPal", record.ihPal)
      .Field("Version", record.version)
      .Field("PaletteEntries", record.entries);
}

void PrintSetPaletteEntries(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeSetPaletteEntries(bytes);
  fields.Object("ihPal", record.ihPal)
      .Field("Start", record.start)
      .Field("aPalEntries", record.entries);
}

void PrintResizePalette(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeResizePalette(bytes);
  fields.Object("ihPal", record.ihPal).Field("NumberOfEntries", record.entries);
}

void PrintColorCorrectPalette(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeColorCorrectPalette(bytes);
  fields.Object("ihPalette", record.ihPal)
      .Field("nFirstEntry", record.firstEntry)
      .Field("nPalEntries", record.entries)
      .Field("nReserved", record.reserved);
}

constexpr PrinterRow kObjectRows[] = {
    {EMR_SELECTOBJECT, PrintObject},
    {EMR_DELETEOBJECT, PrintObject},
    {EMR_CREATEPEN, PrintCreatePen},
    {EMR_EXTCREATEPEN, PrintExtCreatePen},
    {EMR_CREATEBRUSHINDIRECT, PrintCreateBrushIndirect},
    {EMR_CREATEMONOBRUSH, PrintCreatePatternBrush},
    {EMR_CREATEDIBPATTERNBRUSHPT, PrintCreatePatternBrush},
    {EMR_SELECTPALETTE, PrintSelectPalette},
    {EMR_CREATEPALETTE, PrintCreatePalette},
    {EMR_SETPALETTEENTRIES, PrintSetPaletteEntries},
    {EMR_RESIZEPALETTE, PrintResizePalette},
    {EMR_REALIZEPALETTE, PrintNoFields},
    {EMR_COLORCORRECTPALETTE, PrintColorCorrectPalette},
};

}  // namespace

std::span<const PrinterRow> ObjectPrinters() {
  return kObjectRows;
}

}  // namespace kelvane
