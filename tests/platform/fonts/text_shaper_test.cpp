#include "platform/fonts/text_shaper.h"

#include <gmock/gmock.h>

#include "base/unicode.h"
#include "support/text.h"

namespace kelvane {
namespace {

using testing::ElementsAre;

std::vector<ShapedRun> LineOf(std::u16string_view text, const FontStyle& style) {
  double pen = 0;
  return ShapeLine(text, style, {.usesStandIns = true}, pen);
}

/// A run in short: the face, then the text of each glyph, from left to right.
std::vector<std::string> Shaped(std::u16string_view text, const char* font = "Liberation Sans") {
  const FontStyle& style =
      FontRegistry::Shared().Style(test::FontByFullName(font), false, false, AnyFont);
  std::vector<std::string> runs;
  for (const ShapedRun& run : LineOf(text, style)) {
    std::string words = run.face.typeface->Font()->Description().postScriptName;
    for (const CGPositionedGlyph& glyph : run.glyphs)
      words += " " + ToUTF8(glyph.text);
    runs.push_back(words);
  }
  return runs;
}

TEST(ShapeLine, SetsLatinFromLeftToRight) {
  EXPECT_THAT(Shaped(u"abc"), ElementsAre("LiberationSans a b c"));
}

TEST(ShapeLine, SetsHebrewFromRightToLeft) {
  EXPECT_THAT(Shaped(u"\u05D0\u05D1\u05D2"), ElementsAre("DejaVuSans \u05D2 \u05D1 \u05D0"));
}

TEST(ShapeLine, KeepsDigitsOfARightToLeftLineInOrder) {
  EXPECT_THAT(Shaped(u"\u05D0 12", "DejaVu Sans"), ElementsAre("DejaVuSans 1 2   \u05D0"));
}

TEST(ShapeLine, PutsHebrewWithinLatinInItsPlace) {
  EXPECT_THAT(Shaped(u"a \u05D0\u05D1 b", "DejaVu Sans"),
              ElementsAre("DejaVuSans a   \u05D1 \u05D0   b"));
}

TEST(ShapeLine, JoinsArabicLetters) {
  const FontStyle& style =
      FontRegistry::Shared().Style(test::FontByFullName("DejaVu Sans"), false, false, AnyFont);
  const auto line = LineOf(u"\u0628\u0628", style);
  ASSERT_EQ(line.size(), 1U);
  ASSERT_EQ(line[0].glyphs.size(), 2U);
  EXPECT_NE(line[0].glyphs[0].glyph, line[0].glyphs[1].glyph);
}

TEST(ShapeLine, GivesALigatureTheTextOfItsLetters) {
  EXPECT_THAT(Shaped(u"\u0644\u0627", "DejaVu Sans"), ElementsAre("DejaVuSans \u0644\u0627"));
}

TEST(ShapeLine, PlacesAMarkOnItsBase) {
  EXPECT_THAT(Shaped(u"x\u0323", "DejaVu Sans"), ElementsAre("DejaVuSans x\u0323 "));
}

TEST(ShapeLine, KeepsAMarkInAFaceThatHasOneGlyphForItAndItsBase) {
  EXPECT_THAT(Shaped(u"A\u0301", "Liberation Sans"), ElementsAre("LiberationSans A\u0301"));
}

TEST(ShapeLine, TakesAMarkFromAnotherFaceWhenItsOwnHasNeitherItNorBothTogether) {
  EXPECT_THAT(Shaped(u"A\u0323", "Junction"), ElementsAre("Junction A", "DejaVuSans \u0323"));
}

TEST(ShapeLine, TakesEachCharacterFromAFaceThatHasIt) {
  EXPECT_THAT(Shaped(u"a\u6F22b"),
              ElementsAre("LiberationSans a", "WenQuanYiMicroHei \u6F22", "LiberationSans b"));
}

TEST(ShapeLine, LeavesOutWhatMarksNothing) {
  EXPECT_THAT(Shaped(std::u16string_view(u"a\0\t\xD834"
                                         u"b",
                                         5)),
              ElementsAre("LiberationSans a b"));
}

TEST(ShapeLine, MakesNoGlyphOfWhatOnlySteers) {
  EXPECT_THAT(Shaped(u"a\u200Eb"), ElementsAre("LiberationSans a\u200E b"));
}

TEST(ShapeLine, MakesNothingOfControlsAlone) {
  EXPECT_THAT(Shaped(std::u16string_view(u"\0\0", 2)), ElementsAre());
}

TEST(ShapeLine, ShowsABoxForWhatNoFaceHas) {
  const FontStyle& style = FontRegistry::Shared().Style(kDefaultFont, false, false, AnyFont);
  const auto line = LineOf(u"\U000F0000", style);
  ASSERT_EQ(line.size(), 1U);
  EXPECT_EQ(line[0].glyphs.at(0).glyph, 0);
}

TEST(ShapeLine, PutsTheSecondGlyphBehindTheFirstInEms) {
  const FontStyle& style =
      FontRegistry::Shared().Style(test::FontByFullName("Liberation Sans"), false, false, AnyFont);
  const auto line = LineOf(u"HA", style);
  EXPECT_FLOAT_EQ(line.at(0).glyphs.at(1).origin.x, 1479.0F / 2048);
}

TEST(ShapeLine, GoesOnFromThePen) {
  const FontStyle& style =
      FontRegistry::Shared().Style(test::FontByFullName("Liberation Sans"), false, false, AnyFont);
  double pen = 0.25;
  EXPECT_EQ(ShapeLine(u"H", style, {.usesStandIns = true}, pen).at(0).glyphs.at(0).origin.x, 0.25F);
  EXPECT_DOUBLE_EQ(pen, 0.25 + 1479.0 / 2048);
}

const FontStyle& DejaVuSans() {
  return FontRegistry::Shared().Style(test::FontByFullName("DejaVu Sans"), false, false, AnyFont);
}

TEST(ShapeLine, TellsHowThePenMovesAtEachGlyph) {
  double pen = 0;
  const auto line = ShapeLine(u"Hi", DejaVuSans(), {}, pen);
  ASSERT_EQ(line.at(0).moves.size(), 2U);
  EXPECT_DOUBLE_EQ(line[0].moves[0].from, 0);
  EXPECT_DOUBLE_EQ(line[0].moves[0].by, 1540.0 / 2048);
  EXPECT_DOUBLE_EQ(line[0].moves[1].from, line[0].moves[0].by);
  EXPECT_DOUBLE_EQ(line[0].moves[1].from + line[0].moves[1].by, pen);
}

TEST(ShapeLine, NeitherJoinsNorKernsLatinThatIsNotRefined) {
  double refined = 0;
  ASSERT_EQ(ShapeLine(u"AVfi", DejaVuSans(), {}, refined).at(0).glyphs.size(), 3U);
  double plain = 0;
  EXPECT_EQ(ShapeLine(u"AVfi", DejaVuSans(), {.isRefined = false}, plain).at(0).glyphs.size(), 4U);
  EXPECT_NE(plain, refined);
}

TEST(ShapeLine, JoinsWhatItsScriptJoinsAlsoWhenItIsNotRefined) {
  double pen = 0;
  const auto line = ShapeLine(u"\u0644\u0627", DejaVuSans(), {.isRefined = false}, pen);
  EXPECT_EQ(line.at(0).glyphs.size(), 1U);
}

TEST(ShapeLine, ReadsAsItIsToldAsAWhole) {
  const auto first = [](LineDirection direction) {
    double pen = 0;
    const auto line =
        ShapeLine(u"a \u05D0", DejaVuSans(), {.usesStandIns = true, .direction = direction}, pen);
    return std::u16string(line.at(0).glyphs.at(0).text);
  };
  EXPECT_EQ(first(LineDirection::kByText), u"a");
  EXPECT_EQ(first(LineDirection::kRightwards), u"a");
  EXPECT_EQ(first(LineDirection::kLeftwards), u"\u05D0");
}

TEST(FirstPiece, IsTheWholeOfALineForAPage) {
  const std::u16string line(2000, u'a');
  EXPECT_EQ(FirstPiece(line), line);
}

TEST(FirstPiece, EndsBehindASpace) {
  const std::u16string line = std::u16string(1500, u'a') + u' ' + std::u16string(1500, u'b');
  EXPECT_EQ(FirstPiece(line).size(), 1501U);
}

TEST(FirstPiece, DoesNotSplitAPair) {
  const std::u16string line = std::u16string(1999, u'a') + u"\U0001D538";
  EXPECT_EQ(FirstPiece(line).size(), 1999U);
}

}  // namespace
}  // namespace kelvane
