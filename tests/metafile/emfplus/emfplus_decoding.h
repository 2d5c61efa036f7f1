#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include <gtest/gtest.h>

#include "metafile/emfplus/emfplus_record.h"
#include "support/bytes.h"

namespace kelvane::test {

/// A record whose data are just as long as they are, so that a sanitizer sees what is read beyond.
class StoredEmfPlusRecord {
 public:
  StoredEmfPlusRecord(std::uint32_t flags, std::span<const unsigned char> data)
      : data_(data.begin(), data.end()),
        record_{0, static_cast<std::uint16_t>(flags), ByteView(data_)} {}

  [[nodiscard]] const EmfPlusRecord& Record() const { return record_; }

 private:
  std::vector<unsigned char> data_;
  EmfPlusRecord record_;
};

/// Decodes a record, having cut it at every length: there is none of them that it can do without.
/// @return what it holds; nothing it views.
template <class T>
std::optional<T> DecodeWhole(std::optional<T> (*decode)(const EmfPlusRecord&), std::uint32_t flags,
                             const Bytes& data) {
  for (std::size_t length = 0; length < data.Size(); ++length) {
    const StoredEmfPlusRecord cut(flags, std::span(data.Data()).first(length));
    EXPECT_FALSE(decode(cut.Record())) << "when it is cut to " << length << " bytes";
  }
  return decode(StoredEmfPlusRecord(flags, data.Data()).Record());
}

/// Reads an object, having cut it at every length: there is none of them that it can do without.
/// @return it; nothing it views.
template <class T>
std::optional<T> ReadWhole(std::optional<T> (*read)(ByteView&), const Bytes& object) {
  for (std::size_t length = 0; length < object.Size(); ++length) {
    const std::vector<unsigned char> cut(
        object.Data().begin(), object.Data().begin() + static_cast<std::ptrdiff_t>(length));
    ByteView bytes(cut);
    EXPECT_FALSE(read(bytes)) << "when it is cut to " << length << " bytes";
  }
  ByteView bytes(object.Data());
  return read(bytes);
}

}  // namespace kelvane::test
