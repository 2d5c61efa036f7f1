#include "gdi/symbol_encoding.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr std::u16string_view kFaces[] = {u"Symbol",    u"MT Extra",    u"ZapfDingbats",
                                          u"Wingdings", u"Wingdings 2", u"Wingdings 3",
                                          u"Webdings"};

using Samples = std::vector<std::pair<char16_t, char32_t>>;

void ExpectCharacters(std::u16string_view faceName, const Samples& samples) {
  const SymbolEncoding* encoding = FindSymbolEncoding(faceName);
  ASSERT_NE(encoding, nullptr);
  for (const auto& [code, character] : samples) {
    EXPECT_EQ(encoding->CharacterOf(code), character) << int{code};
  }
}

TEST(SymbolEncoding, HasTheCharactersOfSymbol) {
  ExpectCharacters(u"Symbol", {{0x22, 0x2200},    // FOR ALL
                               {0x2D, 0x2212},    // MINUS SIGN
                               {'0', U'0'},       // DIGIT ZERO
                               {'D', 0x0394},     // GREEK CAPITAL LETTER DELTA
                               {'W', 0x03A9},     // GREEK CAPITAL LETTER OMEGA
                               {'J', 0x03D1},     // GREEK THETA SYMBOL
                               {'a', 0x03B1},     // GREEK SMALL LETTER ALPHA
                               {'m', 0x03BC},     // GREEK SMALL LETTER MU
                               {0xA0, 0x20AC},    // EURO SIGN
                               {0xA3, 0x2264},    // LESS-THAN OR EQUAL TO
                               {0xAE, 0x2192},    // RIGHTWARDS ARROW
                               {0xB0, 0x00B0},    // DEGREE SIGN
                               {0xB1, 0x00B1},    // PLUS-MINUS SIGN
                               {0xB7, 0x2022},    // BULLET
                               {0xD2, 0x00AE},    // REGISTERED SIGN
                               {0xE2, 0x00AE},    // REGISTERED SIGN
                               {0xD3, 0x00A9},    // COPYRIGHT SIGN
                               {0xE3, 0x00A9},    // COPYRIGHT SIGN
                               {0xD4, 0x2122},    // TRADE MARK SIGN
                               {0xE4, 0x2122},    // TRADE MARK SIGN
                               {0xE5, 0x2211},    // N-ARY SUMMATION
                               {0xE6, 0x239B},    // LEFT PARENTHESIS UPPER HOOK
                               {0xEF, 0x23AA},    // CURLY BRACKET EXTENSION
                               {0xF2, 0x222B},    // INTEGRAL
                               {0xFE, 0x23AD}});  // RIGHT CURLY BRACKET LOWER HOOK
}

TEST(SymbolEncoding, HasTheCharactersOfEquationEditors) {
  ExpectCharacters(u"MT Extra", {{'K', 0x2026},    // HORIZONTAL ELLIPSIS
                                 {'L', 0x22EF},    // MIDLINE HORIZONTAL ELLIPSIS
                                 {'M', 0x22EE},    // VERTICAL ELLIPSIS
                                 {'O', 0x22F1},    // DOWN RIGHT DIAGONAL ELLIPSIS
                                 {'h', 0x210F},    // PLANCK CONSTANT OVER TWO PI
                                 {'l', 0x2113},    // SCRIPT SMALL L
                                 {'m', 0x2213},    // MINUS-OR-PLUS SIGN
                                 {'r', 0x2192}});  // RIGHTWARDS ARROW
}

TEST(SymbolEncoding, HasTheDingbats) {
  ExpectCharacters(u"ZapfDingbats", {{0x22, 0x2702},    // BLACK SCISSORS
                                     {0x25, 0x260E},    // BLACK TELEPHONE
                                     {'4', 0x2714},     // HEAVY CHECK MARK
                                     {'H', 0x2605},     // BLACK STAR
                                     {'l', 0x25CF},     // BLACK CIRCLE
                                     {'n', 0x25A0},     // BLACK SQUARE
                                     {0xA8, 0x2663},    // BLACK CLUB SUIT
                                     {0xC0, 0x2780},    // DINGBAT CIRCLED SANS-SERIF DIGIT ONE
                                     {0xD5, 0x2192},    // RIGHTWARDS ARROW
                                     {0xFE, 0x27BE}});  // OPEN-OUTLINED RIGHTWARDS ARROW
}

