#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

#include "metafile/array_view.h"
#include "metafile/stored_value.h"

namespace kelvane {
inline namespace metafile {

/// Stored bytes, read front to back and never beyond their end. A read that finds too little gives
/// zeros, takes what was left, and leaves the view short for good: fields can be read in a row, and
/// whether all were there is asked once. Nothing is copied: the view, and all views made of it,
/// live as long as the bytes.
class ByteView {
 public:
  constexpr ByteView() = default;
  constexpr explicit ByteView(std::span<const unsigned char> bytes) : bytes_(bytes) {}

  /// @return whether something was asked for that is not there.
  [[nodiscard]] constexpr bool IsShort() const { return isShort_; }

  /// Leaves the view short, and all further reads without anything: for bytes that are there but
  /// hold too little.
  constexpr void Fail() {
    isShort_ = true;
    next_ = bytes_.size();
  }

  /// @return all bytes, those already read included.
  [[nodiscard]] constexpr std::span<const unsigned char> Bytes() const { return bytes_; }

  [[nodiscard]] constexpr std::size_t Remaining() const { return bytes_.size() - next_; }

  /// Reads a number, an enumeration or a structure.
  template <class T>
  constexpr T Read() {
    T value{};
    if (const unsigned char* stored = Take(kStoredSize<T>)) LoadStored(stored, value);
    return value;
  }

  /// Reads `count` elements; the whole ones that are there when there are fewer.
  template <class T>
  constexpr ArrayView<T> Array(std::size_t count) {
    const std::size_t most = Remaining() / kStoredSize<T>;
    const unsigned char* start = bytes_.data() + next_;
    if (count > most) {
      Fail();
      return {start, most};
    }
    next_ += count * kStoredSize<T>;
    return {start, count};
  }

  /// Reads up to `count` elements. That there are fewer is no failure: for what may be left out.
  template <class T>
  constexpr ArrayView<T> ArrayUpTo(std::size_t count) {
    return Array<T>(std::min(count, Remaining() / kStoredSize<T>));
  }

  /// Reads `length` bytes as a view of their own; those that are there when there are fewer.
  constexpr ByteView Split(std::size_t length) {
    const ByteView part(bytes_.subspan(next_, std::min(length, Remaining())));
    Skip(length);
    return part;
  }

  constexpr void Skip(std::size_t length) { Take(length); }

  /// Bytes at a stored place, wherever reading stands.
  /// @param offset  counted from the first of all bytes. @param length  0 asks for nothing, so any
  ///                offset will do.
  /// @return the bytes; those of them that are there when there are fewer, and then this is short.
  constexpr ByteView Slice(std::size_t offset, std::size_t length) {
    if (length == 0) return {};
    if (!Holds(offset, length)) isShort_ = true;
    const std::size_t start = std::min(offset, bytes_.size());
    return ByteView(bytes_.subspan(start, std::min(length, bytes_.size() - start)));
  }

  /// Elements at a stored place; as Slice.
  template <class T>
  constexpr ArrayView<T> ArrayAt(std::size_t offset, std::size_t count) {
    if (count == 0) return {};
    const std::size_t start = std::min(offset, bytes_.size());
    const std::size_t most = (bytes_.size() - start) / kStoredSize<T>;
    if (count > most) isShort_ = true;
    return {bytes_.data() + start, std::min(count, most)};
  }

  /// @return whether `length` bytes lie at the offset, counted from the first of all bytes.
  [[nodiscard]] constexpr bool Holds(std::uint64_t offset, std::uint64_t length) const {
    return offset <= bytes_.size() && length <= bytes_.size() - offset;
  }

 private:
  /// @return the next bytes, or null when there are not so many.
  constexpr const unsigned char* Take(std::size_t length) {
    if (length > Remaining()) {
      Fail();
      return nullptr;
    }
    const unsigned char* start = bytes_.data() + next_;
    next_ += length;
    return start;
  }

  std::span<const unsigned char> bytes_;
  std::size_t next_ = 0;  // index into bytes_
  bool isShort_ = false;
};

}  // namespace metafile
}  // namespace kelvane
