#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <vector>

#include "classic/bitmap/gdi_palette.h"

namespace kelvane {

class Reader;

/// Decodes the pixels that follow a bitmap's colour table. Its fields are what the bitmap's header
/// says; those of the decoded pixels are changed by Decompress. Used once.
class BitmapCompression {
 public:
  explicit BitmapCompression(std::uint32_t kind) : compression(kind) {}
  BitmapCompression(const BitmapCompression&) = delete;
  BitmapCompression& operator=(const BitmapCompression&) = delete;
  virtual ~BitmapCompression() = default;

  /// Fills `data` with rows, the top one first, each padded to a multiple of 4 bytes. Where the
  /// data ends early the remaining bytes are 0. A kind that is left undecoded, a width that is
  /// negative as a signed number, more bytes than 32 bits can count and more than this parse's
  /// bitmaps may still decode to leave everything as it is.
  /// @param reader  stands behind the colour table; moved past what is decoded.
  /// Throws std::bad_alloc.
  virtual void Decompress(std::vector<unsigned char>& data, Reader& reader,
                          const GDIPalette& palette) = 0;

  /// @param compression  a header's biCompression.
  /// @return its decoder; null when it is left undecoded. Throws std::bad_alloc.
  [[nodiscard]] static std::unique_ptr<BitmapCompression> GetCompression(std::uint32_t compression);

  const std::uint32_t compression;  // [MS-WMF] 2.1.1.7
  std::uint32_t height = 0;         // rows
  std::uint32_t width = 0;          // pixels
  std::uint32_t bitCount = 0;       // bits a pixel: as stored, and as decoded once they are
  std::uint32_t size = 0;           // bytes of the decoded pixels, once they are
  bool topDown = false;             // the first stored row is the top one

 protected:
  /// @return the colours of the two pixels in a byte, that of its high half first.
  /// @param colors  those of the sixteen indexes.
  [[nodiscard]] static std::array<std::uint32_t, 2> Expand4BitTuple(
      std::uint32_t byte, const std::array<std::uint32_t, 16>& colors) {
    return {colors[byte >> 4], colors[byte & 0xF]};
  }
};

}  // namespace kelvane
