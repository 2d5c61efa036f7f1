#include "platform/atsui/atsu_layout.h"

#include <gmock/gmock.h>

#include "platform/fonts/fontconfig_catalog.h"
#include "platform/quartz/cg_context_calls.h"
#include "support/fonts.h"
#include "support/pdf.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::DrawText;
using test::DrawUnits;
using test::TextSetting;
using test::TraceOf;
using testing::HasSubstr;
using testing::StartsWith;

// At this size the face's own units are those of the page: H is 1479 wide, A 1366.
constexpr float kUnitsPerEm = 2048;

std::string TraceOfText(std::u16string_view text, const TextSetting& setting) {
  return TraceOf([&](CGContextRef surface) { DrawText(surface, text, setting); });
}

TEST(ATSUDrawText, StandsEachGlyphBehindTheOneBefore) {
  EXPECT_EQ(TraceOfText(u"HA", {.size = kUnitsPerEm, .x = 3, .y = 4}),
            "text \"HA\" LiberationSans 2048 under 1 0 0 1 3 4\n  at 0 0\n  at 1479 0\n");
}

TEST(ATSUDrawText, KernsAWholeLine) {
  EXPECT_THAT(TraceOfText(u"AV", {.size = kUnitsPerEm}), HasSubstr("  at 1214 0\n"));
}

TEST(ATSUDrawText, DrawsASingleUnitAtThePen) {
  EXPECT_EQ(TraceOfText(u"H", {.x = 3, .y = -4}),
            "text \"H\" LiberationSans 10 under 1 0 0 1 3 -4\n");
}

TEST(ATSUDrawText, TurnsTheLineCounterClockwise) {
  EXPECT_EQ(TraceOfText(u"H", {.rotation = 90, .x = 3, .y = 4}),
            "text \"H\" LiberationSans 10 under 0 1 -1 0 3 4\n");
}

TEST(ATSUDrawText, TurnsTheLineClockwiseByLessThanNothing) {
  EXPECT_EQ(TraceOfText(u"H", {.rotation = -90}),
            "text \"H\" LiberationSans 10 under 0 -1 1 0 0 0\n");
}

TEST(ATSUDrawText, TurnsTheLineByAnyAngle) {
  EXPECT_EQ(TraceOfText(u"H", {.rotation = 30}),
            "text \"H\" LiberationSans 10 under 0.8660254 0.5 -0.5 0.8660254 0 0\n");
}

TEST(ATSUDrawText, StandsUnderTheCTM) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) {
              CGContextConcatCTM(surface, CGAffineTransformMake(2, 0, 0, 3, 5, 7));
              DrawText(surface, u"H", {.x = 10, .y = 20});
            }),
            "text \"H\" LiberationSans 10 under 2 0 0 3 25 67\n");
}

TEST(ATSUDrawText, TakesNoNoticeOfTheTextMatrix) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) {
              CGContextSetTextMatrix(surface, CGAffineTransformMake(2, 0, 0, 2, 5, 5));
              DrawText(surface, u"H", {});
            }),
            TraceOfText(u"H", {}));
}

TEST(ATSUDrawText, DrawsInTheFillColour) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) {
              const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
              CGContextSetFillColorSpace(surface, rgb.get());
              constexpr CGFloat kRed[] = {1, 0, 0, 1};
              CGContextSetFillColor(surface, kRed);
              DrawText(surface, u"H", {});
            }),
            "fill-color 1 0 0\ntext \"H\" LiberationSans 10 under 1 0 0 1 0 0\n");
}

TEST(ATSUDrawText, SlantsAFaceWhoseFamilyHasNoItalic) {
  EXPECT_EQ(TraceOfText(u"H", {.font = "DejaVu Sans", .italic = true}),
            "text \"H\" DejaVuSans 10 under 1 0 0.21255656 1 0 0\n");
}

