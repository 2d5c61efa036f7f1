#pragma once

#include <cstddef>
#include <span>

namespace kelvane {

/// @return number `at` of a row, of those that have so many bits, 1, 2, 4 or 8, from the high ones
///         on.
inline unsigned char PackedNumber(std::span<const unsigned char> row, std::size_t at,
                                  std::size_t bits) {
  const std::size_t bit = at * bits;
  return static_cast<unsigned char>(row[bit / 8] >> (8 - bits - bit % 8) & ((1U << bits) - 1));
}

}  // namespace kelvane
