#include "gdiplus/strings.h"

#include <chrono>
#include <initializer_list>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "gdiplus/clips.h"
#include "gdiplus/transforms.h"
#include "gdiplus/written_graphics.h"

namespace kelvane::gdiplus {
namespace {

const EmfPlusBrush kInk = Argb{0, 0, 255, 255};
const EmfPlusBrush kHalfInk = Argb{0, 0, 255, 128};

/// A line of what a WrittenGraphics tells.
std::string At(std::string_view text, double x, double y) {
  return '"' + std::string(text) + "\" " + Rounded(std::to_string(x)) + ' ' +
         Rounded(std::to_string(y)) + '\n';
}

/// A line along text as its mark. The page keeps hundredths, and edges off the middle of pixels.
std::string Rule(double left, double right, double top, double bottom) {
  constexpr double kNearlyHalf = 0.004;
  const auto corner = [](double x, double y) {
    return Rounded(std::to_string(x + kNearlyHalf)) + ' ' +
           Rounded(std::to_string(y - kNearlyHalf)) + '\n';
  };
  return "move " + corner(left, bottom) + "line " + corner(right, bottom) + "line " +
         corner(right, top) + "line " + corner(left, top) + "close\nfill\n";
}

class AString : public testing::Test {
 protected:
  void Draw(std::u16string_view text, const RectF& layout, const EmfPlusStringFormat& format,
            std::int32_t style = 0) {
    DrawString(graphics, text, WrittenGraphics::Plain(style), kInk, layout, &format);
  }

  std::string Lines(std::u16string_view text, const RectF& layout,
                    const EmfPlusStringFormat& format) {
    Draw(text, layout, format);
    return graphics.Lines();
  }

  static EmfPlusStringFormat Aligned(EmfPlusStringAlignment along, EmfPlusStringAlignment across,
                                     std::uint32_t flags = 0) {
    EmfPlusStringFormat format = WrittenGraphics::WithoutMargins(flags);
    format.alignment = along;
    format.lineAlignment = across;
    return format;
  }

