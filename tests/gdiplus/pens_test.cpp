#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/drawing.h"
#include "gdiplus/traced_graphics.h"
#include "gdiplus/transforms.h"

namespace kelvane::gdiplus {
namespace {

using Lines = std::vector<std::string>;

/// 96 dots an inch.
constexpr CGAffineTransform kScreen = {0.75F, 0, 0, 0.75F, 0, 0};

EmfPlusPen PenOf(float width) {
  EmfPlusPen pen;
  pen.width = width;
  pen.brush = Argb{0, 0, 255, 255};
  return pen;
}

/// Draws a line to the right.
std::string Draw(TracedGraphics& graphics, const EmfPlusPen& pen, float length = 20) {
  DrawLines(graphics, pen, std::vector<PointF>{{0, 0}, {length, 0}}, false);
  return graphics.Take();
}

std::string Draw(const EmfPlusPen& pen, const CGAffineTransform& deviceToPage = kScreen) {
  TracedGraphics graphics(deviceToPage);
  return Draw(graphics, pen);
}

/// @return the marks of a line of 20 units, which are points.
std::string Marks(const EmfPlusPen& pen, float length = 20) {
  TracedGraphics graphics;
  return TracedDevice::MarksOf(Draw(graphics, pen, length));
}

// Widths.

TEST(PenWidth, OfNothingIsAsThinAsTheOutputHasIt) {
  EXPECT_EQ(LinesWith(Draw(PenOf(0)), "line-width"), Lines{"line-width 0"});
}

TEST(PenWidth, IsAPixelAtLeast) {
  EXPECT_EQ(LinesWith(Draw(PenOf(0.25F)), "line-width"), Lines{"line-width 0.75"});
}

TEST(PenWidth, ScalesWithWorldAndPageInWorldUnits) {
  TracedGraphics graphics(kScreen);
  SetPageTransform(graphics, EmfPlusUnit::kPixel, 3);
  SetWorldTransform(graphics, {2, 0, 0, 2, 0, 0});
  EXPECT_EQ(LinesWith(Draw(graphics, PenOf(2)), "line-width"), Lines{"line-width 9"});
}

TEST(PenWidth, ScalesWithThePageAloneInOtherUnits) {
  TracedGraphics graphics(kScreen);
  SetPageTransform(graphics, EmfPlusUnit::kPixel, 3);
  SetWorldTransform(graphics, {2, 0, 0, 2, 0, 0});
  EmfPlusPen pen = PenOf(2);
  pen.unit = EmfPlusUnit::kPixel;
  EXPECT_EQ(LinesWith(Draw(graphics, pen), "line-width"), Lines{"line-width 4.5"});
}

TEST(PenWidth, IsALengthInUnitsOfLength) {
  EmfPlusPen pen = PenOf(10);
  pen.unit = EmfPlusUnit::kPoint;
  EXPECT_EQ(LinesWith(Draw(pen), "line-width"), Lines{"line-width 10"});
}

TEST(PenWidth, IsSqueezedByThePensOwnTransform) {
  EmfPlusPen pen = PenOf(4);
  pen.transform = {2, 0, 0, 1, 0, 0};
  EXPECT_EQ(LinesWith(Draw(pen), "stroke"), Lines{"stroke under 1.5 0 0 0.75 0 0"});
}

TEST(PenWidth, ThatIsNoNumberIsAHairline) {
  EXPECT_EQ(LinesWith(Draw(PenOf(std::numeric_limits<float>::quiet_NaN())), "line-width"),
            Lines{"line-width 0"});
  EXPECT_EQ(LinesWith(Draw(PenOf(-5)), "line-width"), Lines{"line-width 0"});
}

// Lines that the surface draws.

TEST(PlainPen, HasTheCapAndJoinOfTheSurface) {
  EmfPlusPen pen = PenOf(4);
  pen.startCap = pen.endCap = EmfPlusLineCap::kSquare;
  pen.join = EmfPlusLineJoin::kBevel;
  pen.miterLimit = 3;
  EXPECT_EQ(LinesWith(Draw(pen), "line-cap"), Lines{"line-cap 2"});
  EXPECT_EQ(LinesWith(Draw(pen), "line-join"), Lines{"line-join 2"});
  EXPECT_EQ(LinesWith(Draw(pen), "miter-limit"), Lines{"miter-limit 3"});
  EXPECT_EQ(LinesWith(Draw(pen), "stroke"), Lines{"stroke"});
}

TEST(PlainPen, HasDashesInWidths) {
  EmfPlusPen pen = PenOf(2);
  pen.style = EmfPlusLineStyle::kDashDot;
  pen.dashOffset = 1;
  EXPECT_EQ(LinesWith(Draw(pen), "line-dash"), Lines{"line-dash 4.5 1.5 1.5 1.5 from 1.5"});
}

TEST(PlainPen, HasDashesOfAPixelsWidthBelowIt) {
  EmfPlusPen pen = PenOf(0.5F);
  pen.style = EmfPlusLineStyle::kDot;
  EXPECT_EQ(LinesWith(Draw(pen), "line-dash"), Lines{"line-dash 0.75 0.75 from 0"});
}

TEST(PlainPen, TurnsTheRolesOfAnOddNumberOfDashesAround) {
  EmfPlusPen pen = PenOf(4);
  pen.style = EmfPlusLineStyle::kCustom;
  pen.dashes = {1, 2, 3};
  pen.dashOffset = -1;
  EXPECT_EQ(LinesWith(Draw(pen), "line-dash"), Lines{"line-dash 3 6 9 3 6 9 from 33"});
}

TEST(PlainPen, IsSolidWhereDashesAreNoLengths) {
  for (const std::vector<float>& dashes :
       {std::vector<float>{1, -1}, std::vector<float>{0, 0}, std::vector<float>{1, std::nanf("")},
        std::vector<float>(1'000'000, 0.5F)}) {
    EmfPlusPen pen = PenOf(4);
    pen.style = EmfPlusLineStyle::kCustom;
    pen.dashes = dashes;
    EXPECT_EQ(LinesWith(Draw(pen), "line-dash"), Lines{});
    EXPECT_EQ(LinesWith(Draw(pen), "stroke"), Lines{"stroke"});
  }
}

/// Lines that turn by nearly a half turn, which make a miter of some 40 widths.
std::string Spike(const EmfPlusPen& pen) {
  TracedGraphics graphics;
  DrawLines(graphics, pen, std::vector<PointF>{{0, 0}, {80, 2}, {0, 4}}, false);
  return graphics.TakeMarks();
}

/// @return the largest x of a trace's points.
double RightOf(const std::string& marks) {
  double right = 0;
  for (const char* element : {"move", "line"}) {
    for (const std::string& line : LinesWith(marks, element))
      right = std::max(right, std::stod(line.substr(5)));
  }
  return right;
}

TEST(MiterJoin, IsCutAtItsLimit) {
  EmfPlusPen pen = PenOf(2);
  pen.miterLimit = 5;
  const std::string marks = Spike(pen);
  EXPECT_EQ(LinesWith(marks, "fill"), Lines{"fill"});
  EXPECT_NEAR(RightOf(marks), 80 + 5, 0.1);  // half of the width, five times
}

TEST(MiterJoin, OfTheClippedKindIsABevelPastItsLimit) {
  EmfPlusPen pen = PenOf(2);
  pen.join = EmfPlusLineJoin::kMiterClipped;
  pen.miterLimit = 5;
  EXPECT_EQ(Spike(pen), "move 0 0\nline 80 2\nline 0 4\nstroke\n");
}

TEST(MiterJoin, WithinItsLimitIsTheSurfaces) {
  EmfPlusPen pen = PenOf(2);
  pen.miterLimit = 50;
  EXPECT_EQ(Spike(pen), "move 0 0\nline 80 2\nline 0 4\nstroke\n");
}

TEST(MiterJoin, IsCutWhereAFigureCloses) {
  EmfPlusPen pen = PenOf(2);
  pen.miterLimit = 5;
  TracedGraphics graphics;
  DrawLines(graphics, pen, std::vector<PointF>{{80, 2}, {0, 10}, {0, -6}}, true);
  EXPECT_NEAR(RightOf(graphics.TakeMarks()), 80 + 5, 0.1);
}

TEST(InsetPen, IsTheInnerHalfOfALineTwiceAsWide) {
  EmfPlusPen pen = PenOf(4);
  pen.alignment = EmfPlusPenAlignment::kInset;
  TracedGraphics graphics;
  DrawRectangles(graphics, pen, std::vector<RectF>{{10, 10, 50, 40}});
  const std::string trace = graphics.Take();
  EXPECT_EQ(LinesWith(trace, "clip"), Lines{"clip"});
  EXPECT_EQ(LinesWith(trace, "line-width"), Lines{"line-width 8"});
  EXPECT_EQ(TracedDevice::MarksOf(trace), "rect 10 10 50 40\nrect 10 10 50 40\nstroke\n");
}

TEST(InsetPen, IsInTheMiddleOfOpenLines) {
  EmfPlusPen pen = PenOf(4);
  pen.alignment = EmfPlusPenAlignment::kInset;
  EXPECT_EQ(LinesWith(Draw(pen), "line-width"), Lines{"line-width 3"});
}

// A canvas as large as that of these tests has hundredths, and points go to the lower right by
// nearly half of one.

// Caps, of lines whose width is 4 from (0, 0) to (20, 0).

TEST(LineCaps, ThatDifferAreOneMarkWithTheLine) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kTriangle;
  pen.brush = Argb{0, 0, 255, 128};
  EXPECT_EQ(Marks(pen),
            "move 19.94 2\nline 19.94 -2\nline 20 -2\nline 22 0\nline 20 2\nclose\n"
            "move 0 -2\nline 20 -2\nline 20 2\nline 0 2\nclose\nfill\n");
}

TEST(LineCaps, PointOutwardsAtTheStart) {
  EmfPlusPen pen = PenOf(4);
  pen.startCap = EmfPlusLineCap::kSquare;
  EXPECT_EQ(Marks(pen),
            "move 0.07 -2\nline 0.07 2\nline -2 2\nline -2 -2\nclose\n"
            "move 0 -2\nline 20 -2\nline 20 2\nline 0 2\nclose\nfill\n");
}

TEST(LineCaps, AreNoneOfClosedFigures) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kArrowAnchor;
  TracedGraphics graphics;
  DrawRectangles(graphics, pen, std::vector<RectF>{{10, 10, 50, 40}});
  EXPECT_EQ(graphics.TakeMarks(), "rect 10 10 50 40\nstroke\n");
}

