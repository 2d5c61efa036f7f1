#include "players/drawn_extent.h"

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"

namespace kelvane::test {
namespace {

/// A box as its edges; nothing where nothing was drawn.
using Edges = std::vector<double>;

Edges ExtentOf(const Drawing& draw) {
  const CFOwned<DrawnExtent> extent(new DrawnExtent);
  extent->BeginPage(kPageBox);
  draw(extent.get());
  const auto area = extent->Area();
  return area ? Edges{area->left, area->top, area->right, area->bottom} : Edges();
}

TEST(DrawnExtent, IsNoneWithoutAMark) {
  EXPECT_EQ(ExtentOf([](CGContextRef) {}), Edges());
  EXPECT_EQ(ExtentOf([](CGContextRef c) { CGContextMoveToPoint(c, 1, 2); }), Edges());
}

TEST(DrawnExtent, IsTheBoxOfWhatIsFilled) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) { FillRect(c, {{1, 2}, {3, 4}}); }), (Edges{1, 2, 4, 6}));
}

TEST(DrawnExtent, HasRectanglesWithSizesBelowZero) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              CGPath path;
              path.AddRectangle({4, 6}, {-3, -4});
              c->SwapPath(path);
              c->DrawPath(kCGPathFill);
            }),
            (Edges{1, 2, 4, 6}));
}

TEST(DrawnExtent, IsTheBoxAroundAllMarks) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              FillRect(c, {{50, 2}, {1, 1}});
              FillRect(c, {{-5, 60}, {1, 1}});
            }),
            (Edges{-5, 2, 51, 61}));
}

TEST(DrawnExtent, HasHalfOfALineAroundIt) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->SetLineWidth(6);
              StrokeLine(c, {10, 10}, {20, 10});
            }),
            (Edges{7, 7, 23, 13}));
}

TEST(DrawnExtent, CountsALineWhereItIsWidest) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->ConcatCTM({1, 0, 0, 3, 0, 0});
              c->SetLineWidth(2);
              StrokeLine(c, {10, 10}, {20, 10});
            }),
            (Edges{7, 27, 23, 33}));
}

TEST(DrawnExtent, CountsNoLineOfWhatIsFilledAlone) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->SetLineWidth(6);
              FillRect(c, {{1, 2}, {3, 4}});
            }),
            (Edges{1, 2, 4, 6}));
}

TEST(DrawnExtent, HasTheControlPointsOfCurves) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->MoveToPoint({0, 0});
              c->AddCurveToPoint({1, 8}, {9, -7}, {5, 5});
              c->DrawPath(kCGPathFill);
            }),
            (Edges{0, -7, 9, 8}));
}

TEST(DrawnExtent, IsTheBoxOfAnImageAsItIsTurned) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->ConcatCTM({0, 1, -1, 0, 0, 0});
              c->DrawImage({{1, 2}, {3, 4}}, ImageOf(1, 1, 1, {0}).get());
            }),
            (Edges{-6, 1, -2, 4}));
}

CGAxialShading AlongTheAxis() {
  return {{0, 0}, {1, 0}, {{0, {1, 0, 0, 1}}, {1, {0, 0, 1, 1}}}};
}

TEST(DrawnExtent, IsWhatAllClipsLeaveOfColourThatHasNoEnd) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              CGContextClipToRect(c, {{10, 20}, {50, 50}});
              CGContextClipToRect(c, {{0, 30}, {30, 90}});
              c->DrawShading(AlongTheAxis());
            }),
            (Edges{10, 30, 30, 70}));
}

TEST(DrawnExtent, IsNoneOfColourThatNoClipLimitsOrShows) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->DrawShading(AlongTheAxis());
              CGContextClipToRect(c, {{0, 0}, {5, 5}});
              CGContextClipToRect(c, {{10, 10}, {5, 5}});
              c->DrawShading(AlongTheAxis());
            }),
            Edges());
}

TEST(DrawnExtent, IsTheBoxOfAMeshesCorners) {
  EXPECT_EQ(ExtentOf([](CGContextRef c) {
              c->DrawShading(CGTriangleMesh{{{{3, 9}, {}}, {{1, 2}, {}}, {{5, 4}, {}}}});
            }),
            (Edges{1, 2, 5, 9}));
}

}  // namespace
}  // namespace kelvane::test
