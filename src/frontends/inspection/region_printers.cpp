#include "frontends/inspection/record_printers.h"
#include "frontends/inspection/shared_fields.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/emf/emf_region_records.h"

namespace kelvane {
namespace {

void PrintFillRgn(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeFillRgn(bytes);
  fields.Field("Bounds", record.bounds).Object("ihBrush", record.ihBrush);
  AddRegion(fields, record.region);
}

void PrintFrameRgn(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeFrameRgn(bytes);
  fields.Field("Bounds", record.bounds)
      .Object("ihBrush", record.ihBrush)
      .Field("Width", record.frame.cx)
      .Field("Height", record.frame.cy);
  AddRegion(fields, record.region);
}

void PrintPaintRgn(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePaintRgn(bytes);
  fields.Field("Bounds", record.bounds);
  AddRegion(fields, record.region);
}

constexpr PrinterRow kRegionRows[] = {
    {EMR_FILLRGN, PrintFillRgn},
    {EMR_FRAMERGN, PrintFrameRgn},
    {EMR_INVERTRGN, PrintPaintRgn},
    {EMR_PAINTRGN, PrintPaintRgn},
};

}  // namespace

std::span<const PrinterRow> RegionPrinters() {
  return kRegionRows;
}

}  // namespace kelvane
