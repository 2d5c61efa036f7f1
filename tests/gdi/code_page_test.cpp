#include "gdi/code_page.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::u16string Decode(std::string_view bytes, CharacterSet charSet,
                      std::u16string_view faceName = u"Arial") {
  return DecodeBytes(bytes, charSet, faceName).text;
}

struct Sample {
  CharacterSet charSet;
  std::string_view bytes;
  std::u16string_view text;
};

TEST(CodePage, IsThatOfTheCharacterSet) {
  const Sample samples[] = {
      {ANSI_CHARSET, "\x80 \xE9", u"€ é"},
      {DEFAULT_CHARSET, "\x80 \xE9", u"€ é"},
      {MAC_CHARSET, "\x8E", u"é"},
      {SHIFTJIS_CHARSET, "\x93\xFA\x96\x7B\xB1", u"日本\uFF71"},  // a half-width A at the end
      {HANGUL_CHARSET, "\xC7\xD1", u"한"},
      {JOHAB_CHARSET, "\xD0\x65", u"한"},
      {GB2312_CHARSET, "\xD6\xD0", u"中"},
      {CHINESEBIG5_CHARSET, "\xA4\xA4", u"中"},
      {GREEK_CHARSET, "\xE1\xF9", u"αω"},
      {TURKISH_CHARSET, "\xFE\xF0", u"şğ"},
      {VIETNAMESE_CHARSET, "\xD0\xFE", u"Đ₫"},
      {HEBREW_CHARSET, "\xE0\xFA", u"\u05D0\u05EA"},  // alef, tav
      {ARABIC_CHARSET, "\xC7\xC8", u"\u0627\u0628"},  // alef, beh
      {BALTIC_CHARSET, "\xE0\xEB", u"ąė"},
      {RUSSIAN_CHARSET, "\xC4\xE0", u"Да"},
      {THAI_CHARSET, "\xA1", u"ก"},
      {EASTEUROPE_CHARSET, "\xF8\xE8", u"řč"},
      {OEM_CHARSET, "\xC9\xCD\xBB", u"╔═╗"},
      {static_cast<CharacterSet>(99), "\xE9", u"é"},
  };
  for (const auto& [charSet, bytes, text] : samples) {
    EXPECT_EQ(Decode(bytes, charSet), text) << int{charSet};
  }
}

TEST(CodePage, IsThatOfTheScriptAtTheEndOfTheName) {
  EXPECT_EQ(Decode("\xF8", ANSI_CHARSET, u"Arial CE"), u"ř");
  EXPECT_EQ(Decode("\xC4", ANSI_CHARSET, u"Arial Cyr"), u"Д");
  EXPECT_EQ(Decode("\xE1", ANSI_CHARSET, u"Arial Greek"), u"α");
  EXPECT_EQ(Decode("\xFE", ANSI_CHARSET, u"Arial Tur"), u"ş");
  EXPECT_EQ(Decode("\xEB", ANSI_CHARSET, u"Arial Baltic"), u"ė");
  EXPECT_EQ(Decode("\xF8", RUSSIAN_CHARSET, u"times new roman ce"), u"ř");
}

TEST(CodePage, IsNotThatOfANameThatOnlyContainsAScript) {
  EXPECT_EQ(Decode("\xF8", ANSI_CHARSET, u"Office"), u"ø");
  EXPECT_EQ(Decode("\xF8", ANSI_CHARSET, u"Arial CE Narrow"), u"ø");
  EXPECT_EQ(Decode("\xF8", ANSI_CHARSET, u" CE"), u"ø");
  EXPECT_EQ(Decode("\xF8", ANSI_CHARSET, u""), u"ø");
}

TEST(CodePage, TakesAFreeByteForTheControlOfItsNumber) {
  EXPECT_EQ(Decode("\x81\x8D", ANSI_CHARSET), u"\u0081\u008D");
  EXPECT_EQ(Decode("\x98", RUSSIAN_CHARSET), u"\u0098");
  EXPECT_EQ(Decode("\x80", SHIFTJIS_CHARSET), u"\u0080");
}

TEST(CodePage, HasNothingForFreeBytesAboveTheControls) {
  EXPECT_EQ(Decode("a\xD2z", GREEK_CHARSET), u"a\uFFFDz");
}

TEST(CodePage, DoesNotComposeMarks) {
  EXPECT_EQ(Decode("a\xCC", VIETNAMESE_CHARSET), u"a\u0300");
}

TEST(CodePage, LeavesAsciiInCodePagesThatAreNearlyIt) {
  EXPECT_EQ(Decode("\\~", SHIFTJIS_CHARSET), u"\\~");
  EXPECT_EQ(Decode("\\~", JOHAB_CHARSET), u"\\~");
}

TEST(CodePage, TakesAnAsciiByteBehindALeadByteAsItsTrail) {
  EXPECT_EQ(Decode("\x95\x5C", SHIFTJIS_CHARSET), u"表");
}

TEST(CodePage, GoesOnBehindALeadByteWithoutItsTrail) {
  const DecodedBytes decoded = DecodeBytes("\x93 \x93\xFA\x93", SHIFTJIS_CHARSET, u"");
  EXPECT_EQ(decoded.text, u"\uFFFD 日\uFFFD");
  EXPECT_EQ(decoded.firstBytes, (std::vector<std::uint32_t>{0, 1, 2, 4}));
}

TEST(CodePage, GivesEveryUnitTheByteThatItBeginsAt) {
  EXPECT_EQ(DecodeBytes("a\xE9z", ANSI_CHARSET, u"").firstBytes,
            (std::vector<std::uint32_t>{0, 1, 2}));
  EXPECT_EQ(DecodeBytes("a\xD6\xD0\xCE\xC4z", GB2312_CHARSET, u"").firstBytes,
            (std::vector<std::uint32_t>{0, 1, 3, 5}));
}

TEST(CodePage, KeepsZeros) {
  EXPECT_EQ(Decode(std::string_view("a\0b", 3), ANSI_CHARSET), std::u16string_view(u"a\0b", 3));
  EXPECT_EQ(Decode(std::string_view("\xD6\0b", 3), GB2312_CHARSET),
            std::u16string_view(u"\uFFFD\0b", 3));
}

TEST(CodePage, IsCodesInFontsOfSymbols) {
  const DecodedBytes decoded = DecodeBytes("\tA\xB7", SYMBOL_CHARSET, u"Wingdings");
  EXPECT_EQ(decoded.text, u"\t\uF041\uF0B7");
  EXPECT_EQ(decoded.firstBytes, (std::vector<std::uint32_t>{0, 1, 2}));
}

TEST(CodePage, TurnsNoBytesIntoNoText) {
  const DecodedBytes decoded = DecodeBytes("", CHINESEBIG5_CHARSET, u"");
  EXPECT_EQ(decoded.text, u"");
  EXPECT_TRUE(decoded.firstBytes.empty());
}

}  // namespace
}  // namespace kelvane
