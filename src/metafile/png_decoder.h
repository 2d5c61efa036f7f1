#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "metafile/pixel_rectangle.h"

namespace kelvane {
inline namespace metafile {

/// What a PNG file begins with.
struct PngHeader {
  std::uint32_t width = 0;  // pixels, from 1 to 2^31 - 1
  std::uint32_t height = 0;
  bool isInterlaced = false;
};

/// @return nullopt when a file begins otherwise.
std::optional<PngHeader> ReadPngHeader(std::span<const unsigned char> file);

/// @param file  a PNG file. @param part  within the picture.
/// @return red, green and blue, a byte each, rows top first and without padding; transparency is
///         passed over. Rows that a damaged file lacks are black. nullopt when it has none of the
///         part.
std::optional<std::vector<unsigned char>> DecodePng(std::span<const unsigned char> file,
                                                    const PixelRectangle& part);

/// As DecodePng, with a fourth byte: alpha, by which the colours are not multiplied. Rows that a
/// damaged file lacks are transparent.
std::optional<std::vector<unsigned char>> DecodePngWithAlpha(std::span<const unsigned char> file,
                                                             const PixelRectangle& part);

}  // namespace metafile
}  // namespace kelvane
