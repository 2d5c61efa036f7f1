#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "classic/bitmap/bitmap_info_header.h"
#include "classic/bitmap/gdi_palette.h"

namespace kelvane {

class Reader;

/// Decoded pixels: rows top first, each padded to a multiple of 4 bytes.
struct DecodedPixels {
  std::vector<unsigned char> bytes;  // empty when the bitmap has no row or no column
  std::uint16_t bitsPerPixel = 0;    // 8: one grey byte; 24: red, green, blue
};

/// Decodes the pixels that follow a bitmap's colour table.
class BitmapCompression {
 public:
  virtual ~BitmapCompression() = default;

  /// @param reader  stands behind the colour table; moved past what is decoded. Where the data ends
  ///                early the pixels' remaining bytes are 0.
  /// @return the pixels; nullopt for a kind that is left undecoded, for a negative width, for more
  ///         than 32 bits can count, and for more than this parse's bitmaps may still decode to.
  ///         Throws std::bad_alloc.
  [[nodiscard]] virtual std::optional<DecodedPixels> Decompress(
      const BitMapInfoHeader& header, Reader& reader, const GDIPalette& palette) const = 0;

  /// @param compression  a header's biCompression.
  /// @return its decoder; null when it is left undecoded. Throws std::bad_alloc.
  [[nodiscard]] static std::unique_ptr<BitmapCompression> GetCompression(std::uint32_t compression);
};

}  // namespace kelvane
