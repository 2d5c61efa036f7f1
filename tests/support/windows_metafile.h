#pragma once

#include <cstdint>
#include <initializer_list>
#include <vector>

#include "support/bytes.h"

namespace kelvane::test {

/// A 16-bit metafile put together record by record, by the numbers that records have in the format
/// ([MS-WMF] 2.1.1.1). Parameters are given in the order in which they are stored: the last
/// argument of the call comes first.
class WindowsMetafile {
 public:
  /// A header in front of the file's own. Its checksum is right.
  WindowsMetafile& Placeable(std::int32_t left, std::int32_t top, std::int32_t right,
                             std::int32_t bottom, std::uint32_t unitsPerInch);

  /// A record whose parameters are words, each from -32768 to 65535.
  WindowsMetafile& Record(std::uint16_t type, std::initializer_list<std::int32_t> words = {});

  /// Any record. The body is padded to a multiple of two.
  WindowsMetafile& Record(std::uint16_t type, const Bytes& body);

  /// Any record with a size of its own, in words, whatever the body holds.
  WindowsMetafile& RecordOfSize(std::uint16_t type, std::uint32_t words, const Bytes& body = {});

  /// The file: headers, records, META_EOF.
  [[nodiscard]] std::vector<unsigned char> Build() const;

  /// The same without the META_EOF.
  [[nodiscard]] std::vector<unsigned char> BuildWithoutEnd() const;

  /// The records and META_EOF alone, as binary documents keep them.
  [[nodiscard]] std::vector<unsigned char> BuildRecords() const;

 private:
  [[nodiscard]] Bytes Headers(std::size_t recordBytes) const;

  Bytes placeable_;  // empty without
  Bytes records_;
  std::uint32_t largest_ = 3;  // words of the largest record
};

}  // namespace kelvane::test
