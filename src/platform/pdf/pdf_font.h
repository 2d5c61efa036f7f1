#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include <qpdf/QPDFObjectHandle.hh>

#include "platform/quartz/cg_font.h"

namespace kelvane {

class PdfWriter;

/// A face in one document: which of its glyphs are shown, and by which codes. A standard face is a
/// simple font that shows WinAnsi codes; any other is a composite font (ISO 32000-1, 9.7) whose
/// two-byte codes are given out here, and whose program, widths and text are written when all of
/// them are known.
class PdfFont {
 public:
  /// A glyph as the page's content names it.
  struct Code {
    std::uint16_t value;
    int width;  // thousandths of an em: there are readers that take no fractions
  };

  /// @param font        retained. @param dictionary  an empty one of the document, filled by
  /// Finish.
  PdfFont(CGFontRef font, const QPDFObjectHandle& dictionary);

  /// @param text  what the glyph stands for. It has a code for each text that it stands for, but a
  /// standard face its code alone.
  Code Encode(CGGlyph glyph, std::u16string_view text);

  /// @return how many bytes a code takes: 1 or 2.
  [[nodiscard]] int CodeSize() const { return IsStandard() ? 1 : 2; }

  [[nodiscard]] const QPDFObjectHandle& Dictionary() const { return dictionary_; }

  /// Fills the dictionary. Called once, when the last glyph was shown.
  void Finish(PdfWriter& writer);

 private:
  /// The last single unit a glyph stood for.
  struct CodeOfUnit {
    char16_t unit = 0;  // 0, which shows nothing, for none
    Code code = {};
  };

  struct Shown {
    CGGlyph glyph;
    int width;
    std::u16string text;
  };

  [[nodiscard]] const CGFontDescription& Face() const { return font_->Description(); }
  [[nodiscard]] bool IsStandard() const { return Face().outlines == CGFontOutlines::kStandard; }
  [[nodiscard]] bool IsTrueType() const { return Face().outlines == CGFontOutlines::kTrueType; }

  Code CodeFor(CGGlyph glyph, std::u16string_view text);
  [[nodiscard]] std::uint16_t NewCode(CGGlyph glyph);
  [[nodiscard]] std::uint16_t CompactIdentifier(CGGlyph glyph) const;
  [[nodiscard]] std::uint16_t Identifier(std::uint16_t code, CGGlyph glyph) const;
  [[nodiscard]] std::string SubsetName() const;
  [[nodiscard]] QPDFObjectHandle Widths() const;
  [[nodiscard]] QPDFObjectHandle Descriptor(const std::string& name) const;
  void AddProgram(PdfWriter& writer, QPDFObjectHandle cidFont, QPDFObjectHandle descriptor) const;
  void AddEncoding(PdfWriter& writer, const std::string& name);
  [[nodiscard]] QPDFObjectHandle OwnEncoding(PdfWriter& writer) const;
  void AddToUnicode(PdfWriter& writer);

  CFOwned<const CGFont> font_;
  QPDFObjectHandle dictionary_;
  std::vector<std::uint16_t> cids_;                 // of a CFF face that has them, by glyph
  std::uint16_t spareCode_ = 0xFFFF;                // those above it are in use
  std::vector<CodeOfUnit> units_;                   // by glyph
  std::unordered_map<std::u16string, Code> codes_;  // by the glyph, as one unit, and the text
  std::map<std::uint16_t, Shown> shown_;            // by code
};

}  // namespace kelvane