  WrittenGraphics graphics;
};

using enum EmfPlusStringAlignment;

TEST_F(AString, HangsFromTheTopOfItsRectangleBehindAMargin) {
  DrawString(graphics, u"A", WrittenGraphics::Plain(), kInk, {10, 20, 200, 100}, nullptr);
  EXPECT_EQ(graphics.Lines(), At("A", 10 + kEm / 6, 20 + kAscent));
}

TEST_F(AString, HasLinesAsFarApartAsTheFontSays) {
  EXPECT_EQ(Lines(u"A\na", {10, 20, 200, 200}, WrittenGraphics::WithoutMargins()),
            At("A", 10, 20 + kAscent) + At("a", 10, 20 + kAscent + kPitch));
}

TEST_F(AString, IsAlignedAlongItsLines) {
  const RectF box = {10, 20, 200, 100};
  EXPECT_EQ(Lines(u"A", box, Aligned(kCenter, kNear)),
            At("A", 10 + (200 - kUpperA) / 2, 20 + kAscent));
  EXPECT_EQ(Lines(u"A ", box, Aligned(kFar, kNear)), At("A", 210 - kUpperA, 20 + kAscent));
}

TEST_F(AString, CountsSpacesAtTheEndWhereItIsToldTo) {
  EXPECT_EQ(Lines(u"A ", {10, 20, 200, 100}, Aligned(kFar, kNear, kEmfPlusMeasureTrailingSpaces)),
            At("A ", 210 - kUpperA - kSpace, 20 + kAscent));
}

TEST_F(AString, IsAlignedAcrossItsLines) {
  const RectF box = {10, 20, 200, 300};
  EXPECT_EQ(Lines(u"A", box, Aligned(kNear, kCenter)),
            At("A", 10, 20 + (300 - kAscent - kDescent) / 2 + kAscent));
  EXPECT_EQ(Lines(u"A\na", box, Aligned(kNear, kFar)),
            At("A", 10, 320 - kDescent - kPitch) + At("a", 10, 320 - kDescent));
}

TEST_F(AString, IsAlignedAtItsPointWithoutARectangle) {
  const RectF point = {10, 20, 0, 0};
  EXPECT_EQ(Lines(u"A", point, Aligned(kCenter, kCenter)),
            At("A", 10 - kUpperA / 2, 20 + (kAscent - kDescent) / 2));
  EXPECT_EQ(Lines(u"A", point, Aligned(kFar, kFar)), At("A", 10 - kUpperA, 20 - kDescent));
}

TEST_F(AString, WrapsInItsRectangle) {
  EXPECT_EQ(Lines(u"A a", {0, 0, 60, 200}, WrittenGraphics::WithoutMargins()),
            At("A", 0, kAscent) + At("a", 0, kAscent + kPitch));
  EXPECT_EQ(Lines(u"A a", {0, 0, 60, 200}, WrittenGraphics::WithoutMargins(kEmfPlusNoWrap)),
            At("A", 0, kAscent));
}

TEST_F(AString, ReadsFromTheRightWhereItIsToldTo) {
  EmfPlusStringFormat format = WrittenGraphics::WithoutMargins(kEmfPlusRightToLeft);
  format.leadingMargin = 0.25F;
  EXPECT_EQ(Lines(u"A", {10, 20, 200, 100}, format),
            At("A", 210 - kEm / 4 - kUpperA, 20 + kAscent));
}

TEST_F(AString, RunsDownwardsFromTheUpperRight) {
  Draw(u"A\na", {10, 20, 200, 100}, WrittenGraphics::WithoutMargins(kEmfPlusVertical));
  const std::string trace = graphics.Take();
  EXPECT_EQ(LinesWith(trace, "text").front().substr(0, 42),
            "text \"A\" LiberationSans 64 under 0 1 1 0 1");
  graphics.Take();
  Draw(u"A\na", {10, 20, 200, 100}, WrittenGraphics::WithoutMargins(kEmfPlusVertical));
  EXPECT_EQ(graphics.Lines(), At("A", 210 - kAscent, 20) + At("a", 210 - kAscent - kPitch, 20));
}

TEST_F(AString, RunsDownwardsFromTheLeftWhereItReadsSo) {
  Draw(u"A\na", {10, 20, 200, 100},
       WrittenGraphics::WithoutMargins(kEmfPlusVertical | kEmfPlusRightToLeft));
  EXPECT_EQ(graphics.Lines(), At("A", 10 + kDescent, 20) + At("a", 10 + kDescent + kPitch, 20));
}

TEST_F(AString, GoesToTheStopsOfItsTabs) {
  EmfPlusStringFormat format = WrittenGraphics::WithoutMargins();
  format.tabs = {100, 50};
  EXPECT_EQ(Lines(u"A\ta\tA", {10, 20, 0, 0}, format),
            At("A", 10, 20 + kAscent) + At("a", 110, 20 + kAscent) + At("A", 160, 20 + kAscent));
}

TEST_F(AString, EndsInAnEllipsisWhereItIsTrimmed) {
  EmfPlusStringFormat format = WrittenGraphics::WithoutMargins(kEmfPlusNoWrap);
  format.trimming = EmfPlusStringTrimming::kEllipsisCharacter;
  format.alignment = kFar;
  EXPECT_EQ(Lines(u"AAAAAA", {0, 0, 120, 100}, format),
            At("A\u2026", 120 - kUpperA - kWrittenEllipsis, kAscent));
}

// Its size.

TEST_F(AString, HasASizeInUnitsThatOnlyTheWorldScales) {
  const EmfPlusFont font = {48, EmfPlusUnit::kPoint, 0, u"Liberation Sans"};  // 64 pixels
  const EmfPlusStringFormat format = WrittenGraphics::WithoutMargins();
  SetPageTransform(graphics, EmfPlusUnit::kPixel, 2);
  DrawString(graphics, u"A", font, kInk, {10, 20, 0, 0}, &format);
  EXPECT_EQ(graphics.Lines(), At("A", 20, 40 + kAscent));
  ScaleWorldTransform(graphics, 2, 2, MatrixOrder::kPrepend);
  DrawString(graphics, u"A", font, kInk, {10, 20, 0, 0}, &format);
  EXPECT_EQ(graphics.Lines(), At("A", 40, 80 + 2 * kAscent));
}

TEST_F(AString, TurnsWithTheWorld) {
  SetWorldTransform(graphics, {0, -1, 1, 0, 250, 260});
  Draw(u"A", {0, 0, 0, 0}, WrittenGraphics::WithoutMargins());
  EXPECT_EQ(graphics.Lines(), At("A", 250 + kAscent, 260));
}

// Its marks.

TEST_F(AString, IsInTheColorOfItsBrush) {
  DrawString(graphics, u"A", WrittenGraphics::Plain(), kHalfInk, {0, 0, 0, 0}, nullptr);
  const std::string trace = graphics.Take();
  EXPECT_EQ(LinesWith(trace, "fill-color").front().substr(0, 16), "fill-color 1 0 0");
}

// Of Liberation Sans an underline begins 67 below the baseline and is 150 thick.
TEST_F(AString, IsUnderlinedAsFarAsItsLettersReach) {
  Draw(u"A ", {0, 0, 0, 0}, WrittenGraphics::WithoutMargins(), kEmfPlusFontUnderline);
  EXPECT_EQ(graphics.TakeMarks(),
            Rule(0, kUpperA, kAscent + 67 / 32.0, kAscent + (67 + 150) / 32.0));
}

TEST_F(AString, IsStruckOutToo) {
  Draw(u"A", {0, 0, 0, 0}, WrittenGraphics::WithoutMargins(),
       kEmfPlusFontUnderline | kEmfPlusFontStrikeout);
  EXPECT_EQ(LinesWith(graphics.Take(), "close").size(), 2U);
}

TEST_F(AString, UnderlinesItsHotkey) {
  EmfPlusStringFormat format = WrittenGraphics::WithoutMargins();
  format.hotkeys = EmfPlusHotkeyPrefix::kShow;
  Draw(u"A&aA", {0, 0, 0, 0}, format);
  EXPECT_EQ(graphics.TakeMarks(),
            Rule(kUpperA, kUpperA + kLowerA, kAscent + 67 / 32.0, kAscent + (67 + 150) / 32.0));
}

TEST_F(AString, IsShapesWhereTextIsOutlined) {
  graphics->outlinesText = true;
  Draw(u"A", {0, 0, 0, 0}, WrittenGraphics::WithoutMargins());
  const std::string trace = graphics.Take();
  EXPECT_TRUE(LinesWith(trace, "text").empty());
  EXPECT_EQ(LinesWith(trace, "fill").size(), 1U);
}

TEST_F(AString, IsCutToItsRectangleWhereItOverflows) {
  Draw(u"AAAA", {0, 0, 60, 50}, WrittenGraphics::WithoutMargins(kEmfPlusNoWrap));
  EXPECT_NE(graphics.Take().find("rect 0 0 60 50"), std::string::npos);
  Draw(u"AAAA", {0, 0, 60, 50}, WrittenGraphics::WithoutMargins(kEmfPlusNoWrap | kEmfPlusNoClip));
  EXPECT_EQ(graphics.Take().find("rect 0 0 60 50"), std::string::npos);
  Draw(u"A", {0, 0, 60, 100}, WrittenGraphics::WithoutMargins());
  EXPECT_EQ(graphics.Take().find("rect 0 0 60 100"), std::string::npos);
}

TEST_F(AString, LeavesTheClipAsItWas) {
  const ClipState clip = graphics->state.clip;
  Draw(u"AAAA", {0, 0, 60, 50}, WrittenGraphics::WithoutMargins(kEmfPlusNoWrap));
  EXPECT_EQ(graphics->state.clip, clip);
}

TEST_F(AString, HasWholeLinesOnlyWhereItIsToldTo) {
  const RectF box = {0, 0, 60, 100};  // a line and a third
  EXPECT_EQ(Lines(u"A\na\nA", box, WrittenGraphics::WithoutMargins()),
            At("A", 0, kAscent) + At("a", 0, kAscent + kPitch));
  EXPECT_EQ(Lines(u"A\na\nA", box, WrittenGraphics::WithoutMargins(kEmfPlusLineLimit)),
            At("A", 0, kAscent));
}

TEST_F(AString, NeedsNoRoomBelowItsLastLine) {
  const RectF box = {0, 0, 60, static_cast<float>(kAscent + kDescent)};
  EXPECT_EQ(Lines(u"A", box, WrittenGraphics::WithoutMargins(kEmfPlusLineLimit)),
            At("A", 0, kAscent));
}

TEST_F(AString, ReportsCharactersThatAreNowhere) {
  Draw(u"\U0010FFFD", {0, 0, 0, 0}, WrittenGraphics::WithoutMargins());
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kMissingCharacters));
}

