#pragma once

#include <optional>

#include "platform/quartz/cg_font.h"

namespace kelvane {

/// @return Helvetica, which every reader of documents has. Its glyphs are the WinAnsi codes (ISO
///         32000-1, annex D). It lives as long as the process.
CGFontRef CGFontGetStandardHelvetica();

/// @return the WinAnsi code of a character; nothing for control characters and those that WinAnsi
///         lacks.
std::optional<CGGlyph> WinAnsiCode(char32_t character);

}  // namespace kelvane
