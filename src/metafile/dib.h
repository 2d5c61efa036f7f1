#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace kelvane {
inline namespace metafile {

/// The pixels of a bitmap: red, green and blue, a byte each, rows top first and without padding.
struct DibPixels {
  std::size_t width = 0;
  std::size_t height = 0;
  std::vector<unsigned char> rgb;
};

using DibColor = std::array<std::uint8_t, 3>;  // red, green, blue

/// Decodes a device-independent bitmap ([MS-WMF] 2.2.2.9) of 1, 4, 8, 16, 24 or 32 bits a pixel
/// that is not compressed.
/// @param header  with masks and colour table, whose entries are colours.
/// @param pixels  rows padded to four bytes.
/// @param colors  in the place of the colour table; none leaves it as it is. An index beyond the
///                table is black.
/// @return nullopt for anything else, and when pixels are missing: never more memory than the
///         bytes of the pixels can tell of.
std::optional<DibPixels> DecodeDib(std::span<const unsigned char> header,
                                   std::span<const unsigned char> pixels,
                                   std::span<const DibColor> colors = {});

}  // namespace metafile
}  // namespace kelvane