TEST(ATSUDrawText, ThickensAFaceWhoseFamilyHasNoBoldInTheFillColour) {
  EXPECT_EQ(TraceOfText(u"H", {.font = "Junction", .size = 24, .bold = true}),
            "miter-limit 2\ntext-mode 2\ntext \"H\" Junction 24 under 1 0 0 1 0 0\n");
}

TEST(ATSUDrawText, LeavesTheStateAsItWas) {
  EXPECT_THAT(TraceOf([](CGContextRef surface) {
                DrawText(surface, u"H", {.font = "Junction", .bold = true});
                DrawText(surface, u"H", {.font = "Junction"});
              }),
              HasSubstr("text-mode 0\ntext \"H\" Junction 10 under 1 0 0 1 0 0\n"));
}

TEST(ATSUDrawText, ScalesTheThickeningWithTheCTM) {
  EXPECT_THAT(TraceOf([](CGContextRef surface) {
                CGContextConcatCTM(surface, CGAffineTransformMakeScale(4, 1));
                DrawText(surface, u"H", {.font = "Junction", .size = 24, .bold = true});
              }),
              StartsWith("line-width 2\n"));
}

TEST(ATSUDrawText, TakesAMissingCharacterFromAnotherFace) {
  EXPECT_EQ(TraceOfText(u"\u6F22", {}), "text \"\u6F22\" WenQuanYiMicroHei 10 under 1 0 0 1 0 0\n");
}

TEST(ATSUDrawText, ShowsABoxWhereNoOtherFaceMayStandIn) {
  EXPECT_EQ(TraceOfText(u"\u6F22", {.usesStandIns = false}),
            "text \"\u6F22\" LiberationSans 10 under 1 0 0 1 0 0\n");
}

TEST(ATSUDrawText, ChoosesAFaceThatTheSurfaceCanShow) {
  constexpr unsigned kRestricted = 2;
  const test::TemporaryFolder folder;
  const std::string restricted = folder / "restricted.ttf";
  test::WriteFile(restricted, test::WithLicence(test::kLiberationSans, kRestricted));
  FontRegistry fonts([&] { return OpenFontFiles({restricted, test::kDejaVuSans}); });
  const auto draw = [&](CGContextRef surface) { DrawText(surface, u"H", {.fonts = fonts}); };
  EXPECT_THAT(TraceOf(draw), StartsWith("text \"H\" LiberationSans 10"));
  EXPECT_THAT(test::FontsIn(test::PdfBytesOf(draw)), HasSubstr("+DejaVuSans "));
}

class AUnitOfItsOwn : public testing::TestWithParam<char16_t> {};

TEST_P(AUnitOfItsOwn, MarksNothing) {
  EXPECT_EQ(TraceOfText(std::u16string(1, GetParam()), {}), "");
}

INSTANTIATE_TEST_SUITE_P(Each, AUnitOfItsOwn,
                         testing::Values(u'\0', u'\t', u'\n', u'\u007F', u'\u0085', u'\xD834',
                                         u'\xDD1E', u'\u200F', u'\uFEFF'));

TEST(ATSUDrawText, ShowsASurrogatePairDrawnAsALine) {
  EXPECT_THAT(TraceOfText(u"\U0001D538", {}), StartsWith("text \"\U0001D538\" DejaVuSans 10"));
}

TEST(ATSUDrawText, MarksNothingForASurrogatePairDrawnUnitByUnit) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) { DrawUnits(surface, u"\U0001D538", 5); }), "");
}

TEST(ATSUDrawText, SetsALineOfAnyLength) {
  std::u16string brackets;
  for (int i = 0; i < 200000; ++i)
    brackets += u"()";
  std::size_t drawn = 0;
  const std::string trace = TraceOfText(brackets, {});
  for (std::size_t at = 0; (at = trace.find("\n  at", at)) != std::string::npos; ++at)
    ++drawn;
  EXPECT_EQ(drawn, brackets.size());
}

