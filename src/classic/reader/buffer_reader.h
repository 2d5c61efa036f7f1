#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>

namespace kelvane {

/// Always false: byte order is a matter of decoding, which gives the same values on any host.
constexpr bool isBigEndian() {
  return false;
}

/// A block of memory read front to back as little-endian scalars. Never reports an error: what lies
/// past the end is simply not read.
///
/// The last byte of the block counts as its end and is never read, so whoever wants every byte of a
/// file declares the block one byte longer than the file.
class BufferReader {
 public:
  /// @param start  borrowed; must outlive the reader.
  /// @param size   bytes in the block, the one that is never read included.
  BufferReader(const unsigned char* start, std::int32_t size) : start_(start), size_(size) {}

  /// Accepts any position; from outside the block nothing is read.
  void setToPosition(std::uint32_t position) { position_ = position; }

  [[nodiscard]] std::int64_t getPosition() const { return position_; }

  /// True exactly when one byte remains; a position past the block is not the end.
  [[nodiscard]] bool isEnd() const { return position_ + 1 == size_; }

  [[nodiscard]] std::int32_t bufferSize() const { return size_; }

  /// Bytes that can still be read.
  [[nodiscard]] std::uint32_t Remaining() const {
    return static_cast<std::uint32_t>(std::max<std::int64_t>(0, size_ - 1 - position_));
  }

  /// Reads one little-endian scalar into its native form. When the block ends early, the bytes that
  /// there are fill the least significant end and the others stay as they were.
  /// @param destination  the scalar's storage.
  /// @param count        its width: 1, 2 or 4 bytes.
  void GetBytes(unsigned char* destination, unsigned long count) {
    const unsigned long available = std::min<unsigned long>(count, Remaining());
    if (available == 0) return;
    const unsigned char* const source = start_ + position_;
    if constexpr (std::endian::native == std::endian::big) {
      std::reverse_copy(source, source + available, destination + count - available);
    } else if (available == count) {
      std::memcpy(destination, source, count);
    } else {
      for (unsigned long i = 0; i < available; ++i)
        destination[i] = source[i];
    }
    position_ += static_cast<std::int64_t>(available);
  }

  /// Lends the next `count` bytes, or as many as can still be read, and moves past them. They are
  /// in file order on any host, and valid as long as the block.
  [[nodiscard]] std::span<const unsigned char> TakeBytes(std::size_t count) {
    const std::size_t available = std::min<std::size_t>(count, Remaining());
    if (available == 0) return {};
    const std::span<const unsigned char> bytes(start_ + position_, available);
    position_ += static_cast<std::int64_t>(available);
    return bytes;
  }

 private:
  const unsigned char* start_;
  std::int64_t position_ = 0;  // from the start; wide enough for any position and any sum of two
  std::int32_t size_;
};

}  // namespace kelvane
