#include "metafile/wmf/wmf_record_iterator.h"

#include "metafile/wmf/wmf_record_type.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::size_t kWmfHeadWords = 3;  // size and type
constexpr std::size_t kWmfWord = sizeof(std::uint16_t);

}  // namespace

std::string_view Description(WmfEnd end) {
  switch (end) {
    case WmfEnd::kEndRecord:
      return "";
    case WmfEnd::kFileEnds:
      return "the file ends without a META_EOF";
    case WmfEnd::kFileEndsInHead:
      return "the file ends within the size and type of a record";
    case WmfEnd::kSizeTooSmall:
      return "a record claims less than the 3 words of its size and type";
    case WmfEnd::kSizePastEnd:
      return "a record claims more than the file has";
  }
  return "";
}

std::optional<WmfRecord> WmfRecordIterator::Next() {
  if (end_) return std::nullopt;
  if (isLast_) return EndWith(WmfEnd::kEndRecord);
  const std::size_t left = file_.size() - offset_;
  if (left == 0) return EndWith(WmfEnd::kFileEnds);
  if (left < kWmfHeadWords * kWmfWord) return EndWith(WmfEnd::kFileEndsInHead);

  ByteView head(file_.subspan(offset_, kWmfHeadWords * kWmfWord));
  const std::size_t words = head.Read<std::uint32_t>();
  const auto type = head.Read<std::uint16_t>();
  if (words < kWmfHeadWords) return EndWith(WmfEnd::kSizeTooSmall);
  if (words > left / kWmfWord) return EndWith(WmfEnd::kSizePastEnd);

  const std::size_t size = words * kWmfWord;
  WmfRecord record = {type, offset_, ByteView(file_.subspan(offset_, size))};
  record.bytes.Skip(kWmfHeadWords * kWmfWord);
  offset_ += size;
  isLast_ = type == META_EOF;
  return record;
}

std::optional<WmfRecord> WmfRecordIterator::EndWith(WmfEnd end) {
  end_ = end;
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
