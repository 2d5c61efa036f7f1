#pragma once

#include <map>
#include <optional>
#include <set>
#include <span>
#include <string>

#include "platform/quartz/cg_font.h"
#include "platform/quartz/harfbuzz_owned.h"

namespace kelvane {

/// A font program cut down to some of its glyphs.
struct CGFontSubset {
  std::string bytes;                  // of a font file
  std::map<CGGlyph, CGGlyph> glyphs;  // their numbers in it, by those in the face
};

/// How a program is cut down.
struct CGFontSubsetWish {
  std::set<CGGlyph> glyphs;   // numbers in the face
  bool keepsNumbers = false;  // else they are numbered anew, without gaps
  bool keepsStyle = false;    // the table OS/2, which only whole font files need
};

/// Cuts a face's program down. Hints go: they make up most of a small subset, and those who show
/// documents draw outlines without them. So do names, characters and tables for setting text:
/// glyphs go by their numbers, and where they stand is known.
/// @param font  not a standard face.
/// @return nothing when the program is too broken to be cut down. Throws std::bad_alloc.
std::optional<CGFontSubset> SubsetOf(const CGFont& font, const CGFontSubsetWish& wish);

/// @param font  not a standard face; its program is borrowed.
HarfBuzzOwned<hb_face_t> FaceOf(const CGFont& font);

/// @return the bytes of a blob, valid while it lives.
std::span<const unsigned char> BytesOf(hb_blob_t* blob);

/// @return whether the face's licence allows a document to carry a part of it (OpenType, "OS/2 -
///         fsType").
bool MayTravelInPart(const CGFontDescription& face);

}  // namespace kelvane
