#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "base/text_buffer.h"

namespace kelvane {

/// Appends a character of quoted text as UTF-8: '"' and '\' behind a '\', an end of a line as \n,
/// and as \u{1f} what does not print or would change how its neighbours do.
/// @param next  what follows the unit, for it may be the other half of the character.
/// @return how many of the two units it took.
std::size_t AppendEscaped(TextBuffer& out, char16_t unit, char16_t next);

/// @return the text in quotation marks, escaped.
std::string Quoted(std::u16string_view text);

}  // namespace kelvane
