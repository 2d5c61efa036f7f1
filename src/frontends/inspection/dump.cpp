#include "frontends/inspection/dump.h"

#include <ostream>

#include "frontends/inspection/emfplus_dump.h"
#include "frontends/inspection/record_printers.h"
#include "frontends/inspection/wmf_printers.h"
#include "metafile/container/metafile_container.h"
#include "metafile/emf/emf_header.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "metafile/wmf/wmf_header.h"
#include "metafile/wmf/wmf_record_iterator.h"
#include "metafile/wmf/wmf_record_type.h"

namespace kelvane {
namespace {

void DumpUnknown(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Data", bytes.Split(bytes.Remaining()));
}

/// @param print  null for a type that is none. @param name  of the type.
template <class Record>
void DumpRecord(Record& record, FieldPrinter print, std::string_view name, FieldWriter& fields) {
  fields.BeginLine(record.offset, print == nullptr ? "UNKNOWN" : name);
  if (print == nullptr) fields.Field("Type", record.type);
  fields.Field("Size", record.bytes.Bytes().size());
  (print == nullptr ? DumpUnknown : print)(record.bytes, fields);
  if (record.bytes.IsShort()) fields.Quoted("Damaged", "its data end early");
  fields.EndLine();
}

/// @param left  bytes behind the last record.
template <class End>
void DumpEnd(End end, std::size_t offset, std::size_t left, FieldWriter& fields) {
  if (end == End::kEndRecord && left == 0) return;
  fields.BeginLine(offset, "END");
  fields.Field("Bytes", left);
  if (end != End::kEndRecord) fields.Quoted("Damaged", Description(end));
  fields.EndLine();
}

void DumpEmf(std::span<const unsigned char> file, std::ostream& out, FieldWriter& fields) {
  EmfPlusDump emfPlus(fields);
  EmfRecordIterator records(file);
  while (out) {
    auto record = records.Next();
    if (!record) {
      DumpEnd(records.End().value(), records.Offset(), file.size() - records.Offset(), fields);
      break;
    }
    const EmfRecord asStored = *record;
    DumpRecord(*record, FindPrinter(record->type), RecordName(record->type), fields);
    if (asStored.type == EMR_COMMENT) emfPlus.AddComment(asStored.offset, asStored.bytes);
  }
}

void DumpWmfHeader(const WmfHeader& header, FieldWriter& fields) {
  if (header.placeable) {
    fields.BeginLine(0, "META_PLACEABLE");
    fields.Field("BoundingBox", header.placeable->box)
        .Field("Inch", header.placeable->unitsPerInch);
    if (!header.placeable->isChecked) fields.Quoted("Damaged", "its checksum is wrong");
    fields.EndLine();
  }
  if (header.plain) {
    constexpr std::size_t kPlainSize = 18;
    fields.BeginLine(header.records - kPlainSize, "META_HEADER");
    fields.Field("Type", header.plain->kind)
        .Hexadecimal("Version", header.plain->version)
        .Field("Size", header.plain->words)
        .Field("NumberOfObjects", header.plain->objects)
        .Field("MaxRecord", header.plain->maxRecord);
    fields.EndLine();
  }
}

void DumpWmf(std::span<const unsigned char> file, std::size_t start, std::ostream& out,
             FieldWriter& fields) {
  WmfRecordIterator records(file, start);
  while (out) {
    auto record = records.Next();
    if (!record) {
      DumpEnd(records.End().value(), records.Offset(), file.size() - records.Offset(), fields);
      break;
    }
    DumpRecord(*record, FindWmfPrinter(record->type), WmfRecordName(record->type), fields);
  }
}

/// @return whether it is one.
bool DumpMetafile(std::span<const unsigned char> file, std::ostream& out, FieldWriter& fields) {
  if (const auto header = ReadWmfHeader(file)) {
    DumpWmfHeader(*header, fields);
    DumpWmf(file, header->records, out, fields);
    return true;
  }
  if (!ReadEmfHeader(file)) return false;
  DumpEmf(file, out, fields);
  return true;
}

void DumpSpool(std::span<const unsigned char> file, const SpoolHeader& header, std::ostream& out,
               FieldWriter& fields) {
  fields.BeginLine(0, "EMFSPOOL_HEADER");
  fields.Field("Size", header.size).Field("DocName", header.document).EndLine();
  SpoolRecordIterator records(file, header.size);
  while (const auto record = records.Next()) {
    const std::string_view name = SpoolRecordName(record->type);
    fields.BeginLine(record->offset, name.empty() ? "UNKNOWN" : name);
    if (name.empty()) fields.Field("Type", record->type);
    fields.Field("Size", record->data.size()).EndLine();
    if (!out) return;
    if (IsSpoolPage(record->type)) DumpMetafile(record->data, out, fields);
  }
  if (const SpoolEnd end = *records.End(); end != SpoolEnd::kFileEnds) {
    fields.BeginLine(records.Offset(), "END");
    fields.Field("Bytes", file.size() - records.Offset());
    fields.Quoted("Damaged", Description(end)).EndLine();
  }
}

}  // namespace

bool Dump(std::span<const unsigned char> file, std::ostream& out) {
  FieldWriter fields(out);
  const MetafileContainer container = OpenContainer(file);
  if (!container.spool && !DumpMetafile(container.content, out, fields)) return false;
  if (container.spool) DumpSpool(container.content, *container.spool, out, fields);
  fields.Flush();
  return true;
}

}  // namespace kelvane
