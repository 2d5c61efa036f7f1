#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace kelvane::fuzz {

using ByteVector = std::vector<unsigned char>;

/// What every record begins with, in bytes.
inline constexpr std::size_t kTypeAndSize = 8;

/// A metafile taken apart where its records meet, so that one can be changed and the others still
/// be found.
struct Frames {
  ByteVector header;                // the first record, or what there is of one
  std::vector<ByteVector> records;  // those behind it, each with its type and size fields
  ByteVector rest;                  // what no record frames, and all behind the end of the file
};

/// @return the parts, which are the file's bytes when put together again, whatever it holds.
Frames TakeApart(std::span<const unsigned char> file);

/// @return the parts one behind the other. Records before the last are left out from the back until
///         the rest of them fits into `most` bytes.
ByteVector PutTogether(const Frames& frames, std::size_t most);

/// @return whether each record of the file leads to the next, up to the one that ends it.
bool IsFramed(std::span<const unsigned char> file);

/// @return whether this is the record that ends a file.
bool IsEnd(const ByteVector& record);

/// Little-endian fields. The offset and its field lie within the bytes.
std::uint32_t FieldAt(std::span<const unsigned char> bytes, std::size_t offset);
void SetField(std::span<unsigned char> bytes, std::size_t offset, std::uint32_t value);

}  // namespace kelvane::fuzz
