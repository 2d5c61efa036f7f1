#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "gdi/symbol_encoding.h"
#include "metafile/gdi_objects.h"

namespace kelvane {

// What Windows takes names of fonts for, whatever fonts there are. Names are UTF-8, and compared
// without regard to blanks and case.

/// A name behind which Windows keeps a font that is not made of outlines, or another font. What it
/// stands for is looked for before anything that has the name or stands for it elsewhere.
struct WindowsFontName {
  std::string_view folded;
  std::array<std::string_view, 2> faces;  // looked for as they are, in turn; perhaps empty
  std::string_view base;                  // looked for last, or what stands for it
  bool isBold = false;                    // there is no other weight
};

/// @return null for a name that stands for itself.
const WindowsFontName* FindWindowsFontName(std::string_view name);

/// @return the face next to which symbols from other faces look at home.
std::string_view BaseOfSymbols(const SymbolEncoding& symbols);

/// @return what a name has before the end that only says which script the font is wanted for;
///         nothing when it has none.
std::optional<std::string> WithoutScript(std::string_view name);

/// @return the face of a kind, which is not known by its name.
std::string_view FaceOfKind(PitchAndFamily kind);

/// The face that there is for anything.
inline constexpr std::string_view kFaceOfLastResort = "Arial";

/// @return the name up to its end, cut to what Windows reads of it; borrowed from the font.
std::u16string_view FaceName(const LogFont& font);

}  // namespace kelvane
