#pragma once

#include <optional>
#include <vector>

#include "metafile/emfplus/emfplus_image.h"

namespace kelvane::gdiplus {

/// @return red, green, blue and alpha, a byte each, rows top first and without padding; colours are
///         not multiplied by alpha. nullopt for a format that is none and for rows that are not
///         there.
std::optional<std::vector<unsigned char>> RgbaOf(const EmfPlusPixels& pixels);

}  // namespace kelvane::gdiplus
