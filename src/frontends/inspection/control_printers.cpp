#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_control_records.h"
#include "metafile/emf/emf_header.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void PrintHeader(ByteView& bytes, FieldWriter& fields) {
  const EmfHeader header = DecodeEmfHeader(bytes);
  fields.Field("Bounds", header.bounds)
      .Field("Frame", header.frame)
      .Hexadecimal("RecordSignature", header.signature)
      .Hexadecimal("Version", header.version)
      .Field("Bytes", header.bytes)
      .Field("Records", header.records)
      .Field("Handles", header.handles)
      .Field("nPalEntries", header.palEntries)
      .Field("Device", header.device)
      .Field("Millimeters", header.millimeters)
      .Field("Micrometers", header.micrometers)
      .Field("bOpenGL", int{header.hasOpenGL})
      .Field("Creator", header.creator)
      .Field("Title", header.title);
}

void PrintEof(ByteView& bytes, FieldWriter& fields) {
  fields.Field("PaletteBuffer", DecodeEof(bytes).palette);
}

void PrintEscape(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeEscape(bytes);
  fields.Field("iEscape", record.escape).Field("Data", record.data);
}

void PrintNamedEscape(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeNamedEscape(bytes);
  ByteView driver = record.driver;
  const auto name = driver.Array<char16_t>(driver.Remaining() / sizeof(char16_t));
  fields.Field("iEscape", record.escape)
      .Field("DriverName", UpToNul(name))
      .Field("Data", record.data);
}

void PrintGls(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Data", DecodeGls(bytes).data);
}

void PrintGlsBounded(ByteView& bytes, FieldWriter& fields) {
  const auto record = DecodeGlsBounded(bytes);
  fields.Field("Bounds", record.bounds).Field("Data", record.data);
}

void PrintPixelFormat(ByteView& bytes, FieldWriter& fields) {
  fields.Field("pfd", DecodePixelFormat(bytes).pixelFormat);
}

void PrintForceUfiMapping(ByteView& bytes, FieldWriter& fields) {
  fields.Field("ufi", DecodeForceUfiMapping(bytes).ufi);
}

void PrintSetLinkedUfis(ByteView& bytes, FieldWriter& fields) {
  fields.Field("ufis", DecodeSetLinkedUfis(bytes).ufis);
}

/// The header, the end, and what draws nothing between them.
constexpr PrinterRow kControlRows[] = {
    {EMR_HEADER, PrintHeader},
    {EMR_EOF, PrintEof},
    {EMR_DRAWESCAPE, PrintEscape},
    {EMR_EXTESCAPE, PrintEscape},
    {EMR_NAMEDESCAPE, PrintNamedEscape},
    {EMR_GLSRECORD, PrintGls},
    {EMR_GLSBOUNDEDRECORD, PrintGlsBounded},
    {EMR_PIXELFORMAT, PrintPixelFormat},
    {EMR_FORCEUFIMAPPING, PrintForceUfiMapping},
    {EMR_SETLINKEDUFIS, PrintSetLinkedUfis},
};

}  // namespace

std::span<const PrinterRow> ControlPrinters() {
  return kControlRows;
}

}  // namespace kelvane
