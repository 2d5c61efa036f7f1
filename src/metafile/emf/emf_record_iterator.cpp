#include "metafile/emf/emf_record_iterator.h"

#include "metafile/emf/emf_record_type.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::size_t kHeadSize = 8;  // type and size

}  // namespace

std::string_view Description(EmfEnd end) {
  switch (end) {
    case EmfEnd::kEndRecord:
      return "";
    case EmfEnd::kFileEnds:
      return "the file ends without an EMR_EOF";
    case EmfEnd::kFileEndsInHead:
      return "the file ends within the type and size of a record";
    case EmfEnd::kSizeTooSmall:
      return "a record claims less than the 8 bytes of its type and size";
    case EmfEnd::kSizePastEnd:
      return "a record claims more than the file has";
    case EmfEnd::kSizeNotWholeWords:
      return "a record claims a size that is no multiple of 4";
  }
  return "";
}

std::optional<EmfRecord> EmfRecordIterator::Next() {
  if (end_) return std::nullopt;
  if (isLast_) return EndWith(EmfEnd::kEndRecord);
  const std::size_t left = file_.size() - offset_;
  if (left == 0) return EndWith(EmfEnd::kFileEnds);
  if (left < kHeadSize) return EndWith(EmfEnd::kFileEndsInHead);

  ByteView head(file_.subspan(offset_, kHeadSize));
  const auto type = head.Read<std::uint32_t>();
  const auto size = head.Read<std::uint32_t>();
  if (size < kHeadSize) return EndWith(EmfEnd::kSizeTooSmall);
  if (size > left) return EndWith(EmfEnd::kSizePastEnd);
  if (size % 4 != 0) return EndWith(EmfEnd::kSizeNotWholeWords);

  EmfRecord record = {type, offset_, ByteView(file_.subspan(offset_, size))};
  record.bytes.Skip(kHeadSize);
  offset_ += size;
  isLast_ = type == EMR_EOF;
  return record;
}

std::optional<EmfRecord> EmfRecordIterator::EndWith(EmfEnd end) {
  end_ = end;
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
