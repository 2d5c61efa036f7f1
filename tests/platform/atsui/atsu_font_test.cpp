#include "platform/atsui/atsu_font.h"

#include <gtest/gtest.h>

#include "platform/fonts/font_registry.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FontByFamily;
using test::FontByFullName;

/// @return the PostScript name of the face that a font draws with.
std::string FaceOf(ATSUFontID font, bool isBold = false, bool isItalic = false) {
  const StyledFace& face = FontRegistry::Shared().Style(font, isBold, isItalic, AnyFont).Face();
  return face.typeface->Font()->Description().postScriptName;
}

TEST(ATSUFindFontFromName, FindsAFaceByItsFullName) {
  EXPECT_EQ(FaceOf(FontByFullName("Liberation Sans Bold")), "LiberationSans-Bold");
}

TEST(ATSUFindFontFromName, FindsTheRegularFaceOfAFamily) {
  EXPECT_EQ(FaceOf(FontByFamily("Liberation Serif")), "LiberationSerif");
}

TEST(ATSUFindFontFromName, TakesNoFullNameForAFamily) {
  EXPECT_EQ(FontByFamily("Liberation Sans Bold"), kNoFont);
}

TEST(ATSUFindFontFromName, DoesNotMindCase) {
  EXPECT_EQ(FontByFamily("LIBERATION sans"), FontByFamily("Liberation Sans"));
}

TEST(ATSUFindFontFromName, ReadsNoFurtherThanTheLength) {
  ATSUFontID font = kNoFont;
  EXPECT_EQ(ATSUFindFontFromName("Liberation Sans Bold", 15, kFontFullName, kFontNoPlatformCode,
                                 kFontNoScriptCode, kFontNoLanguageCode, &font),
            noErr);
  EXPECT_EQ(FaceOf(font), "LiberationSans");
}

TEST(ATSUFindFontFromName, ReportsANameThatIsNotInstalled) {
  ATSUFontID font = 1;
  EXPECT_EQ(ATSUFindFontFromName("Tahoma", 6, kFontFamilyName, kFontNoPlatformCode,
                                 kFontNoScriptCode, kFontNoLanguageCode, &font),
            kATSUInvalidFontErr);
  EXPECT_EQ(font, kNoFont);
}

TEST(ATSUFindFontFromName, FindsNothingForNoName) {
  EXPECT_EQ(FontByFullName(""), kNoFont);
  EXPECT_EQ(FontByFamily(""), kNoFont);
}

TEST(ATSUFindFontFromName, LooksUpNoOtherKindOfName) {
  constexpr FontNameCode kFontPostscriptName = 6;
  ATSUFontID font = 1;
  ATSUFindFontFromName("LiberationSans", 14, kFontPostscriptName, kFontNoPlatformCode,
                       kFontNoScriptCode, kFontNoLanguageCode, &font);
  EXPECT_EQ(font, kNoFont);
}

struct Alias {
  const char* name;
  const char* face;
};

class AFamilyOfTheSameMetrics : public testing::TestWithParam<Alias> {};

TEST_P(AFamilyOfTheSameMetrics, StandsForTheOneThatIsNotInstalled) {
  EXPECT_EQ(FaceOf(FontByFamily(GetParam().name)), GetParam().face);
}

TEST_P(AFamilyOfTheSameMetrics, StandsForTheFullNameOfItsRegularFace) {
  EXPECT_EQ(FaceOf(FontByFullName(GetParam().name)), GetParam().face);
}

INSTANTIATE_TEST_SUITE_P(Each, AFamilyOfTheSameMetrics,
                         testing::Values(Alias{"Arial", "LiberationSans"},
                                         Alias{"Times New Roman", "LiberationSerif"},
                                         Alias{"Courier New", "LiberationMono"}));

class AFamilyOfSimilarMetrics : public testing::TestWithParam<const char*> {};

TEST_P(AFamilyOfSimilarMetrics, CountsAsNotInstalled) {
  EXPECT_EQ(FontByFamily(GetParam()), kNoFont);
}

INSTANTIATE_TEST_SUITE_P(Each, AFamilyOfSimilarMetrics, testing::Values("Helvetica", "Times"));

TEST(TheDefaultFont, ComesClosestToHelvetica) {
  EXPECT_EQ(FaceOf(kDefaultFont), "LiberationSans");
}

TEST(TheDefaultFont, StandsForNumbersThatNoFontHas) {
  EXPECT_EQ(FaceOf(1), FaceOf(kDefaultFont));
}

TEST(AStyle, PrefersTheFamilysOwnFaces) {
  const ATSUFontID font = FontByFamily("Liberation Sans");
  EXPECT_EQ(FaceOf(font, true, false), "LiberationSans-Bold");
  EXPECT_EQ(FaceOf(font, false, true), "LiberationSans-Italic");
  EXPECT_EQ(FaceOf(font, true, true), "LiberationSans-BoldItalic");
}

TEST(AStyle, KeepsTheWeightThatTheFullNameAskedFor) {
  const ATSUFontID font = FontByFullName("Liberation Sans Bold");
  EXPECT_EQ(FaceOf(font, false, true), "LiberationSans-BoldItalic");
}

TEST(AStyle, MakesUpNothingForAFaceOfItsOwn) {
  const FontStyle& style =
      FontRegistry::Shared().Style(FontByFamily("Liberation Sans"), true, true, AnyFont);
  EXPECT_FALSE(style.Face().isSlanted);
  EXPECT_FALSE(style.Face().isEmboldened);
}

TEST(AStyle, MakesUpTheSlantThatTheFamilyLacks) {
  const FontStyle& style =
      FontRegistry::Shared().Style(FontByFamily("DejaVu Sans"), true, true, AnyFont);
  EXPECT_TRUE(style.Face().isSlanted);
  EXPECT_FALSE(style.Face().isEmboldened);
}

TEST(AStyle, MakesUpTheWeightThatTheFamilyLacks) {
  const FontStyle& style =
      FontRegistry::Shared().Style(FontByFamily("Junction"), true, false, AnyFont);
  EXPECT_TRUE(style.Face().isEmboldened);
  EXPECT_FALSE(style.Face().isSlanted);
}

}  // namespace
}  // namespace kelvane
