#pragma once

#include <memory>
#include <optional>
#include <string>

#include "platform/quartz/cg_font.h"
#include "platform/quartz/harfbuzz_owned.h"

namespace kelvane {

/// A face ready for setting text: the font that glyphs are drawn from, and HarfBuzz's view of it.
/// It never changes and may be used by many threads at once.
class Typeface {
 public:
  /// @param path   a TrueType or OpenType file, or a collection. @param index  the member.
  /// @return null for a file that cannot be read and for what is no face.
  static std::unique_ptr<const Typeface> Open(const std::string& path, unsigned index);

  /// @return the standard Helvetica, for a machine without fonts.
  static std::unique_ptr<const Typeface> StandardHelvetica();

  [[nodiscard]] CGFontRef Font() const { return font_.get(); }

  /// Lengths are in units of UnitsPerEm().
  [[nodiscard]] hb_font_t* Shaper() const { return shaper_.get(); }
  [[nodiscard]] unsigned UnitsPerEm() const { return unitsPerEm_; }

  /// @return the glyph that the face maps the character to.
  [[nodiscard]] std::optional<CGGlyph> GlyphFor(char32_t character) const;

  /// @return the glyph of the character in lines that run downwards: another one where the face
  ///         has it.
  [[nodiscard]] std::optional<CGGlyph> VerticalGlyphFor(char32_t character) const;

  /// @return whether a glyph of the face has the number.
  [[nodiscard]] bool HasGlyph(CGGlyph glyph) const;

  /// True when the face has a glyph 0 to show where another is missing.
  [[nodiscard]] bool ShowsMissing() const {
    return font_->Description().outlines != CGFontOutlines::kStandard;
  }

 private:
  Typeface(CFOwned<const CGFont> font, HarfBuzzOwned<hb_font_t> shaper);

  CFOwned<const CGFont> font_;
  HarfBuzzOwned<hb_font_t> shaper_;
  unsigned unitsPerEm_;
};

}  // namespace kelvane
