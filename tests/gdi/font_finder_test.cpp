#include "gdi/font_finder.h"

#include <initializer_list>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "base/unicode.h"
#include "platform/fonts/fontconfig_catalog.h"
#include "support/fonts.h"

namespace kelvane {
namespace {

constexpr PitchAndFamily kAnyKind = FF_DONTCARE;

constexpr PitchAndFamily Kind(int family, int pitch) {
  return static_cast<PitchAndFamily>(family | pitch);
}

std::string FamilyOf(FontRegistry& registry, const FoundFont& found) {
  return registry.Style(found.font, false, false, AnyFont).Family();
}

/// Fontconfig's rule that calls a family by another name.
std::string Renamed(const std::string& family, const std::string& name) {
  return R"(<match target="scan"><test name="family"><string>)" + family +
         R"(</string></test><edit name="family"><string>)" + name + "</string></edit></match>";
}

/// A name on a machine with the fonts of the tests: none of those that Windows has, but ones of the
/// same metrics.
class AFontName : public testing::Test {
 protected:
  FoundFont Find(std::u16string_view name, PitchAndFamily kind = kAnyKind) {
    return FontFinder(registry, map).Find(name, kind);
  }
  std::string FamilyFor(std::u16string_view name, PitchAndFamily kind = kAnyKind) {
    return FamilyOf(registry, Find(name, kind));
  }
  void ExpectFamily(const std::string& family, std::initializer_list<std::u16string_view> names) {
    for (const std::u16string_view name : names)
      EXPECT_EQ(FamilyFor(name), family) << ToUTF8(name);
  }

