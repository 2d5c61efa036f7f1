#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <vector>

#include "platform/quartz/cg_font.h"
#include "platform/quartz/cg_font_subset.h"

namespace kelvane {

/// Cuts the face's program down to the glyphs a document shows. TrueType glyphs are numbered anew,
/// without gaps; those of CFF keep their numbers, by which a document may know them.
/// @param font  not a standard face. @param glyphs  numbers in the face.
/// @return a TrueType file, or a bare CFF table; nothing when the program is too broken to be cut
///         down.
std::optional<CGFontSubset> SubsetProgram(const CGFont& font, const std::set<CGGlyph>& glyphs);

/// @return the identifiers by which a document shows the glyphs of a CFF face, by glyph; empty when
///         the face has none, and its glyphs' own numbers are used.
std::vector<std::uint16_t> CharacterIdentifiers(const CGFont& font);

}  // namespace kelvane
