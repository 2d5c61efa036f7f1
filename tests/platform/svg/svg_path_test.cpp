#include "platform/svg/svg_path.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

std::string DataOf(const CGPath& path, const CGAffineTransform& transform = {}) {
  return SvgPathData(path, transform, SvgGrid(500));
}

TEST(SvgPathData, IsDifferencesBehindTheFirstPoint) {
  CGPath path;
  path.MoveTo({10, 20});
  path.LineTo({13, 24});
  path.LineTo({12, 20.5F});
  EXPECT_EQ(DataOf(path), "m10 20 3 4-1-3.5");
}

TEST(SvgPathData, HasLevelAndUprightLinesOfTheirOwn) {
  CGPath path;
  path.MoveTo({0, 0});
  path.LineTo({5, 0});
  path.LineTo({9, 0});
  path.LineTo({9, -2});
  path.LineTo({10, 10});
  EXPECT_EQ(DataOf(path), "m0 0h5 4v-2l1 12");
}

TEST(SvgPathData, KeepsALineWithoutLength) {
  CGPath path;
  path.MoveTo({5, 5});
  path.LineTo({5, 5});
  EXPECT_EQ(DataOf(path), "m5 5h0");
}

TEST(SvgPathData, GoesOnFromTheStartOfWhatIsClosed) {
  CGPath path;
  path.MoveTo({1, 1});
  path.LineTo({4, 5});
  path.LineTo({8, 1});
  path.Close();
  path.MoveTo({2, 3});
  path.LineTo({4, 4});
  EXPECT_EQ(DataOf(path), "m1 1 3 4 4-4zm1 2 2 1");
}

TEST(SvgPathData, DrawsCurvesFromWhereThePathIs) {
  CGPath path;
  path.MoveTo({1, 1});
  path.CurveTo({2, 2}, {3, 2}, {4, 1});
  path.CurveTo({5, 0}, {6, 0}, {7, 1});
  EXPECT_EQ(DataOf(path), "m1 1c1 1 2 1 3 0 1-1 2-1 3 0");
}

TEST(SvgPathData, WalksAroundARectangle) {
  CGPath path;
  path.AddRectangle({1, 2}, {10, -5});
  EXPECT_EQ(DataOf(path), "m1 2h10v-5h-10z");
}

TEST(SvgPathData, DoesNotAddUpWhatRoundingLeavesOut) {
  CGPath path;
  path.MoveTo({0, 0});
  for (int i = 1; i <= 9; ++i)
    path.LineTo({static_cast<CGFloat>(i) / 3, 1});
  // Thirds are a thousandth short by turns: the last point is at 3 again.
  EXPECT_EQ(DataOf(path), "m0 0 .333 1h.334.333.333.334.333.333.334.333");
}

TEST(SvgPathData, IsMapped) {
  CGPath path;
  path.MoveTo({1, 2});
  path.LineTo({3, 5});
  EXPECT_EQ(DataOf(path, {1, 0, 0, -1, 0, 100}), "m1 98 2-3");
}

}  // namespace
}  // namespace kelvane
