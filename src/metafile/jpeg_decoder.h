#pragma once

#include <optional>
#include <span>
#include <vector>

#include "metafile/pixel_rectangle.h"

namespace kelvane {
inline namespace metafile {

/// @param file  a JPEG file. @param part  within the picture that its header says.
/// @return red, green and blue, a byte each, rows top first and without padding. What a file that
///         ends early lacks is grey. nullopt when it cannot be decoded.
std::optional<std::vector<unsigned char>> DecodeJpeg(std::span<const unsigned char> file,
                                                     const PixelRectangle& part);

}  // namespace metafile
}  // namespace kelvane