// Its side is the root of 2 times the width.
TEST(LineAnchors, OfSquaresLieAroundTheEnd) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kSquareAnchor;
  EXPECT_EQ(Marks(pen).substr(0, 72),
            "move 17.18 2.82\nline 17.18 -2.83\nline 22.83 -2.83\nline 22.83 2.82\nclose\n");
}

TEST(LineAnchors, OfDiamondsAreTwiceAsWideAsTheLine) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kDiamondAnchor;
  EXPECT_EQ(Marks(pen),
            "move 16 0\nline 20 -4\nline 24 0\nline 20 4\nclose\n"
            "move 0 -2\nline 20 -2\nline 20 2\nline 0 2\nclose\nfill\n");
}

// An equilateral triangle of twice the width, whose height is the root of 3 times it; the line
// stops one and a half widths before its tip.
TEST(LineAnchors, OfArrowsEndWhereTheLineWould) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kArrowAnchor;
  EXPECT_EQ(Marks(pen),
            "move 13.08 4\nline 13.08 -4\nline 20 0\nclose\n"
            "move 0 -2\nline 14 -2\nline 14 2\nline 0 2\nclose\nfill\n");
}

TEST(LineAnchors, StayWhereTheLineIsTooShortForThem) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kArrowAnchor;
  EXPECT_EQ(Marks(pen, 5), "move -1.92 4\nline -1.92 -4\nline 5 0\nclose\nfill\n");
}

