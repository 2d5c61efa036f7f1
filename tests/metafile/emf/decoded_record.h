#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "metafile/byte_view.h"
#include "support/bytes.h"

namespace kelvane::test {

inline constexpr std::size_t kHeadSize = 8;  // type and size

/// A record, the bytes that its views look at, and whether it was short of any.
template <class Record>
class DecodedRecord {
 public:
  using Decode = Record (*)(ByteView&);

  /// @param bytes  the whole record. @param headSize  bytes of it that the decoder finds read.
  DecodedRecord(Decode decode, std::span<const unsigned char> bytes,
                std::size_t headSize = kHeadSize)
      : bytes_(bytes.begin(), bytes.end()), view_(bytes_) {
    view_.Skip(headSize);
    record_ = decode(view_);
  }
  DecodedRecord(const DecodedRecord&) = delete;
  DecodedRecord& operator=(const DecodedRecord&) = delete;

  [[nodiscard]] bool IsShort() const { return view_.IsShort(); }
  const Record* operator->() const { return &record_; }

 private:
  std::vector<unsigned char>
      bytes_;  // of exactly its size, so that a sanitizer sees what is read beyond
  ByteView view_;
  Record record_;
};

/// Decodes a record, having cut it at every length: whatever it needs it must miss.
/// @param body    the record behind type and size. Offsets count from the head before it.
/// @param needed  bytes of the body that the record cannot do without; all of them unless said
/// otherwise.
template <class Record>
DecodedRecord<Record> Decode(Record (*decode)(ByteView&), const Bytes& body,
                             std::optional<std::size_t> needed = std::nullopt,
                             std::size_t headSize = kHeadSize) {
  const std::vector<unsigned char> whole = Bytes().Zeros(headSize).Append(body.Data()).Data();
  for (std::size_t length = headSize; length < whole.size(); ++length) {
    const bool isShort =
        DecodedRecord<Record>(decode, std::span(whole).first(length), headSize).IsShort();
    EXPECT_EQ(isShort, length - headSize < needed.value_or(body.Size()))
        << "when the body is cut to " << length - headSize << " bytes";
  }
  return DecodedRecord<Record>(decode, whole, headSize);
}

/// The elements of a view, to be compared as a whole.
template <class T>
std::vector<T> Elements(const ArrayView<T>& view) {
  return {view.begin(), view.end()};
}

/// What a view shows, as text.
template <class Unit>
std::basic_string<Unit> Text(const ArrayView<Unit>& view) {
  return {view.begin(), view.end()};
}

/// The bytes of a view.
inline std::vector<unsigned char> BytesOf(const ByteView& view) {
  return {view.Bytes().begin(), view.Bytes().end()};
}

}  // namespace kelvane::test
