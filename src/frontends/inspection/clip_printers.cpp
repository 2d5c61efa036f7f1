#include "frontends/inspection/record_printers.h"
#include "frontends/inspection/shared_fields.h"
#include "metafile/emf/emf_clip_records.h"
#include "metafile/emf/emf_path_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void PrintOffsetClipRgn(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Offset", DecodeOffsetClipRgn(bytes).offset);
}

void PrintClipRect(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Clip", DecodeClipRect(bytes).clip);
}

void PrintExtSelectClipRgn(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeExtSelectClipRgn(bytes);
  fields.Field("RegionMode", record.mode);
  if (record.hasRegion) AddRegion(fields, record.region);
}

void PrintSelectClipPath(ByteView& bytes, FieldWriter& fields) {
  fields.Field("RegionMode", DecodeSelectClipPath(bytes).mode);
}

void PrintPaintPath(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Bounds", DecodePaintPath(bytes).bounds);
}

/// Clips, and the paths that may become some.
constexpr PrinterRow kClipRows[] = {
    {EMR_OFFSETCLIPRGN, PrintOffsetClipRgn},
    {EMR_EXCLUDECLIPRECT, PrintClipRect},
    {EMR_INTERSECTCLIPRECT, PrintClipRect},
    {EMR_EXTSELECTCLIPRGN, PrintExtSelectClipRgn},
    {EMR_SELECTCLIPPATH, PrintSelectClipPath},
    {EMR_SETMETARGN, PrintNoFields},
    {EMR_BEGINPATH, PrintNoFields},
    {EMR_ENDPATH, PrintNoFields},
    {EMR_CLOSEFIGURE, PrintNoFields},
    {EMR_FLATTENPATH, PrintNoFields},
    {EMR_WIDENPATH, PrintNoFields},
    {EMR_ABORTPATH, PrintNoFields},
    {EMR_FILLPATH, PrintPaintPath},
    {EMR_STROKEANDFILLPATH, PrintPaintPath},
    {EMR_STROKEPATH, PrintPaintPath},
};

}  // namespace

std::span<const PrinterRow> ClipPrinters() {
  return kClipRows;
}

}  // namespace kelvane
