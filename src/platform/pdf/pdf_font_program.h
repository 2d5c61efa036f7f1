#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/quartz/cg_font.h"

namespace kelvane {

/// A font program cut down to the glyphs a document shows.
struct PdfFontProgram {
  std::string bytes;  // a TrueType file, or a bare CFF table
  std::map<CGGlyph, CGGlyph>
      glyphs;  // the numbers that the glyphs have in it, by those in the face
};

/// Cuts the face's program down. TrueType glyphs are numbered anew, without gaps; those of CFF keep
/// their numbers, by which a document may know them. Hints go: they make up most of a small subset,
/// and readers of documents draw outlines without them.
/// @param font  not a standard face. @param glyphs  numbers in the face.
/// @return nothing when the program is too broken to be cut down.
std::optional<PdfFontProgram> SubsetProgram(const CGFont& font, const std::set<CGGlyph>& glyphs);

/// @return the identifiers by which a document shows the glyphs of a CFF face, by glyph; empty when
/// the face has
///         none, and its glyphs' own numbers are used.
std::vector<std::uint16_t> CharacterIdentifiers(const CGFont& font);

}  // namespace kelvane
