#include "gdiplus/drawing.h"

#include <cstdint>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/traced_graphics.h"
#include "gdiplus/transforms.h"

namespace kelvane::gdiplus {
namespace {

const EmfPlusBrush kRed = Argb{0, 0, 255, 255};
const EmfPlusBrush kHalfRed = Argb{0, 0, 255, 128};

EmfPlusPen RedPen() {
  EmfPlusPen pen;
  pen.brush = kRed;
  return pen;
}

using Points = std::vector<PointF>;
using Boxes = std::vector<RectF>;

TEST(FillRectangles, AreOneMarkOfAColorThatHides) {
  TracedGraphics graphics;
  FillRectangles(graphics, kRed, Boxes{{1, 2, 3, 4}, {10, 20, 30, 40}});
  EXPECT_EQ(graphics.TakeMarks(), "rect 1 2 3 4\nrect 10 20 30 40\nfill\n");
}

TEST(FillRectangles, ShowThroughEachOtherOtherwise) {
  TracedGraphics graphics;
  FillRectangles(graphics, kHalfRed, Boxes{{1, 2, 3, 4}, {2, 3, 3, 4}});
  EXPECT_EQ(graphics.TakeMarks(), "rect 1 2 3 4\nfill\nrect 2 3 3 4\nfill\n");
}

TEST(FillRectangles, LeaveOutThoseWithoutASize) {
  TracedGraphics graphics;
  FillRectangles(graphics, kRed, Boxes{{1, 2, 0, 4}, {1, 2, -3, 4}, {1, 2, 3, 4}});
  EXPECT_EQ(graphics.TakeMarks(), "rect 1 2 3 4\nfill\n");
}

TEST(FillRectangles, LeaveOutThoseThatAreNotFinite) {
  TracedGraphics graphics;
  FillRectangles(graphics, kRed,
                 Boxes{{1, 2, std::numeric_limits<float>::infinity(), 4}, {1, 2, 3, 4}});
  EXPECT_EQ(graphics.TakeMarks(), "rect 1 2 3 4\nfill\n");
}

TEST(FillRectangles, TurnWithTheWorld) {
  TracedGraphics graphics;
  SetWorldTransform(graphics, {0, 1, -1, 0, 50, 0});
  FillRectangles(graphics, kRed, Boxes{{10, 0, 20, 5}});
  EXPECT_EQ(graphics.TakeMarks(), "move 50 10\nline 50 30\nline 45 30\nline 45 10\nclose\nfill\n");
}

TEST(FillPolygon, IsClosedAndEvenOdd) {
  TracedGraphics graphics;
  FillPolygon(graphics, kRed, Points{{0, 0}, {10, 0}, {10, 10}});
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\nline 10 0\nline 10 10\nclose\neo-fill\n");
}

TEST(DrawLines, CloseWhereTheyAreToldTo) {
  TracedGraphics graphics;
  DrawLines(graphics, RedPen(), Points{{0, 0}, {10, 0}, {10, 10}}, false);
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\nline 10 0\nline 10 10\nstroke\n");
  DrawLines(graphics, RedPen(), Points{{0, 0}, {10, 0}, {10, 10}}, true);
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\nline 10 0\nline 10 10\nclose\nstroke\n");
}

TEST(DrawBeziers, DropAnIncompleteCurve) {
  TracedGraphics graphics;
  DrawBeziers(graphics, RedPen(), Points{{0, 0}, {1, 1}, {2, 2}, {3, 0}, {4, 4}});
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\ncurve 3 0\nstroke\n");
}

// On an ellipse of 100 by 50 the ray at 45 degrees meets it at x = y from the centre, where
// (x / 50)^2 + (x / 25)^2 = 1: 22.36 away.
TEST(DrawArc, EndsWhereARayMeetsTheEllipse) {
  TracedGraphics graphics;
  DrawArc(graphics, RedPen(), {0, 0, 100, 50}, 0, 45);
  EXPECT_EQ(graphics.TakeMarks(), "move 100 25\ncurve 72.36 47.36\nstroke\n");
}

TEST(DrawArc, TurnsBackByANegativeSweep) {
  TracedGraphics graphics;
  DrawArc(graphics, RedPen(), {0, 0, 100, 50}, 90, -90);
  EXPECT_EQ(graphics.TakeMarks(), "move 50 50\ncurve 100 25\nstroke\n");
}

TEST(DrawArc, IsAClosedEllipseFromAFullTurnOn) {
  TracedGraphics graphics;
  DrawArc(graphics, RedPen(), {0, 0, 20, 10}, 0, 5000);
  EXPECT_EQ(graphics.TakeMarks(),
            "move 20 5\ncurve 10 10\ncurve 0 5\ncurve 10 0\ncurve 20 5\nclose\nstroke\n");
}

TEST(FillPie, GoesThroughTheCentre) {
  TracedGraphics graphics;
  FillPie(graphics, kRed, {0, 0, 20, 20}, 0, 90);
  EXPECT_EQ(graphics.TakeMarks(), "move 10 10\nline 20 10\ncurve 10 20\nclose\nfill\n");
}

TEST(FillPie, IsNothingInABoxWithoutWidth) {
  TracedGraphics graphics;
  FillPie(graphics, kRed, {0, 0, 0, 20}, 0, 90);
  EXPECT_EQ(graphics.Take(), "");
}

// Control points lie a third of the tension from their points, along the line between neighbours.
TEST(DrawCurve, IsPulledByItsNeighbours) {
  TracedGraphics graphics;
  DrawCurve(graphics, RedPen(), Points{{0, 0}, {12, 12}, {24, 0}}, 0.5F, 0, 2);
  EXPECT_EQ(LinesWith(graphics.Take(), "curve"),
            (std::vector<std::string>{"curve 2 2 8 12 12 12", "curve 16 12 22 2 24 0"}));
}

TEST(DrawCurve, CountsNeighboursBeyondItsPart) {
  TracedGraphics graphics;
  DrawCurve(graphics, RedPen(), Points{{0, 0}, {12, 12}, {24, 0}}, 0.5F, 1, 99);
  EXPECT_EQ(LinesWith(graphics.Take(), "curve"), std::vector<std::string>{"curve 16 12 22 2 24 0"});
}

TEST(DrawCurve, IsNothingFromItsLastPointOn) {
  TracedGraphics graphics;
  DrawCurve(graphics, RedPen(), Points{{0, 0}, {12, 12}}, 0.5F, 1, 1);
  EXPECT_EQ(graphics.Take(), "");
}

TEST(DrawClosedCurve, HasItsEndsForNeighbours) {
  TracedGraphics graphics;
  DrawClosedCurve(graphics, RedPen(), Points{{0, 0}, {12, 12}, {24, 0}}, 0.5F);
  EXPECT_EQ(LinesWith(graphics.Take(), "curve"),
            (std::vector<std::string>{"curve -2 2 8 12 12 12", "curve 16 12 26 2 24 0",
                                      "curve 22 -2 2 -2 0 0"}));
}

TEST(FillPath, HasTheRuleOfThePath) {
  const EmfPlusPath path = {
      {{0, 0}, {9, 0}, {9, 9}, {1, 1}, {2, 2}, {3, 3}, {4, 1}}, {0, 1, 0xA1, 0, 3, 3, 3}, false};
  TracedGraphics graphics;
  FillPath(graphics, kRed, path);
  EXPECT_EQ(graphics.TakeMarks(),
            "move 0 0\nline 9 0\nline 9 9\nclose\nmove 1 1\ncurve 4 1\neo-fill\n");
  FillPath(graphics, kRed, {{{0, 0}, {9, 0}, {9, 9}}, {0, 1, 1}, true});
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\nline 9 0\nline 9 9\nfill\n");
}

TEST(FillPath, DropsACurveThatIsNotWhole) {
  TracedGraphics graphics;
  FillPath(graphics, kRed, {{{0, 0}, {9, 0}, {9, 9}, {8, 8}}, {0, 1, 3, 3}, true});
  EXPECT_EQ(graphics.TakeMarks(), "move 0 0\nline 9 0\nfill\n");
}

TEST(FillPath, NamedAgainAndAgainStops) {
  EmfPlusPath path;
  constexpr std::size_t kPoints = 1 << 20;
  path.points.resize(kPoints, {5, 5});
  path.types.resize(kPoints, kEmfPlusPointLine);
  TracedGraphics graphics;
  for (int i = 0; i < 5; ++i)
    FillPath(graphics, kRed, path);
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kDrawnTooOften));
}

TEST(FillRegion, FillsWhatIsLeft) {
  TracedGraphics graphics;
  using Type = EmfPlusRegionNodeType;
  FillRegion(graphics, kRed,
             {{{Type::kExclude, {}},
               {Type::kRectangle, RectF{0, 0, 30, 10}},
               {Type::kRectangle, RectF{10, 0, 10, 10}}}});
  EXPECT_EQ(graphics.TakeMarks(), "rect 0 0 10 10\nrect 20 0 10 10\neo-fill\n");
}

TEST(Clear, FillsAllThatCanBeSeen) {
  TracedGraphics graphics;
  Clear(graphics, {0, 0, 255, 255});
  EXPECT_EQ(graphics.TakeMarks(), "rect -1000 -1000 2000 2000\nfill\n");
}

}  // namespace
}  // namespace kelvane::gdiplus
