#pragma once

#include <cstdint>
#include <optional>
#include <span>

#include "frontends/inspection/field_writer.h"
#include "metafile/emfplus/emfplus_drawing_records.h"
#include "metafile/emfplus/emfplus_object.h"

namespace kelvane {

/// Writes the fields of an EMF+ record.
/// @return false, and writes nothing, when the record has less than it says.
using EmfPlusPrinter = bool (*)(const EmfPlusRecord& record, FieldWriter& fields);

struct EmfPlusPrinterRow {
  EmfPlusRecordType type;
  EmfPlusPrinter print;
};

/// @tparam decode  the record's decoder. @tparam add  writes what it makes to a FieldWriter.
template <auto decode, auto add>
bool PrintDecoded(const EmfPlusRecord& record, FieldWriter& fields) {
  const auto decoded = decode(record);
  if (decoded) add(*decoded, fields);
  return decoded.has_value();
}

// The rows of each family of records.
std::span<const EmfPlusPrinterRow> EmfPlusDrawingPrinters();
std::span<const EmfPlusPrinterRow> EmfPlusStatePrinters();

/// Writes of what kind an object is, and the most telling of its fields.
void AddEmfPlusObject(const EmfPlusStoredObject& stored, FieldWriter& fields);

/// A value of an enumeration, as a number.
template <class T>
std::uint32_t NumberOf(T value) {
  return static_cast<std::uint32_t>(value);
}

}  // namespace kelvane
