#include "classic/records/poly_records.h"

#include <cstring>

#include <gtest/gtest.h>

#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::Points;
using test::ReadRecord;
using test::Trace;

const Points& Corner() {
  static const Points kCorner = {{0, 0}, {10, 0}, {10, 10}};
  return kCorner;
}

/// Both point widths play back alike.
class PolyRecords : public testing::TestWithParam<bool> {};

INSTANTIATE_TEST_SUITE_P(Widths, PolyRecords, testing::Bool(), [](const auto& width) {
  return width.param ? "ThirtyTwoBits" : "SixteenBits";
});

TEST_P(PolyRecords, APolylineIsStroked) {
  EXPECT_EQ(Trace(Metafile().Polyline(Corner(), GetParam())),
            "move 0 0\nline 10 0\nline 10 -10\nstroke\n");
}

TEST_P(PolyRecords, APolygonIsFilledEvenOddAndStrokedWithoutItsLastEdge) {
  EXPECT_EQ(Trace(Metafile().Polygon(Corner(), GetParam())),
            "fill-color 1 1 1\nmove 0 0\nline 10 0\nline 10 -10\neo-fill-stroke\n");
}

TEST_P(PolyRecords, ABezierOfFourPointsIsOneCurve) {
  EXPECT_EQ(Trace(Metafile().Polybezier({{0, 1}, {2, 3}, {4, 5}, {6, 7}}, GetParam())),
            "move 0 -1\ncurve 2 -3 4 -5 6 -7\nstroke\n");
}

TEST_P(PolyRecords, ABezierOfSevenPointsIsTwoCurves) {
  EXPECT_EQ(Trace(Metafile().Polybezier(
                {{0, 1}, {2, 3}, {4, 5}, {6, 7}, {8, 9}, {10, 11}, {12, 13}}, GetParam())),
            "move 0 -1\ncurve 2 -3 4 -5 6 -7\ncurve 8 -9 10 -11 12 -13\nstroke\n");
}

TEST_P(PolyRecords, AnIncompleteGroupOfABezierIsDropped) {
  EXPECT_EQ(
      Trace(Metafile().Polybezier({{0, 1}, {2, 3}, {4, 5}, {6, 7}, {8, 9}, {10, 11}}, GetParam())),
      "move 0 -1\ncurve 2 -3 4 -5 6 -7\nstroke\n");
}

TEST_P(PolyRecords, APolyPolygonIsOneFigureThroughAllPoints) {
  EXPECT_EQ(Trace(Metafile().PolyPolygon(
                {{{0, 0}, {1, 0}, {1, 1}, {0, 1}}, {{5, 5}, {6, 5}, {6, 6}, {5, 6}}}, GetParam())),
            "fill-color 1 1 1\nmove 0 0\nline 1 0\nline 1 -1\nline 0 -1\n"
            "line 5 -5\nline 6 -5\nline 6 -6\nline 5 -6\neo-fill-stroke\n");
}

TEST_P(PolyRecords, APolyPolylineIsOneFigureThroughAllPoints) {
  EXPECT_EQ(Trace(Metafile().PolyPolyline({{{0, 0}, {1, 0}}, {{5, 5}, {6, 5}}}, GetParam())),
            "move 0 0\nline 1 0\nline 5 -5\nline 6 -5\nstroke\n");
}

TEST_P(PolyRecords, ToRecordsOutsideAPathStartFromNoPoint) {
  EXPECT_EQ(Trace(Metafile().MoveTo(50, 50).PolylineTo({{1, 2}, {3, 4}}, GetParam())),
            "move 1 -2\nline 3 -4\nstroke\n");
  EXPECT_EQ(Trace(Metafile().MoveTo(50, 50).PolybezierTo(
                {{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}}, GetParam())),
            "move 3 -3\ncurve 4 -4 5 -5 6 -6\nstroke\n");
}