  FontRegistry registry;
  FontMap map;
};

TEST_F(AFontName, IsThatOfAFamilyWhateverItsCase) {
  const FoundFont found = Find(u"DEJAVU serif");
  EXPECT_EQ(FamilyOf(registry, found), "DejaVu Serif");
  EXPECT_TRUE(found.isOriginal);
}

TEST_F(AFontName, MayBeThatOfAFace) {
  const FoundFont found = Find(u"Liberation Serif Bold");
  const StyledFace face = registry.Style(found.font, false, false, AnyFont).Face();
  EXPECT_EQ(face.typeface->Font()->Description().postScriptName, "LiberationSerif-Bold");
  EXPECT_TRUE(found.isOriginal);
}

TEST_F(AFontName, LeadsToAFamilyOfTheSameMetrics) {
  const FoundFont found = Find(u"Courier New");
  EXPECT_EQ(FamilyOf(registry, found), "Liberation Mono");
  EXPECT_FALSE(found.isOriginal);
}

TEST_F(AFontName, LeadsWhereItDoesInWindows) {
  ExpectFamily("Liberation Sans", {u"Helv", u"MS Sans Serif", u"System", u"MS Shell Dlg",
                                   u"Small Fonts", u"HELVETICA", u"Modern"});
  ExpectFamily("Liberation Serif", {u"Times", u"Tms Rmn", u"MS Serif", u"Roman"});
  ExpectFamily("Liberation Mono", {u"Courier", u"Fixedsys", u"Terminal"});
}

TEST_F(AFontName, ForScreensLeadsToLettersAsWide) {
  ExpectFamily("DejaVu Sans",
               {u"Tahoma", u"Verdana", u"Segoe UI", u"Microsoft YaHei UI", u"MS Shell Dlg 2"});
}

TEST_F(AFontName, IsBoldWhenItIsSystem) {
  EXPECT_TRUE(Find(u"System").isBold);
  EXPECT_FALSE(Find(u"Helv").isBold);
}

TEST(AFontNameOfWindows, IsReplacedWhereWindowsDoesSoEvenIfThereIsSuchAFont) {
  test::OtherFonts fonts({test::kLiberationSans, test::kJunction},
                         Renamed("Junction", "Helvetica"));
  fonts.Alias("Arial", "Liberation Sans");
  FontRegistry registry;
  ASSERT_NE(registry.FindInstalled("Helvetica"), kNoFont);
  const FoundFont found = FontFinder(registry, {}).Find(u"Helvetica", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Liberation Sans");
  EXPECT_FALSE(found.isOriginal);
}

TEST(AFontNameOfWindows, IsThatOfTheOriginalWhereItIsInstalled) {
  const test::OtherFonts fonts({test::kLiberationSans, test::kJunction},
                               Renamed("Junction", "Arial"));
  FontRegistry registry;
  const FoundFont found = FontFinder(registry, {}).Find(u"Helvetica", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Arial");
  EXPECT_TRUE(found.isOriginal);
}

TEST(AFontNameOfWindows, KeepsAnInstalledFontThatWindowsHas) {
  const test::OtherFonts fonts({test::kLiberationSans, test::kJunction},
                               Renamed("Junction", "Courier"));
  FontRegistry registry;
  const FoundFont found = FontFinder(registry, {}).Find(u"Courier", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Courier");
  EXPECT_TRUE(found.isOriginal);
}

TEST(AFontNameOfWindows, ComesBeforeWhatStandsForItElsewhere) {
  test::OtherFonts fonts({test::kLiberationSans, test::kJunction});
  fonts.Alias("Courier", "Junction");
  fonts.Alias("Courier New", "Liberation Sans");
  FontRegistry registry;
  EXPECT_EQ(FamilyOf(registry, FontFinder(registry, {}).Find(u"Courier", kAnyKind)),
            "Liberation Sans");
}

TEST_F(AFontName, LosesTheScriptAtItsEnd) {
  ExpectFamily("Liberation Sans", {u"Arial CE", u"arial cyr", u"Helv Greek", u"Arial Tur"});
  ExpectFamily("Liberation Serif", {u"Times New Roman Baltic"});
  EXPECT_TRUE(Find(u"DejaVu Serif CE").isOriginal);
}

TEST_F(AFontName, LosesNoLettersThatAreNoWord) {
  ExpectFamily("Liberation Sans", {u"DejaVu SerifCE", u"CE", u" CE"});
}

TEST(AFontNameWithAScript, IsThatOfAnInstalledFontFirst) {
  const test::OtherFonts fonts({test::kLiberationSans, test::kJunction},
                               Renamed("Junction", "Liberation Sans CE"));
  FontRegistry registry;
  const FoundFont found = FontFinder(registry, {}).Find(u"Liberation Sans CE", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Liberation Sans CE");
}

TEST_F(AFontName, MayBeSeveralOfWhichTheFirstKnownCounts) {
  const FoundFont found = Find(u"Nowhere; DejaVu Serif ;Arial");
  EXPECT_EQ(FamilyOf(registry, found), "DejaVu Serif");
  EXPECT_EQ(found.name, u"DejaVu Serif");
  ExpectFamily("DejaVu Serif", {u"DejaVu Serif;", u";DejaVu Serif", u";;Nowhere;;DejaVu Serif"});
}

TEST_F(AFontName, MayAskForVerticalWriting) {
  ExpectFamily("DejaVu Serif", {u"@DejaVu Serif", u"Nowhere;@DejaVu Serif"});
}

TEST_F(AFontName, GivesWayToTheWishOfTheUser) {
  map.Add("dejavu serif", "Junction");
  const FoundFont found = Find(u"DejaVu Serif");
  EXPECT_EQ(FamilyOf(registry, found), "Junction");
  EXPECT_FALSE(found.isOriginal);
  ExpectFamily("Junction", {u"@DejaVu Serif", u"Nowhere;DejaVu Serif", u"DejaVu Serif CE"});
}

TEST_F(AFontName, GivesWayToAWishForSeveralTogether) {
  map.Add("Arial;DejaVu Serif", "Junction");
  ExpectFamily("Junction", {u"Arial;DejaVu Serif"});
  ExpectFamily("Liberation Sans", {u"Arial"});
}

TEST_F(AFontName, LeadsWhereTheWishedOneDoes) {
  map.Add("Verdana", "Times");
  ExpectFamily("Liberation Serif", {u"Verdana"});
}

TEST_F(AFontName, CountsItselfWhenTheWishedOneIsNowhere) {
  map.Add("DejaVu Serif", "Nowhere");
  ExpectFamily("DejaVu Serif", {u"DejaVu Serif"});
}

TEST(AWishForAFont, IsTakenByTheLetter) {
  test::OtherFonts fonts({test::kLiberationSans, test::kJunction},
                         Renamed("Junction", "Helvetica"));
  fonts.Alias("Arial", "Liberation Sans");
  FontRegistry registry;
  FontMap map;
  map.Add("Helvetica", "Helvetica");
  EXPECT_EQ(FamilyOf(registry, FontFinder(registry, map).Find(u"Helvetica", kAnyKind)),
            "Helvetica");
}

TEST_F(AFontName, LeavesItToTheKindWhenItIsUnknown) {
  const auto familyFor = [&](int family, int pitch) {
    return FamilyFor(u"Nowhere", Kind(family, pitch));
  };
  EXPECT_EQ(familyFor(FF_DONTCARE, DEFAULT_PITCH), "Liberation Sans");
  EXPECT_EQ(familyFor(FF_ROMAN, VARIABLE_PITCH), "Liberation Serif");
  EXPECT_EQ(familyFor(FF_SWISS, VARIABLE_PITCH), "Liberation Sans");
  EXPECT_EQ(familyFor(FF_MODERN, VARIABLE_PITCH), "Liberation Mono");
  EXPECT_EQ(familyFor(FF_DONTCARE, FIXED_PITCH), "Liberation Mono");
  EXPECT_EQ(familyFor(FF_ROMAN, FIXED_PITCH), "Liberation Mono");
  EXPECT_EQ(familyFor(FF_DECORATIVE, VARIABLE_PITCH), "Liberation Sans");
  EXPECT_EQ(familyFor(0xF0, VARIABLE_PITCH), "Liberation Sans");
  EXPECT_FALSE(Find(u"Nowhere", Kind(FF_ROMAN, 0)).isOriginal);
}

TEST_F(AFontName, LeavesItToTheKindWhenThereIsNone) {
  EXPECT_EQ(FamilyFor(u"", Kind(FF_ROMAN, VARIABLE_PITCH)), "Liberation Serif");
}

TEST(AFontNameForScript, LeadsToAScriptIfThereIsOne) {
  test::OtherFonts fonts({test::kLiberationSans, test::kJunction});
  fonts.Alias("Arial", "Liberation Sans");
  FontRegistry plain;
  const PitchAndFamily script = Kind(FF_SCRIPT, VARIABLE_PITCH);
  EXPECT_EQ(FamilyOf(plain, FontFinder(plain, {}).Find(u"Nowhere", script)), "Liberation Sans");
  fonts.Alias("ITC Zapf Chancery", "Junction");
  FontRegistry registry;
  EXPECT_EQ(FamilyOf(registry, FontFinder(registry, {}).Find(u"Nowhere", script)), "Junction");
  EXPECT_EQ(FamilyOf(registry, FontFinder(registry, {}).Find(u"Script", kAnyKind)), "Junction");
}

TEST_F(AFontName, OfSymbolsLeadsToLettersThatGoWithThem) {
  EXPECT_EQ(FamilyFor(u"Symbol", Kind(FF_SWISS, 0)), "Liberation Serif");
  EXPECT_EQ(FamilyFor(u"MT Extra"), "Liberation Serif");
  EXPECT_EQ(FamilyFor(u"Wingdings 2", Kind(FF_ROMAN, 0)), "Liberation Sans");
  EXPECT_FALSE(Find(u"Symbol").isOriginal);
  EXPECT_EQ(Find(u"Symbol;Arial").name, u"Symbol");
}

TEST(AFontNameOfSymbols, IsThatOfAnInstalledFontWithTheirCharacters) {
  const test::OtherFonts fonts({test::kLiberationSans, test::kDejaVuSans},
                               Renamed("DejaVu Sans", "Symbol"));
  FontRegistry registry;
  const FoundFont found = FontFinder(registry, {}).Find(u"Symbol", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Symbol");
  EXPECT_TRUE(found.isOriginal);
}

TEST(AFontNameOfSymbols, IsThatOfAnInstalledFontWithTheirCodes) {
  constexpr std::size_t kEncodingOfThirdSubtable = 4 + 2 * 8 + 2;  // which is Windows' Unicode one
  test::OtherFonts fonts({}, Renamed("Liberation Sans", "Wingdings"));
  fonts.Add("font.ttf",
            test::WithField(test::kLiberationSans, "cmap", kEncodingOfThirdSubtable, 0));
  FontRegistry registry;
  const FoundFont found = FontFinder(registry, {}).Find(u"Wingdings", kAnyKind);
  EXPECT_TRUE(found.isOriginal);
}

// Junction has no Greek letters: as a font of symbols, it would have them in the place of Latin
// ones, and a cross in the place of a dot.
TEST(AFontNameOfSymbols, IsNotThatOfAFontWithSymbolsInThePlaceOfLetters) {
  test::OtherFonts fonts({test::kLiberationSans, test::kJunction}, Renamed("Junction", "Symbol"));
  fonts.Alias("Times New Roman", "Liberation Sans");
  FontRegistry registry;
  ASSERT_NE(registry.FindInstalled("Symbol"), kNoFont);
  const FoundFont found = FontFinder(registry, {}).Find(u"Symbol", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Liberation Sans");
}

TEST(AFontNameOfSymbols, DoesNotLeadToWhatStandsForItElsewhere) {
  test::OtherFonts fonts({test::kLiberationSans, test::kJunction});
  fonts.Alias("Symbol", "Junction");
  fonts.Alias("Times New Roman", "Liberation Sans");
  FontRegistry registry;
  const FoundFont found = FontFinder(registry, {}).Find(u"Symbol", kAnyKind);
  EXPECT_EQ(FamilyOf(registry, found), "Liberation Sans");
}

TEST_F(AFontName, MayBeNoUnicode) {
  ExpectFamily("Liberation Sans", {u"\xD800", u"Arial\xDC00", u"\xFFFF\x1"});
}

TEST(AFontNameOnAMachineWithoutFonts, LeadsToTheDefaultFont) {
  FontRegistry registry([] { return OpenFontFiles({}); });
  const FoundFont found = FontFinder(registry, {}).Find(u"Arial", kAnyKind);
  EXPECT_EQ(found.font, kDefaultFont);
  EXPECT_FALSE(found.isOriginal);
}

TEST_F(AFontName, LeadsNowhereAfterVeryManyOthers) {
  FontFinder finder(registry, map);
  std::u16string name = u"0000";
  for (std::size_t i = 0; i < FontFinder::kMostNames; ++i) {
    EXPECT_FALSE(finder.IsSpent());
    name[i % 4] = static_cast<char16_t>(u'A' + i / 4);
    finder.Find(name, kAnyKind);
  }
  EXPECT_TRUE(finder.IsSpent());
  const FoundFont found = finder.Find(u"DejaVu Serif", Kind(FF_MODERN, 0));
  EXPECT_EQ(FamilyOf(registry, found), "Liberation Mono");
}

}  // namespace
}  // namespace kelvane
