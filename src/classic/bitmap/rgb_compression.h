#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "classic/bitmap/bitmap_compression.h"

namespace kelvane {

/// Decodes uncompressed pixels of 4, 8, 16, 24 and 32 bits; others are left undecoded.
///
/// Colour masks are not followed: 16 bits are always 5-5-5, with the low three bits of each byte
/// left 0, and 32 bits are blue, green, red and a byte that is dropped. A 4-bit pixel becomes one
/// grey byte, the blue of its colour, and of an odd number of them the last in each row is neither
/// stored nor decoded.
class RGBCompression final : public BitmapCompression {
 public:
  static constexpr std::uint32_t kRgb = 0;        // BI_RGB
  static constexpr std::uint32_t kBitfields = 3;  // BI_BITFIELDS: three masks before the pixels

  using BitmapCompression::BitmapCompression;

  void Decompress(std::vector<unsigned char>& data, Reader& reader,
                  const GDIPalette& palette) override;

 private:
  void ReadBuffer(std::vector<unsigned char>& data, Reader& reader, const GDIPalette& palette);

  template <std::uint32_t kInBits, std::uint32_t kOutBits, class ReadPixel>
  void ReadXBitConvertToYBit(std::vector<unsigned char>& data, Reader& reader, ReadPixel readPixel);

  /// @return where a stored row belongs, so that a bitmap stored bottom row first is turned over
  /// while it is decoded.
  [[nodiscard]] std::size_t FlipUpDown(std::size_t row) const {
    return topDown ? row : height - 1 - row;
  }
};

}  // namespace kelvane
