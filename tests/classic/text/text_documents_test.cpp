#include <cmath>
#include <regex>
#include <thread>

#include <gmock/gmock.h>

#include "platform/fonts/typeface.h"
#include "support/converter.h"
#include "support/fonts.h"
#include "support/pdf.h"
#include "support/playback.h"
#include "support/surface.h"

// Metafiles with text, all the way to documents.

namespace kelvane {
namespace {

using test::ConvertToPdf;
using test::FontAttributes;
using test::FontsIn;
using test::Metafile;
using test::TextIn;
using testing::ContainsRegex;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

/// A page with a font, text standing on its baseline.
Metafile Page(const FontAttributes& font = {}) {
  return Metafile()
      .Bounds(0, 0, 400, 300)
      .CreateFont(1, font)
      .SelectObject(1)
      .SetTextAlign(test::kTextBaseline);
}

/// `count` times the same spacing.
std::vector<std::uint32_t> Even(std::size_t count, std::uint32_t distance) {
  std::vector<std::uint32_t> distances(count, distance);
  return distances;
}

/// The spacing of text as it is usually set: each unit's own width, in whole units.
std::vector<std::uint32_t> Natural(std::u16string_view text) {
  static const auto kTypeface = Typeface::Open(test::kLiberationSans, 0);
  std::vector<std::uint32_t> spacing;
  for (const char16_t unit : text) {
    const CGFloat width = 10 * kTypeface->Font()->Advance(kTypeface->GlyphFor(unit).value());
    spacing.push_back(static_cast<std::uint32_t>(std::lround(width)));
  }
  return spacing;
}

Metafile& AddLine(Metafile& metafile, test::At reference, std::u16string_view text) {
  return metafile.TextOut(reference, text, Natural(text));
}

/// Converts with the tool in a process of its own, and so with fonts of its own.
std::string ConvertElsewhere(const Metafile& metafile) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "text.emf", metafile.Build());
  EXPECT_EQ(test::RunConverter({folder / "text.emf"}).status, 0);
  return test::ReadFile(folder / "text.pdf");
}

TEST(ATextDocument, GivesItsLinesBackAsTheyWereWritten) {
  Metafile metafile = Page();
  AddLine(metafile, {10, 20}, u"The quick brown fox");
  AddLine(metafile, {10, 40}, u"jumps over");
  AddLine(metafile, {10, 60}, u"the lazy dog.");
  EXPECT_EQ(TextIn(ConvertToPdf(metafile.Build())),
            "The quick brown fox\njumps over\nthe lazy dog.");
}

TEST(ATextDocument, WritesALineOfUnitsAsOneString) {
  const std::string content = PageContent(Page().TextOut({10, 20}, u"abcab", Even(5, 6)));
  EXPECT_THAT(content, ContainsRegex("^BT\n/F1 10 Tf\n1 0 0 1 10 -20 Tm\n\\[[^\n]*\\]TJ\nET\n$"));
}

TEST(ATextDocument, SharesATextObjectBetweenLines) {
  const std::string content =
      PageContent(Page().TextOut({10, 20}, u"ab", {6, 6}).TextOut({10, 40}, u"ab", {6, 6}));
  EXPECT_EQ(content.find("BT"), content.rfind("BT"));
  EXPECT_EQ(content.find("Tf"), content.rfind("Tf"));
}

TEST(ATextDocument, WritesColoursOnlyWhereTheyChange) {
  Metafile metafile = Page();
  metafile.SetTextColor(test::Rgb(128, 0, 0));
  metafile.TextOut({10, 20}, u"ab", {6, 6}).TextOut({10, 40}, u"ab", {6, 6});
  const std::string content = PageContent(metafile);
  EXPECT_EQ(content.find(" rg"), content.rfind(" rg"));
}

TEST(ATextDocument, EmbedsASubsetOfEveryFont) {
  const Metafile metafile = Page()
                                .TextOut({10, 20}, u"Latin \u6F22\u05D0", Even(8, 10))
                                .CreateFont(2, {.face = u"Junction"})
                                .SelectObject(2)
                                .TextOut({10, 40}, u"Compact", Even(7, 6));
  const std::string fonts = FontsIn(ConvertToPdf(metafile.Build()));
  for (const char* name : {"LiberationSans", "WenQuanYiMicroHei", "DejaVuSans", "Junction"}) {
    EXPECT_THAT(fonts, ContainsRegex("\\+" + std::string(name) + ".* yes yes yes"));
  }
}

