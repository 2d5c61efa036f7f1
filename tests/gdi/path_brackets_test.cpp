#include "gdi/path_brackets.h"

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/test_pens.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr RectangleL kCircle = {0, 0, 20, 20};
constexpr PointL kEast = {99, 10};
constexpr PointL kNorth = {10, -99};

/// A bracket on a traced page, opened with the line from (1, 1) to (2, 2).
class Bracket : public testing::Test {
 protected:
  Bracket() {
    BeginPath(device_);
    MoveToEx(device_, {1, 1});
    LineTo(device_, {2, 2});
  }

  /// Ends the bracket. @return the path, and "stroke".
  std::string Stroked() {
    EXPECT_TRUE(EndPath(device_) && StrokePath(device_));
    return device_.TakeMarks();
  }

  /// @return what stands behind the line of the beginning.
  std::string Added() {
    const std::string kLine = "move 1 1\nline 2 2\n";
    const std::string path = Stroked();
    EXPECT_EQ(path.substr(0, kLine.size()), kLine);
    return path.substr(kLine.size());
  }

  void AddTriangle() { Polygon(device_, StoredPoints({{0, 0}, {4, 0}, {0, 4}}).View()); }

  TracedDevice device_;
};

TEST_F(Bracket, PaintsNothingOfLinesAndShapes) {
  const StoredPoints points({{0, 0}, {4, 0}, {0, 4}, {4, 4}});
  Polyline(device_, points.View());
  PolylineTo(device_, points.View());
  PolyBezier(device_, points.View());
  PolyBezierTo(device_, points.View());
  Polygon(device_, points.View());
  PolyPolyline(device_, StoredNumbers({4}).View(), points.View());
  PolyPolygon(device_, StoredNumbers({4}).View(), points.View());
  PolyDraw(device_, points.View(), StoredPointTypes({PT_LINETO, PT_LINETO}).View());
  Rectangle(device_, kCircle);
  Ellipse(device_, kCircle);
  RoundRect(device_, kCircle, {4, 4});
  Arc(device_, kCircle, kEast, kNorth);
  ArcTo(device_, kCircle, kEast, kNorth);
  Chord(device_, kCircle, kEast, kNorth);
  Pie(device_, kCircle, kEast, kNorth);
  AngleArc(device_, {5, 5}, 5, 0, 90);
  EXPECT_EQ(device_.Take(), "");
}

// What joins the figure that is open.

TEST_F(Bracket, JoinsLines) {
  LineTo(device_, {3, 3});
  PolylineTo(device_, StoredPoints({{4, 4}, {5, 5}}).View());
  EXPECT_EQ(Added(), "line 3 3\nline 4 4\nline 5 5\nstroke\n");
}

TEST_F(Bracket, JoinsCurves) {
  PolyBezierTo(device_, StoredPoints({{3, 3}, {4, 4}, {5, 5}}).View());
  EXPECT_EQ(Added(), "curve 5 5\nstroke\n");
}

TEST_F(Bracket, JoinsAnArcByALine) {
  ArcTo(device_, kCircle, kEast, kNorth);
  EXPECT_EQ(Added(), "line 20 10\ncurve 10 0\nstroke\n");
}

TEST_F(Bracket, JoinsAnAngleArcByALine) {
  AngleArc(device_, {10, 10}, 10, 0, 90);
  LineTo(device_, {7, 7});
  EXPECT_EQ(Added(), "line 20 10\ncurve 10 0\nline 7 7\nstroke\n");
}

TEST_F(Bracket, JoinsADrawingUnlessItMoves) {
  PolyDraw(device_, StoredPoints({{3, 3}, {8, 8}, {9, 9}}).View(),
           StoredPointTypes({PT_LINETO, PT_MOVETO, PT_LINETO}).View());
  LineTo(device_, {7, 7});
  EXPECT_EQ(Added(), "line 3 3\nmove 8 8\nline 9 9\nline 7 7\nstroke\n");
}

// What starts a figure.

TEST_F(Bracket, StartsAFigureAtAMove) {
  MoveToEx(device_, {5, 5});
  LineTo(device_, {6, 6});
  EXPECT_EQ(Added(), "move 5 5\nline 6 6\nstroke\n");
}

