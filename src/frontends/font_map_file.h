#pragma once

#include <string>
#include <string_view>

#include "gdi/font_map.h"

namespace kelvane {

/// @param text  UTF-8, perhaps with a byte order mark. A line is `asked = used`, with blanks
/// wherever
///              one likes; it is empty, or a comment, which begins with #.
/// @return the wishes. Throws std::runtime_error with what is wrong, a line by its number.
FontMap ParseFontMap(std::string_view text);

/// @return the wishes in a file. Throws like ParseFontMap, and when the file cannot be read or has
///         more than 1 MiB.
FontMap ReadFontMap(const std::string& path);

}  // namespace kelvane
