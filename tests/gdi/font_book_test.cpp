#include "gdi/font_book.h"

#include <algorithm>
#include <limits>
#include <string_view>

#include <gtest/gtest.h>

#include "base/unicode.h"
#include "gdi/object_table.h"
#include "gdi/symbol_encoding.h"
#include "platform/fonts/fontconfig_catalog.h"
#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

constexpr double kPixel = 1;
constexpr double kNear = 1e-9;

LogFont Named(std::u16string_view name, std::int32_t height = -1) {
  LogFont font;
  font.height = height;
  std::ranges::copy(name, font.faceName.begin());
  return font;
}

class AFontBook : public testing::Test {
 protected:
  FontRegistry registry;
  FontMap map;
  FontBook book{registry, AnyFont, map};
};

// Of Liberation Sans: usWinAscent 1854, usWinDescent 434, 2048 units an em.
TEST_F(AFontBook, TakesAHeightBelowZeroForTheEms) {
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", -2048), kPixel);
  EXPECT_EQ(font.em, 2048);
  EXPECT_EQ(font.ascent, 1854);
  EXPECT_EQ(font.descent, 434);
}

// Its other table has a gap of 67 between cells of the same height.
TEST_F(AFontBook, LeavesBetweenLinesWhatTheCellsDoNotFill) {
  EXPECT_EQ(book.Resolve(Named(u"Liberation Sans", -2048), kPixel).leading, 67);
}

TEST_F(AFontBook, TakesAHeightAboveZeroForTheCells) {
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", 1854 + 434), kPixel);
  EXPECT_NEAR(font.em, 2048, kNear);
  EXPECT_NEAR(font.ascent, 1854, kNear);
  EXPECT_NEAR(font.descent, 434, kNear);
}

TEST_F(AFontBook, MakesACellOfSixteenPixelsWhereThereIsNoHeight) {
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", 0), 143);
  EXPECT_NEAR(font.em, 2048, kNear);
}

TEST_F(AFontBook, HasRoomForAnyHeight) {
  constexpr auto kLeast = std::numeric_limits<std::int32_t>::min();
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(book.Resolve(Named(u"Liberation Sans", kLeast), kPixel).em, 2147483648.0);
  const TextFont& font = book.Resolve(Named(u"Liberation Sans", kMost), kPixel);
  EXPECT_NEAR(font.ascent + font.descent, 2147483647.0, 1e-5);
}

// What Junction has in its two tables: 841 and 275 for Windows, 750 and 250 otherwise, 1000 an em.
TEST_F(AFontBook, MeasuresACellByTheTableMadeForWindows) {
  const TextFont& font = book.Resolve(Named(u"Junction", -1000), kPixel);
  EXPECT_NEAR(font.ascent, 841, kNear);
  EXPECT_NEAR(font.descent, 275, kNear);
}

/// A machine with one font file.
class OneFont {
 public:
  explicit OneFont(const std::string& bytes) { test::WriteFile(folder_ / "font", bytes); }

  TextFont Resolve(const LogFont& font) {
    FontRegistry registry([this] { return OpenFontFiles({folder_ / "font"}); });
    TextFont text = FontBook(registry, AnyFont, {}).Resolve(font, kPixel);
    text.style = nullptr;  // gone with the registry
    return text;
  }

 private:
  test::TemporaryFolder folder_;
};

TEST(ACellOfAFont, IsTheOtherTablesWhereThatForWindowsIsNotThere) {
  OneFont fonts(test::WithTableRenamed(test::kJunction, "OS/2", "OS/3"));
  const TextFont font = fonts.Resolve(Named(u"Junction", -1000));
  EXPECT_NEAR(font.ascent, 750, kNear);
  EXPECT_NEAR(font.descent, 250, kNear);
}

TEST(ACellOfAFont, IsTheOtherTablesWhereThatForWindowsSaysNothing) {
  const test::TemporaryFolder folder;
  constexpr std::size_t kWinAscent = 74;
  constexpr std::size_t kWinDescent = 76;
  test::WriteFile(folder / "font", test::WithField(test::kJunction, "OS/2", kWinAscent, 0));
  OneFont half(test::ReadFile(folder / "font"));
  EXPECT_NEAR(half.Resolve(Named(u"Junction", -1000)).descent, 275, kNear);
  EXPECT_EQ(half.Resolve(Named(u"Junction", -1000)).ascent, 0);
  OneFont none(test::WithField(folder / "font", "OS/2", kWinDescent, 0));
  EXPECT_NEAR(none.Resolve(Named(u"Junction", -1000)).descent, 250, kNear);
  EXPECT_NEAR(none.Resolve(Named(u"Junction", -1000)).ascent, 750, kNear);
}

