#include "gdi/shapes.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/path_brackets.h"
#include "gdi/stored_array.h"
#include "gdi/test_pens.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr XForm kTwice = {2, 0, 0, 2, 0, 0};

// A circle of radius 10, and the ends of its horizontal and vertical radius.
constexpr RectangleL kCircle = {0, 0, 20, 20};
constexpr PointL kEast = {99, 10};
constexpr PointL kNorth = {10, -99};

TEST(Rectangle, IsWholeWhereItDoesNotShowHowItRuns) {
  TracedDevice device;
  Rectangle(device, {10, 20, 30, 40});
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 20 20\neo-fill-stroke\n");
}

TEST(Rectangle, IsDashedFromTheTopRightToTheLeft) {
  TracedDevice device;
  device.Select(1, ExtendedPen(PS_DASH, 1));
  Rectangle(device, {10, 20, 30, 40});
  EXPECT_EQ(device.TakeMarks(),
            "move 30 20\nline 10 20\nline 10 40\nline 30 40\nclose\neo-fill-stroke\n");
}

TEST(Rectangle, GoesTheOtherWayWithTheArcs) {
  TracedDevice device;
  device.Select(1, ExtendedPen(PS_DASH, 1));
  SetArcDirection(device, AD_CLOCKWISE);
  Rectangle(device, {10, 20, 30, 40});
  EXPECT_EQ(device.TakeMarks(),
            "move 30 20\nline 30 40\nline 10 40\nline 10 20\nclose\neo-fill-stroke\n");
}

TEST(Rectangle, RunsAsADashedOneDoesInAPath) {
  TracedDevice device;
  BeginPath(device);
  Rectangle(device, {10, 20, 30, 40});
  EndPath(device);
  StrokePath(device);
  EXPECT_EQ(device.TakeMarks(), "move 30 20\nline 10 20\nline 10 40\nline 30 40\nclose\nstroke\n");
}

TEST(Rectangle, HasItsCornersInAnyOrder) {
  TracedDevice device;
  Rectangle(device, {30, 40, 10, 20});
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 20 20\neo-fill-stroke\n");
}

TEST(Rectangle, TurnsWithTheWorld) {
  TracedDevice device;
  SetWorldTransform(device, {0, 1, -1, 0, 0, 0});
  Rectangle(device, {0, 0, 10, 20});
  EXPECT_EQ(device.TakeMarks(),
            "move 0 10\nline -20 10\nline -20 0\nline 0 0\nclose\neo-fill-stroke\n");
}

TEST(Rectangle, FillsItsStoredBoxAloneWithANullPen) {
  TracedDevice device;
  SelectObject(device, NULL_PEN);
  Rectangle(device, {10, 20, 30, 40});
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 20 20\neo-fill\n");
}

TEST(Ellipse, StartsAtTheRightAndGoesUp) {
  TracedDevice device;
  Ellipse(device, {0, 0, 20, 10});
  EXPECT_EQ(device.TakeMarks(),
            "move 20 5\ncurve 10 0\ncurve 0 5\ncurve 10 10\ncurve 20 5\nclose\neo-fill-stroke\n");
}

TEST(RoundRect, StartsAtTheLowerEndOfItsTopRightCorner) {
  TracedDevice device;
  RoundRect(device, {0, 0, 100, 50}, {20, 10});
  EXPECT_EQ(device.TakeMarks(),
            "move 100 5\ncurve 90 0\nline 10 0\ncurve 0 5\nline 0 45\ncurve 10 50\nline 90 50\n"
            "curve 100 45\nclose\neo-fill-stroke\n");
}

TEST(RoundRect, HasNoCornersLargerThanTheBox) {
  TracedDevice device;
  RoundRect(device, {0, 0, 20, 10}, {500, -4});
  EXPECT_EQ(device.TakeMarks(),
            "move 20 2\ncurve 10 0\nline 10 0\ncurve 0 2\nline 0 8\ncurve 10 10\nline 10 10\n"
            "curve 20 8\nclose\neo-fill-stroke\n");
}

TEST(RoundRect, IsARectangleWithoutCorners) {
  TracedDevice device;
  RoundRect(device, {10, 20, 30, 40}, {0, 9});
  EXPECT_EQ(device.TakeMarks(),
            "move 30 20\nline 10 20\nline 10 40\nline 30 40\nclose\neo-fill-stroke\n");
}

TEST(Arc, GoesFromOneDirectionToTheOtherAndIsNotFilled) {
  TracedDevice device;
  MoveToEx(device, {5, 5});
  Arc(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 20 10\ncurve 10 0\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{5, 5}));
}

