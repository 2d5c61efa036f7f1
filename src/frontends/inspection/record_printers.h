#pragma once

#include <cstdint>
#include <span>

#include "frontends/inspection/field_writer.h"
#include "metafile/byte_view.h"

namespace kelvane {

/// Writes the fields of a record, under the names that [MS-EMF] has for them where it stores them
/// as they are decoded.
/// @param bytes  the record behind type and size; left short when the record is.
using FieldPrinter = void (*)(ByteView& bytes, FieldWriter& fields);

struct PrinterRow {
  std::uint32_t type;  // EmfRecordType
  FieldPrinter print;
};

/// @return what writes the fields of records of the type; null for a type that is none.
FieldPrinter FindPrinter(std::uint32_t type);

/// Of a record that is all said with its name.
inline void PrintNoFields(ByteView& /*bytes*/, FieldWriter& /*fields*/) {}

// The rows of each family of records.
std::span<const PrinterRow> BitmapPrinters();
std::span<const PrinterRow> ClipPrinters();
std::span<const PrinterRow> ColorPrinters();
std::span<const PrinterRow> CommentPrinters();
std::span<const PrinterRow> ControlPrinters();
std::span<const PrinterRow> LinePrinters();
std::span<const PrinterRow> MappingPrinters();
std::span<const PrinterRow> ObjectPrinters();
std::span<const PrinterRow> RegionPrinters();
std::span<const PrinterRow> ShapePrinters();
std::span<const PrinterRow> StatePrinters();
std::span<const PrinterRow> TextPrinters();

}  // namespace kelvane
