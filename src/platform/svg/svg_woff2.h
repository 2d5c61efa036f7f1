#pragma once

#include <map>
#include <string>

#include "platform/quartz/cg_font.h"

namespace kelvane {

/// @param program     a TrueType or OpenType font file, whose glyphs go by their numbers.
/// @param characters  those that lead to glyphs.
/// @return a WOFF2 file (WOFF 2.0, 3) that browsers take, its tables as they are; empty when the
///         program is no font file or cannot be compressed.
std::string Woff2File(const std::string& program, const std::map<char32_t, CGGlyph>& characters);

}  // namespace kelvane