TEST(Arc, GoesTheLongWayRoundClockwise) {
  TracedDevice device;
  SetArcDirection(device, AD_CLOCKWISE);
  Arc(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 20 10\ncurve 10 20\ncurve 0 10\ncurve 10 0\nstroke\n");
}

TEST(Arc, KeepsItsDirectionInLogicalSpace) {
  TracedDevice device;
  SetWorldTransform(device, {1, 0, 0, -1, 0, 0});
  Arc(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 20 -10\ncurve 10 0\nstroke\n");
}

TEST(Arc, IsTheWholeEllipseBetweenEqualDirections) {
  TracedDevice device;
  Arc(device, kCircle, kEast, kEast);
  EXPECT_EQ(device.TakeMarks(),
            "move 20 10\ncurve 10 0\ncurve 0 10\ncurve 10 20\ncurve 20 10\nstroke\n");
}

TEST(Arc, MarksNothingInABoxWithoutWidth) {
  TracedDevice device;
  Arc(device, {5, 0, 5, 20}, kEast, kNorth);
  ArcTo(device, {5, 0, 5, 20}, kEast, kNorth);
  Chord(device, {0, 5, 20, 5}, kEast, kNorth);
  Pie(device, {0, 5, 20, 5}, kEast, kNorth);
  EXPECT_EQ(device.Take(), "");
}

TEST(Chord, IsClosedByALineAndFilled) {
  TracedDevice device;
  Chord(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 20 10\ncurve 10 0\nclose\neo-fill-stroke\n");
}

TEST(Pie, IsClosedThroughTheCenterAndFilled) {
  TracedDevice device;
  Pie(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 20 10\ncurve 10 0\nline 10 10\nclose\neo-fill-stroke\n");
}

TEST(ArcTo, DrawsALineToTheArcAndMovesToItsEnd) {
  TracedDevice device;
  MoveToEx(device, {5, 5});
  ArcTo(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 5 5\nline 20 10\ncurve 10 0\nstroke\n");
  EXPECT_NEAR(device->state.currentPosition.x, 10, 1e-9);
  EXPECT_NEAR(device->state.currentPosition.y, 0, 1e-9);
}

TEST(AngleArc, GoesFromEastToNorthBy90Degrees) {
  TracedDevice device;
  AngleArc(device, {10, 10}, 10, 0, 90);
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 20 10\ncurve 10 0\nstroke\n");
  EXPECT_NEAR(device->state.currentPosition.x, 10, 1e-9);
  EXPECT_NEAR(device->state.currentPosition.y, 0, 1e-9);
}

TEST(AngleArc, GoesTheOtherWayBySweepsBelowZero) {
  TracedDevice device;
  AngleArc(device, {10, 10}, 10, 90, -180);
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 10 0\ncurve 20 10\ncurve 10 20\nstroke\n");
}

TEST(AngleArc, IsOneCircleHoweverFarItSweeps) {
  TracedDevice device;
  AngleArc(device, {10, 10}, 10, 0, 5000);
  EXPECT_EQ(device.TakeMarks(),
            "move 0 0\nline 20 10\ncurve 10 0\ncurve 0 10\ncurve 10 20\ncurve 20 10\nstroke\n");
}

// A width of 5 from 22 to 37 covers the pixels 20 to 39.
TEST(InsideFrame, KeepsTheStrokeInTheBox) {
  TracedDevice device;
  device.Select(1, OldPen(PS_INSIDEFRAME, 5));
  Rectangle(device, {20, 20, 39, 39});
  EXPECT_EQ(device.TakeMarks(), "rect 22 22 15 15\neo-fill-stroke\n");
}

TEST(InsideFrame, KeepsEllipsesChordsAndPiesInTheBox) {
  TracedDevice device;
  device.Select(1, OldPen(PS_INSIDEFRAME, 5));
  Ellipse(device, {0, 0, 20, 20});
  EXPECT_EQ(device.TakeMarks().substr(0, 11), "move 18 10\n");
  Chord(device, {0, 0, 20, 20}, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 18 10\ncurve 10 2\nclose\neo-fill-stroke\n");
  Pie(device, {0, 0, 20, 20}, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 18 10\ncurve 10 2\nline 10 10\nclose\neo-fill-stroke\n");
  RoundRect(device, {0, 0, 20, 20}, {0, 0});
  EXPECT_EQ(device.TakeMarks().substr(0, 10), "move 18 2\n");
}

// 5 units are 10 pixels: half of them less half a pixel is 2.25 units.
TEST(InsideFrame, CountsThePixelsOfTheDevice) {
  TracedDevice device;
  device.Select(1, OldPen(PS_INSIDEFRAME, 5));
  SetWorldTransform(device, kTwice);
  Rectangle(device, {20, 20, 40, 40});
  EXPECT_EQ(device.TakeMarks(), "rect 44.5 44.5 31 31\neo-fill-stroke\n");
}

TEST(InsideFrame, EndsInTheMiddleOfABoxThatIsSmaller) {
  TracedDevice device;
  device.Select(1, OldPen(PS_INSIDEFRAME, 50));
  Rectangle(device, {0, 0, 10, 20});
  EXPECT_EQ(device.TakeMarks(), "rect 5 10 0 0\neo-fill-stroke\n");
}

TEST(InsideFrame, LeavesLinesAndPolygonsWhereTheyAre) {
  TracedDevice device;
  device.Select(1, OldPen(PS_INSIDEFRAME, 5));
  Polygon(device, StoredPoints({{0, 0}, {9, 0}, {0, 9}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 9 0\nline 0 9\nclose\neo-fill-stroke\n");
  Arc(device, kCircle, kEast, kNorth);
  EXPECT_EQ(device.TakeMarks(), "move 20 10\ncurve 10 0\nstroke\n");
}

TEST(SetPixelV, FillsADeviceUnitWhateverTheOperation) {
  TracedDevice device;
  SetROP2(device, R2_XORPEN);
  SetPixelV(device, {3, 4}, {0x0000FF});
  EXPECT_EQ(device.Take(), "fill-color 1 0 0\nrect 3 4 1 1\nfill\n");
}

TEST(SetPixelV, DrawsARowAsOneRectangle) {
  TracedDevice device;
  for (const int x : {3, 4, 5, 7})
    SetPixelV(device, {x, 4}, {});
  SetPixelV(device, {8, 5}, {});
  EXPECT_EQ(device.TakeMarks(), "rect 3 4 3 1\nrect 7 4 1 1\nrect 8 5 1 1\nfill\n");
}

TEST(SetPixelV, FillsEachColorByItself) {
  TracedDevice device;
  SetPixelV(device, {3, 4}, {0x0000FF});
  SetPixelV(device, {4, 4}, {0xFF0000});
  EXPECT_EQ(device.Take(),
            "fill-color 1 0 0\nrect 3 4 1 1\nfill\nfill-color 0 0 1\nrect 4 4 1 1\nfill\n");
}

TEST(SetPixelV, StaysADeviceUnitUnderTheMapping) {
  TracedDevice device;
  SetWorldTransform(device, {2, 0, 0, 2, 0.5F, 0.25F});
  SetPixelV(device, {3, 4}, {});
  EXPECT_EQ(device.TakeMarks(), "rect 7 8 1 1\nfill\n");
}

TEST(SetPixelV, IsPaintedAtOnceInABracket) {
  TracedDevice device;
  BeginPath(device);
  SetPixelV(device, {3, 4}, {});
  EXPECT_EQ(device.TakeMarks(), "rect 3 4 1 1\nfill\n");
}

TEST(PatBlt, FillsWithTheBrush) {
  TracedDevice device;
  device.Select(1, CreateSolidBrush({0x0000FF}));
  PatBlt(device, {10, 20}, {5, 6}, R2_COPYPEN);
  EXPECT_EQ(device.Take(), "fill-color 1 0 0\nrect 10 20 5 6\nfill\n");
}

TEST(PatBlt, LeadsTheOtherWayWithANegativeSize) {
  TracedDevice device;
  PatBlt(device, {15, 26}, {-5, -6}, R2_COPYPEN);
  EXPECT_EQ(device.TakeMarks(), "rect 15 26 -5 -6\nfill\n");
}

TEST(PatBlt, MarksNothingWithoutASize) {
  TracedDevice device;
  PatBlt(device, {15, 26}, {0, 6}, R2_COPYPEN);
  PatBlt(device, {15, 26}, {5, 0}, R2_COPYPEN);
  EXPECT_EQ(device.Take(), "");
}

TEST(PatBlt, TakesItsOwnOperationAndNotTheLines) {
  TracedDevice device;
  SetROP2(device, R2_NOT);
  PatBlt(device, {10, 20}, {5, 6}, R2_BLACK);
  EXPECT_EQ(device.Take(), "rect 10 20 5 6\nfill\n");
}

TEST(PatBlt, IsPaintedAtOnceInABracket) {
  TracedDevice device;
  BeginPath(device);
  PatBlt(device, {10, 20}, {5, 6}, R2_COPYPEN);
  EXPECT_NE(device.TakeMarks(), "");
  EndPath(device);
  EXPECT_FALSE(device->state.path->HasSegments());
}

}  // namespace
}  // namespace kelvane
