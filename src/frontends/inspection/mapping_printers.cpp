#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_mapping_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void PrintSetMapMode(ByteView& bytes, FieldWriter& fields) {
  fields.Field("MapMode", DecodeSetMapMode(bytes).mode);
}

void PrintOrigin(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Origin", DecodeOrigin(bytes).origin);
}

void PrintExtent(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Extent", DecodeExtent(bytes).extent);
}

void PrintScaleExtent(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeScaleExtent(bytes);
  fields.Field("xNum", record.xNum)
      .Field("xDenom", record.xDenom)
      .Field("yNum", record.yNum)
      .Field("yDenom", record.yDenom);
}

void PrintSetWorldTransform(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Xform", DecodeSetWorldTransform(bytes).transform);
}

void PrintModifyWorldTransform(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeModifyWorldTransform(bytes);
  fields.Field("Xform", record.transform).Field("ModifyWorldTransformMode", record.mode);
}

void PrintSetLayout(ByteView& bytes, FieldWriter& fields) {
  fields.Field("LayoutMode", DecodeSetLayout(bytes).layout);
}

void PrintSetArcDirection(ByteView& bytes, FieldWriter& fields) {
  fields.Field("ArcDirection", DecodeSetArcDirection(bytes).direction);
}

constexpr PrinterRow kMappingRows[] = {
    {EMR_SETMAPMODE, PrintSetMapMode},
    {EMR_SETWINDOWORGEX, PrintOrigin},
    {EMR_SETVIEWPORTORGEX, PrintOrigin},
    {EMR_SETBRUSHORGEX, PrintOrigin},
    {EMR_SETWINDOWEXTEX, PrintExtent},
    {EMR_SETVIEWPORTEXTEX, PrintExtent},
    {EMR_SCALEVIEWPORTEXTEX, PrintScaleExtent},
    {EMR_SCALEWINDOWEXTEX, PrintScaleExtent},
    {EMR_SETWORLDTRANSFORM, PrintSetWorldTransform},
    {EMR_MODIFYWORLDTRANSFORM, PrintModifyWorldTransform},
    {EMR_SETLAYOUT, PrintSetLayout},
    {EMR_SETARCDIRECTION, PrintSetArcDirection},
};

}  // namespace

std::span<const PrinterRow> MappingPrinters() {
  return kMappingRows;
}

}  // namespace kelvane