TEST(AMachineWithoutFonts, HasTextOfTheUsualMeasures) {
  FontRegistry registry([] { return OpenFontFiles({}); });
  const FontMap map;
  FontBook book(registry, AnyFont, map);
  const TextFont& font = book.Resolve(Named(u"Arial", -1000), kPixel);
  EXPECT_NEAR(font.ascent, 905, kNear);
  EXPECT_NEAR(font.descent, 212, kNear);
  EXPECT_NEAR(font.underline.top, -0.1, kNear);
  EXPECT_NEAR(font.underline.thickness, 0.05, kNear);
  EXPECT_NEAR(font.strikeOut.top, 0.25, kNear);
  EXPECT_NEAR(font.strikeOut.thickness, 0.05, kNear);
  ASSERT_EQ(book.Uses().size(), 1U);
  EXPECT_EQ(book.Uses().front(), (FontUse{"Arial", "Helvetica"}));
}

LogFont Wide(std::u16string_view name, std::int32_t width) {
  LogFont font = Named(name, -2048);
  font.width = width;
  return font;
}

TEST_F(AFontBook, LeavesTheWidthToTheFaceUnlessOneIsAskedFor) {
  EXPECT_EQ(book.Resolve(Wide(u"Arial", 0), kPixel).xScale, 1);
}

// An em of 33 is 14.57 wide on average.
TEST_F(AFontBook, TakesTheFacesOwnWidthInWholeUnitsForTheFacesOwn) {
  LogFont font = Named(u"Arial", -33);
  font.width = 15;
  EXPECT_EQ(book.Resolve(font, kPixel).xScale, 1);
  font.width = 16;
  EXPECT_NEAR(book.Resolve(font, kPixel).xScale, 16 / (33 * 904.0 / 2048), kNear);
}

TEST_F(AFontBook, MeasuresWidthByWhatTheFaceAskedForSays) {
  EXPECT_NEAR(book.Resolve(Wide(u"Liberation Sans", 1208), kPixel).xScale, 1, kNear);
  EXPECT_NEAR(book.Resolve(Wide(u"Liberation Sans", -604), kPixel).xScale, 0.5, kNear);
  EXPECT_NEAR(book.Resolve(Wide(u"DejaVu Sans", 2076), kPixel).xScale, 2, kNear);
}

// The average widths of Windows' own faces, which those that stand in for them do not have: 1208,
// 1163 and 1229.
TEST_F(AFontBook, MeasuresWidthByRunningTextWhereAnotherFaceStandsIn) {
  EXPECT_NEAR(book.Resolve(Wide(u"Arial", 904), kPixel).xScale, 1, kNear);
  EXPECT_NEAR(book.Resolve(Wide(u"Helvetica", 904), kPixel).xScale, 1, kNear);
  EXPECT_NEAR(book.Resolve(Wide(u"Times New Roman", 821), kPixel).xScale, 1, kNear);
  EXPECT_NEAR(book.Resolve(Wide(u"Courier New", 1229), kPixel).xScale, 1, kNear);
}

// That of Windows' bold face is 982, of text in the one that stands in for it 980.
TEST_F(AFontBook, MeasuresWidthByTheFaceOfTheWeight) {
  LogFont bold = Wide(u"Arial", 982);
  bold.weight = 700;
  EXPECT_NEAR(book.Resolve(bold, kPixel).xScale, 982.0 / 980, kNear);
}

TEST_F(AFontBook, HasRoomForAnyWidth) {
  const LogFont widest = Wide(u"Courier New", std::numeric_limits<std::int32_t>::min());
  EXPECT_NEAR(book.Resolve(widest, kPixel).xScale, 2147483648.0 / 1229, 1e-3);
}

TEST(AWidthOfAFont, IsThatOfRunningTextWhereTheFaceSaysNothing) {
  constexpr std::size_t kAverageWidth = 2;
  OneFont fonts(test::WithField(test::kLiberationSans, "OS/2", kAverageWidth, 0));
  EXPECT_NEAR(fonts.Resolve(Wide(u"Liberation Sans", 904)).xScale, 1, kNear);
}

LogFont Weighing(std::u16string_view name, std::int32_t weight, bool isItalic) {
  LogFont font = Named(name);
  font.weight = weight;
  font.italic = isItalic ? 1 : 0;
  return font;
}

std::string FaceOf(const TextFont& font) {
  return font.style->Face().typeface->Font()->Description().postScriptName;
}

TEST_F(AFontBook, TakesTheBoldFaceFromAWeightOf600) {
  const auto faceFor = [&](std::int32_t weight) {
    return FaceOf(book.Resolve(Weighing(u"Liberation Sans", weight, false), kPixel));
  };
  EXPECT_EQ(faceFor(std::numeric_limits<std::int32_t>::min()), "LiberationSans");
  EXPECT_EQ(faceFor(599), "LiberationSans");
  EXPECT_EQ(faceFor(600), "LiberationSans-Bold");
  EXPECT_EQ(faceFor(std::numeric_limits<std::int32_t>::max()), "LiberationSans-Bold");
}

