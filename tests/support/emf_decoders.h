#pragma once

#include <cstddef>
#include <cstdint>

#include "metafile/byte_view.h"

namespace kelvane::test {

/// Decodes a record of any type, and reads every element that it shows of its bytes.
/// @param bytes  the record behind type and size; left short when the record is.
/// @return the sum of what was read, lest reading be left out; 0 for a type without a decoder.
std::size_t DecodeEmfRecord(std::uint32_t type, ByteView& bytes);

/// @return whether the type has a decoder. One whose records have no fields has none.
bool HasEmfDecoder(std::uint32_t type);

}  // namespace kelvane::test
