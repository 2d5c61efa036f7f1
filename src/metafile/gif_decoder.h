#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace kelvane {
inline namespace metafile {

/// The first picture of a GIF file: its screen, and more where the first frame lies beyond that.
struct GifHeader {
  std::uint32_t width = 0;  // pixels, from 1 to 131070
  std::uint32_t height = 0;
};

/// @return nullopt when a file begins otherwise, or does not lead to a frame with colours.
std::optional<GifHeader> ReadGifHeader(std::span<const unsigned char> file);

/// @param file  a GIF file.
/// @return red, green, blue and alpha of its first picture, a byte each, rows top first and without
///         padding. What its first frame does not cover, and rows that a damaged file lacks, are
///         transparent. nullopt when it has none of them.
std::optional<std::vector<unsigned char>> DecodeGifWithAlpha(std::span<const unsigned char> file);

}  // namespace metafile
}  // namespace kelvane