EmfPlusPen PenWithCap(float width, EmfPlusCustomLineCap cap) {
  EmfPlusPen pen = PenOf(width);
  pen.endCap = EmfPlusLineCap::kCustom;
  pen.customEndCap = std::move(cap);
  return pen;
}

// As in files: a pen of 12.5 gives an arrow 37.5 long and as wide, over a line that ends 31.25
// before its tip.
TEST(CustomCaps, AreCountedInWidthsOfTheLine) {
  EmfPlusPathCap cap;
  cap.baseInset = 2.5F;
  cap.fill = EmfPlusPath{{{1.5F, -3}, {0, 0}, {-1.5F, -3}}, {0, 1, 0x81}, false};
  EXPECT_EQ(Marks(PenWithCap(12.5F, cap), 90),
            "move 52.5 -18.75\nline 90 0\nline 52.5 18.75\nclose\n"
            "move 0 -6.25\nline 58.75 -6.25\nline 58.75 6.25\nline 0 6.25\nclose\nfill\n");
}

TEST(CustomCaps, HaveAScaleOfTheirOwn) {
  EmfPlusPathCap cap;
  cap.widthScale = 2;
  cap.baseInset = 1;
  cap.fill = EmfPlusPath{{{1, -1}, {0, 0}, {-1, -1}}, {0, 1, 0x81}, false};
  EXPECT_EQ(Marks(PenWithCap(2, cap)),
            "move 16 -4\nline 20 0\nline 16 4\nclose\n"
            "move 0 -1\nline 16 -1\nline 16 1\nline 0 1\nclose\nfill\n");
}

