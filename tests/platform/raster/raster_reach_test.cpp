// Marks that reach far beyond the page, and dashes that no pixel shows: they take as long as what
// is seen of them.

#include <cmath>
#include <ctime>
#include <vector>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/bitmap.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

constexpr CGFloat kFar = 1e9F;
constexpr Raster::Color kInked = {0, 0, 0};

/// Expects a drawing to be done in a second of processor time. @return its pixels.
Raster BitmapInTime(const Drawing& draw) {
  const std::clock_t start = std::clock();
  Raster picture = BitmapOf(draw);
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC * kSlowdown);
  return picture;
}

constexpr CGColor kRed = {1, 0, 0, 1};
constexpr CGColor kBlue = {0, 0, 1, 1};

TEST(ATriangle, HasTheColorsOfItsCornersHoweverFarTheyAre) {
  const Raster picture = BitmapInTime([](CGContextRef c) {
    c->DrawShading(
        CGTriangleMesh{{{{-kFar, -kFar}, kRed}, {{kFar, -kFar}, kBlue}, {{0, kFar}, kRed}}});
  });
  for (const int at : {0, 50, 99}) {
    EXPECT_NEAR(picture.At(at, at)[0], 192, 1);  // half as high as the triangle, in the middle
    EXPECT_NEAR(picture.At(at, at)[2], 64, 1);
  }
}

TEST(ATriangle, ChangesItsColorFromPixelToPixel) {
  const Raster picture = BitmapOf([](CGContextRef c) {
    c->DrawShading(CGTriangleMesh{{{{0, 0}, kRed}, {{100, 0}, kBlue}, {{0, 200}, kRed}}});
  });
  for (const int x : {0, 25, 49})
    EXPECT_EQ(picture.At(x, 50)[2], std::lround((x + 0.5) * 255 / 100)) << x;
  EXPECT_EQ(picture.At(99, 50), kWhitePixel);
}

TEST(ATriangle, LeavesNoSeamBesideAnother) {
  const Raster picture = BitmapOf([](CGContextRef c) {
    const CGMeshVertex corners[] = {
        {{3, 1}, kRed}, {{97, 12}, kRed}, {{88, 99}, kRed}, {{9, 91}, kRed}};
    c->DrawShading(
        CGTriangleMesh{{corners[0], corners[1], corners[2], corners[0], corners[2], corners[3]}});
  });
  for (int i = 15; i < 85; ++i)
    EXPECT_EQ(picture.At(i, 99 - i), kRedPixel) << i;
}

TEST(ATriangle, CoversAnotherOfTheSameMesh) {
  const Raster picture = BitmapOf([](CGContextRef c) {
    const auto triangle = [](const CGColor& color) {
      return std::vector<CGMeshVertex>{{{0, 0}, color}, {{200, 0}, color}, {{0, 200}, color}};
    };
    CGTriangleMesh mesh = {triangle(kRed)};
    for (const CGMeshVertex& vertex : triangle({0, 0, 1, 0.5F}))
      mesh.vertices.push_back(vertex);
    c->DrawShading(mesh);
  });
  EXPECT_NEAR(picture.At(50, 50)[0], 127, 1);  // half of the paper, and nothing of the first
  EXPECT_NEAR(picture.At(50, 50)[2], 255, 1);
}

void DrawDashed(CGContextRef c, const std::vector<CGFloat>& dashes, CGFloat from, CGFloat to) {
  CGContextSetLineWidth(c, 10);
  c->SetLineDash(0, dashes);
  StrokeLine(c, {from, 50}, {to, 50});
}

TEST(ADashedLine, ShowsTheDashesOfItsPlaceHoweverFarAwayItBegins) {
  const Raster picture = BitmapInTime([](CGContextRef c) { DrawDashed(c, {10, 10}, -1e6F, 1e6F); });
  EXPECT_EQ(picture.At(5, 50), kInked);
  EXPECT_EQ(picture.At(15, 50), kWhitePixel);
  EXPECT_EQ(picture.At(85, 50), kInked);
  EXPECT_EQ(picture.At(95, 50), kWhitePixel);
}

TEST(ADashedLine, IsPaintedAsMuchWhereItsDashesAreShorterThanPixels) {
  const Raster picture = BitmapInTime([](CGContextRef c) {
    DrawDashed(c, {0.001F, 0.003F}, 0, 1e6F);
  });
  for (const int x : {10, 50, 90})
    EXPECT_NEAR(picture.At(x, 50)[0], 191, 3) << x;
}

TEST(ADashedLine, TurnsDashesIntoGapsWhereTheyAreOdd) {
  const Raster picture = BitmapOf([](CGContextRef c) { DrawDashed(c, {10}, 0, 100); });
  EXPECT_EQ(picture.At(5, 50), kInked);
  EXPECT_EQ(picture.At(15, 50), kWhitePixel);
  EXPECT_EQ(picture.At(25, 50), kInked);
}

TEST(ADashedLine, GoesOnAroundCorners) {
  const Raster picture = BitmapOf([](CGContextRef c) {
    CGContextSetLineWidth(c, 10);
    c->SetLineDash(15, std::vector<CGFloat>{30, 20});
    CGContextMoveToPoint(c, 20, 20);
    CGContextAddLineToPoint(c, 80, 20);
    CGContextAddLineToPoint(c, 80, 80);
    CGContextAddLineToPoint(c, 20, 80);
    CGContextClosePath(c);
    c->DrawPath(kCGPathStroke);
  });
  EXPECT_EQ(picture.At(30, 80), kInked);       // 15 units are left of the first dash
  EXPECT_EQ(picture.At(45, 80), kWhitePixel);  // 20 of a gap
  EXPECT_EQ(picture.At(84, 84), kInked);       // the corner, in the second dash
  EXPECT_EQ(picture.At(80, 65), kWhitePixel);
  EXPECT_EQ(picture.At(16, 84), kInked);  // where the last dash goes on in the first
}

TEST(DashedLines, AreSolidOnceAPictureHasMoreDashesThanItCouldShow) {
  const Raster picture = BitmapInTime([](CGContextRef c) {
    c->SetLineDash(0, std::vector<CGFloat>{0.01F, 0.01F});
    for (int i = 0; i < 40000; ++i)
      StrokeLine(c, {-kFar, 20}, {kFar, 20});
    DrawDashed(c, {10, 10}, 0, 100);
  });
  EXPECT_EQ(picture.At(15, 50), kInked);
}

}  // namespace
}  // namespace kelvane::test
