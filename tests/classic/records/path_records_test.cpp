#include "classic/records/path_records.h"

#include <gtest/gtest.h>

#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::kRegionAnd;
using test::kStockNullBrush;
using test::Metafile;
using test::Points;
using test::Trace;

constexpr const char* kOpenTriangle = "move 0 0\nline 10 0\nline 10 -10\n";

const Points& Triangle() {
  static const Points kTriangle = {{0, 0}, {10, 0}, {10, 10}};
  return kTriangle;
}

Metafile TrianglePath() {
  Metafile metafile;
  metafile.BeginPath().Polygon(Triangle()).EndPath();
  return metafile;
}

TEST(FillPathRecord, FillsOnceWithoutStroke) {
  EXPECT_EQ(Trace(TrianglePath().FillPath()),
            std::string("fill-color 1 1 1\n") + kOpenTriangle + "fill\n");
}

TEST(FillPathRecord, FillsAndStrokesInOneOperation) {
  EXPECT_EQ(Trace(TrianglePath().StrokeAndFillPath()),
            std::string("fill-color 1 1 1\n") + kOpenTriangle + "fill-stroke\n");
}

TEST(FillPathRecord, StrokesOnceWithoutFill) {
  EXPECT_EQ(Trace(TrianglePath().StrokePath()), std::string(kOpenTriangle) + "stroke\n");
}

TEST(FillPathRecord, FillsUnderAHollowBrushToo) {
  EXPECT_EQ(Trace(TrianglePath().SelectObject(kStockNullBrush).StrokeAndFillPath()),
            std::string("fill-color 1 1 1\n") + kOpenTriangle + "fill-stroke\n");
}

TEST(FillPathRecord, EmptiesThePath) {
  EXPECT_EQ(Trace(TrianglePath().FillPath().StrokePath()), Trace(TrianglePath().FillPath()));
}

TEST(BeginPathRecord, StrokesWhatIsPending) {
  EXPECT_EQ(Trace(TrianglePath().BeginPath().Rectangle({0, 0, 1, 1}).EndPath().FillPath()),
            std::string(kOpenTriangle) + "stroke\nfill-color 1 1 1\nrect 0 -1 1 1\nfill\n");
}

TEST(BeginPathRecord, StartsWithoutACurrentPoint) {
  EXPECT_EQ(Trace(Metafile().MoveTo(5, 5).BeginPath().LineTo(1, 1).LineTo(2, 2).EndPath()),
            "move 1 -1\nline 2 -2\nstroke\n");
}

TEST(EndPathRecord, WithoutABracketChangesNothing) {
  EXPECT_EQ(Trace(Metafile().EndPath().Polyline(Triangle())),
            std::string(kOpenTriangle) + "stroke\n");
}

TEST(EndPathRecord, WithoutABracketKeepsThePathThatIsPending) {
  const auto pending = [] { return Metafile().MoveTo(1, 1).AngleArc({0, 0}, 10, 0, 90); };
  EXPECT_NE(Trace(pending()), "");
  EXPECT_EQ(Trace(pending().EndPath()), Trace(pending()));
  EXPECT_EQ(Trace(pending().EndPath().StrokePath()), Trace(pending().StrokePath()));
}

TEST(CloseFigureRecord, LeavesTheFigureOpen) {
  EXPECT_EQ(Trace(Metafile().BeginPath().Polyline(Triangle()).CloseFigure().EndPath().StrokePath()),
            std::string(kOpenTriangle) + "stroke\n");
}

Metafile RectanglePath() {
  Metafile metafile;
  metafile.BeginPath().Rectangle({0, 0, 10, 10}).EndPath();
  return metafile;
}

TEST(SelectClipPathRecord, CutsWhatFollowsToThePathAndPaintsNothing) {
  EXPECT_EQ(Trace(RectanglePath().SelectClipPath(kRegionAnd).Polyline(Triangle())),
            std::string("save\nrect 0 -10 10 10\nclip\n") + kOpenTriangle + "stroke\nrestore\n");
}

TEST(SelectClipPathRecord, OfNothingDrawnWritesNothing) {
  EXPECT_EQ(Trace(RectanglePath().SelectClipPath(kRegionAnd)), "");
}

TEST(SelectClipPathRecord, InOtherModesLeavesThePathToBeStroked) {
  for (const std::uint32_t mode : {0U, 2U, 3U, 4U, 5U, 99U}) {
    EXPECT_EQ(Trace(RectanglePath().SelectClipPath(mode)), "rect 0 -10 10 10\nstroke\n");
    EXPECT_EQ(Trace(RectanglePath().SelectClipPath(mode).Polyline(Triangle())),
              std::string("rect 0 -10 10 10\nstroke\n") + kOpenTriangle + "stroke\n");
  }
}

TEST(SelectClipPathRecord, LastsUntilItsStateIsRestored) {
  EXPECT_EQ(Trace(Metafile()
                      .SaveDC()
                      .BeginPath()
                      .Rectangle({0, 0, 10, 10})
                      .EndPath()
                      .SelectClipPath(kRegionAnd)
                      .Polyline(Triangle())
                      .RestoreDC()
                      .Polyline(Triangle())),
            std::string("save\nrect 0 -10 10 10\nclip\n") + kOpenTriangle + "stroke\nrestore\n" +
                kOpenTriangle + "stroke\n");
}

TEST(IntersectClipRectRecord, ClipsNothing) {
  EXPECT_EQ(Trace(Metafile()
                      .Record(test::EMR_INTERSECTCLIPRECT, Bytes().Rectangle(0, 0, 1, 1))
                      .Polyline(Triangle())),
            std::string(kOpenTriangle) + "stroke\n");
}

}  // namespace
}  // namespace kelvane