// A line across the end, as wide as the pen.
TEST(CustomCaps, AreDrawnWithThePen) {
  EmfPlusPathCap cap;
  cap.stroke = EmfPlusPath{{{-2, 0}, {2, 0}}, {0, 1}, false};
  EXPECT_EQ(Marks(PenWithCap(2, cap)),
            "move 19 4\nline 19 -4\nline 21 -4\nline 21 4\nclose\n"
            "move 0 -1\nline 20 -1\nline 20 1\nline 0 1\nclose\nfill\n");
}

TEST(ArrowCaps, AreFilledFromTheirBaseToTheEndOfTheLine) {
  EmfPlusArrowCap cap;
  cap.width = 3;
  cap.height = 4;
  cap.middleInset = 1;
  cap.isFilled = true;
  EXPECT_EQ(Marks(PenWithCap(2, cap)),
            "move 12 3\nline 14 0\nline 12 -3\nline 20 0\nclose\n"
            "move 0 -1\nline 14 -1\nline 14 1\nline 0 1\nclose\nfill\n");
}

TEST(ArrowCaps, AreTwoLinesWhereTheyAreNotFilled) {
  EmfPlusArrowCap cap;
  cap.width = 4;
  cap.height = 2;
  cap.lineJoin = EmfPlusLineJoin::kBevel;
  const std::string marks = Marks(PenWithCap(2, cap));
  EXPECT_EQ(LinesWith(marks, "move").size(), 2U);
  EXPECT_EQ(LinesWith(marks, "fill"), Lines{"fill"});
}

// Bands and dashes.

TEST(CompoundPen, DrawsItsBandsFromLeftToRight) {
  EmfPlusPen pen = PenOf(8);
  pen.compound = {0, 0.25F, 0.5F, 1};
  EXPECT_EQ(Marks(pen),
            "move 0 -4\nline 20 -4\nline 20 -2\nline 0 -2\nclose\n"
            "move 0 0\nline 20 0\nline 20 4\nline 0 4\nclose\nfill\n");
}

