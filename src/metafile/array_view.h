#pragma once

#include <cstddef>
#include <iterator>

#include "metafile/stored_value.h"

namespace kelvane {
inline namespace metafile {

/// Numbers or structures that lie one behind the other in a file, decoded each time one is asked
/// for. Nothing is copied: a view lives as long as the bytes it was made of.
template <class T>
class ArrayView {
 public:
  class Iterator {
   public:
    using iterator_category = std::input_iterator_tag;
    using value_type = T;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = T;

    constexpr Iterator() = default;
    constexpr explicit Iterator(const unsigned char* at) : at_(at) {}

    constexpr T operator*() const {
      T value{};
      LoadStored(at_, value);
      return value;
    }
    constexpr Iterator& operator++() {
      at_ += kStoredSize<T>;
      return *this;
    }
    constexpr Iterator operator++(int) {
      const Iterator before = *this;
      ++*this;
      return before;
    }
    friend constexpr bool operator==(Iterator, Iterator) = default;

   private:
    const unsigned char* at_ = nullptr;
  };

  using value_type = T;

  constexpr ArrayView() = default;

  /// @param start  borrowed: count * kStoredSize<T> bytes, aligned or not; null will do for none.
  constexpr ArrayView(const unsigned char* start, std::size_t count)
      : start_(start), count_(count) {}

  [[nodiscard]] constexpr std::size_t size() const { return count_; }
  [[nodiscard]] constexpr bool empty() const { return count_ == 0; }

  [[nodiscard]] constexpr Iterator begin() const { return Iterator(start_); }
  [[nodiscard]] constexpr Iterator end() const {
    return Iterator(start_ + count_ * kStoredSize<T>);
  }

  /// @param index  below size().
  constexpr T operator[](std::size_t index) const {
    return *Iterator(start_ + index * kStoredSize<T>);
  }

  /// @param from  at most size(). @param count  at most what is left from there.
  [[nodiscard]] constexpr ArrayView Part(std::size_t from, std::size_t count) const {
    return {start_ + from * kStoredSize<T>, count};
  }

 private:
  const unsigned char* start_ = nullptr;
  std::size_t count_ = 0;
};

}  // namespace metafile
}  // namespace kelvane
