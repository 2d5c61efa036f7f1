#include "frontends/inspection/emfplus_dump.h"

#include "frontends/inspection/emfplus_printers.h"
#include "metafile/emf/emf_comment_records.h"

namespace kelvane {
namespace {

EmfPlusPrinter FindEmfPlusPrinter(std::uint32_t type) {
  for (const auto& family : {EmfPlusDrawingPrinters(), EmfPlusStatePrinters()}) {
    for (const EmfPlusPrinterRow& row : family) {
      if (row.type == type) return row.print;
    }
  }
  return nullptr;
}

}  // namespace

void EmfPlusDump::AddComment(std::size_t offset, ByteView record) {
  CommentRecord comment = DecodeComment(record);
  if (comment.kind != EmfCommentKind::kEmfPlus) return;
  const unsigned char* start = record.Bytes().data();
  const auto next = [&] {  // offset of what is read next
    const auto left = comment.data;
    const std::span<const unsigned char> all = left.Bytes();
    return offset + static_cast<std::size_t>(all.data() - start) + all.size() - left.Remaining();
  };
  for (std::size_t at = next();; at = next()) {
    const auto found = NextEmfPlusRecord(comment.data);
    if (!found) return;
    const std::string_view name = EmfPlusRecordName(found->type);
    fields_.BeginLine(at, name.empty() ? "UNKNOWN" : name);
    if (name.empty()) fields_.Hexadecimal("Type", found->type);
    fields_.Hexadecimal("Flags", found->flags).Field("DataSize", found->data.Bytes().size());
    AddRecord(*found);
    fields_.EndLine();
  }
}

void EmfPlusDump::AddRecord(const EmfPlusRecord& record) {
  if (record.type == kEmfPlusObject) return AddObject(record);
  objects_.Drop();
  const EmfPlusPrinter print = FindEmfPlusPrinter(record.type);
  if (print == nullptr) {
    if (!record.data.Bytes().empty()) fields_.Field("Data", record.data);
  } else if (!print(record, fields_)) {
    fields_.Quoted("Damaged", "its data end early");
  }
}

void EmfPlusDump::AddObject(const EmfPlusRecord& record) {
  using Progress = EmfPlusObjectAssembler::Progress;
  EmfPlusStoredObject stored;
  switch (objects_.Add(record, stored)) {
    case Progress::kWhole:
      fields_.Field("Slot", stored.slot);
      return AddEmfPlusObject(stored, fields_);
    case Progress::kPending:
      fields_.Field("Slot", stored.slot).Field("Piece", record.data);
      return;
    case Progress::kBroken:
      fields_.Quoted("Damaged", "it is no object, or its pieces do not make one");
  }
}

}  // namespace kelvane