TEST(ATextDocument, GivesACheckerNothingToComplainOf) {
  const Metafile metafile = Page({.face = u"Junction", .width = 700, .italic = 1})
                                .TextOut({10, 20}, u"Bold \u6F22\u05D0", Even(8, 10))
                                .CreateFont(2, {.escapement = 300})
                                .TextOut({10, 200}, u"Turned \u05D0\u05D1");
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "text.pdf", ConvertToPdf(metafile.Build()));
  EXPECT_EQ(test::ComplaintsAbout(folder / "text.pdf"), "");
}

struct LineCase {
  const char* name;
  std::u16string text;
  std::string found;
};

void PrintTo(const LineCase& line, std::ostream* out) {
  *out << line.name;
}

class ATurnedLine : public testing::TestWithParam<LineCase> {};

TEST_P(ATurnedLine, IsFoundAsItWasWritten) {
  const std::string text = TextIn(ConvertToPdf(
      Page({.height = -20, .escapement = 900}).TextOut({200, 280}, GetParam().text).Build()));
  // The reader marks where writing runs from right to left.
  EXPECT_EQ(std::regex_replace(text, std::regex("\xE2\x80[\xAA-\xAC]"), ""), GetParam().found);
}

INSTANTIATE_TEST_SUITE_P(
    Each, ATurnedLine,
    testing::Values(LineCase{"latin", u"office", "office"},
                    LineCase{"hebrew", u"\u05E9\u05DC\u05D5\u05DD", "\u05E9\u05DC\u05D5\u05DD"},
                    LineCase{"arabic", u"\u0634\u0643\u0631\u0627", "\u0634\u0643\u0631\u0627"},
                    LineCase{"cjk", u"\u6F22\u5B57", "\u6F22\u5B57"},
                    LineCase{"pair", u"\U0001D538", "\U0001D538"}),
    [](const auto& line) { return line.param.name; });

/// Where the glyphs of a page stand.
using Origins = std::vector<CGPoint>;

/// @return the first glyph of each run in a trace.
Origins OriginsInTrace(const std::string& trace) {
  static const std::regex kRun("text \".*\" \\S+ \\S+ under \\S+ \\S+ \\S+ \\S+ (\\S+) (\\S+)\n");
  Origins origins;
  for (std::sregex_iterator run(trace.begin(), trace.end(), kRun), end; run != end; ++run) {
    origins.push_back({std::stof((*run)[1]), std::stof((*run)[2])});
  }
  return origins;
}

/// @return the glyphs that an independent reader finds on the page.
Origins OriginsInPdf(const std::string& pdf) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "text.pdf", pdf);
  const std::string trace = test::Run({"mutool", "trace", folder / "text.pdf"}).output;
  static const std::regex kGlyph("<g [^>]* x=\"([^\"]*)\" y=\"([^\"]*)\"");
  Origins origins;
  for (std::sregex_iterator glyph(trace.begin(), trace.end(), kGlyph), end; glyph != end; ++glyph) {
    origins.push_back({std::stof((*glyph)[1]), std::stof((*glyph)[2])});
  }
  return origins;
}

class GlyphOrigins : public testing::TestWithParam<XForm> {};

TEST_P(GlyphOrigins, AreThoseOfTheTraceForAnyReader) {
  const Metafile metafile = Page({.face = u"Junction"})
                                .ModifyWorldTransform(GetParam(), test::kSetTransform)
                                .TextOut({10, 20}, u"Spread out", {7, 3, 12, 0, 9, 40, 5, 5, 5, 5})
                                .TextOut({11, 21}, u"and close", Even(9, 1));
  const Origins expected = OriginsInTrace(Trace(metafile));
  const Origins found = OriginsInPdf(ConvertToPdf(metafile.Build()));
  ASSERT_EQ(found.size(), expected.size());
  for (std::size_t i = 0; i < found.size(); ++i) {
    EXPECT_NEAR(found[i].x, expected[i].x, 0.02) << i;
    EXPECT_NEAR(found[i].y, expected[i].y, 0.02) << i;
  }
}

INSTANTIATE_TEST_SUITE_P(Each, GlyphOrigins,
                         testing::Values(XForm{1, 0, 0, 1, 0, 0}, XForm{2, 0, 0, 3, 5, 7},
                                         XForm{0.8F, 0.6F, -0.6F, 0.8F, 100, 0},
                                         XForm{1, 0, 0.5F, 1, 0, 0},
                                         XForm{0, -10, 10, 0, 2000, 0}));

