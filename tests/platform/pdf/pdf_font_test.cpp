#include "platform/pdf/pdf_font.h"

#include <gmock/gmock.h>

#include "support/files.h"
#include "support/fonts.h"
#include "support/pdf.h"
#include "support/process.h"
#include "support/raster.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::DrawText;
using test::FontsIn;
using test::PdfBytesOf;
using test::TextIn;
using testing::ContainsRegex;
using testing::HasSubstr;
using testing::MatchesRegex;

constexpr std::u16string_view kSixtyLetters =
    u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz01234567";

std::string PdfWith(std::u16string_view text, const char* font = "Liberation Sans") {
  return PdfBytesOf(
      [&](CGContextRef surface) { DrawText(surface, text, {.font = font, .x = 10, .y = 50}); });
}

/// @return the composite font /F1 of the only page.
QPDFObjectHandle FontIn(const test::Pdf& pdf) {
  return pdf.Page().getKey("/Resources").getKey("/Font").getKey("/F1");
}

QPDFObjectHandle DescriptorIn(const test::Pdf& pdf) {
  return FontIn(pdf).getKey("/DescendantFonts").getArrayItem(0).getKey("/FontDescriptor");
}

TEST(PdfFont, TravelsWithTheDocumentAsASubset) {
  EXPECT_THAT(FontsIn(PdfWith(u"Hello")),
              ContainsRegex("\\+LiberationSans +CID TrueType +Identity-H +yes yes yes"));
}

TEST(PdfFont, KeepsCompactOutlinesAsTheyAre) {
  const test::Pdf pdf(PdfWith(u"Hello", "Junction"));
  EXPECT_EQ(DescriptorIn(pdf).getKey("/FontFile3").getDict().getKey("/Subtype").getName(),
            "/CIDFontType0C");
}

TEST(PdfFont, AddsLessThanEightKilobytesForSixtyLetters) {
  const std::size_t withoutText = PdfBytesOf([](CGContextRef) {}).size();
  EXPECT_LT(PdfWith(kSixtyLetters).size() - withoutText, 8000U);
}

TEST(PdfFont, DescribesItsFace) {
  const test::Pdf pdf(PdfWith(u"Hello"));
  QPDFObjectHandle descriptor = DescriptorIn(pdf);
  EXPECT_EQ(descriptor.getKey("/Ascent").unparse(), "905");
  EXPECT_EQ(descriptor.getKey("/Descent").unparse(), "-212");
  EXPECT_EQ(descriptor.getKey("/ItalicAngle").unparse(), "0");
  EXPECT_EQ(descriptor.getKey("/Flags").unparse(), "4");
}

TEST(PdfFont, DescribesAnItalicFaceWithSerifs) {
  const test::Pdf pdf(PdfWith(u"Hello", "Liberation Serif Italic"));
  constexpr int kSerifSymbolicItalic = 2 + 4 + 64;
  EXPECT_EQ(DescriptorIn(pdf).getKey("/Flags").getIntValueAsInt(), kSerifSymbolicItalic);
}

TEST(PdfFont, DescribesAFixedPitch) {
  const test::Pdf pdf(PdfWith(u"Hello", "Liberation Mono"));
  EXPECT_EQ(DescriptorIn(pdf).getKey("/Flags").getIntValueAsInt() & 1, 1);
}

TEST(PdfFont, NamesASubsetByItsContent) {
  const test::Pdf first(PdfWith(u"Hello"));
  const test::Pdf second(PdfWith(u"Help"));
  const std::string firstName = FontIn(first).getKey("/BaseFont").getName();
  EXPECT_THAT(firstName, MatchesRegex("/[A-Z]{6}\\+LiberationSans"));
  EXPECT_NE(firstName, FontIn(second).getKey("/BaseFont").getName());
}

TEST(PdfFont, IsStoredOnceForAllItsText) {
  const std::string fonts = FontsIn(PdfBytesOf([](CGContextRef surface) {
    DrawText(surface, u"one", {.x = 1, .y = 10});
    DrawText(surface, u"two", {.size = 20, .x = 1, .y = 40});
  }));
  EXPECT_EQ(fonts.find("LiberationSans"), fonts.rfind("LiberationSans"));
}

TEST(PdfFont, WritesTheWidthsOfItsGlyphsAsWholeNumbers) {
  const test::Pdf pdf(PdfWith(u"Hi"));
  EXPECT_EQ(FontIn(pdf).getKey("/DescendantFonts").getArrayItem(0).getKey("/W").unparse(),
            "[ 1 [ 722 222 ] ]");
}

TEST(PdfFont, GivesAGlyphACodeForEachTextItStandsFor) {
  EXPECT_EQ(TextIn(PdfWith(u"a\u03A9 \u2126b", "DejaVu Sans")), "a\u03A9 \u2126b");
}

TEST(PdfFont, ShowsTheBoxForAMissingCharacterWithItsText) {
  EXPECT_EQ(TextIn(PdfWith(u"a\u2E80b")), "a\u2E80b");
}

