#pragma once

#include <cstddef>
#include <optional>

#include "metafile/emf/decoded_record.h"

namespace kelvane::test {

/// Decodes a record of a Windows metafile, having cut it at every length.
/// @param body    the record behind size and type.
/// @param needed  bytes of the body that the record cannot do without; all of them unless said
/// otherwise.
template <class Record>
DecodedRecord<Record> DecodeWmf(Record (*decode)(ByteView&), const Bytes& body,
                                std::optional<std::size_t> needed = std::nullopt) {
  constexpr std::size_t kWmfHeadSize = 6;
  return Decode(decode, body, needed, kWmfHeadSize);
}

}  // namespace kelvane::test
