#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/drawn_pens.h"

namespace kelvane::gdiplus {
namespace {

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

}  // namespace
}  // namespace kelvane::gdiplus