TEST_P(PolyRecords, ToRecordsInsideAPathContinueIt) {
  EXPECT_EQ(Trace(Metafile()
                      .BeginPath()
                      .MoveTo(50, 50)
                      .PolylineTo({{1, 2}}, GetParam())
                      .PolybezierTo({{3, 3}, {4, 4}, {5, 5}}, GetParam())
                      .EndPath()),
            "move 50 -50\nline 1 -2\ncurve 3 -3 4 -4 5 -5\nstroke\n");
}

TEST_P(PolyRecords, OnlyAddToThePathInsideABracket) {
  EXPECT_EQ(Trace(Metafile()
                      .BeginPath()
                      .Polyline({{0, 0}, {1, 1}}, GetParam())
                      .Polygon({{2, 2}, {3, 3}}, GetParam())
                      .Polybezier({{4, 4}, {5, 5}, {6, 6}, {7, 7}}, GetParam())
                      .EndPath()),
            "move 0 0\nline 1 -1\nmove 2 -2\nline 3 -3\nmove 4 -4\ncurve 5 -5 6 -6 7 -7\nstroke\n");
}

TEST_P(PolyRecords, StrokeWhatIsPendingFirst) {
  EXPECT_EQ(Trace(Metafile().AngleArc({0, 0}, 10, 0, 90).Polyline({{1, 2}, {3, 4}}, GetParam()))
                .find("stroke\nmove 1 -2\nline 3 -4\nstroke\n"),
            Trace(Metafile().AngleArc({0, 0}, 10, 0, 90)).size() - std::strlen("stroke\n"));
}

TEST_P(PolyRecords, WithoutPointsOnlyStrokeWhatIsPending) {
  EXPECT_EQ(Trace(Metafile().MoveTo(1, 2).Polyline({}, GetParam())), "");
  EXPECT_EQ(Trace(Metafile()
                      .BeginPath()
                      .Polyline({{0, 0}, {1, 1}})
                      .EndPath()
                      .Polygon({}, GetParam())
                      .Rectangle({0, 0, 2, 2})),
            "move 0 0\nline 1 -1\nstroke\nfill-color 1 1 1\nrect 0 -2 2 2\nfill-stroke\n");
}

TEST(PolylineRecord, KeepsThePointsReadBeforeTheDataEnds) {
  const auto record = ReadRecord<PolylineRecord<Point16>>(
      Bytes().Rectangle(0, 0, 9, 9).U32(3).Point(1, 2).Point(3, 4));
  ASSERT_EQ(record->points.size(), 2U);
  EXPECT_EQ(record->points[1].x, 3);
  EXPECT_EQ(record->count, 3U);
  EXPECT_EQ(record->bounds.right, 9);
}

TEST(PolylineRecord, TakesItsMemoryFromTheDataNotFromTheCount) {
  const auto record = ReadRecord<PolylineRecord<PointL>>(
      Bytes().Rectangle(0, 0, 9, 9).U32(0x40000000).PointL(1, 2));
  EXPECT_EQ(record->points.size(), 1U);
  EXPECT_LE(record->points.capacity(), 2U);
}

TEST(PolyPolyRecord, KeepsCountsAndPointsReadBeforeTheDataEnds) {
  const auto record = ReadRecord<PolyPolygonRecord<Point16>>(
      Bytes().Rectangle(0, 0, 9, 9).U32(2).U32(6).U32(3).U32(3).Point(1, 2).Point(3, 4));
  EXPECT_EQ(record->counts, (std::vector<std::uint32_t>{3, 3}));
  EXPECT_EQ(record->points.size(), 2U);
  EXPECT_EQ(record->totalPoints, 6U);
}

TEST(PolyDrawRecord, PaintsNothingAndChangesNothing) {
  const Bytes body =
      Bytes().Rectangle(0x7FFFFFFF, 0, 9, 9).U32(2).PointL(1, 2).PointL(3, 4).U8(6).U8(2);
  EXPECT_EQ(Trace(Metafile()
                      .MoveTo(7, 8)
                      .Record(test::EMR_POLYDRAW, body)
                      .Record(test::EMR_POLYDRAW16, body)
                      .LineTo(9, 9)),
            "move 7 -8\nline 9 -9\nstroke\n");
}

}  // namespace
}  // namespace kelvane
