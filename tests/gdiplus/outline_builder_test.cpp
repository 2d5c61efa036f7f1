#include "gdiplus/outline_builder.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

namespace kelvane::gdiplus {
namespace {

std::vector<PointD> PointsOf(const CGPath& path) {
  std::vector<PointD> points;
  path.ForEach([&](CGPath::Element element, const CGPoint* p) {
    if (element != CGPath::Element::kClose) points.push_back({p[0].x, p[0].y});
  });
  return points;
}

std::vector<PointD> Corner(const FlatLine& line, const LineJoin& join) {
  OutlineBuilder outline{TransformD(), 1000};
  outline.AddBand(line, {1, -1}, join);
  return PointsOf(outline.Take());
}

const FlatLine kThereAndBack = {{{0, 0}, {10, 0}, {0, 0}}, false};
const FlatLine kRightAngle = {{{0, 0}, {10, 0}, {10, 10}}, false};

TEST(Miter, MeetsWithinItsLimit) {
  EXPECT_EQ(Corner(kRightAngle, {EmfPlusLineJoin::kMiter, 10})[1], (PointD{11, -1}));
}

// The spike is 3 half widths long.
TEST(Miter, IsCutAtItsLimit) {
  const std::vector<PointD> points = Corner(kThereAndBack, {EmfPlusLineJoin::kMiter, 3});
  EXPECT_EQ(points[1], (PointD{13, -1}));
  EXPECT_EQ(points[2], (PointD{13, 1}));
}

TEST(MiterClipped, IsABevelPastItsLimit) {
  const std::vector<PointD> points = Corner(kThereAndBack, {EmfPlusLineJoin::kMiterClipped, 3});
  EXPECT_EQ(points[1], (PointD{10, -1}));
  EXPECT_EQ(points[2], (PointD{10, 1}));
}

TEST(Bevel, LeavesTheCornerOut) {
  const std::vector<PointD> points = Corner(kRightAngle, {EmfPlusLineJoin::kBevel, 10});
  EXPECT_EQ(points[1], (PointD{10, -1}));
  EXPECT_EQ(points[2], (PointD{11, 0}));
}

TEST(RoundJoin, IsAsFarFromTheCornerEverywhere) {
  const std::vector<PointD> points = Corner(kRightAngle, {EmfPlusLineJoin::kRound, 10});
  ASSERT_GT(points.size(), 8U);
  for (std::size_t i = 1; i < 4; ++i)
    EXPECT_NEAR(std::hypot(points[i].x - 10, points[i].y), 1, 1e-6);
}

TEST(Outline, TurnsFiguresTheSameWay) {
  OutlineBuilder outline{TransformD(), 1000};
  outline.AddFigure({{0, 0}, {0, 1}, {1, 1}});
  EXPECT_EQ(PointsOf(outline.Take()), (std::vector<PointD>{{1, 1}, {0, 1}, {0, 0}}));
}

}  // namespace
}  // namespace kelvane::gdiplus
