#include "platform/quartz/cg_standard_font.h"

#include <algorithm>
#include <array>

namespace kelvane {
namespace {

constexpr CGGlyph kFirstCode = 32;

// Thousandths of an em, by WinAnsi code from 32 on; 0 where no character has the code.
constexpr std::array<std::uint16_t, 224> kHelveticaWidths = {
    // clang-format off
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
    333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584, 0,
    556, 0, 222, 556, 333, 1000, 556, 556, 333, 1000, 667, 333, 1000, 0, 611, 0,
    0, 222, 222, 333, 333, 350, 556, 1000, 333, 1000, 500, 333, 944, 0, 500, 667,
    278, 333, 556, 556, 556, 556, 260, 556, 333, 737, 370, 556, 584, 333, 737, 333,
    400, 584, 333, 333, 333, 556, 537, 278, 333, 333, 365, 556, 834, 834, 834, 611,
    667, 667, 667, 667, 667, 667, 1000, 722, 667, 667, 667, 667, 278, 278, 278, 278,
    722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722, 722, 722, 667, 667, 611,
    556, 556, 556, 556, 556, 556, 889, 500, 556, 556, 556, 556, 278, 278, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 584, 611, 556, 556, 556, 556, 500, 556, 500,
    // clang-format on
};

// The characters of codes 0x80 to 0x9F; the other codes are their characters' own numbers.
constexpr char32_t kFirstSpecialCode = 0x80;
constexpr std::array<char32_t, 32> kSpecialCharacters = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

class StandardFont final : public CGFont {
 public:
  using CGFont::CGFont;

  [[nodiscard]] CGFloat Advance(CGGlyph glyph) const override {
    if (glyph < kFirstCode || glyph - kFirstCode >= static_cast<int>(kHelveticaWidths.size())) {
      return 0;
    }
    return static_cast<CGFloat>(kHelveticaWidths[glyph - kFirstCode]) / 1000;
  }
  [[nodiscard]] CGPath Outline(CGGlyph /*glyph*/) const override { return {}; }
  [[nodiscard]] std::span<const char> Program() const override { return {}; }
  [[nodiscard]] unsigned ProgramIndex() const override { return 0; }
};

}  // namespace

CGFontRef CGFontGetStandardHelvetica() {
  static const CFOwned<const CGFont> kHelvetica(new StandardFont({.postScriptName = "Helvetica"}));
  return kHelvetica.get();
}

std::optional<CGGlyph> WinAnsiCode(char32_t character) {
  const bool isOwnCode =
      (character >= 0x20 && character < 0x7F) || (character >= 0xA0 && character <= 0xFF);
  if (isOwnCode) return static_cast<CGGlyph>(character);
  const auto* const special = std::ranges::find(kSpecialCharacters, character);
  if (character == 0 || special == kSpecialCharacters.end()) return std::nullopt;
  return static_cast<CGGlyph>(kFirstSpecialCode +
                              static_cast<char32_t>(special - kSpecialCharacters.begin()));
}

}  // namespace kelvane
