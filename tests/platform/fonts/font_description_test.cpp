#include "platform/fonts/font_description.h"

#include <gtest/gtest.h>

#include "platform/fonts/typeface.h"
#include "support/files.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

CGFontDescription DescriptionOf(const char* path, unsigned index = 0) {
  return Typeface::Open(path, index)->Font()->Description();
}

TEST(FontDescription, MeasuresInTheFacesOwnUnits) {
  const CGFontDescription liberation = DescriptionOf(test::kLiberationSans);
  EXPECT_EQ(liberation.unitsPerEm, 2048U);
  EXPECT_EQ(liberation.ascent, 1854);
  EXPECT_EQ(liberation.descent, -434);
  EXPECT_EQ(liberation.capHeight, 1409);
  EXPECT_EQ(DescriptionOf(test::kJunction).unitsPerEm, 1000U);
}

TEST(FontDescription, HasTheBoxOfAllGlyphs) {
  const CGFontDescription face = DescriptionOf(test::kDejaVuSans);
  EXPECT_EQ(face.left, -2090);
  EXPECT_EQ(face.bottom, -948);
  EXPECT_EQ(face.right, 3673);
  EXPECT_EQ(face.top, 2524);
}

TEST(FontDescription, HasNoCapHeightWhereTheTableIsTooOldForOne) {
  EXPECT_EQ(DescriptionOf(test::kDejaVuSans).capHeight, 0);
}

TEST(FontDescription, TellsWhatTheLicenceAllows) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "font.ttf", test::WithLicence(test::kLiberationSans, 0x102));
  EXPECT_EQ(DescriptionOf((folder / "font.ttf").c_str()).licence, 0x102);
}

TEST(FontDescription, TellsOutlinesOfCompactVersionTwoApart) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "font.otf", test::WithTableRenamed(test::kJunction, "CFF ", "CFF2"));
  EXPECT_EQ(DescriptionOf((folder / "font.otf").c_str()).outlines, CGFontOutlines::kCompact2);
}

TEST(FontDescription, TellsAFaceWithoutOutlines) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "font.ttf",
                  test::WithTableRenamed(test::kLiberationSans, "glyf", "glyx"));
  EXPECT_EQ(DescriptionOf((folder / "font.ttf").c_str()).outlines, CGFontOutlines::kNone);
}

TEST(FontDescription, TellsTheWeight) {
  EXPECT_EQ(DescriptionOf(test::kLiberationSans).weight, 400);
  EXPECT_EQ(DescriptionOf(test::kLiberationSansBold).weight, 700);
}

// As a reader of font files of its own has it: xAvgCharWidth of OS/2.
TEST(FontDescription, TellsTheAverageWidth) {
  EXPECT_EQ(DescriptionOf(test::kLiberationSans).averageWidth, 1208);
  EXPECT_EQ(DescriptionOf(test::kLiberationSansBold).averageWidth, 1255);
  EXPECT_EQ(DescriptionOf(test::kJunction).averageWidth, 561);
}

TEST(FontDescription, HasNoAverageWidthWithoutTheTable) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "font.ttf",
                  test::WithTableRenamed(test::kLiberationSans, "OS/2", "OS/3"));
  EXPECT_EQ(DescriptionOf((folder / "font.ttf").c_str()).averageWidth, 0);
}

TEST(FontDescription, TellsAFaceOfSymbols) {
  constexpr std::size_t kEncodingOfThirdSubtable = 4 + 2 * 8 + 2;  // which is Windows' Unicode one
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "font.ttf",
                  test::WithField(test::kLiberationSans, "cmap", kEncodingOfThirdSubtable, 0));
  EXPECT_TRUE(DescriptionOf((folder / "font.ttf").c_str()).hasSymbolCodes);
  EXPECT_FALSE(DescriptionOf(test::kLiberationSans).hasSymbolCodes);
}

struct MetricsCase {
  const char* path;
  CGFontExtent header;
  CGFontExtent typographic;
  CGFontExtent windows;
  CGFontRule underline;
  CGFontRule strikeOut;
};

void ExpectEqual(const CGFontExtent& extent, const CGFontExtent& expected) {
  EXPECT_EQ(extent.ascent, expected.ascent);
  EXPECT_EQ(extent.descent, expected.descent);
  EXPECT_EQ(extent.lineGap, expected.lineGap);
}

void ExpectEqual(const CGFontRule& rule, const CGFontRule& expected) {
  EXPECT_EQ(rule.top, expected.top);
  EXPECT_EQ(rule.thickness, expected.thickness);
}

class MetricsOfAFace : public testing::TestWithParam<MetricsCase> {};

TEST_P(MetricsOfAFace, AreThoseOfEachTable) {
  SCOPED_TRACE(GetParam().path);
  const CGFontDescription face = DescriptionOf(GetParam().path);
  ExpectEqual(face.header, GetParam().header);
  ExpectEqual(face.typographic, GetParam().typographic);
  ExpectEqual(face.windows, GetParam().windows);
  ExpectEqual(face.underline, GetParam().underline);
  ExpectEqual(face.strikeOut, GetParam().strikeOut);
}

INSTANTIATE_TEST_SUITE_P(Each, MetricsOfAFace,
                         testing::Values(MetricsCase{test::kLiberationSans,
                                                     {1854, -434, 67},
                                                     {1491, -431, 307},
                                                     {1854, -434, 0},
                                                     {-67, 150},
                                                     {530, 102}},
                                         MetricsCase{test::kDejaVuSans,
                                                     {1901, -483, 0},
                                                     {1556, -492, 410},
                                                     {1901, -483, 0},
                                                     {-40, 90},
                                                     {530, 102}},
                                         MetricsCase{test::kJunction,
                                                     {750, -250, 0},
                                                     {750, -250, 0},
                                                     {841, -275, 0},
                                                     {-75, 50},
                                                     {250, 50}},
                                         MetricsCase{test::kMicroHei,
                                                     {1918, -483, 0},
                                                     {1567, -492, 132},
                                                     {1918, -483, 0},
                                                     {-256, 102},
                                                     {498, 102}}));

}  // namespace
}  // namespace kelvane
