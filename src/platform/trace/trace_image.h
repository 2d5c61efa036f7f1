#pragma once

#include <optional>
#include <string>

#include "platform/quartz/cg_image.h"

namespace kelvane {

/// @return what the image is: size, kind, and of the kinds that not all images are, whether it is
///         smoothed when it is enlarged and how it is masked.
std::string WordsOfImage(const CGImage& image);

/// @return lines of what the image and its mask show: their rows as hexadecimal digits where they
///         are small, a hash where they are not. None of a plain image of bytes that are there:
///         whoever drew it shows them elsewhere. nullopt when a provider fell short.
std::optional<std::string> LinesOfImage(const CGImage& image);

}  // namespace kelvane
