#include "classic/text/text_output.h"

#include <gmock/gmock.h>

#include "classic/context/coordinates.h"
#include "platform/quartz/cg_context_calls.h"
#include "support/metafile.h"
#include "support/surface_fixture.h"

namespace kelvane {
namespace {

using test::kOpaque;
using test::kTextBaseline;
using test::kTextBottom;
using test::kTextCenter;
using test::kTextRight;
using test::kTextTop;
using test::kTextUpdateCP;
using testing::StartsWith;

constexpr std::int32_t kMetric = 2;  // MM_LOMETRIC

class TextOutput : public test::SurfaceFixture {
 protected:
  TextOutput() {
    context_.font.lfHeight = -10;
    context_.font.lfFaceName = u"Liberation Sans";
  }

  struct Place {
    std::int32_t x;
    std::int32_t y;

    friend bool operator==(const Place&, const Place&) = default;
    friend void PrintTo(const Place& place, std::ostream* out) {
      *out << place.x << ' ' << place.y;
    }
  };

  /// Where a reference point leads; under MM_TEXT, where bounds lead.
  Place PlaceOf(std::int32_t x, std::int32_t y, const RectangleL& bounds = {}) {
    ChangeTextXY(context_, x, y, bounds);
    return {x, y};
  }

  /// @return the trace of the units drawn from (10, -20) on.
  std::string Drawn(std::u16string_view text, const std::vector<std::uint32_t>& dx) {
    DrawStringWithSpacing(context_, text, {10, -20}, dx);
    return TakeTrace();
  }

