#include "gdi/text_reading.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "gdi/stored_array.h"
#include "gdi/symbol_encoding.h"

namespace kelvane {
namespace {

LogFont Asked(CharacterSet charSet, std::u16string_view name = u"Arial") {
  LogFont font;
  font.charSet = charSet;
  std::ranges::copy(name, font.faceName.begin());
  return font;
}

TextFont OfSymbols(std::u16string_view name) {
  TextFont font;
  font.symbols = FindSymbolEncoding(name);
  return font;
}

TextFont ThatIsThere() {
  TextFont font;
  font.isAsAsked = true;
  return font;
}

TextPlacing With(const StoredAdvances& advances, bool arePairs = false) {
  TextPlacing placing;
  placing.advances = TextAdvances<std::int32_t>{advances.View(), arePairs};
  return placing;
}

TextPlacing OfGlyphs() {
  TextPlacing placing;
  placing.options = ETO_GLYPH_INDEX;
  return placing;
}

WrittenText Read(const std::u16string& units, const TextPlacing& placing = {},
                 const TextFont& font = {}) {
  WrittenText text;
  ReadText(placing, units, font, text);
  return text;
}

WrittenText ReadBytes(std::string_view bytes, const LogFont& asked, const TextPlacing& placing = {},
                      const TextFont& font = {}) {
  WrittenText text;
  ReadText(placing, bytes, asked, font, text);
  return text;
}

using Advances = std::vector<PointD>;

TEST(TextOfACall, IsReadAsItStands) {
  const WrittenText text = Read(u"a\t\u03B1\xD800");
  EXPECT_EQ(text.units, u"a\t\u03B1\xD800");
  EXPECT_TRUE(text.advances.empty());
  EXPECT_FALSE(text.areGlyphs);
  EXPECT_FALSE(text.hasUnknownGlyphs);
}

TEST(TextOfACall, HasAnAdvanceAUnit) {
  EXPECT_EQ(Read(u"abc", With({3, -5, 0})).advances, (Advances{{3, 0}, {-5, 0}, {0, 0}}));
}

TEST(TextOfACall, HasPairsOfAdvancesAlongTheLineAndUp) {
  EXPECT_EQ(Read(u"ab", With({3, 4, -5, -6}, true)).advances, (Advances{{3, 4}, {-5, -6}}));
}

TEST(TextOfACall, ForgetsWhatWasReadBefore) {
  WrittenText text = Read({3, 200}, OfGlyphs());
  ReadText({}, u"a", {}, text);
  EXPECT_FALSE(text.hasUnknownGlyphs);
  text = Read(u"ab", With({1, 2}));
  ReadText({}, "a", Asked(ANSI_CHARSET), {}, text);
  EXPECT_EQ(text.units, u"a");
  EXPECT_TRUE(text.advances.empty());
}

// Bytes.

TEST(BytesOfText, AreReadByTheCharacterSetOfTheFont) {
  EXPECT_EQ(ReadBytes("\xE1\x80", Asked(ANSI_CHARSET)).units, u"\u00E1\u20AC");
  EXPECT_EQ(ReadBytes("\xE1", Asked(GREEK_CHARSET)).units, u"\u03B1");
  EXPECT_EQ(ReadBytes("\xE0", Asked(RUSSIAN_CHARSET)).units, u"\u0430");
}

TEST(BytesOfText, AreReadByTheScriptThatTheNameEndsWith) {
  EXPECT_EQ(ReadBytes("\xE1", Asked(ANSI_CHARSET, u"Arial Greek")).units, u"\u03B1");
}

TEST(BytesOfText, HaveAnAdvanceEach) {
  EXPECT_EQ(ReadBytes("ab", Asked(ANSI_CHARSET), With({3, -5})).advances,
            (Advances{{3, 0}, {-5, 0}}));
  EXPECT_EQ(ReadBytes("ab", Asked(ANSI_CHARSET), With({3, 4, -5, -6}, true)).advances,
            (Advances{{3, 4}, {-5, -6}}));
}

TEST(BytesOfText, GiveACharacterOfTwoTheAdvancesOfBoth) {
  const LogFont japanese = Asked(SHIFTJIS_CHARSET);
  const WrittenText text = ReadBytes("a\x82\xA0\x62", japanese, With({1, 2, 4, 8}));
  EXPECT_EQ(text.units, u"a\u3042b");
  EXPECT_EQ(text.advances, (Advances{{1, 0}, {6, 0}, {8, 0}}));
  EXPECT_EQ(ReadBytes("\x82\xA0", japanese, With({1, 2, 4, 8}, true)).advances,
            (Advances{{5, 10}}));
}

TEST(BytesOfText, KeepTheAdvanceOfALeadByteAtTheirEnd) {
  const WrittenText text = ReadBytes("a\x82", Asked(SHIFTJIS_CHARSET), With({1, 2}));
  EXPECT_EQ(text.units.size(), 2U);
  EXPECT_EQ(text.advances, (Advances{{1, 0}, {2, 0}}));
}

// Glyph numbers.

TEST(GlyphNumbers, AreKeptInTheFaceThatTheyAreOf) {
  const WrittenText text = Read({36, 600}, OfGlyphs(), ThatIsThere());
  EXPECT_EQ(text.units, std::u16string({36, 600}));
  EXPECT_TRUE(text.areGlyphs);
  EXPECT_FALSE(text.hasUnknownGlyphs);
}

// Which is U+0020 to U+007E.
TEST(GlyphNumbers, OfAnotherFaceAreAsciiFrom3To97) {
  const WrittenText text = Read({3, 36, 97}, OfGlyphs());
  EXPECT_EQ(text.units, u" A~");
  EXPECT_FALSE(text.areGlyphs);
  EXPECT_FALSE(text.hasUnknownGlyphs);
}

TEST(GlyphNumbers, OfAnotherFaceAreToldOfOutsideOfThem) {
  for (const char16_t glyph : {u'\0', u'\x02', u'\x62', u'\xFFFF'}) {
    const WrittenText text = Read({36, glyph}, OfGlyphs());
    EXPECT_EQ(text.units, std::u16string({u'A', 0})) << int{glyph};
    EXPECT_TRUE(text.hasUnknownGlyphs) << int{glyph};
  }
}

TEST(GlyphNumbers, KeepTheirAdvancesInAnotherFace) {
  TextPlacing placing = OfGlyphs();
  const StoredAdvances advances = {5, 7};
  placing.advances = TextAdvances<std::int32_t>{advances.View()};
  EXPECT_EQ(Read({200, 36}, placing).advances, (Advances{{5, 0}, {7, 0}}));
}

TEST(GlyphNumbers, AreNoCodesOfSymbols) {
  EXPECT_EQ(Read({36}, OfGlyphs(), OfSymbols(u"Symbol")).units, u"A");
}

// Symbols.

TEST(CodesOfSymbols, BecomeWhatTheyShow) {
  const WrittenText text = Read(u"aS", {}, OfSymbols(u"Symbol"));
  EXPECT_EQ(text.units, u"\u03B1\u03A3");
  EXPECT_FALSE(text.hasUnknownSymbols);
}

TEST(CodesOfSymbols, MeanTheSameInThePrivateUseArea) {
  EXPECT_EQ(Read(u"\uF061\uF053", {}, OfSymbols(u"Symbol")).units, u"\u03B1\u03A3");
}

TEST(CodesOfSymbols, AreOnlyThoseOfAByte) {
  EXPECT_EQ(Read(u"\u2022\u0161\uE061\uF161", {}, OfSymbols(u"Symbol")).units,
            u"\u2022\u0161\uE061\uF161");
}

TEST(CodesOfSymbols, WithoutAMeaningKeepTheirPlace) {
  const WrittenText text = Read(u"\ta\x7F", With({1, 2, 3}), OfSymbols(u"Symbol"));
  EXPECT_TRUE(text.hasUnknownSymbols);
  EXPECT_EQ(text.units, std::u16string({0, 0x03B1, 0}));
  EXPECT_EQ(text.advances, (Advances{{1, 0}, {2, 0}, {3, 0}}));
}

// Two units for one: the second adds nothing to the advance.
TEST(CodesOfSymbols, MayBecomePairs) {
  const WrittenText text = Read(u"0\u0022", With({5, 7}), OfSymbols(u"Wingdings"));
  EXPECT_EQ(text.units, u"\U0001F5C0\u2702");
  EXPECT_EQ(text.advances, (Advances{{5, 0}, {0, 0}, {7, 0}}));
}

TEST(CodesOfSymbols, AreBytesWhateverTheCharacterSet) {
  for (const CharacterSet charSet : {SYMBOL_CHARSET, ANSI_CHARSET, SHIFTJIS_CHARSET}) {
    const WrittenText text =
        ReadBytes("a\xA5\x9F", Asked(charSet, u"Symbol"), With({1, 2, 3}), OfSymbols(u"Symbol"));
    EXPECT_EQ(text.units, std::u16string({0x03B1, 0x221E, 0})) << int{charSet};
    EXPECT_EQ(text.advances.size(), 3U);
  }
}

TEST(CodesOfSymbols, StayCodesInAFaceThatHasThem) {
  TextFont font;
  font.hasSymbolGlyphs = true;
  EXPECT_EQ(ReadBytes("\x80", Asked(ANSI_CHARSET), {}, font).units, u"\uF080");
}

}  // namespace
}  // namespace kelvane