TEST_F(Bracket, StartsAFigureAtAMoveToWhereItIs) {
  MoveToEx(device_, {2, 2});
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "move 2 2\nline 3 3\nstroke\n");
}

TEST(BeginPath, LeavesTheCurrentPositionToStartFrom) {
  TracedDevice device;
  MoveToEx(device, {3, 4});
  BeginPath(device);
  LineTo(device, {5, 6});
  EXPECT_TRUE(EndPath(device) && StrokePath(device));
  EXPECT_EQ(device.TakeMarks(), "move 3 4\nline 5 6\nstroke\n");
}

TEST_F(Bracket, HasOpenFiguresOfTheirOwnAndGoesOnAtTheCurrentPosition) {
  Polyline(device_, StoredPoints({{5, 5}, {6, 6}}).View());
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "move 5 5\nline 6 6\nmove 2 2\nline 3 3\nstroke\n");
}

TEST_F(Bracket, HasCurvesOfTheirOwn) {
  PolyBezier(device_, StoredPoints({{5, 5}, {6, 6}, {7, 7}, {8, 8}}).View());
  Arc(device_, kCircle, kEast, kNorth);
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "move 5 5\ncurve 8 8\nmove 20 10\ncurve 10 0\nmove 2 2\nline 3 3\nstroke\n");
}

TEST_F(Bracket, HasPolygonsOfTheirOwn) {
  AddTriangle();
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "move 0 0\nline 4 0\nline 0 4\nclose\nmove 2 2\nline 3 3\nstroke\n");
}

TEST_F(Bracket, HasShapesOfTheirOwn) {
  Rectangle(device_, {5, 5, 6, 6});
  Chord(device_, kCircle, kEast, kNorth);
  Pie(device_, kCircle, kEast, kNorth);
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(),
            "move 6 5\nline 5 5\nline 5 6\nline 6 6\nclose\n"
            "move 20 10\ncurve 10 0\nclose\n"
            "move 20 10\ncurve 10 0\nline 10 10\nclose\n"
            "move 2 2\nline 3 3\nstroke\n");
}

// The current position.

TEST_F(Bracket, MovesTheCurrentPositionWhichPaintingLeavesAlone) {
  EXPECT_EQ(device_->state.currentPosition, (PointD{2, 2}));
  Stroked();
  EXPECT_EQ(device_->state.currentPosition, (PointD{2, 2}));
}

TEST_F(Bracket, EndsWithItsFigure) {
  Stroked();
  LineTo(device_, {3, 3});
  EXPECT_EQ(device_.TakeMarks(), "move 2 2\nline 3 3\nstroke\n");
}

// Closing.

TEST_F(Bracket, GoesOnWhereAFigureWasBeforeItWasClosed) {
  LineTo(device_, {9, 2});
  EXPECT_TRUE(CloseFigure(device_));
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "line 9 2\nclose\nmove 9 2\nline 3 3\nstroke\n");
}

TEST_F(Bracket, ClosesAFigureOnce) {
  LineTo(device_, {9, 2});
  EXPECT_TRUE(CloseFigure(device_) && CloseFigure(device_));
  EXPECT_EQ(Added(), "line 9 2\nclose\nstroke\n");
}

TEST(CloseFigure, FailsOutsideOfABracket) {
  TracedDevice device;
  EXPECT_FALSE(CloseFigure(device));
}

TEST_F(Bracket, GoesOnWhereAFigureBeganThatADrawingClosed) {
  PolyDraw(device_, StoredPoints({{5, 5}, {9, 5}, {9, 9}}).View(),
           StoredPointTypes({PT_MOVETO, PT_LINETO, PT_LINETO | PT_CLOSEFIGURE}).View());
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "move 5 5\nline 9 5\nline 9 9\nclose\nmove 5 5\nline 3 3\nstroke\n");
}

TEST_F(Bracket, LeavesThePositionWhereTheFigureBeganThatADrawingJoinedAndClosed) {
  PolyDraw(device_, StoredPoints({{9, 9}}).View(),
           StoredPointTypes({PT_LINETO | PT_CLOSEFIGURE}).View());
  EXPECT_EQ(device_->state.currentPosition, (PointD{1, 1}));
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "line 9 9\nclose\nmove 1 1\nline 3 3\nstroke\n");
}

// Mapping.

