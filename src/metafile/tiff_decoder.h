#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace kelvane {
inline namespace metafile {

/// The first picture of a TIFF file.
struct TiffHeader {
  std::uint32_t width = 0;  // pixels, at least 1, as it is looked at: rows may be stored as columns
  std::uint32_t height = 0;

  /// What decoding goes through: the bytes of its strips or tiles, stored and decoded. It may be
  /// far more than pixels and file, for tiles reach beyond a picture, and may all be the same.
  std::uint64_t bytesToDecode = 0;
};

/// @return nullopt when a file begins otherwise, says no size, is compressed in a way that Windows
///         has no name for, or when libtiff is not installed.
std::optional<TiffHeader> ReadTiffHeader(std::span<const unsigned char> file);

/// @param file  a TIFF file.
/// @return red, green, blue and alpha of its first picture, a byte each, rows top first and without
///         padding; colours are not multiplied by alpha. What a damaged file lacks is black or
///         transparent. nullopt when it cannot be decoded.
std::optional<std::vector<unsigned char>> DecodeTiffWithAlpha(std::span<const unsigned char> file);

}  // namespace metafile
}  // namespace kelvane