TEST(SymbolEncoding, HasTheCharactersOfWingdings) {
  ExpectCharacters(u"Wingdings", {{0x22, 0x2702},   // BLACK SCISSORS
                                  {0x28, 0x260E},   // BLACK TELEPHONE
                                  {'J', 0x263A},    // WHITE SMILING FACE
                                  {'l', 0x25CF},    // BLACK CIRCLE
                                  {'n', 0x25A0},    // BLACK SQUARE
                                  {'q', 0x2751},    // LOWER RIGHT SHADOWED WHITE SQUARE
                                  {'v', 0x2756},    // BLACK DIAMOND MINUS WHITE X
                                  {0x8C, 0x278A},   // DINGBAT NEGATIVE CIRCLED SANS-SERIF DIGIT ONE
                                  {0xA7, 0x25AA},   // BLACK SMALL SQUARE
                                  {0xB7, 0x1F550},  // CLOCK FACE ONE OCLOCK
                                  {0xC2, 0x1F55B},  // CLOCK FACE TWELVE OCLOCK
                                  {0xD8, 0x27A2},   // THREE-D TOP-LIGHTED RIGHTWARDS ARROWHEAD
                                  {0xE0, 0x2192},   // RIGHTWARDS ARROW
                                  {0xE6, 0x2198},   // SOUTH EAST ARROW
                                  {0xFC, 0x2714},   // HEAVY CHECK MARK
                                  {0xFE, 0x2611}});  // BALLOT BOX WITH CHECK
}

TEST(SymbolEncoding, HasTheCharactersOfWingdings2) {
  ExpectCharacters(u"Wingdings 2", {{'O', 0x2717},     // BALLOT X
                                    {'P', 0x2713},     // CHECK MARK
                                    {'R', 0x2611},     // BALLOT BOX WITH CHECK
                                    {'T', 0x2612},     // BALLOT BOX WITH X
                                    {'j', 0x2460},     // CIRCLED DIGIT ONE
                                    {'u', 0x2776},     // DINGBAT NEGATIVE CIRCLED DIGIT ONE
                                    {0x98, 0x25CF},    // BLACK CIRCLE
                                    {0xA2, 0x25A0},    // BLACK SQUARE
                                    {0xEB, 0x2736},    // SIX POINTED BLACK STAR
                                    {0xF8, 0x203B}});  // REFERENCE MARK
}

TEST(SymbolEncoding, HasTheCharactersOfWingdings3) {
  ExpectCharacters(u"Wingdings 3", {{0x22, 0x2192},    // RIGHTWARDS ARROW
                                    {0x27, 0x2199},    // SOUTH WEST ARROW
                                    {'Q', 0x21BA},     // ANTICLOCKWISE OPEN CIRCLE ARROW
                                    {'p', 0x25B2},     // BLACK UP-POINTING TRIANGLE
                                    {'u', 0x25B6},     // BLACK RIGHT-POINTING TRIANGLE
                                    {'}', 0x25B6},     // BLACK RIGHT-POINTING TRIANGLE
                                    {0x88, 0x2B9F},    // BLACK DOWNWARDS EQUILATERAL ARROWHEAD
                                    {0xC6, 0x27A1}});  // BLACK RIGHTWARDS ARROW
}