TEST_F(AFontBook, TakesTheItalicFace) {
  const TextFont& font = book.Resolve(Weighing(u"Arial", 700, true), kPixel);
  EXPECT_EQ(FaceOf(font), "LiberationSans-BoldItalic");
  EXPECT_FALSE(font.style->Face().isSlanted);
}

TEST_F(AFontBook, MakesUpTheStylesThatTheFamilyLacks) {
  const StyledFace& face = book.Resolve(Weighing(u"Junction", 700, true), kPixel).style->Face();
  EXPECT_TRUE(face.isEmboldened);
  EXPECT_TRUE(face.isSlanted);
}

TEST_F(AFontBook, HasSystemInBoldOnly) {
  EXPECT_EQ(FaceOf(book.Resolve(Weighing(u"System", 400, false), kPixel)), "LiberationSans-Bold");
}

// Of Liberation Sans: underlinePosition -67, underlineThickness 150, yStrikeoutPosition 530 and
// yStrikeoutSize 102.
TEST_F(AFontBook, HasTheFacesLinesAlongText) {
  const TextFont& font = book.Resolve(Named(u"Arial", -20), kPixel);
  EXPECT_NEAR(font.underline.top, -67.0 / 2048, kNear);
  EXPECT_NEAR(font.underline.thickness, 150.0 / 2048, kNear);
  EXPECT_NEAR(font.strikeOut.top, 530.0 / 2048, kNear);
  EXPECT_NEAR(font.strikeOut.thickness, 102.0 / 2048, kNear);
}

TEST_F(AFontBook, TellsWhetherTheFaceIsTheOneAskedFor) {
  EXPECT_TRUE(book.Resolve(Named(u"Liberation Sans"), kPixel).isAsAsked);
  EXPECT_FALSE(book.Resolve(Named(u"Arial"), kPixel).isAsAsked);
  EXPECT_FALSE(book.Resolve(Named(u"Nowhere"), kPixel).isAsAsked);
}

bool OnlyDejaVu(const CGFontDescription& face) {
  return face.postScriptName.starts_with("DejaVu");
}

TEST(AFontBookForAnOutput, TellsThatTheOutputRefusedTheFaceAskedFor) {
  FontRegistry registry;
  const FontMap map;
  FontBook book(registry, OnlyDejaVu, map);
  EXPECT_FALSE(book.Resolve(Named(u"Liberation Sans"), kPixel).isAsAsked);
  EXPECT_TRUE(book.Resolve(Named(u"DejaVu Sans"), kPixel).isAsAsked);
  EXPECT_TRUE(book.Uses().front().used.starts_with("DejaVu")) << book.Uses().front().used;
}

TEST_F(AFontBook, TellsVerticalWriting) {
  EXPECT_TRUE(book.Resolve(Named(u"@WenQuanYi Micro Hei"), kPixel).isVertical);
  EXPECT_FALSE(book.Resolve(Named(u"WenQuanYi Micro Hei"), kPixel).isVertical);
}

TEST_F(AFontBook, TellsAFaceOfSymbols) {
  constexpr std::size_t kEncodingOfThirdSubtable = 4 + 2 * 8 + 2;  // which is Windows' Unicode one
  OneFont symbols(test::WithField(test::kLiberationSans, "cmap", kEncodingOfThirdSubtable, 0));
  EXPECT_TRUE(symbols.Resolve(Named(u"Liberation Sans")).hasSymbolGlyphs);
  EXPECT_FALSE(book.Resolve(Named(u"Liberation Sans"), kPixel).hasSymbolGlyphs);
}

TEST_F(AFontBook, TellsWhatCodesOfSymbolsMean) {
  const TextFont& symbol = book.Resolve(Named(u"Symbol"), kPixel);
  EXPECT_EQ(symbol.symbols, FindSymbolEncoding(u"Symbol"));
  EXPECT_FALSE(symbol.hasSymbolGlyphs);
  EXPECT_EQ(book.Resolve(Named(u"Nowhere;Wingdings"), kPixel).symbols,
            FindSymbolEncoding(u"Wingdings"));
  EXPECT_EQ(book.Resolve(Named(u"Arial;Wingdings"), kPixel).symbols, nullptr);
}

