#include "classic/text/font_selection.h"

#include <clocale>

#include <gtest/gtest.h>

#include "support/text.h"

namespace kelvane {
namespace {

using test::FontByFamily;

/// The locale of characters for as long as the object lives.
class CharacterLocale {
 public:
  explicit CharacterLocale(const char* name) : before_(std::setlocale(LC_CTYPE, nullptr)) {
    isThere = std::setlocale(LC_CTYPE, name) != nullptr;
  }
  CharacterLocale(const CharacterLocale&) = delete;
  CharacterLocale& operator=(const CharacterLocale&) = delete;
  ~CharacterLocale() { std::setlocale(LC_CTYPE, before_.c_str()); }

  bool isThere = false;

 private:
  std::string before_;
};

struct StyleDisposer {
  void operator()(ATSUStyle style) const { ATSUDisposeStyle(style); }
};

std::unique_ptr<ATSUStyleObject, StyleDisposer> StyleOf(const LogFontW& font) {
  return std::unique_ptr<ATSUStyleObject, StyleDisposer>(CreateFontStyle(font));
}

TEST(ConvertToCharString, GivesAByteForEachUnit) {
  EXPECT_EQ(convertToCharString(u"Arial"), "Arial");
}

TEST(ConvertToCharString, KeepsTheZerosOfAFaceName) {
  const std::u16string faceName = u"Arial" + std::u16string(27, u'\0');
  EXPECT_EQ(convertToCharString(faceName), "Arial" + std::string(27, '\0'));
}

TEST(ConvertToCharString, GivesZeroForAFirstUnitThatDoesNotFit) {
  EXPECT_EQ(convertToCharString(u"\u6F22ab"), std::string("\0ab", 3));
}

TEST(ConvertToCharString, RepeatsTheByteBeforeAUnitThatDoesNotFit) {
  EXPECT_EQ(convertToCharString(u"a\u6F22\u6F22b"), "aaab");
}

TEST(ConvertToCharString, RepeatsTheByteBeforeASurrogate) {
  EXPECT_EQ(convertToCharString(u"a\U0001D538"), "aaa");
}

TEST(ConvertToCharString, DoesNotSplitAUnitOfTwoBytes) {
  const CharacterLocale utf8("C.UTF-8");
  ASSERT_TRUE(utf8.isThere);
  EXPECT_EQ(convertToCharString(u"a\u00FCb"), "aab");
}

TEST(ConvertToCharString, LeavesTheLocaleAlone) {
  const std::string before = std::setlocale(LC_ALL, nullptr);
  convertToCharString(u"a\u00FC");
  EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
}

struct NameCase {
  const char* name;
  const char* family;  // of the font that it leads to
};

void PrintTo(const NameCase& name, std::ostream* out) {
  *out << name.name;
}

class AFontName : public testing::TestWithParam<NameCase> {};

TEST_P(AFontName, LeadsToItsFont) {
  EXPECT_EQ(GetFontID(GetParam().name), FontByFamily(GetParam().family));
}

INSTANTIATE_TEST_SUITE_P(
    Generic, AFontName,
    testing::Values(NameCase{"serif", "Liberation Serif"}, NameCase{"Times", "Liberation Serif"},
                    NameCase{"monospace", "Liberation Mono"}, NameCase{"mono", "Liberation Mono"},
                    NameCase{"cursive", "Junction"}, NameCase{"fantasy", "DejaVu Sans Mono"}));

// Helvetica is not installed.
INSTANTIATE_TEST_SUITE_P(GenericByFamily, AFontName,
                         testing::Values(NameCase{"sans", "DejaVu Sans"},
                                         NameCase{"sans-serif", "DejaVu Serif"}));

INSTANTIATE_TEST_SUITE_P(Plain, AFontName,
                         testing::Values(NameCase{"DejaVu Sans", "DejaVu Sans"},
                                         NameCase{"Times New Roman", "Liberation Serif"}));

class ANameOfNoFont : public testing::TestWithParam<const char*> {};

TEST_P(ANameOfNoFont, LeadsToTheDefaultFont) {
  EXPECT_EQ(GetFontID(GetParam()), 8426U);
}

INSTANTIATE_TEST_SUITE_P(Each, ANameOfNoFont,
                         testing::Values("", "Tahoma", "Serif", "serif ", "SANS-SERIF.", "Mono"));

TEST(GetFontID, FindsAFaceByItsFullName) {
  EXPECT_EQ(GetFontID("Liberation Sans Bold"), test::FontByFullName("Liberation Sans Bold"));
}

Fixed SizeOfHeight(std::int32_t height) {
  LogFontW font;
  font.lfHeight = height;
  return StyleOf(font)->size;
}

TEST(CreateFontStyle, TakesTheHeightForTheSize) {
  EXPECT_EQ(SizeOfHeight(-12), 12 << 16);
  EXPECT_EQ(SizeOfHeight(12), 12 << 16);
}

TEST(CreateFontStyle, CutsASizeThatDoesNotFit) {
  EXPECT_EQ(SizeOfHeight(65536 + 3), 3 << 16);
  EXPECT_EQ(SizeOfHeight(INT32_MIN), 0);
}

TEST(CreateFontStyle, IsNotBoldByWeight) {
  LogFontW font;
  font.lfWeight = 700;
  EXPECT_FALSE(StyleOf(font)->isBold);
}

bool IsBoldByWidth(std::int32_t width) {
  LogFontW font;
  font.lfWidth = width;
  return StyleOf(font)->isBold;
}

TEST(CreateFontStyle, IsBoldByAWidthOfSevenHundredAlone) {
  EXPECT_TRUE(IsBoldByWidth(700));
  EXPECT_FALSE(IsBoldByWidth(701));
}

bool IsItalicBy(std::uint8_t italic) {
  LogFontW font;
  font.lfItalic = italic;
  return StyleOf(font)->isItalic;
}

TEST(CreateFontStyle, IsItalicByOneAlone) {
  EXPECT_TRUE(IsItalicBy(1));
  EXPECT_FALSE(IsItalicBy(255));
}

TEST(CreateFontStyle, LooksUpTheNameBeforeTheZeros) {
  LogFontW font;
  font.lfFaceName = u"DejaVu Sans" + std::u16string(21, u'\0');
  EXPECT_EQ(StyleOf(font)->font, FontByFamily("DejaVu Sans"));
}

struct PostScriptCase {
  std::u16string faceName;
  std::string result;
};

class APostScriptName : public testing::TestWithParam<PostScriptCase> {};

TEST_P(APostScriptName, IsFoundByAPartOfTheFaceName) {
  EXPECT_EQ(ConvertFontToPostScript(GetParam().faceName), GetParam().result);
}

INSTANTIATE_TEST_SUITE_P(
    Each, APostScriptName,
    testing::Values(PostScriptCase{u"Arial Narrow Bold", "ArialNarrow"},
                    PostScriptCase{u"Arial Black", "Arial"},
                    PostScriptCase{u"Times New Roman CE", "TimesNewRomanPSMT"},
                    PostScriptCase{u"System", "Arial"}, PostScriptCase{u"Verdana Bold", "Verdana"},
                    PostScriptCase{u"NSimSun", "SimSun"}, PostScriptCase{u"Tahoma", "Tahoma"},
                    PostScriptCase{u"arial", "arial"}, PostScriptCase{u"", ""}));

}  // namespace
}  // namespace kelvane