  static std::string Unit(const std::string& text, const std::string& place) {
    return "text \"" + text + "\" LiberationSans 10 under 1 0 0 1 " + place + "\n";
  }
};

using ChangeTextXYTest = TextOutput;

TEST_F(ChangeTextXYTest, TakesTheCurrentPointAndForgetsTheReference) {
  context_.textAlign = kTextUpdateCP;
  CGContextMoveToPoint(context_.context, 7.9F, -3.9F);
  EXPECT_EQ(PlaceOf(100, 100), (Place{7, -3}));
}

TEST_F(ChangeTextXYTest, TakesTheCurrentPointInUserSpace) {
  context_.textAlign = kTextUpdateCP | kTextBaseline;
  CGContextMoveToPoint(context_.context, 8, 8);
  CGContextConcatCTM(context_.context, CGAffineTransformMakeScale(2, 4));
  EXPECT_EQ(PlaceOf(100, 100), (Place{4, 2}));
}

TEST_F(ChangeTextXYTest, RaisesByTheHeightOutsideMMText) {
  context_.mapMode = kMetric;
  EXPECT_EQ(PlaceOf(30, 40), (Place{30, -50}));
}

TEST_F(ChangeTextXYTest, LeavesTheBaselineWhereItIs) {
  context_.mapMode = kMetric;
  context_.textAlign = kTextBaseline;
  EXPECT_EQ(PlaceOf(30, 40), (Place{30, -40}));
}

TEST_F(ChangeTextXYTest, LowersByTheHeightUnderANegativeWindow) {
  context_.mapMode = kMetric;
  context_.windowExtYPositive = 0;
  EXPECT_EQ(PlaceOf(30, 40), (Place{30, -30}));
}

TEST_F(ChangeTextXYTest, TakesNoNoticeOfHorizontalAlignmentOutsideMMText) {
  context_.mapMode = kMetric;
  context_.textAlign = kTextRight | kTextBaseline;
  EXPECT_EQ(PlaceOf(30, 40), (Place{30, -40}));
}

TEST_F(ChangeTextXYTest, ScalesTheRaisedPointUnderMMAnisotropic) {
  context_.mapMode = kMapModeAnisotropic;
  context_.windowExt = {1000, 1000};
  context_.viewportExt = {500, 500};
  context_.font.lfHeight = -20;
  EXPECT_EQ(PlaceOf(200, 100), (Place{100, -60}));
}

TEST_F(ChangeTextXYTest, MovesByTheOriginsUnderMMAnisotropic) {
  context_.mapMode = kMapModeAnisotropic;
  context_.textAlign = kTextBaseline;
  context_.windowOrg = {10, 20};
  context_.windowExt = {100, 200};
  context_.viewportOrg = {5, 7};
  context_.viewportExt = {50, 100};
  EXPECT_EQ(PlaceOf(30, 60), (Place{15, -27}));
}

TEST_F(ChangeTextXYTest, TruncatesTowardZeroUnderMMAnisotropic) {
  context_.mapMode = kMapModeAnisotropic;
  context_.textAlign = kTextBaseline;
  context_.windowExt = {10, 10};
  EXPECT_EQ(PlaceOf(79, -79), (Place{7, 7}));
}

TEST_F(ChangeTextXYTest, DoesNotScaleByAWindowWithoutExtent) {
  context_.mapMode = kMapModeAnisotropic;
  context_.textAlign = kTextBaseline;
  context_.windowExt = {0, 0};
  context_.viewportOrg = {5, 5};
  EXPECT_EQ(PlaceOf(30, 60), (Place{30, -60}));
}

TEST_F(ChangeTextXYTest, KeepsLargestCoordinatesDefined) {
  context_.mapMode = kMapModeAnisotropic;
  context_.font.lfHeight = INT32_MIN;
  context_.viewportExt = {INT32_MAX, INT32_MAX};
  EXPECT_EQ(PlaceOf(INT32_MAX, 0).x, INT32_MAX);
}

struct AlignmentCase {
  std::uint32_t align;
  std::int32_t x;
  std::int32_t y;
};

/// A box from (10, 20) to (110, 80), so from -20 down to -80 on the page, and a font of 30 units.
class AlignmentUnderMMText : public TextOutput,
                             public testing::WithParamInterface<AlignmentCase> {};

TEST_P(AlignmentUnderMMText, PlacesTheTextInItsBounds) {
  context_.mapMode = kMapModeText;
  context_.font.lfHeight = -30;
  context_.textAlign = GetParam().align;
  EXPECT_EQ(PlaceOf(1, 2, {10, 20, 110, 80}), (Place{GetParam().x, GetParam().y}));
}

INSTANTIATE_TEST_SUITE_P(Each, AlignmentUnderMMText,
                         testing::Values(AlignmentCase{kTextTop, 10, -20 - 23},
                                         AlignmentCase{kTextRight, 110, -43},
                                         AlignmentCase{kTextCenter, 1, -43},
                                         AlignmentCase{kTextBottom, 10, -80},
                                         AlignmentCase{kTextBottom | kTextRight, 110, -80},
                                         AlignmentCase{kTextBaseline, 10, (-80 - 20 - 30) / 2},
                                         AlignmentCase{kTextBaseline | kTextRight, 110, -65}));

TEST_F(ChangeTextXYTest, RoundsTheAscentDownToWholeUnits) {
  context_.mapMode = kMapModeText;
  context_.font.lfHeight = 31;  // 31 * 23 / 30 is 23.77
  EXPECT_EQ(PlaceOf(0, 0, {0, 0, 10, 100}), (Place{0, -23}));
}

TEST_F(ChangeTextXYTest, RaisesTheMiddleUnderANegativeWindow) {
  context_.mapMode = kMapModeText;
  context_.windowExtYPositive = 0;
  context_.textAlign = kTextBaseline;
  context_.font.lfHeight = 30;
  EXPECT_EQ(PlaceOf(0, 0, {0, 20, 10, 80}).y, (-80 - 20 + 30) / 2);
}

TEST_F(ChangeTextXYTest, FindsTheBoundsInUserSpace) {
  context_.mapMode = kMapModeText;
  context_.textAlign = kTextBottom;
  CGContextConcatCTM(context_.context, CGAffineTransformMakeScale(2, 2));
  EXPECT_EQ(PlaceOf(0, 0, {10, 20, 110, 80}), (Place{5, -40}));
}

using DrawStringWithSpacingTest = TextOutput;

TEST_F(DrawStringWithSpacingTest, MovesThePenByTheSpacing) {
  EXPECT_EQ(Drawn(u"ab", {7, 9}), Unit("a", "10 -20") + Unit("b", "17 -20"));
}

TEST_F(DrawStringWithSpacingTest, DrawsTheRestWhereTheSpacingEnds) {
  EXPECT_EQ(Drawn(u"abc", {7}), Unit("a", "10 -20") + Unit("b", "17 -20") + Unit("c", "17 -20"));
}

TEST_F(DrawStringWithSpacingTest, MovesBackByASpacingThatWraps) {
  EXPECT_EQ(Drawn(u"ab", {4294967294}), Unit("a", "10 -20") + Unit("b", "8 -20"));
}

TEST_F(DrawStringWithSpacingTest, LeavesTheCurrentPointBehindTheText) {
  Drawn(u"ab", {7, 9});
  EXPECT_EQ(CGContextGetPathCurrentPoint(context_.context), (CGPoint{26, -20}));
}

TEST_F(DrawStringWithSpacingTest, LeavesTheCurrentPointAtThePositionOfNoText) {
  Drawn(u"", {7, 9});
  EXPECT_EQ(CGContextGetPathCurrentPoint(context_.context), (CGPoint{10, -20}));
}

TEST_F(DrawStringWithSpacingTest, DrawsALineAtAnAngleInOneWithoutSpacing) {
  ContextSetTextMatrix(context_, 90);
  context_.font.lfHeight = 2048;  // so that the face's own units are those of the page
  EXPECT_EQ(Drawn(u"HA", {7, 9}),
            "text \"HA\" LiberationSans 2048 under 0 1 -1 0 10 -20\n  at 0 0\n  at 1479 0\n");
}

TEST_F(DrawStringWithSpacingTest, LeavesTheCurrentPointAtTheStartOfALineAtAnAngle) {
  ContextSetTextMatrix(context_, 90);
  Drawn(u"ab", {7, 9});
  EXPECT_EQ(CGContextGetPathCurrentPoint(context_.context), (CGPoint{10, -20}));
}

TEST_F(DrawStringWithSpacingTest, AdvancesOverWhatMarksNothing) {
  EXPECT_EQ(Drawn(std::u16string_view(u"a\0b", 3), {7, 9, 0}),
            Unit("a", "10 -20") + Unit("b", "26 -20"));
}

TEST_F(DrawStringWithSpacingTest, MarksNothingInAFontWithoutHeight) {
  context_.font.lfHeight = 0;
  EXPECT_EQ(Drawn(u"ab", {7, 9}), "");
}

TEST_F(DrawStringWithSpacingTest, ReachesPositionsBeyondSixteenBits) {
  DrawStringWithSpacing(context_, u"a", {1000000, -1000000}, {});
  EXPECT_EQ(TakeTrace(), Unit("a", "1000000 -1000000"));
}

using DrawTextTest = TextOutput;

TEST_F(DrawTextTest, DrawsInTheTextColour) {
  context_.textColor = {0.5, 0.25, 0};
  DrawText(context_, u"a", {10, 10}, {}, {});
  EXPECT_THAT(TakeTrace(), StartsWith("fill-color 0.5 0.25 0\ntext \"a\""));
}

TEST_F(DrawTextTest, BringsTheBrushsColourBack) {
  context_.textColor = {0.5, 0.25, 0};
  context_.fillColor = {0, 0, 0.75};
  DrawText(context_, u"a", {10, 10}, {}, {});
  EXPECT_EQ(State().fillColor, (CGColor{0, 0, 0.75, 1}));
}

TEST_F(DrawTextTest, FillsTheBoundsBehindOpaqueText) {
  context_.bkMode = kOpaque;
  context_.bkColor = {1, 0.5, 0};
  DrawText(context_, u"a", {10, 10}, {10, 20, 30, 60}, {});
  EXPECT_THAT(TakeTrace(), StartsWith("fill-color 1 0.5 0\nrect 10 -60 20 40\nfill\n"
                                      "fill-color 0 0 0\ntext \"a\""));
}

TEST_F(DrawTextTest, FillsNothingBehindTransparentText) {
  DrawText(context_, u"", {10, 10}, {10, 20, 30, 60}, {});
  EXPECT_EQ(TakeTrace(), "");
}

TEST_F(DrawTextTest, FillsTheBoundsOutsideTheWorldTransform) {
  context_.bkMode = kOpaque;
  context_.worldTransform = {2, 0, 0, 2, 0, 0};
  ContextSetCTM(context_, context_.worldTransform);
  DrawText(context_, u"a", {10, 10}, {10, 20, 30, 60}, {});
  EXPECT_THAT(TakeTrace(), StartsWith("rect 10 -60 20 40\nfill\n"
                                      "text \"a\" LiberationSans 10 under 2 0 0 2 "));
}

TEST_F(DrawTextTest, FillsTheBoundsEvenWithAHollowBrush) {
  context_.bkMode = kOpaque;
  context_.hollowBrush = 1;
  DrawText(context_, u"", {10, 10}, {10, 20, 30, 60}, {});
  EXPECT_EQ(TakeTrace(), "rect 10 -60 20 40\nfill\n");
}

TEST_F(DrawTextTest, StrokesWhatIsPendingBeforeTheBox) {
  context_.bkMode = kOpaque;
  CGContextMoveToPoint(context_.context, 1, 2);
  CGContextAddLineToPoint(context_.context, 3, 4);
  DrawText(context_, u"", {10, 10}, {10, 20, 30, 60}, {});
  EXPECT_EQ(TakeTrace(), "move 1 2\nline 3 4\nstroke\nrect 10 -60 20 40\nfill\n");
}

TEST_F(DrawTextTest, MovesTheCurrentPointWithoutText) {
  context_.mapMode = kMetric;
  DrawText(context_, u"", {10, 10}, {}, {});
  EXPECT_EQ(CGContextGetPathCurrentPoint(context_.context), (CGPoint{10, -20}));
}

}  // namespace
}  // namespace kelvane
