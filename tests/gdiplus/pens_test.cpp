#include <algorithm>
#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/drawn_pens.h"
#include "gdiplus/transforms.h"

namespace kelvane::gdiplus {
namespace {

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