TEST(ATSUDrawText, MarksNothingWithoutASize) {
  EXPECT_EQ(TraceOfText(u"H", {.size = 0}), "");
}

TEST(ATSUDrawText, MarksNothingInASizeThatDoesNotFit) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) {
              ATSUStyle style = nullptr;
              ATSUCreateStyle(&style);
              style->size = static_cast<Fixed>(std::uint32_t{32768} << 16);
              ATSUTextLayout layout = nullptr;
              const char16_t text = u'H';
              ATSUCreateTextLayoutWithTextPtr(&text, 0, 1, 1, 1, nullptr, &style, &layout);
              layout->context = surface;
              ATSUDrawText(layout, 0, 1, 0, 0);
              ATSUDisposeTextLayout(layout);
              ATSUDisposeStyle(style);
            }),
            "");
}

TEST(ATSUDrawText, ReachesPositionsBeyondSixteenBits) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) {
              ATSUStyle style = nullptr;
              ATSUCreateStyle(&style);
              ATSUTextLayout layout = nullptr;
              const char16_t text = u'H';
              ATSUCreateTextLayoutWithTextPtr(&text, 0, 1, 1, 1, nullptr, &style, &layout);
              ATSUDisposeStyle(style);
              layout->context = surface;
              ATSUDrawText(layout, 0, 1, ATSUTextMeasurement{100000} << 16,
                           -(ATSUTextMeasurement{100000} << 16));
              ATSUDisposeTextLayout(layout);
            }),
            "text \"H\" LiberationSans 12 under 1 0 0 1 100000 -100000\n");
}

TEST(ATSULayout, DrawsAPartOfItsText) {
  EXPECT_EQ(TraceOf([](CGContextRef surface) {
              ATSUStyle style = nullptr;
              ATSUCreateStyle(&style);
              ATSUTextLayout layout = nullptr;
              const std::u16string text = u"ABC";
              ATSUCreateTextLayoutWithTextPtr(text.data(), kATSUFromTextBeginning, kATSUToTextEnd,
                                              3, 1, nullptr, &style, &layout);
              ATSUDisposeStyle(style);
              layout->context = surface;
              ATSUDrawText(layout, 1, 1, 0, 0);
              ATSUDrawText(layout, 3, 1, 0, 0);
              ATSUDisposeTextLayout(layout);
            }),
            "text \"B\" LiberationSans 12 under 1 0 0 1 0 0\n");
}

TEST(ATSULayout, IsOfOneStyle) {
  ATSUTextLayout layout = nullptr;
  EXPECT_EQ(ATSUCreateTextLayoutWithTextPtr(u"", 0, 0, 0, 2, nullptr, nullptr, &layout), paramErr);
}

TEST(ATSULayout, DrawsOnNothingWithoutASurface) {
  ATSUStyle style = nullptr;
  ATSUCreateStyle(&style);
  ATSUTextLayout layout = nullptr;
  ATSUCreateTextLayoutWithTextPtr(u"A", 0, 1, 1, 1, nullptr, &style, &layout);
  EXPECT_EQ(ATSUDrawText(layout, 0, 1, 0, 0), paramErr);
  ATSUDisposeTextLayout(layout);
  ATSUDisposeStyle(style);
}

TEST(ATSULayout, RefusesAControlItDoesNotHave) {
  ATSUStyle style = nullptr;
  ATSUCreateStyle(&style);
  ATSUTextLayout layout = nullptr;
  ATSUCreateTextLayoutWithTextPtr(u"A", 0, 1, 1, 1, nullptr, &style, &layout);
  const ATSUAttributeTag tag = 1;
  const ByteCount size = sizeof tag;
  const void* const value = &tag;
  EXPECT_EQ(ATSUSetLayoutControls(layout, 1, &tag, &size, &value), kATSUInvalidAttributeTagErr);
  ATSUDisposeTextLayout(layout);
  ATSUDisposeStyle(style);
}

}  // namespace
}  // namespace kelvane