TEST_F(Bracket, MapsPointsWhenTheyAreAdded) {
  SetWorldTransform(device_, {10, 0, 0, 10, 0, 0});
  LineTo(device_, {3, 3});
  SetWorldTransform(device_, {});
  EXPECT_EQ(Added(), "line 30 30\nstroke\n");
}

TEST_F(Bracket, TakesThePenAsItIsAtTheStroke) {
  device_.Select(1, GeometricPen(PS_SOLID, 3));
  SetWorldTransform(device_, {10, 0, 0, 10, 0, 0});
  EXPECT_TRUE(EndPath(device_) && StrokePath(device_));
  EXPECT_EQ(LinesWith(device_.Take(), "line-width"), std::vector<std::string>{"line-width 30"});
}

// Painting.

TEST_F(Bracket, IsFilledByTheModeOfThatTime) {
  AddTriangle();
  EXPECT_TRUE(EndPath(device_));
  SetPolyFillMode(device_, WINDING);
  EXPECT_TRUE(FillPath(device_));
  EXPECT_EQ(device_.TakeMarks(), "move 1 1\nline 2 2\nmove 0 0\nline 4 0\nline 0 4\nclose\nfill\n");
}

TEST_F(Bracket, IsStrokedAndFilledWithAllFiguresClosed) {
  LineTo(device_, {1, 2});
  MoveToEx(device_, {5, 5});
  PolyBezierTo(device_, StoredPoints({{5, 6}, {6, 6}, {6, 5}}).View());
  AddTriangle();
  EXPECT_TRUE(EndPath(device_) && StrokeAndFillPath(device_));
  EXPECT_EQ(device_.TakeMarks(),
            "move 1 1\nline 2 2\nline 1 2\nclose\nmove 5 5\ncurve 6 5\nclose\n"
            "move 0 0\nline 4 0\nline 0 4\nclose\neo-fill-stroke\n");
}

TEST_F(Bracket, KeepsItsCurvesWhenItIsFlattened) {
  PolyBezierTo(device_, StoredPoints({{3, 3}, {4, 4}, {5, 5}}).View());
  EXPECT_FALSE(FlattenPath(device_));
  EXPECT_TRUE(EndPath(device_) && FlattenPath(device_) && StrokePath(device_));
  EXPECT_EQ(device_.TakeMarks(), "move 1 1\nline 2 2\ncurve 5 5\nstroke\n");
}

/// All that takes a finished path.
class PathEater : public testing::TestWithParam<bool (*)(DeviceContext&)> {};

TEST_P(PathEater, FailsWithoutAPath) {
  TracedDevice device;
  EXPECT_FALSE(GetParam()(device));
  EXPECT_EQ(device.Take(), "");
}

TEST_P(PathEater, FailsInABracketWhichGoesOn) {
  TracedDevice device;
  BeginPath(device);
  LineTo(device, {5, 5});
  EXPECT_FALSE(GetParam()(device));
  EXPECT_TRUE(EndPath(device) && StrokePath(device));
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 5\nstroke\n");
}

TEST_P(PathEater, UsesThePathUp) {
  TracedDevice device;
  BeginPath(device);
  LineTo(device, {5, 5});
  LineTo(device, {5, 0});
  EXPECT_TRUE(EndPath(device) && GetParam()(device));
  device.Take();
  EXPECT_FALSE(GetParam()(device));
  EXPECT_EQ(device.Take(), "");
}

TEST_P(PathEater, LeavesThePathToAStateThatWasSaved) {
  TracedDevice device;
  BeginPath(device);
  LineTo(device, {5, 5});
  LineTo(device, {5, 0});
  EXPECT_TRUE(EndPath(device));
  SaveDC(device);
  EXPECT_TRUE(GetParam()(device));
  device.Take();
  EXPECT_TRUE(RestoreDC(device, -1) && StrokePath(device));
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 5 5\nline 5 0\nstroke\n");
}

INSTANTIATE_TEST_SUITE_P(, PathEater,
                         testing::Values(FillPath, StrokePath, StrokeAndFillPath,
                                         [](DeviceContext& device) {
                                           return SelectClipPath(device, RGN_AND);
                                         }));

TEST(EndPath, FailsWithoutABracket) {
  TracedDevice device;
  EXPECT_FALSE(EndPath(device));
  BeginPath(device);
  EXPECT_TRUE(EndPath(device));
  EXPECT_FALSE(EndPath(device));
}