/// A font whose outlines are of either kind.
class PdfFontOfAKind : public testing::TestWithParam<const char*> {
 protected:
  static std::string PdfAlone(std::u16string_view text) {
    return PdfBytesOf([&](CGContextRef surface) {
      DrawText(surface, text, {.font = GetParam(), .x = 10, .y = 50, .usesStandIns = false});
    });
  }
};

TEST_P(PdfFontOfAKind, KeepsTheTextOfEachMissingCharacter) {
  EXPECT_EQ(TextIn(PdfAlone(u"a\u0E01b\u0E02\u0E03c\u0E01")), "a\u0E01b\u0E02\u0E03c\u0E01");
}

TEST_P(PdfFontOfAKind, KeepsTheTextOfEachWayToWriteALetter) {
  EXPECT_EQ(TextIn(PdfAlone(u"1\u00E92e\u03013")), "1\u00E92e\u03013");
}

TEST_P(PdfFontOfAKind, DrawsTheSameForEachTextOfAGlyph) {
  const test::Raster one(PdfAlone(u"a\u0E01b\u0E02\u00E9"));
  const test::Raster other(PdfAlone(u"a\u0E01b\u0E01e\u0301"));
  EXPECT_EQ(test::DifferingPixels(one, other, 0), 0);
  EXPECT_NE(test::DifferingPixels(one, test::Raster(PdfAlone(u"a\u0E01b\u00E9")), 0), 0);
}

TEST_P(PdfFontOfAKind, MakesDocumentsWithoutFaults) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "text.pdf", PdfAlone(u"a\u0E01\u0E02\u00E9e\u0301"));
  EXPECT_EQ(test::ComplaintsAbout(folder / "text.pdf"), "");
}

INSTANTIATE_TEST_SUITE_P(
    Each, PdfFontOfAKind, testing::Values("Liberation Sans", "Junction"), [](const auto& font) {
      return std::string(font.param).substr(0, std::string(font.param).find(' '));
    });

TEST(PdfFont, HasAnEncodingOfItsOwnOnlyForCompactGlyphsOfSeveralTexts) {
  const auto encodingOf = [](std::u16string_view text, const char* font) {
    return FontIn(test::Pdf(PdfWith(text, font))).getKey("/Encoding").isName();
  };
  EXPECT_TRUE(encodingOf(u"1\u00E92", "Junction"));
  EXPECT_FALSE(encodingOf(u"1\u00E92e\u0301", "Junction"));
  EXPECT_TRUE(encodingOf(u"1\u00E92e\u0301", "Liberation Sans"));
}

TEST(PdfFont, WritesTheWidthOfACompactGlyphOnceForAllItsTexts) {
  const test::Pdf pdf(PdfWith(u"\u00E9e\u0301", "Junction"));
  auto widths = FontIn(pdf).getKey("/DescendantFonts").getArrayItem(0).getKey("/W");
  ASSERT_EQ(widths.getArrayNItems(), 2);
  EXPECT_EQ(widths.getArrayItem(1).getArrayNItems(), 1);
}

TEST(PdfFont, TakesTheMemberOfACollection) {
  EXPECT_THAT(FontsIn(PdfWith(u"mono", "WenQuanYi Micro Hei Mono")),
              HasSubstr("+WenQuanYiMicroHeiMono "));
}

TEST(PdfFont, MakesDocumentsWithoutFaults) {
  const test::TemporaryFolder folder;
  for (const char* font : {"Liberation Sans", "Junction", "WenQuanYi Micro Hei"}) {
    test::WriteFile(folder / "text.pdf", PdfWith(u"Hello \u4E2D", font));
    EXPECT_EQ(test::ComplaintsAbout(folder / "text.pdf"), "") << font;
  }
}

struct ScriptCase {
  const char* name;
  std::u16string text;
  std::string found;
};

void PrintTo(const ScriptCase& script, std::ostream* out) {
  *out << script.name;
}

class TextOfEveryScript : public testing::TestWithParam<ScriptCase> {};

TEST_P(TextOfEveryScript, IsFoundAsItWasWritten) {
  EXPECT_EQ(TextIn(PdfWith(GetParam().text)), GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(
    Each, TextOfEveryScript,
    testing::Values(ScriptCase{"latin", u"Quick f\u00FCnf", "Quick f\u00FCnf"},
                    ScriptCase{"greek", u"\u0395\u03BB\u03BB\u03AC\u03B4\u03B1",
                               "\u0395\u03BB\u03BB\u03AC\u03B4\u03B1"},
                    ScriptCase{"cyrillic", u"\u041A\u0438\u0440\u0438\u043B\u043B",
                               "\u041A\u0438\u0440\u0438\u043B\u043B"},
                    ScriptCase{"cjk", u"\u6F22\u5B57", "\u6F22\u5B57"},
                    ScriptCase{"beyond16Bits", u"\U0001D538", "\U0001D538"}),
    [](const auto& script) { return script.param.name; });

}  // namespace
}  // namespace kelvane
