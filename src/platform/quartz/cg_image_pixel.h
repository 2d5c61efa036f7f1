#pragma once

#include <array>
#include <cstddef>
#include <span>

#include "base/packed_number.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {

/// @param image  of pixels, no mask. @param row  one of its rows.
/// @return red, green and blue of a pixel; black for a number that its table does not have.
inline std::array<unsigned char, 3> ColorInRow(const CGImage& image,
                                               std::span<const unsigned char> row, std::size_t x) {
  if (image.indexed != nullptr) {
    const auto& table = image.indexed->table;
    const std::size_t at = std::size_t{PackedNumber(row, x, image.bitsPerComponent)} * 3;
    if (at >= table.size()) return {};
    return {table[at], table[at + 1], table[at + 2]};
  }
  if (image.components == 1) return {row[x], row[x], row[x]};
  return {row[3 * x], row[3 * x + 1], row[3 * x + 2]};
}

/// @param mask  of another image. @param row  one of its rows.
/// @return how much of the other's pixel is seen, of 255.
inline unsigned char AlphaInRow(const CGImage& mask, std::span<const unsigned char> row,
                                std::size_t x) {
  if (!mask.isMask) return row[x];
  return PackedNumber(row, x, 1) == 0 ? 255 : 0;
}

}  // namespace kelvane
