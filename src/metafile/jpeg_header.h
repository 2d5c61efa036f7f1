#pragma once

#include <cstdint>
#include <optional>
#include <span>

namespace kelvane {
inline namespace metafile {

/// What the frame header of a JPEG file (ITU-T T.81, B.2.2) says of its picture.
struct JpegHeader {
  std::uint32_t width = 0;  // pixels, at least 1
  std::uint32_t height = 0;
  unsigned components = 0;  // 1 or 3
};

/// @return nullopt when the bytes do not lead to a frame that is Huffman-coded, baseline, extended
///         or progressive, of 8 bits and of 1 or 3 components, and that says its size.
std::optional<JpegHeader> ReadJpegHeader(std::span<const unsigned char> file);

}  // namespace metafile
}  // namespace kelvane
