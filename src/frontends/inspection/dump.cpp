#include "frontends/inspection/dump.h"

#include <ostream>

#include "frontends/inspection/emfplus_dump.h"
#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"

namespace kelvane {
namespace {

void DumpUnknown(ByteView& bytes, FieldWriter& fields) {
  fields.Field("Data", bytes.Split(bytes.Remaining()));
}

void DumpRecord(EmfRecord& record, FieldWriter& fields) {
  const FieldPrinter print = FindPrinter(record.type);
  fields.BeginLine(record.offset, print == nullptr ? "UNKNOWN" : RecordName(record.type));
  if (print == nullptr) fields.Field("Type", record.type);
  fields.Field("Size", record.bytes.Bytes().size());
  (print == nullptr ? DumpUnknown : print)(record.bytes, fields);
  if (record.bytes.IsShort()) fields.Quoted("Damaged", "its data end early");
  fields.EndLine();
}

/// @param left  bytes behind the last record.
void DumpEnd(EmfEnd end, std::size_t offset, std::size_t left, FieldWriter& fields) {
  if (end == EmfEnd::kEndRecord && left == 0) return;
  fields.BeginLine(offset, "END");
  fields.Field("Bytes", left);
  if (end != EmfEnd::kEndRecord) fields.Quoted("Damaged", Description(end));
  fields.EndLine();
}

}  // namespace

void Dump(std::span<const unsigned char> file, std::ostream& out) {
  FieldWriter fields(out);
  EmfPlusDump emfPlus(fields);
  EmfRecordIterator records(file);
  while (out) {
    auto record = records.Next();
    if (!record) {
      DumpEnd(records.End().value(), records.Offset(), file.size() - records.Offset(), fields);
      break;
    }
    const EmfRecord asStored = *record;
    DumpRecord(*record, fields);
    if (asStored.type == EMR_COMMENT) emfPlus.AddComment(asStored.offset, asStored.bytes);
  }
  fields.Flush();
}

}  // namespace kelvane