TEST_F(Bracket, DropsThePathBefore) {
  EXPECT_TRUE(EndPath(device_));
  BeginPath(device_);
  EXPECT_FALSE(StrokePath(device_));
  LineTo(device_, {3, 3});
  BeginPath(device_);
  LineTo(device_, {4, 4});
  EXPECT_EQ(Stroked(), "move 3 3\nline 4 4\nstroke\n");
}

TEST_F(Bracket, IsDroppedWhenItIsAborted) {
  AbortPath(device_);
  EXPECT_FALSE(EndPath(device_));
  LineTo(device_, {3, 3});
  EXPECT_EQ(device_.TakeMarks(), "move 2 2\nline 3 3\nstroke\n");
}

TEST_F(Bracket, IsDroppedWhenItIsFinishedAndAborted) {
  EXPECT_TRUE(EndPath(device_));
  AbortPath(device_);
  EXPECT_FALSE(StrokePath(device_));
}

// Saving and restoring.

TEST_F(Bracket, LosesWhatWasAddedSinceItWasSaved) {
  SaveDC(device_);
  LineTo(device_, {9, 9});
  AddTriangle();
  EXPECT_TRUE(RestoreDC(device_, -1));
  LineTo(device_, {3, 3});
  EXPECT_EQ(Added(), "line 3 3\nstroke\n");
}

TEST_F(Bracket, LosesAFigureThatTookThePlaceOfABareMove) {
  PolyDraw(device_, StoredPoints({{5, 5}}).View(), StoredPointTypes({PT_MOVETO}).View());
  SaveDC(device_);
  AddTriangle();
  EXPECT_TRUE(RestoreDC(device_, -1));
  LineTo(device_, {6, 6});
  EXPECT_EQ(Added(), "move 5 5\nline 6 6\nstroke\n");
}

TEST_F(Bracket, IsOpenAgainButEmptyWhenAnotherCameBetween) {
  SaveDC(device_);
  BeginPath(device_);
  AddTriangle();
  EXPECT_TRUE(EndPath(device_) && RestoreDC(device_, -1));
  LineTo(device_, {3, 3});
  EXPECT_EQ(Stroked(), "move 2 2\nline 3 3\nstroke\n");
}

TEST(BeginPath, IsUndoneByAStateFromBeforeIt) {
  TracedDevice device;
  SaveDC(device);
  BeginPath(device);
  LineTo(device, {5, 5});
  EXPECT_TRUE(RestoreDC(device, -1));
  EXPECT_FALSE(EndPath(device));
  LineTo(device, {3, 3});
  EXPECT_EQ(device.TakeMarks(), "move 0 0\nline 3 3\nstroke\n");
}

// Widening.

TEST_F(Bracket, IsWidenedToTheOutlineOfItsStroke) {
  AbortPath(device_);
  BeginPath(device_);
  MoveToEx(device_, {0, 0});
  LineTo(device_, {10, 0});
  EXPECT_TRUE(EndPath(device_));
  device_.Select(1, GeometricPen(PS_ENDCAP_FLAT | PS_JOIN_MITER, 4));
  EXPECT_TRUE(WidenPath(device_));
  SelectObject(device_, NULL_PEN);
  EXPECT_TRUE(FillPath(device_));
  const std::string outline = device_.TakeMarks();
  for (const char* corner : {" 0 -2\n", " 10 -2\n", " 10 2\n", " 0 2\n"})
    EXPECT_NE(outline.find(corner), std::string::npos) << corner << outline;
}

TEST_F(Bracket, StaysALineUnderAPenWithoutAWidth) {
  EXPECT_TRUE(EndPath(device_));
  EXPECT_FALSE(WidenPath(device_));
  device_.Select(1, ExtendedPen(PS_COSMETIC, 1));
  EXPECT_FALSE(WidenPath(device_));
  SelectObject(device_, NULL_PEN);
  EXPECT_FALSE(WidenPath(device_));
  SelectObject(device_, BLACK_PEN);
  EXPECT_TRUE(StrokePath(device_));
  EXPECT_EQ(device_.TakeMarks(), "move 1 1\nline 2 2\nstroke\n");
}

}  // namespace
}  // namespace kelvane