// What nobody means.

TEST_F(AString, IsNotThereWithoutASize) {
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  for (const float em : {0.0F, -1.0F, 1e30F, 1e38F, kNaN, std::numeric_limits<float>::infinity()}) {
    const EmfPlusFont font = {em, EmfPlusUnit::kWorld, 0, u"Liberation Sans"};
    DrawString(graphics, u"A", font, kInk, {0, 0, 0, 0}, nullptr);
    EXPECT_EQ(graphics.Lines(), "") << em;
  }
}

TEST_F(AString, IsNotThereWithoutAPlace) {
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(Lines(u"A", {kNaN, 0, 10, 10}, WrittenGraphics::WithoutMargins()), "");
  EXPECT_EQ(Lines(u"A", {0, 1e38F, 0, 0}, WrittenGraphics::WithoutMargins()), "");
}

TEST_F(AString, TakesSidesThatAreNoNumbersForNone) {
  constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
  constexpr float kInfinity = std::numeric_limits<float>::infinity();
  for (const float side : {kNaN, kInfinity, -5.0F, 0.0F})
    EXPECT_EQ(Lines(u"A a", {0, 0, side, side}, WrittenGraphics::WithoutMargins()),
              At("A a", 0, kAscent));
}

TEST_F(AString, TakesMarginsThatAreNoNumbersForNone) {
  EmfPlusStringFormat format;
  format.leadingMargin = format.trailingMargin = std::numeric_limits<float>::quiet_NaN();
  EXPECT_EQ(Lines(u"A", {0, 0, 100, 100}, format), At("A", 0, kAscent));
}

