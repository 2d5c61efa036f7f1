#include "gdi/text_reading.h"

#include <cstddef>
#include <utility>
#include <variant>
#include <vector>

#include "gdi/code_page.h"
#include "gdi/font_names.h"
#include "gdi/symbol_encoding.h"

namespace kelvane {
namespace {

constexpr char16_t kNothing = 0;  // a control character: no mark, but it keeps its advance

/// @param endOf  gives for each unit the stored advances up to its end.
/// @return one a unit, or none.
template <class EndOf>
std::vector<PointD> AdvancesOf(const AnyTextAdvances& any, std::size_t units, EndOf endOf) {
  std::vector<PointD> advances;
  std::visit(
      [&](const auto& stored) {
        if (stored.IsEmpty()) return;
        advances.resize(units);
        std::size_t i = 0;
        for (std::size_t unit = 0; unit < units; ++unit) {
          for (; i < endOf(unit); ++i) {
            advances[unit].x += stored.Dx(i);
            advances[unit].y += stored.Dy(i);
          }
        }
      },
      any);
  return advances;
}

/// In the order that nearly all TrueType faces have, the printable characters of ASCII come third.
char16_t CharacterOfGlyph(char16_t glyph) {
  constexpr char16_t kFirst = 3;
  constexpr char16_t kLast = 97;
  constexpr char16_t kToAscii = 29;
  return glyph >= kFirst && glyph <= kLast ? static_cast<char16_t>(glyph + kToAscii) : kNothing;
}

void TakeGlyphs(const TextFont& font, WrittenText& text) {
  if (font.isAsAsked) {
    text.areGlyphs = true;
    return;
  }
  for (char16_t& unit : text.units) {
    unit = CharacterOfGlyph(unit);
    text.hasUnknownGlyphs = text.hasUnknownGlyphs || unit == kNothing;
  }
}

constexpr bool IsSymbolCode(char16_t unit) {
  return unit < 0x100 || (unit >= 0xF000 && unit < 0xF100);
}

/// Codes of a font of symbols become what they show, other characters stay.
void TakeSymbols(const SymbolEncoding& symbols, WrittenText& text) {
  std::u16string units;
  std::vector<PointD> advances;
  units.reserve(text.units.size());
  advances.reserve(text.advances.size());
  for (std::size_t i = 0; i < text.units.size(); ++i) {
    const char16_t unit = text.units[i];
    const char32_t character = IsSymbolCode(unit) ? symbols.CharacterOf(unit) : unit;
    text.hasUnknownSymbols = text.hasUnknownSymbols || (character == 0 && unit >= u' ');
    const std::size_t before = units.size();
    if (character < 0x10000) {
      units += static_cast<char16_t>(character);
    } else {
      units += static_cast<char16_t>(0xD7C0 + (character >> 10));
      units += static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    }
    if (text.advances.empty()) continue;
    advances.push_back(text.advances[i]);
    advances.resize(advances.size() + units.size() - before - 1);
  }
  text.units = std::move(units);
  text.advances = std::move(advances);
}

void Clear(WrittenText& text) {
  text.areGlyphs = text.hasUnknownGlyphs = text.hasUnknownSymbols = false;
}

}  // namespace

void InterpretText(bool areGlyphs, const TextFont& font, WrittenText& text) {
  if (areGlyphs) return TakeGlyphs(font, text);
  if (font.symbols != nullptr) TakeSymbols(*font.symbols, text);
}

void ReadText(const TextPlacing& placing, std::u16string units, const TextFont& font,
              WrittenText& text) {
  Clear(text);
  text.units = std::move(units);
  text.advances =
      AdvancesOf(placing.advances, text.units.size(), [](std::size_t unit) { return unit + 1; });
  InterpretText((placing.options & ETO_GLYPH_INDEX) != 0, font, text);
}

void ReadText(const TextPlacing& placing, std::string_view bytes, const LogFont& asked,
              const TextFont& font, WrittenText& text) {
  Clear(text);
  const bool areSymbols = font.symbols != nullptr || font.hasSymbolGlyphs;
  DecodedBytes decoded =
      DecodeBytes(bytes, areSymbols ? SYMBOL_CHARSET : asked.charSet, FaceName(asked));
  text.units = std::move(decoded.text);
  text.advances = AdvancesOf(placing.advances, text.units.size(), [&](std::size_t unit) {
    return unit + 1 < text.units.size() ? decoded.firstBytes[unit + 1] : bytes.size();
  });
  InterpretText((placing.options & ETO_GLYPH_INDEX) != 0, font, text);
}

}  // namespace kelvane
