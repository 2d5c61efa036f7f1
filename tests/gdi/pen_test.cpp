#include "gdi/pen.h"

#include <gtest/gtest.h>

#include "gdi/stored_array.h"

namespace kelvane {
namespace {

using Dashes = std::vector<double>;

constexpr ColorRef kRed = {0x0000FF};

PenStyle Style(std::uint32_t bits) {
  return static_cast<PenStyle>(bits);
}

PenStroke Old(std::uint32_t style, std::int32_t width, double scale = 1,
              BackgroundMode mode = OPAQUE) {
  return ResolvePen(CreatePenIndirect({Style(style), {width, 0}, kRed}), scale, mode);
}

PenStroke Extended(std::uint32_t style, std::uint32_t width, const StoredNumbers& entries = {}) {
  const LogPenEx pen = {Style(style), width, BS_SOLID, kRed, 0, 0};
  return ResolvePen(ExtCreatePen(pen, entries.View(), {}).value(), 1, OPAQUE);
}

TEST(CreatePen, IsAsWideAsItSaysInLogicalUnits) {
  EXPECT_EQ(Old(PS_SOLID, 5).width, 5);
  EXPECT_EQ(Old(PS_SOLID, -5).width, 5);
  EXPECT_EQ(Old(PS_SOLID, -2147483647 - 1).width, 2147483648.0);
}

TEST(CreatePen, OfWidth0IsAPixelAtAnyScale) {
  EXPECT_EQ(Old(PS_SOLID, 0, 100).width, 0);
}

TEST(CreatePen, IsRoundWhenWide) {
  const PenStroke stroke = Old(PS_SOLID, 5);
  EXPECT_EQ(stroke.endCap, PS_ENDCAP_ROUND);
  EXPECT_EQ(stroke.join, PS_JOIN_ROUND);
}

TEST(CreatePen, DrawsDashesOnlyAsThinAsAPixel) {
  EXPECT_EQ(Old(PS_DASH, 1).dashes, (Dashes{18, 6}));
  EXPECT_EQ(Old(PS_DASH, 1).endCap, PS_ENDCAP_FLAT);
  EXPECT_TRUE(Old(PS_DASH, 1).dashesAreOnPage);
  EXPECT_EQ(Old(PS_DASH, 1, 2).dashes, Dashes());
  EXPECT_EQ(Old(PS_DASH, 2).dashes, Dashes());
  EXPECT_EQ(Old(PS_DASH, 100, 0.014).dashes, (Dashes{18, 6}));
  EXPECT_EQ(Old(PS_DASH, 100, 0.016).dashes, Dashes());
}

TEST(CreatePen, HasFourKindsOfDashes) {
  EXPECT_EQ(Old(PS_DOT, 0).dashes, (Dashes{3, 3}));
  EXPECT_EQ(Old(PS_DASHDOT, 0).dashes, (Dashes{9, 6, 3, 6}));
  EXPECT_EQ(Old(PS_DASHDOTDOT, 0).dashes, (Dashes{9, 3, 3, 3, 3, 3}));
  EXPECT_EQ(Old(PS_SOLID, 0).dashes, Dashes());
}

TEST(CreatePen, PaintsGapsWhenTheBackgroundIsOpaque) {
  EXPECT_TRUE(Old(PS_DOT, 1, 1, OPAQUE).paintsGaps);
  EXPECT_FALSE(Old(PS_DOT, 1, 1, TRANSPARENT).paintsGaps);
  EXPECT_FALSE(Old(PS_SOLID, 1, 1, OPAQUE).paintsGaps);
  EXPECT_FALSE(Old(PS_DOT, 5, 1, OPAQUE).paintsGaps);
}

TEST(CreatePen, StaysInsideTheFrameWhenWide) {
  EXPECT_TRUE(Old(PS_INSIDEFRAME, 5).staysInsideFrame);
  EXPECT_FALSE(Old(PS_INSIDEFRAME, 1).staysInsideFrame);
  EXPECT_FALSE(Old(PS_SOLID, 5).staysInsideFrame);
}

TEST(CreatePen, DrawsNothingWhenNull) {
  EXPECT_TRUE(Old(PS_NULL, 5).isNull);
  EXPECT_FALSE(Old(PS_SOLID, 5).isNull);
}

TEST(CreatePen, IsSolidAndRoundOfStylesThatOnlyExtCreatePenKnows) {
  for (const std::uint32_t style : {7U, 8U, 0x10000U, 0x10200U, 0x11000U, 0x10005U}) {
    const PenStroke stroke = Old(style, 5);
    EXPECT_FALSE(stroke.isNull) << style;
    EXPECT_EQ(stroke.dashes, Dashes()) << style;
    EXPECT_EQ(stroke.endCap, PS_ENDCAP_ROUND) << style;
    EXPECT_EQ(stroke.join, PS_JOIN_ROUND) << style;
  }
}

TEST(ExtCreatePen, IsAPixelWideWhenCosmetic) {
  EXPECT_EQ(Extended(PS_COSMETIC | PS_SOLID, 7).width, 0);
}

TEST(ExtCreatePen, HasCapsAndJoinsWhenGeometric) {
  const PenStroke flat = Extended(PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_JOIN_MITER, 7);
  EXPECT_EQ(flat.width, 7);
  EXPECT_EQ(flat.endCap, PS_ENDCAP_FLAT);
  EXPECT_EQ(flat.join, PS_JOIN_MITER);
  const PenStroke square = Extended(PS_GEOMETRIC | PS_ENDCAP_SQUARE | PS_JOIN_BEVEL, 7);
  EXPECT_EQ(square.endCap, PS_ENDCAP_SQUARE);
  EXPECT_EQ(square.join, PS_JOIN_BEVEL);
  const PenStroke unknown = Extended(PS_GEOMETRIC | 0xF00 | 0xF000, 7);
  EXPECT_EQ(unknown.endCap, PS_ENDCAP_ROUND);
  EXPECT_EQ(unknown.join, PS_JOIN_ROUND);
}

TEST(ExtCreatePen, HasDashesInProportionToItsWidth) {
  constexpr std::uint32_t kFlat = PS_GEOMETRIC | PS_ENDCAP_FLAT;
  EXPECT_EQ(Extended(kFlat | PS_DASH, 10).dashes, (Dashes{30, 10}));
  EXPECT_EQ(Extended(kFlat | PS_DOT, 10).dashes, (Dashes{10, 10}));
  EXPECT_EQ(Extended(kFlat | PS_DASHDOT, 10).dashes, (Dashes{30, 10, 10, 10}));
  EXPECT_EQ(Extended(kFlat | PS_DASHDOTDOT, 10).dashes, (Dashes{30, 10, 10, 10, 10, 10}));
  EXPECT_FALSE(Extended(kFlat | PS_DASH, 10).dashesAreOnPage);
  EXPECT_EQ(Extended(kFlat | PS_ALTERNATE, 10).dashes, Dashes());
  EXPECT_EQ(Extended(kFlat | PS_DASH, 0).dashes, Dashes());
}

TEST(ExtCreatePen, CountsCapsAsPartOfTheDash) {
  EXPECT_EQ(Extended(PS_GEOMETRIC | PS_DASHDOT, 10).dashes, (Dashes{20, 20, 0, 20}));
}

TEST(ExtCreatePen, LeavesADotWithSquareCapsALengthAndSoADirection) {
  constexpr std::uint32_t kSquare = PS_GEOMETRIC | PS_ENDCAP_SQUARE;
  EXPECT_EQ(Extended(kSquare | PS_DOT, 16).dashes, (Dashes{0.25, 31.75}));
  EXPECT_EQ(Extended(kSquare | PS_USERSTYLE, 16, {4, 6}).dashes, (Dashes{0.25, 9.75}));
  EXPECT_EQ(Extended(kSquare | PS_USERSTYLE, 16, {0, 6}).dashes, (Dashes{0, 6}));
}

TEST(ExtCreatePen, HasDashesInPixelsWhenCosmetic) {
  EXPECT_EQ(Extended(PS_DASH, 1).dashes, (Dashes{18, 6}));
  EXPECT_EQ(Extended(PS_ALTERNATE, 1).dashes, (Dashes{1, 1}));
  EXPECT_EQ(Extended(PS_USERSTYLE, 1, {2, 5}).dashes, (Dashes{6, 15}));
  EXPECT_TRUE(Extended(PS_USERSTYLE, 1, {2, 5}).dashesAreOnPage);
}

TEST(ExtCreatePen, TakesTheUsersDashesInLogicalUnits) {
  constexpr std::uint32_t kUser = PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_USERSTYLE;
  EXPECT_EQ(Extended(kUser, 10, {7, 3}).dashes, (Dashes{7, 3}));
  EXPECT_EQ(Extended(kUser, 10, {7, 3, 1}).dashes, (Dashes{7, 3, 1, 7, 3, 1}));
  EXPECT_EQ(Extended(kUser, 10, {}).dashes, Dashes());
  EXPECT_EQ(Extended(kUser, 10, {0, 0}).dashes, Dashes());
}

TEST(ExtCreatePen, TakesNoMoreDashesThanWindowsDoes) {
  const StoredNumbers many = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};
  EXPECT_EQ(Extended(PS_GEOMETRIC | PS_ENDCAP_FLAT | PS_USERSTYLE, 1, many).dashes.size(), 16U);
}

TEST(ExtCreatePen, NeverPaintsGaps) {
  EXPECT_FALSE(Extended(PS_DASH, 1).paintsGaps);
  EXPECT_FALSE(Extended(PS_GEOMETRIC | PS_DASH, 10).paintsGaps);
}

TEST(ExtCreatePen, DrawsNothingWithANullStyleOrBrush) {
  EXPECT_TRUE(Extended(PS_GEOMETRIC | PS_NULL, 10).isNull);
  const LogPenEx pen = {Style(PS_GEOMETRIC), 10, BS_NULL, kRed, 0, 0};
  EXPECT_TRUE(ResolvePen(ExtCreatePen(pen, {}, {}).value(), 1, OPAQUE).isNull);
}

TEST(ExtCreatePen, IsMadeOfABrush) {
  const unsigned char header[1] = {};
  const auto brush = [&](BrushStyle style, std::uint32_t hatch) {
    return ExtCreatePen({Style(PS_GEOMETRIC), 10, style, kRed, hatch, 0}, {}, {header, {}});
  };
  EXPECT_EQ(brush(BS_HATCHED, HS_CROSS)->brush.hatch, HS_CROSS);
  EXPECT_EQ(brush(BS_PATTERN, 0)->brush.kind, Brush::Kind::kMonoPattern);
  EXPECT_EQ(brush(BS_DIBPATTERNPT, 0)->brush.kind, Brush::Kind::kPattern);
  EXPECT_EQ(brush(BS_DIBPATTERN, 0)->brush.pattern.header.data(), header);
  EXPECT_FALSE(brush(BS_HATCHED, 99));
  EXPECT_FALSE(brush(static_cast<BrushStyle>(99), 0));
}

TEST(ExtCreatePen, StaysInsideTheFrameWhenGeometric) {
  EXPECT_TRUE(Extended(PS_GEOMETRIC | PS_INSIDEFRAME, 10).staysInsideFrame);
  EXPECT_FALSE(Extended(PS_INSIDEFRAME, 10).staysInsideFrame);
}

}  // namespace
}  // namespace kelvane