TEST_F(AString, TakesTimeInProportionToItsLength) {
  const std::u16string text(1'000'000, u'A');
  const auto start = std::chrono::steady_clock::now();
  for (const RectF& layout : {RectF{0, 0, 1, 0}, RectF{0, 0, 0, 0}, RectF{0, 0, 1, 500}})
    Draw(text, layout, WrittenGraphics::WithoutMargins());
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(20));
}

TEST_F(AString, LeavesOutTheLinesThatAreOffThePage) {
  Draw(std::u16string(100'000, u'A'), {0, 0, 1, 0}, WrittenGraphics::WithoutMargins());
  // The page ends a thousand below its middle, and a line counts as an em taller on both sides.
  EXPECT_EQ(LinesWith(graphics.Take(), "text").size(), 15U);
}

// Glyphs in their places.

class ADriverString : public testing::Test {
 protected:
  void Draw(std::u16string_view values, std::initializer_list<PointF> places, std::uint32_t options,
            const XForm* matrix = nullptr, const char16_t* family = u"Liberation Sans") {
    const EmfPlusFont font = {kEm, EmfPlusUnit::kWorld, 0, family};
    DrawDriverString(graphics, values, places, font, kInk, options, matrix);
  }

  WrittenGraphics graphics;
};

constexpr std::uint32_t kCharacters = 1;
constexpr std::uint32_t kDownwardsToo = 2;
constexpr std::uint32_t kByAdvances = 4;

TEST_F(ADriverString, HasEachGlyphInItsPlace) {
  Draw(u"Aa", {{10, 100}, {70, 130}}, kCharacters);
  const std::string trace = graphics.Take();
  EXPECT_EQ(LinesWith(trace, "text").front(),
            "text \"Aa\" LiberationSans 64 under 1 0 0 -1 10 100");
  EXPECT_NE(trace.find("  at 0 0\n  at 60 -30\n"), std::string::npos) << trace;
}

TEST_F(ADriverString, GoesOnByTheFaceWhereOnlyTheFirstPlaceCounts) {
  Draw(u"Aa", {{10, 100}}, kCharacters | kByAdvances);
  EXPECT_NE(graphics.Take().find("  at 0 0\n  at 42.6875 0\n"), std::string::npos);
}

TEST_F(ADriverString, IsAsLongAsItHasPlaces) {
  Draw(u"Aa", {{10, 100}}, kCharacters);
  EXPECT_EQ(graphics.Lines(), At("A", 10, 100));
  Draw(u"Aa", {}, kCharacters);
  EXPECT_EQ(graphics.Lines(), "");
}

TEST_F(ADriverString, TurnsItsGlyphsInTheirPlaces) {
  const XForm quarter = {0, 1, -1, 0, 500, 600};
  Draw(u"Aa", {{10, 100}, {70, 100}}, kCharacters, &quarter);
  const std::string trace = graphics.Take();
  EXPECT_EQ(LinesWith(trace, "text").front(), "text \"Aa\" LiberationSans 64 under 0 1 1 0 10 100");
  EXPECT_NE(trace.find("  at 0 0\n  at 0 60\n"), std::string::npos) << trace;
}

TEST_F(ADriverString, RunsDownwards) {
  Draw(u"Aa", {{10, 100}, {10, 150}}, kCharacters | kDownwardsToo);
  const std::string trace = graphics.Take();
  EXPECT_EQ(LinesWith(trace, "text").front(), "text \"Aa\" LiberationSans 64 under 0 1 1 0 10 100");
  EXPECT_NE(trace.find("  at 0 0\n  at 50 0\n"), std::string::npos) << trace;
}

TEST_F(ADriverString, HasGlyphsOfTheFaceThatItAsksFor) {
  Draw(u"\x24", {{10, 100}}, 0);  // number 36, of an A
  EXPECT_EQ(LinesWith(graphics.Take(), "text").size(), 1U);
  EXPECT_TRUE(graphics->shortfalls.IsEmpty());
}

TEST_F(ADriverString, ReportsGlyphsOfAFaceThatIsNotThere) {
  Draw(u"\x0200", {{10, 100}}, 0, nullptr, u"No Such Face");
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kForeignGlyphs));
}

TEST_F(ADriverString, IsNotThereWithoutAPlace) {
  Draw(u"Aa", {{10, 100}, {std::numeric_limits<float>::quiet_NaN(), 0}}, kCharacters);
  Draw(u"Aa", {{10, 100}, {3e38F, 0}}, kCharacters);
  EXPECT_EQ(graphics.Lines(), "");
}

}  // namespace
}  // namespace kelvane::gdiplus
