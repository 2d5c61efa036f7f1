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

}  // namespace
}  // namespace kelvane
