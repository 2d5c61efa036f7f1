#include "frontends/inspection/record_printers.h"
#include "frontends/inspection/shared_fields.h"
#include "metafile/emf/emf_bitmap_records.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

template <class Record>
void AddDestination(FieldWriter& fields, const Record& record) {
  fields.Field("Bounds", record.bounds)
      .Field("Dest", record.destination)
      .Field("cDest", record.size);
}

void AddSource(FieldWriter& fields, const BlitSource& source) {
  fields.Field("Src", source.position)
      .Field("cSrc", source.size)
      .Field("XformSrc", source.transform)
      .Field("BkColorSrc", source.background)
      .Field("UsageSrc", source.usage);
  AddDib(fields, "Src", source.dib);
}

void AddMask(FieldWriter& fields, const BlitMask& mask) {
  fields.Field("Mask", mask.position).Field("UsageMask", mask.usage);
  AddDib(fields, "Mask", mask.dib);
}

template <auto decode>
void PrintBlit(ByteView& bytes, FieldWriter& fields) {
  const BlitRecord record = decode(bytes);
  AddDestination(fields, record);
  fields.Field("BitBltRasterOperation", record.rop);
  AddSource(fields, record.source);
}

void PrintMaskBlt(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeMaskBlt(bytes);
  AddDestination(fields, record);
  fields.Hexadecimal("ROP4", record.rop4);
  AddSource(fields, record.source);
  AddMask(fields, record.mask);
}

void PrintPlgBlt(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodePlgBlt(bytes);
  fields.Field("Bounds", record.bounds).Field("aptlDest", record.destination);
  AddSource(fields, record.source);
  AddMask(fields, record.mask);
}

void PrintAlphaBlend(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeAlphaBlend(bytes);
  AddDestination(fields, record);
  fields.Field("BlendOperation", record.blend.blendOp)
      .Field("BlendFlags", record.blend.blendFlags)
      .Field("SrcConstantAlpha", record.blend.sourceConstantAlpha)
      .Field("AlphaFormat", record.blend.alphaFormat);
  AddSource(fields, record.source);
}

void PrintTransparentBlt(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeTransparentBlt(bytes);
  AddDestination(fields, record);
  fields.Field("TransparentColor", record.transparent);
  AddSource(fields, record.source);
}

void PrintSetDIBitsToDevice(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeSetDIBitsToDevice(bytes);
  fields.Field("Bounds", record.bounds)
      .Field("Dest", record.destination)
      .Field("Src", record.source)
      .Field("cSrc", record.size)
      .Field("UsageSrc", record.usage)
      .Field("iStartScan", record.startScan)
      .Field("cScans", record.scans);
  AddDib(fields, "Src", record.dib);
}

void PrintStretchDIBits(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeStretchDIBits(bytes);
  AddDestination(fields, record);
  fields.Field("Src", record.source)
      .Field("cSrc", record.sourceSize)
      .Field("UsageSrc", record.usage)
      .Field("BitBltRasterOperation", record.rop);
  AddDib(fields, "Src", record.dib);
}

constexpr PrinterRow kBitmapRows[] = {
    {EMR_BITBLT, PrintBlit<DecodeBitBlt>},
    {EMR_STRETCHBLT, PrintBlit<DecodeStretchBlt>},
    {EMR_MASKBLT, PrintMaskBlt},
    {EMR_PLGBLT, PrintPlgBlt},
    {EMR_ALPHABLEND, PrintAlphaBlend},
    {EMR_TRANSPARENTBLT, PrintTransparentBlt},
    {EMR_SETDIBITSTODEVICE, PrintSetDIBitsToDevice},
    {EMR_STRETCHDIBITS, PrintStretchDIBits},
};

}  // namespace

std::span<const PrinterRow> BitmapPrinters() {
  return kBitmapRows;
}

}  // namespace kelvane