TEST(SymbolEncoding, HasTheCharactersOfWebdings) {
  ExpectCharacters(u"Webdings", {{0x21, 0x1F577},    // SPIDER
                                 {'4', 0x25B6},      // BLACK RIGHT-POINTING TRIANGLE
                                 {'H', 0x1F3E0},     // HOUSE BUILDING
                                 {'a', 0x2714},      // HEAVY CHECK MARK
                                 {'b', 0x1F6B2},     // BICYCLE
                                 {'n', 0x2B24},      // BLACK LARGE CIRCLE
                                 {'r', 0x2715},      // MULTIPLICATION X
                                 {0xCF, 0x1F512},    // LOCK
                                 {0xD9, 0x2601},     // CLOUD
                                 {0xE9, 0x267F},     // WHEELCHAIR SYMBOL
                                 {0xFC, 0x1F30D}});  // EARTH GLOBE EUROPE-AFRICA
}

TEST(SymbolEncoding, KnowsCodesInThePrivateUseArea) {
  for (const std::u16string_view faceName : kFaces) {
    const SymbolEncoding* encoding = FindSymbolEncoding(faceName);
    ASSERT_NE(encoding, nullptr);
    for (int code = 0; code < 0x100; ++code) {
      EXPECT_EQ(encoding->CharacterOf(static_cast<char16_t>(0xF000 + code)),
                encoding->CharacterOf(static_cast<char16_t>(code)));
    }
  }
}

TEST(SymbolEncoding, HasNothingBelowTheSpaceAndBeyondAByte) {
  const SymbolEncoding* encoding = FindSymbolEncoding(u"Symbol");
  ASSERT_NE(encoding, nullptr);
  EXPECT_EQ(encoding->CharacterOf(0x20), U' ');
  constexpr char16_t kUnits[] = {0x00,   0x1F,   0x7F,   0x100,  0x161,
                                 0xEFFF, 0xF000, 0xF01F, 0xF100, 0xFFFF};
  for (const char16_t unit : kUnits) {
    EXPECT_EQ(encoding->CharacterOf(unit), U'\0') << int{unit};
  }
}

TEST(SymbolEncoding, HasNothingWhereAFontHasTheEmblemOfItsMaker) {
  EXPECT_EQ(FindSymbolEncoding(u"Symbol")->CharacterOf(0xF0), U'\0');
  EXPECT_EQ(FindSymbolEncoding(u"Wingdings")->CharacterOf(0xFF), U'\0');
}

TEST(SymbolEncoding, HasOnlyCharactersThatAllFontsShare) {
  for (const std::u16string_view faceName : kFaces) {
    const SymbolEncoding* encoding = FindSymbolEncoding(faceName);
    ASSERT_NE(encoding, nullptr);
    EXPECT_TRUE(std::ranges::none_of(encoding->characters, [](char32_t character) {
      return (character >= 0xE000 && character <= 0xF8FF) || character > 0x1FFFF;
    }));
  }
}

TEST(SymbolEncoding, IsFoundWithoutRegardToCase) {
  EXPECT_EQ(FindSymbolEncoding(u"WINGDINGS 2"), FindSymbolEncoding(u"Wingdings 2"));
  EXPECT_EQ(FindSymbolEncoding(u"mt extra"), FindSymbolEncoding(u"MT Extra"));
}

TEST(SymbolEncoding, IsTheSameForFacesOfTheSameCodes) {
  for (const std::u16string_view kin :
       {u"Symbol MT", u"SymbolPS", u"MT Symbol", u"Euclid Symbol", u"Standard Symbols PS"}) {
    EXPECT_EQ(FindSymbolEncoding(kin), FindSymbolEncoding(u"Symbol"));
  }
  for (const std::u16string_view kin : {u"Zapf Dingbats", u"Monotype Sorts"}) {
    EXPECT_EQ(FindSymbolEncoding(kin), FindSymbolEncoding(u"ZapfDingbats"));
  }
}

TEST(SymbolEncoding, IsNoneOfFacesWhoseTextIsUnicode) {
  for (const std::u16string_view faceName :
       {u"Arial", u"", u"Wingdings 4", u"Wingding", u"Symbol Neu", u"Segoe UI Symbol"}) {
    EXPECT_EQ(FindSymbolEncoding(faceName), nullptr);
  }
}

}  // namespace
}  // namespace kelvane
