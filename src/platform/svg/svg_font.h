#pragma once

#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

#include "platform/quartz/cg_font.h"
#include "platform/quartz/harfbuzz_owned.h"

namespace kelvane {

/// A face in one document. Its text is real text, which browsers turn into glyphs by themselves.
class SvgFont {
 public:
  /// @param font  retained. @param name  of the class of its text, and of the face where the
  ///              document carries it.
  SvgFont(CGFontRef font, std::string name);

  [[nodiscard]] const std::string& Name() const { return name_; }

  /// @return whether browsers show this glyph for the character; if so the document will carry it.
  bool Shows(CGGlyph glyph, char32_t character);

  /// @param isEmbedded  whether the document carries the face, as far as that is allowed.
  /// @return the rules of its text (CSS 2, 15.3), and of the face. Called when all glyphs are
  /// known.
  [[nodiscard]] std::string Rules(bool isEmbedded) const;

 private:
  [[nodiscard]] std::string Source() const;

  CFOwned<const CGFont> font_;
  std::string name_;
  HarfBuzzOwned<hb_font_t> characters_;  // null for a standard face
  std::map<char32_t, CGGlyph> shown_;
};

/// The faces of a document.
class SvgFonts {
 public:
  SvgFont& FontFor(CGFontRef font);

  /// @return the rules of all faces; empty without any.
  [[nodiscard]] std::string Rules(bool areEmbedded) const;

 private:
  std::vector<std::unique_ptr<SvgFont>> fonts_;  // in the order of their use
  std::unordered_map<CGFontRef, SvgFont*> byFace_;
};

}  // namespace kelvane
