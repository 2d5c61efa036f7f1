#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "gdi/font_finder.h"
#include "gdi/font_map.h"
#include "gdi/font_use.h"
#include "gdi/symbol_encoding.h"
#include "metafile/gdi_objects.h"
#include "platform/fonts/font_registry.h"

namespace kelvane {

/// A line along text, in ems, y upwards from the baseline.
struct TextRule {
  double top = 0;
  double thickness = 0;
};

/// A logical font as it is drawn. Lengths are logical units unless they are said to be ems; all are
/// at least 0.
struct TextFont {
  const FontStyle* style = nullptr;         // lives as long as the registry
  const SymbolEncoding* symbols = nullptr;  // what codes mean; null when text is Unicode
  bool hasSymbolGlyphs = false;  // whether the face itself has the codes, at U+F000 and above

  double em = 0;
  double ascent = 0;        // from the baseline up, of the cell
  double descent = 0;       // from the baseline down, of the cell
  double leading = 0;       // between the cells of lines
  double xScale = 1;        // of glyphs and advances, against their natural width
  bool isAsAsked = false;   // the face is the one asked for, so that glyph numbers mean the same
  bool isVertical = false;  // a face whose name begins with @: wide characters lie on their side

  TextRule underline;
  TextRule strikeOut;
};

/// The fonts of a picture: logical fonts, each resolved once.
class FontBook {
 public:
  /// How many fonts are remembered at a time, and how many uses at all.
  static constexpr std::size_t kMostFonts = 4096;
  static constexpr std::size_t kMostUses = 1000;

  /// @param registry  borrowed, of the faces that there are. @param filter  of the output.
  /// @param map       borrowed; the user's wishes, which come before all else.
  FontBook(FontRegistry& registry, CGFontFilter filter, const FontMap& map)
      : registry_(registry), filter_(filter), finder_(registry, map) {}

  /// @param pixel  logical units in 1/96 inch, by which the default height is set; above 0.
  /// @return the font as it is drawn. It lives at least until the book has resolved kMostFonts
  ///         others, and no longer than the book.
  const TextFont& Resolve(const LogFont& font, double pixel);

  /// @return the names asked for, in the order in which they came, and what was taken; the first
  ///         kMostUses of them.
  [[nodiscard]] const std::vector<FontUse>& Uses() const { return uses_; }

 private:
  /// Logical fonts that differ in size and angles only share it.
  struct Face {
    TextFont text;            // but for the size, of an em of 1
    double averageWidth = 0;  // of its characters, ems; above 0
  };
  using FaceKey = std::tuple<std::u16string, PitchAndFamily, bool, bool>;  // bold and italic

  struct FontKey {
    LogFont font;
    double pixel;

    friend bool operator==(const FontKey&, const FontKey&) = default;
  };
  struct FontKeyHash {
    std::size_t operator()(const FontKey& key) const;
  };
  using Fonts = std::unordered_map<FontKey, TextFont, FontKeyHash>;

  const Face& FaceOf(const LogFont& font);
  Face MakeFace(const FaceKey& key);
  void NoteUse(FontUse use);

  FontRegistry& registry_;
  CGFontFilter filter_;
  FontFinder finder_;
  Fonts fonts_;
  Fonts formerFonts_;  // still in use, perhaps
  std::map<FaceKey, Face> faces_;
  std::vector<FontUse> uses_;
  std::set<FontUse> knownUses_;
};

}  // namespace kelvane