TEST(CompoundPen, OfOneWholeBandIsPlain) {
  EmfPlusPen pen = PenOf(8);
  pen.compound = {0, 1};
  EXPECT_EQ(Marks(pen), "move 0 0\nline 20 0\nstroke\n");
}

TEST(CompoundPen, GoesAroundClosedFiguresOnBothSides) {
  EmfPlusPen pen = PenOf(2);
  pen.compound = {0, 0.5F};
  TracedGraphics graphics;
  DrawRectangles(graphics, pen, std::vector<RectF>{{10, 10, 50, 40}});
  EXPECT_EQ(graphics.TakeMarks(),
            "move 9 9\nline 61 9\nline 61 51\nline 9 51\nclose\n"
            "move 10 50\nline 60 50\nline 60 10\nline 10 10\nclose\nfill\n");
}

TEST(CompoundPen, HasCornersWhereTheEdgesOfABandMeetOnTheInside) {
  EmfPlusPen pen = PenOf(8);
  pen.compound = {0.75F, 1};
  TracedGraphics graphics;
  DrawRectangles(graphics, pen, std::vector<RectF>{{10, 10, 50, 40}});
  EXPECT_EQ(graphics.TakeMarks(),
            "move 12 12\nline 58 12\nline 58 48\nline 12 48\nclose\n"
            "move 14 46\nline 56 46\nline 56 14\nline 14 14\nclose\nfill\n");
}

TEST(Dashes, OfClosedFiguresBeginWithTheLineThatClosesThem) {
  EmfPlusPen pen = PenOf(2);
  pen.style = EmfPlusLineStyle::kDash;
  TracedGraphics graphics;
  DrawRectangles(graphics, pen, std::vector<RectF>{{10, 10, 50, 40}});
  EXPECT_EQ(graphics.TakeMarks(),
            "move 10 50\nline 10 10\nline 60 10\nline 60 50\nclose\nstroke\n");
  DrawLines(graphics, pen, std::vector<PointF>{{0, 0}, {20, 0}, {0, 20}}, true);
  EXPECT_EQ(graphics.TakeMarks(), "move 0 20\nline 0 0\nline 20 0\nclose\nstroke\n");
}

TEST(Dashes, OfCurvesBeginWithTheLineThatClosesThem) {
  EmfPlusPen pen = PenOf(2);
  pen.style = EmfPlusLineStyle::kDash;
  TracedGraphics graphics;
  DrawPath(graphics, pen, {{{0, 0}, {0, 10}, {20, 10}, {20, 0}}, {0, 3, 3, 0x83}, false});
  EXPECT_EQ(graphics.TakeMarks(), "move 20 0\nline 0 0\ncurve 20 0\nclose\nstroke\n");
}

TEST(Dashes, OfOpenFiguresBeginAtTheirFirstPoint) {
  EmfPlusPen pen = PenOf(2);
  pen.style = EmfPlusLineStyle::kDash;
  TracedGraphics graphics;
  DrawPath(graphics, pen, {{{0, 0}, {20, 0}, {0, 20}, {5, 5}, {9, 5}}, {0, 1, 1, 0, 1}, false});
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\nline 20 0\nline 0 20\nmove 5 5\nline 9 5\nstroke\n");
}

TEST(Dashes, WithCapsBeginWithTheLineThatClosesThem) {
  EmfPlusPen pen = PenOf(4);
  pen.style = EmfPlusLineStyle::kCustom;
  pen.dashes = {3, 100};
  pen.dashCap = EmfPlusDashCap::kTriangle;
  TracedGraphics graphics;
  DrawRectangles(graphics, pen, std::vector<RectF>{{10, 10, 50, 40}});
  EXPECT_NE(graphics.TakeMarks().find("move 8 48\nline 8 40\nline 12 40\nline 12 48\n"),
            std::string::npos);
}

