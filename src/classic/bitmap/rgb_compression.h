#pragma once

#include <cstdint>

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
  enum class Masks : std::uint8_t { kNone, kBeforePixels };

  explicit RGBCompression(Masks masks) : masks_(masks) {}

  [[nodiscard]] std::optional<DecodedPixels> Decompress(const BitMapInfoHeader& header,
                                                        Reader& reader,
                                                        const GDIPalette& palette) const override;

 private:
  Masks masks_;
};

}  // namespace kelvane
