#include "gdi/lines.h"

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/stored_array.h"
#include "gdi/test_pens.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr XForm kTwice = {2, 0, 0, 2, 0, 0};

TEST(MoveToEx, MarksNothing) {
  TracedDevice device;
  MoveToEx(device, {1, 2});
  EXPECT_EQ(device.Take(), "");
  EXPECT_EQ(device->state.currentPosition, (PointD{1, 2}));
}

TEST(LineTo, GoesFromTheCurrentPositionAndMovesIt) {
  TracedDevice device;
  MoveToEx(device, {1, 2});
  LineTo(device, {3, 4});
  EXPECT_EQ(device.TakeMarks(), "move 1 2\nline 3 4\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{3, 4}));
}

TEST(LineTo, RunsOnInOneStroke) {
  TracedDevice device;
  LineTo(device, {5, 0});
  LineTo(device, {5, 5});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 0\nline 5 5\nstroke\n");
}

TEST(LineTo, StartsAFigureOfTheSameStrokeAfterAMove) {
  TracedDevice device;
  LineTo(device, {5, 0});
  MoveToEx(device, {1, 1});
  LineTo(device, {2, 2});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 0\nmove 1 1\nline 2 2\nstroke\n");
}

TEST(LineTo, StartsANewStrokeOnceMarksWereDrawn) {
  TracedDevice device;
  LineTo(device, {5, 0});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 0\nstroke\n");
  LineTo(device, {5, 5});
  EXPECT_EQ(device.TakeMarks(), "move 5 0\nline 5 5\nstroke\n");
}

TEST(LineTo, StrokesOneByOneWhereALineOnALineCounts) {
  TracedDevice device;
  SetROP2(device, R2_NOT);
  LineTo(device, {5, 0});
  LineTo(device, {0, 0});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 0\nstroke\nmove 5 0\nline 0 0\nstroke\n");
}

TEST(LineTo, StrokesOneByOneWithEndsUnlikeCorners) {
  TracedDevice device;
  device.Select(1, GeometricPen(PS_ENDCAP_FLAT | PS_JOIN_MITER, 4));
  LineTo(device, {5, 0});
  LineTo(device, {5, 5});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 0\nstroke\nmove 5 0\nline 5 5\nstroke\n");
}

// What the functions for many points have in common, for points of either width.
template <class Points>
class PointsOf : public testing::Test {};

using Widths = testing::Types<StoredPoints, StoredPoints16>;
TYPED_TEST_SUITE(PointsOf, Widths);

TYPED_TEST(PointsOf, PolylineLeaveTheCurrentPosition) {
  TracedDevice device;
  MoveToEx(device, {9, 9});
  Polyline(device, TypeParam({{1, 2}, {3, -4}, {5, 6}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 1 2\nline 3 -4\nline 5 6\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{9, 9}));
}

TYPED_TEST(PointsOf, PolylineToGoOnFromTheCurrentPosition) {
  TracedDevice device;
  MoveToEx(device, {9, 9});
  PolylineTo(device, TypeParam({{1, 2}, {3, 4}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 9 9\nline 1 2\nline 3 4\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{3, 4}));
}

TYPED_TEST(PointsOf, PolyBezierAreAStartAndThreeACurve) {
  TracedDevice device;
  MoveToEx(device, {9, 9});
  Polyline(device, TypeParam({}).View());
  PolyBezier(device, TypeParam({{0, 0}, {1, 1}, {2, 1}, {3, 0}, {4, -1}, {5, -1}, {6, 0}}).View());
  EXPECT_EQ(device.Take(),
            "line-width 0\nline-join 1\n"
            "move 0 0\ncurve 1 1 2 1 3 0\ncurve 4 -1 5 -1 6 0\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{9, 9}));
}

TYPED_TEST(PointsOf, PolyBezierToGoOnFromTheCurrentPosition) {
  TracedDevice device;
  MoveToEx(device, {9, 9});
  PolyBezierTo(device, TypeParam({{1, 1}, {2, 1}, {3, 0}}).View());
  EXPECT_EQ(device.Take(), "line-width 0\nline-join 1\nmove 9 9\ncurve 1 1 2 1 3 0\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{3, 0}));
}

TYPED_TEST(PointsOf, CurvesThatAreNoThreeAreLeftOut) {
  TracedDevice device;
  PolyBezier(device, TypeParam({{0, 0}, {1, 1}, {2, 1}, {3, 0}, {4, -1}, {5, -1}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\ncurve 3 0\nstroke\n");
  PolyBezierTo(device, TypeParam({{1, 1}, {2, 1}, {3, 0}, {4, 4}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\ncurve 3 0\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{3, 0}));
  PolyBezierTo(device, TypeParam({{7, 7}, {8, 8}}).View());
  EXPECT_EQ(device.TakeMarks(), "");
  EXPECT_EQ(device->state.currentPosition, (PointD{3, 0}));
}

TYPED_TEST(PointsOf, PolygonAreClosedFilledAndStroked) {
  TracedDevice device;
  MoveToEx(device, {9, 9});
  Polygon(device, TypeParam({{0, 0}, {4, 0}, {0, 4}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 4 0\nline 0 4\nclose\neo-fill-stroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{9, 9}));
}

TYPED_TEST(PointsOf, PolyPolylineAreStrokedAsOne) {
  TracedDevice device;
  PolyPolyline(device, StoredNumbers({2, 3}).View(),
               TypeParam({{0, 0}, {1, 0}, {5, 5}, {6, 5}, {6, 6}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 1 0\nmove 5 5\nline 6 5\nline 6 6\nstroke\n");
}

TYPED_TEST(PointsOf, PolyPolygonAreFilledAsOne) {
  TracedDevice device;
  PolyPolygon(device, StoredNumbers({3, 3}).View(),
              TypeParam({{0, 0}, {9, 0}, {0, 9}, {1, 1}, {2, 1}, {1, 2}}).View());
  EXPECT_EQ(device.TakeMarks(),
            "move 0 0\nline 9 0\nline 0 9\nclose\nmove 1 1\nline 2 1\nline 1 2\nclose\n"
            "eo-fill-stroke\n");
}

TYPED_TEST(PointsOf, PolyDrawAreOfTheirTypes) {
  TracedDevice device;
  EXPECT_TRUE(PolyDraw(device,
                       TypeParam({{1, 1}, {5, 1}, {6, 2}, {6, 3}, {5, 4}, {8, 8}, {9, 9}}).View(),
                       StoredPointTypes({PT_MOVETO, PT_LINETO, PT_BEZIERTO, PT_BEZIERTO,
                                         PT_BEZIERTO | PT_CLOSEFIGURE, PT_MOVETO, PT_LINETO})
                           .View()));
  EXPECT_EQ(device.TakeMarks(),
            "move 1 1\nline 5 1\ncurve 5 4\nclose\nmove 8 8\nline 9 9\nstroke\n");
  EXPECT_EQ(device->state.currentPosition, (PointD{9, 9}));
}

TEST(Polygon, IsFilledByTheModeThatIsSet) {
  TracedDevice device;
  SetPolyFillMode(device, WINDING);
  Polygon(device, StoredPoints({{0, 0}, {4, 0}, {0, 4}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 4 0\nline 0 4\nclose\nfill-stroke\n");
}

TEST(PolyPolygon, CutsCountsToThePointsThereAre) {
  TracedDevice device;
  PolyPolyline(device, StoredNumbers({2, 0xFFFFFFFF, 5}).View(),
               StoredPoints({{0, 0}, {1, 0}, {5, 5}, {6, 5}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 1 0\nmove 5 5\nline 6 5\nstroke\n");
}

TEST(Polyline, MarksNothingWithLessThanTwoPoints) {
  TracedDevice device;
  Polyline(device, StoredPoints({}).View());
  Polyline(device, StoredPoints({{1, 1}}).View());
  PolyBezier(device, StoredPoints({}).View());
  Polygon(device, StoredPoints({{1, 1}}).View());
  PolylineTo(device, StoredPoints({}).View());
  EXPECT_EQ(device.Take(), "");
}

TEST(Polyline, IsMappedInFractions) {
  TracedDevice device;
  SetWorldTransform(device, {0.5F, 0, 0, 0.25F, 10, 20});
  Polyline(device, StoredPoints({{1, 1}, {3, 3}}).View());
  EXPECT_EQ(device.TakeMarks(), "move 10.5 20.25\nline 11.5 20.75\nstroke\n");
}

TEST(PolyDraw, GoesOnFromTheCurrentPositionUnlessItMoves) {
  TracedDevice device;
  MoveToEx(device, {9, 9});
  EXPECT_TRUE(
      PolyDraw(device, StoredPoints({{1, 1}}).View(), StoredPointTypes({PT_LINETO}).View()));
  EXPECT_EQ(device.TakeMarks(), "move 9 9\nline 1 1\nstroke\n");
}

TEST(PolyDraw, LeavesThePositionWhereAFigureThatItClosedBegan) {
  TracedDevice device;
  EXPECT_TRUE(
      PolyDraw(device, StoredPoints({{1, 1}, {5, 1}, {5, 5}}).View(),
               StoredPointTypes({PT_MOVETO, PT_LINETO, PT_LINETO | PT_CLOSEFIGURE}).View()));
  EXPECT_EQ(device->state.currentPosition, (PointD{1, 1}));
}

TEST(PolyDraw, DrawsWhatComesBeforeATypeThatIsNone) {
  TracedDevice device;
  EXPECT_FALSE(PolyDraw(device, StoredPoints({{1, 1}, {5, 1}, {5, 5}}).View(),
                        StoredPointTypes({PT_LINETO, 8, PT_LINETO}).View()));
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 1 1\nstroke\n");
}

TEST(PolyDraw, FailsAtACurveWithoutItsThreePoints) {
  TracedDevice device;
  EXPECT_FALSE(PolyDraw(device, StoredPoints({{1, 1}, {2, 2}, {3, 3}}).View(),
                        StoredPointTypes({PT_LINETO, PT_BEZIERTO, PT_BEZIERTO}).View()));
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 1 1\nstroke\n");
}

TEST(LineTo, TakesTheMappingOfTheMoment) {
  TracedDevice device;
  LineTo(device, {5, 0});
  DrawPendingMarks(device);
  SetWorldTransform(device, kTwice);
  LineTo(device, {5, 5});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 0\nstroke\nmove 10 0\nline 10 10\nstroke\n");
}

}  // namespace
}  // namespace kelvane