TEST(DashCaps, LieInsideTheLengthOfTheDash) {
  EmfPlusPen pen = PenOf(4);
  pen.style = EmfPlusLineStyle::kDash;
  pen.dashCap = EmfPlusDashCap::kTriangle;
  const std::string marks = Marks(pen, 14);  // one dash of 12, whose body is 8
  EXPECT_EQ(marks.substr(0, 49), "move 2 -2\nline 10 -2\nline 10 2\nline 2 2\nclose\nmov");
  EXPECT_NE(marks.find("line 12 0\n"), std::string::npos);
  EXPECT_NE(marks.find("line 0 0\n"), std::string::npos);
  EXPECT_EQ(LinesWith(marks, "move").size(), 3U);
}

TEST(DashCaps, StartAnewInEachFigure) {
  EmfPlusPen pen = PenOf(2);
  pen.style = EmfPlusLineStyle::kDash;
  pen.endCap = EmfPlusLineCap::kDiamondAnchor;
  TracedGraphics graphics;
  DrawPath(graphics, pen, {{{0, 0}, {5, 0}, {0, 50}, {5, 50}}, {0, 1, 0, 1}, false});
  const std::string marks = graphics.TakeMarks();
  EXPECT_NE(marks.find("move 0 -1\nline 5 -1\nline 5 1\nline 0 1\n"), std::string::npos);
  EXPECT_NE(marks.find("move 0 49\nline 5 49\nline 5 51\nline 0 51\n"), std::string::npos);
}

// Hostile pens.

TEST(HostilePen, OfDashesNearNothingIsSolid) {
  EmfPlusPen pen = PenOf(4);
  pen.style = EmfPlusLineStyle::kCustom;
  pen.dashes = {1e-30F, 1e-30F};
  pen.dashCap = EmfPlusDashCap::kTriangle;
  EXPECT_EQ(LinesWith(Draw(pen), "stroke"), Lines{"stroke"});
}

TEST(HostilePen, OfTooManyDashesHasThemWithoutCaps) {
  EmfPlusPen pen = PenOf(1);
  pen.style = EmfPlusLineStyle::kCustom;
  pen.dashes = {0.05F, 0.05F};
  pen.dashCap = EmfPlusDashCap::kTriangle;
  TracedGraphics graphics;
  EXPECT_EQ(LinesWith(Draw(graphics, pen, 20'000), "stroke"), Lines{"stroke"});
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kPathTooComplex));
}

TEST(HostilePen, OfAnyWidthEnds) {
  for (const float width : {1e30F, std::numeric_limits<float>::infinity()}) {
    EmfPlusPen pen = PenOf(width);
    pen.endCap = EmfPlusLineCap::kRoundAnchor;
    EXPECT_EQ(LinesWith(Draw(pen), "fill"), Lines{"fill"});
    EXPECT_EQ(LinesWith(Draw(PenOf(width)), "stroke").size(), 1U);
  }
}

TEST(HostilePen, OfALargeCapStops) {
  EmfPlusPathCap cap;
  constexpr std::size_t kPoints = 1 << 20;
  cap.fill = EmfPlusPath{};
  cap.fill->points.resize(kPoints, {1, 1});
  cap.fill->types.resize(kPoints, kEmfPlusPointLine);
  const EmfPlusPen pen = PenWithCap(2, cap);
  TracedGraphics graphics;
  for (int i = 0; i < 5; ++i)
    Draw(graphics, pen);
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kDrawnTooOften));
}

TEST(LineWithoutLength, HasNoCapsOfItsOwn) {
  EmfPlusPen pen = PenOf(4);
  pen.endCap = EmfPlusLineCap::kTriangle;
  EXPECT_EQ(Marks(pen, 0), "");
}

}  // namespace
}  // namespace kelvane::gdiplus
