#include "classic/records/shape_records.h"

#include <algorithm>

#include <gtest/gtest.h>

#include "support/playback.h"

namespace kelvane {
namespace {

using test::kArcClockwise;
using test::kArcCounterClockwise;
using test::Metafile;
using test::PageContent;
using test::Trace;

constexpr RectangleL kBox = {10, 20, 30, 60};

/// The trace without its last line, which says how the path is painted.
std::string PathOf(const std::string& trace) {
  return trace.substr(0, trace.rfind('\n', trace.size() - 2) + 1);
}

/// The trace's last line.
std::string PaintingOf(const std::string& trace) {
  return trace.substr(trace.rfind('\n', trace.size() - 2) + 1);
}

Metafile Hollow() {
  Metafile metafile;
  metafile.SelectObject(test::kStockNullBrush);
  return metafile;
}

TEST(LineToRecord, StrokesEachSegmentAsItComes) {
  EXPECT_EQ(Trace(Metafile().MoveTo(0, 0).LineTo(10, 0).LineTo(10, 10)),
            "move 0 0\nline 10 0\nstroke\nmove 10 0\nline 10 -10\nstroke\n");
}

TEST(LineToRecord, OnlyAddsToThePathInsideABracket) {
  EXPECT_EQ(Trace(Metafile().BeginPath().MoveTo(0, 0).LineTo(10, 0).LineTo(10, 10).EndPath()),
            "move 0 0\nline 10 0\nline 10 -10\nstroke\n")
      << "one path, stroked at the end of the page";
}

TEST(LineToRecord, WithoutACurrentPointOnlySetsIt) {
  EXPECT_EQ(Trace(Metafile().LineTo(1, 2)), "");
  EXPECT_EQ(Trace(Metafile().LineTo(1, 2).LineTo(3, 4)), "move 1 -2\nline 3 -4\nstroke\n");
}

TEST(LineToRecord, StrokesUnderAHollowBrushToo) {
  EXPECT_EQ(Trace(Metafile().SelectObject(test::kStockNullBrush).MoveTo(0, 0).LineTo(1, 1)),
            "move 0 0\nline 1 -1\nstroke\n");
}

TEST(MoveToExRecord, PaintsNothing) {
  EXPECT_EQ(Trace(Metafile().MoveTo(1, 2)), "");
  EXPECT_EQ(Trace(Metafile().MoveTo(1, 2).MoveTo(3, 4).LineTo(5, 6)),
            "move 3 -4\nline 5 -6\nstroke\n");
}

TEST(MoveToExRecord, LeavesThePendingPathPending) {
  EXPECT_EQ(
      Trace(Metafile().BeginPath().MoveTo(0, 0).LineTo(1, 1).EndPath().MoveTo(5, 5).LineTo(6, 6)),
      "move 0 0\nline 1 -1\nmove 5 -5\nline 6 -6\nstroke\n");
}

TEST(RectangleRecord, IsFilledAndStroked) {
  EXPECT_EQ(Trace(Metafile().Rectangle(kBox)),
            "fill-color 1 1 1\nrect 10 -60 20 40\nfill-stroke\n");
}

TEST(RectangleRecord, IsWrittenInPageCoordinates) {
  EXPECT_EQ(PageContent(Metafile().Rectangle(kBox)), "1 1 1 rg\n10 -60 20 40 re\nB\n");
}

TEST(RectangleRecord, IsOnlyStrokedUnderAHollowBrush) {
  EXPECT_EQ(Trace(Hollow().Rectangle(kBox)), "rect 10 -60 20 40\nstroke\n");
}

TEST(RectangleRecord, PutsAnInvertedBoxInOrder) {
  EXPECT_EQ(Trace(Metafile().Rectangle({30, 60, 10, 20})), Trace(Metafile().Rectangle(kBox)));
}

TEST(EllipseRecord, IsFilledAndStrokedFromItsRightmostPoint) {
  const std::string trace = Trace(Metafile().Ellipse(kBox));
  EXPECT_EQ(trace.substr(0, 29), "fill-color 1 1 1\nmove 30 -40\n");
  EXPECT_EQ(PaintingOf(trace), "fill-stroke\n");
}

TEST(RoundRectangleRecord, IsTheEllipseOfItsBoxWhateverItsCorners) {
  EXPECT_EQ(Trace(Metafile().RoundRectangle(kBox, 5, 7)), Trace(Metafile().Ellipse(kBox)));
  EXPECT_EQ(Trace(Metafile().RoundRectangle(kBox, 0, 0)), Trace(Metafile().Ellipse(kBox)));
}

TEST(ArcRecord, IsTheWholeEllipseStrokedOnly) {
  const std::string arc = Trace(Metafile().Arc(kBox, {1, 2}, {3, 4}));
  EXPECT_EQ(PaintingOf(arc), "stroke\n");
  EXPECT_EQ(arc, Trace(Hollow().Ellipse(kBox)));
  EXPECT_EQ(arc, Trace(Metafile().Arc(kBox, {9, 9}, {0, 0})));
}

TEST(ArcRecords, LeftOutOfPlaybackLeaveThePathAlone) {
  EXPECT_EQ(Trace(Metafile()
                      .MoveTo(1, 2)
                      .Chord(kBox, {1, 2}, {3, 4})
                      .Pie(kBox, {1, 2}, {3, 4})
                      .ArcTo(kBox, {1, 2}, {3, 4})
                      .LineTo(3, 4)),
            "move 1 -2\nline 3 -4\nstroke\n");
}

TEST(ArcRecords, KeepWhatTheyRead) {
  const auto body = test::Bytes().Rectangle(1, 2, 3, 4).PointL(5, 6).PointL(7, 8);
  EXPECT_EQ(test::ReadRecord<ArcToRecord>(body)->end.y, 8);
  EXPECT_EQ(test::ReadRecord<ChordRecord>(body)->start.x, 5);
  EXPECT_EQ(test::ReadRecord<PieRecord>(body)->box.bottom, 4);
}

TEST(AngleArcRecord, WaitsForWhateverPaintsNext) {
  const std::string arc = Trace(Metafile().AngleArc({0, 0}, 10, 0, 90));
  EXPECT_EQ(PathOf(arc).substr(0, 10), "move 10 0\n");
  EXPECT_EQ(PaintingOf(arc), "stroke\n") << "the end of the page";

  const std::string shape = Trace(Metafile().AngleArc({0, 0}, 10, 0, 90).Rectangle(kBox));
  EXPECT_EQ(shape, "fill-color 1 1 1\n" + PathOf(arc) + "rect 10 -60 20 40\nfill-stroke\n");
}

TEST(AngleArcRecord, IsJoinedToTheCurrentPoint) {
  const std::string trace = Trace(Metafile().MoveTo(5, 5).AngleArc({0, 0}, 10, 0, 90));
  EXPECT_EQ(trace.substr(0, 20), "move 5 -5\nline 10 0\n");
}

TEST(AngleArcRecord, RunsUpThePageThoughYGrowsDown) {
  // From 10 right of the centre to 10 above it on the page.
  const std::string trace = Trace(Metafile().AngleArc({20, 30}, 10, 0, 90));
  EXPECT_EQ(trace.substr(0, 12), "move 30 -30\n");
  EXPECT_NE(trace.find(" 20 -20\nstroke\n"), std::string::npos) << trace;
}

TEST(AngleArcRecord, FollowsTheArcDirection) {
  const auto lines = [](const std::string& trace) {
    return std::count(trace.begin(), trace.end(), '\n');
  };
  const auto clockwise =
      Trace(Metafile().SetArcDirection(kArcClockwise).AngleArc({0, 0}, 10, 0, 90));
  const auto counterClockwise =
      Trace(Metafile().SetArcDirection(kArcCounterClockwise).AngleArc({0, 0}, 10, 0, 90));
  EXPECT_EQ(lines(clockwise), 5) << "a move, three quarters, a stroke";
  EXPECT_EQ(lines(counterClockwise), 3);
}

TEST(ArcRecords, OnlyAngleArcFollowsTheArcDirection) {
  EXPECT_EQ(
      Trace(Metafile().SetArcDirection(kArcClockwise).Arc(kBox, {1, 2}, {3, 4}).Ellipse(kBox)),
      Trace(Metafile()
                .SetArcDirection(kArcCounterClockwise)
                .Arc(kBox, {1, 2}, {3, 4})
                .Ellipse(kBox)));
}

TEST(ShapeRecords, OnlyAddToThePathInsideABracket) {
  const std::string trace = Trace(Metafile()
                                      .BeginPath()
                                      .Rectangle({0, 0, 1, 1})
                                      .Ellipse(kBox)
                                      .RoundRectangle(kBox, 1, 1)
                                      .Arc(kBox, {1, 2}, {3, 4})
                                      .EndPath()
                                      .FillPath());
  const std::string ellipse = PathOf(Trace(Hollow().Ellipse(kBox)));
  EXPECT_EQ(trace, "fill-color 1 1 1\nrect 0 -1 1 1\n" + ellipse + ellipse + ellipse + "fill\n");
}

TEST(ShapeRecords, OfNoSizeAreDrawnAsTheyAre) {
  EXPECT_EQ(Trace(Hollow().Rectangle({5, 5, 5, 5})), "rect 5 -5 0 0\nstroke\n");
}

}  // namespace
}  // namespace kelvane