// A hundredth of a millimetre is a logical unit, and a pixel 26.46 of them.
TEST_F(AFontBook, HasTheSystemsFontInPixelsWhateverTheMapping) {
  const ObjectTable objects;
  const TextFont& font = book.Resolve(*objects.Find<const LogFont>(SYSTEM_FONT), 2540.0 / 96);
  EXPECT_NEAR(font.ascent + font.descent, 16 * 2540.0 / 96, kNear);
  EXPECT_EQ(FaceOf(font), "LiberationSans-Bold");
}

TEST_F(AFontBook, TakesUnknownSymbolsForThoseOfSymbol) {
  const auto symbolsOf = [&](std::u16string_view name) {
    LogFont font = Named(name);
    font.charSet = SYMBOL_CHARSET;
    return book.Resolve(font, kPixel).symbols;
  };
  EXPECT_EQ(symbolsOf(u"Nowhere"), FindSymbolEncoding(u"Symbol"));
  EXPECT_EQ(symbolsOf(u"Webdings"), FindSymbolEncoding(u"Webdings"));
  EXPECT_EQ(symbolsOf(u"Liberation Sans"), nullptr);
}

TEST(AFontOfSymbols, KeepsItsCodesWhereItIsThere) {
  constexpr std::size_t kEncodingOfThirdSubtable = 4 + 2 * 8 + 2;  // which is Windows' Unicode one
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "font",
                  test::WithField(test::kLiberationSans, "cmap", kEncodingOfThirdSubtable, 0));
  FontRegistry registry([&] { return OpenFontFiles({folder / "font"}); });
  FontMap map;
  map.Add("Symbol", "Liberation Sans");
  FontBook book(registry, AnyFont, map);
  EXPECT_EQ(book.Resolve(Named(u"Symbol"), kPixel).symbols, nullptr);
}

TEST_F(AFontBook, SaysOnceWhatWasTakenForEachName) {
  for (const auto* const name : {u"Times", u"Arial", u"Times", u"", u"\xD800", u"A;Junction"}) {
    book.Resolve(Named(name, -10), kPixel);
    book.Resolve(Weighing(name, 700, true), kPixel);
  }
  const std::vector<FontUse> expected = {{"Times", "Liberation Serif"},
                                         {"Arial", "Liberation Sans"},
                                         {"", "Liberation Sans"},
                                         {"\xEF\xBF\xBD", "Liberation Sans"},
                                         {"A;Junction", "Junction"}};
  EXPECT_EQ(book.Uses(), expected);
}

TEST_F(AFontBook, KeepsAFontForItsSizeAndPixel) {
  const TextFont* const first = &book.Resolve(Named(u"Arial", 0), 1);
  EXPECT_NE(&book.Resolve(Named(u"Arial", 0), 2), first);
  EXPECT_NE(&book.Resolve(Named(u"Arial", -5), 1), first);
  EXPECT_EQ(&book.Resolve(Named(u"Arial", 0), 1), first);
}

TEST_F(AFontBook, LeavesAFontAloneWhileManyOthersAreResolved) {
  std::int32_t height = -1000;
  const auto resolveOthers = [&](std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
      book.Resolve(Named(u"Liberation Sans", --height), kPixel);
  };
  resolveOthers(FontBook::kMostFonts - 1);
  const TextFont& last = book.Resolve(Named(u"Liberation Sans", -77), kPixel);
  resolveOthers(1);
  const TextFont& first = book.Resolve(Named(u"Liberation Sans", -78), kPixel);
  resolveOthers(FontBook::kMostFonts - 2);
  EXPECT_EQ(last.em, 77);
  resolveOthers(2);
  EXPECT_EQ(first.em, 78);
}

std::u16string Numbered(int number) {
  std::u16string name = u"Font ";
  for (int i = 0; i < 6; ++i, number /= 10)
    name += static_cast<char16_t>(u'0' + number % 10);
  return name;
}

TEST_F(AFontBook, SaysNoMoreThanAThousandNames) {
  for (int i = 0; i < 1500; ++i)
    book.Resolve(Named(Numbered(i)), kPixel);
  ASSERT_EQ(book.Uses().size(), FontBook::kMostUses);
  EXPECT_EQ(book.Uses()[999].asked, ToUTF8(Numbered(999)));
}

TEST_F(AFontBook, KeepsTheFacesOfTheNamesBeforeVeryManyOthers) {
  book.Resolve(Named(u"DejaVu Serif", -10), kPixel);
  for (std::size_t i = 0; i < FontFinder::kMostNames; ++i)
    book.Resolve(Named(Numbered(static_cast<int>(i))), kPixel);
  EXPECT_EQ(FaceOf(book.Resolve(Named(u"DejaVu Serif", -20), kPixel)), "DejaVuSerif");
  EXPECT_EQ(FaceOf(book.Resolve(Named(u"DejaVu Sans", -20), kPixel)), "LiberationSans");
}

}  // namespace
}  // namespace kelvane
