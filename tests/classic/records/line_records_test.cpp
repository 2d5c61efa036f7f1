#include <gtest/gtest.h>

#include "classic/records/shape_records.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Metafile;
using test::Trace;

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

}  // namespace
}  // namespace kelvane