TEST(ATextDocument, IsTheSameFromManyThreads) {
  const std::vector<unsigned char> metafile =
      Page().TextOut({10, 20}, u"Threads \u6F22\u05D0", Even(10, 10)).Build();
  const std::string alone = ConvertToPdf(metafile);
  std::vector<std::string> documents(8);
  std::vector<std::thread> threads;
  for (std::string& document : documents) {
    threads.emplace_back([&] { document = ConvertToPdf(metafile); });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_THAT(documents, testing::Each(alone));
}

TEST(ATextDocument, IsTheSameFromAnotherProcess) {
  const Metafile metafile = Page().TextOut({10, 20}, u"Again \u6F22", Even(7, 10));
  EXPECT_EQ(ConvertElsewhere(metafile), ConvertElsewhere(metafile));
}

class WithoutFonts : public testing::Test {
 private:
  test::OtherFonts none_{{}};
};

TEST_F(WithoutFonts, TextIsSetInTheStandardHelvetica) {
  const std::string fonts = FontsIn(ConvertElsewhere(Page().TextOut({10, 20}, u"Hi", {7, 7})));
  EXPECT_THAT(fonts, ContainsRegex("\nHelvetica +Type 1 +WinAnsi +no +no +no"));
}

TEST_F(WithoutFonts, WinAnsiTextIsFoundAsItWasWritten) {
  Metafile metafile = Page();
  AddLine(metafile, {10, 20}, u"\u20AC5 f\u00FCr");
  EXPECT_EQ(TextIn(ConvertElsewhere(metafile)), "\u20AC5 f\u00FCr");
}

TEST_F(WithoutFonts, OtherCharactersMarkNothing) {
  EXPECT_EQ(TextIn(ConvertElsewhere(Page().TextOut({10, 20}, u"a\u6F22b", {5, 1, 5}))), "ab");
}

TEST_F(WithoutFonts, ALineIsTurnedAndSpacedByTheStandardWidths) {
  const std::string pdf =
      ConvertElsewhere(Page({.height = 1000, .escapement = 900}).TextOut({10, 20}, u"AB"));
  EXPECT_THAT(test::Pdf(pdf).Content(), HasSubstr("0 1 -1 0 10 -20 Tm\n[<4142>]TJ"));
}

TEST_F(WithoutFonts, BoldAndItalicAreMadeUp) {
  const std::string content =
      test::Pdf(ConvertElsewhere(Page({.width = 700, .italic = 1}).TextOut({10, 20}, u"A")))
          .Content();
  EXPECT_THAT(content, HasSubstr("2 Tr\n"));
  EXPECT_THAT(content, HasSubstr("1 0 0.21255656 1 10 -20 Tm"));
}

constexpr const char* kSansIsLiberation =
    R"(<alias binding="same"><family>sans</family><accept><family>Liberation Sans</family></accept></alias>)";
constexpr const char* kHelveticaIsAFullName = R"(<match target="scan">
    <test name="fullname"><string>DejaVu Sans</string></test>
    <edit name="fullname" mode="assign"><string>Helvetica</string></edit></match>)";

std::string FontsOfSansWith(const std::string& rules) {
  const test::OtherFonts fonts({test::kDejaVuSans, test::kLiberationSans}, rules);
  return FontsIn(ConvertElsewhere(Page({.face = u"sans"}).TextOut({10, 20}, u"a")));
}

TEST(TheFontOfSans, IsHelveticaByItsFullNameFirst) {
  EXPECT_THAT(FontsOfSansWith(std::string(kSansIsLiberation) + kHelveticaIsAFullName),
              HasSubstr("DejaVuSans"));
}

TEST(TheFontOfSans, IsThatOfItsOwnFamilyWithoutHelvetica) {
  EXPECT_THAT(FontsOfSansWith(kSansIsLiberation), HasSubstr("LiberationSans"));
}

/// Runs the tool while Fontconfig tells of every configuration it reads.
std::string TalkOfFonts(const Metafile& metafile) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "text.emf", metafile.Build());
  return test::RunConverterAfter("export FC_DEBUG=1024", folder / "text.emf").output;
}

TEST(FontsOfTheMachine, AreNotLookedAtWithoutText) {
  EXPECT_THAT(TalkOfFonts(Page().Polyline({{0, 0}, {9, 9}})), Not(HasSubstr("fonts.conf")));
}

TEST(FontsOfTheMachine, AreLookedAtForText) {
  EXPECT_THAT(TalkOfFonts(Page().TextOut({10, 20}, u"a")), HasSubstr("fonts.conf"));
}

TEST(FontsOfTheMachine, MayBeConfiguredByAFileThatIsMissing) {
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "text.emf", Page().TextOut({10, 20}, u"a").Build());
  EXPECT_EQ(
      test::RunConverterAfter("export FONTCONFIG_FILE=/nowhere.conf", folder / "text.emf").status,
      0);
}

}  // namespace
}  // namespace kelvane
