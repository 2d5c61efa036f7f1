#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emf/emf_state_records.h"

namespace kelvane {
namespace {

void PrintRestoreDC(ByteView& bytes, FieldWriter& fields) {
  fields.Field("SavedDC", DecodeRestoreDC(bytes).savedDC);
}

void PrintSetBkMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("BackgroundMode", DecodeSetBkMode(bytes).mode);
}

void PrintSetColor(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Color", DecodeSetColor(bytes).color);
}

void PrintSetPolyFillMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("PolygonFillMode", DecodeSetPolyFillMode(bytes).mode);
}

void PrintSetRop2(ByteView& bytes, FieldWriter& fields) {
  fields.Field("ROP2Mode", DecodeSetRop2(bytes).rop);
}

void PrintSetStretchBltMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("StretchMode", DecodeSetStretchBltMode(bytes).mode);
}

void PrintSetTextAlign(ByteView& bytes, FieldWriter& fields) {
  fields.Field("TextAlignmentMode", DecodeSetTextAlign(bytes).align);
}

void PrintSetTextJustification(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeSetTextJustification(bytes);
  fields.Field("nBreakExtra", record.breakExtra).Field("nBreakCount", record.breakCount);
}

void PrintSetMapperFlags(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Flags", DecodeSetMapperFlags(bytes).flags);
}

void PrintSetMiterLimit(ByteView& bytes, FieldWriter& fields) {
  fields.Field("MiterLimit", DecodeSetMiterLimit(bytes).limit);
}

void PrintSetColorAdjustment(ByteView& bytes, FieldWriter& fields) {
  const ColorAdjustment adjustment = DecodeSetColorAdjustment(bytes).adjustment;
  fields.Field("Values", adjustment.values)
      .Field("IlluminantIndex", adjustment.illuminantIndex)
      .Field("RedGamma", adjustment.redGamma)
      .Field("GreenGamma", adjustment.greenGamma)
      .Field("BlueGamma", adjustment.blueGamma)
      .Field("ReferenceBlack", adjustment.referenceBlack)
      .Field("ReferenceWhite", adjustment.referenceWhite)
      .Field("Contrast", adjustment.contrast)
      .Field("Brightness", adjustment.brightness)
      .Field("Colorfulness", adjustment.colorfulness)
      .Field("RedGreenTint", adjustment.redGreenTint);
}

constexpr PrinterRow kStateRows[] = {
    {EMR_SAVEDC, PrintNoFields},
    {EMR_RESTOREDC, PrintRestoreDC},
    {EMR_SETBKMODE, PrintSetBkMode},
    {EMR_SETBKCOLOR, PrintSetColor},
    {EMR_SETTEXTCOLOR, PrintSetColor},
    {EMR_SETPOLYFILLMODE, PrintSetPolyFillMode},
    {EMR_SETROP2, PrintSetRop2},
    {EMR_SETSTRETCHBLTMODE, PrintSetStretchBltMode},
    {EMR_SETTEXTALIGN, PrintSetTextAlign},
    {EMR_SETTEXTJUSTIFICATION, PrintSetTextJustification},
    {EMR_SETMAPPERFLAGS, PrintSetMapperFlags},
    {EMR_SETMITERLIMIT, PrintSetMiterLimit},
    {EMR_SETCOLORADJUSTMENT, PrintSetColorAdjustment},
};

}  // namespace

std::span<const PrinterRow> StatePrinters() {
  return kStateRows;
}

}  // namespace kelvane
