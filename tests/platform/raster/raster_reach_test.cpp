// Marks that reach far beyond the page, and what no pixel shows: they take as long as what is seen
// of them, and leave all other marks alone.

#include <cmath>
#include <ctime>
#include <memory>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/bitmap.h"
#include "support/images.h"
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

// Clips of many parts.

/// A diamond, with so many points on each of its sides.
void ClipToDiamond(CGContextRef c, int points) {
  const CGPoint corners[] = {{10, 50}, {50, 10}, {90, 50}, {50, 90}};
  CGContextMoveToPoint(c, corners[0].x, corners[0].y);
  for (int side = 0; side < 4; ++side) {
    const CGPoint from = corners[side];
    const CGPoint to = corners[(side + 1) % 4];
    for (int i = 1; i <= points; ++i) {
      const CGFloat part = static_cast<CGFloat>(i) / static_cast<CGFloat>(points);
      CGContextAddLineToPoint(c, from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part);
    }
  }
  CGContextClip(c);
}

void DrawBelowClips(CGContextRef c, int points) {
  c->SaveGState();
  ClipToDiamond(c, points);
  SetFill(c, 1, 0, 0);
  FillRect(c, {{0, 0}, {60, 100}});
  CGContextSetAlpha(c, .5F);
  SetFill(c, 0, 0, 1);
  FillRect(c, {{30, 0}, {60, 100}});
  CGContextSetAlpha(c, 1);
  CGContextConcatCTM(c, {1, 0, 0, 1, 20, 0});
  ClipToDiamond(c, points);
  c->SetBitOperation(std::uint8_t{0x5A});
  FillRect(c, {{0, 0}, {100, 50}});
  CGContextSetBlendMode(c, kCGBlendModeNormal);
  CGContextSetBlendMode(c, kCGBlendModeMultiply);
  SetFill(c, 0, 1, 0);
  FillRect(c, {{0, 60}, {100, 20}});
  c->RestoreGState();
  FillRect(c, {{0, 0}, {5, 5}});
}

TEST(AClipOfManyParts, CutsAsTheSameOfFewDoes) {
  const Raster few = BitmapOf([](CGContextRef c) { DrawBelowClips(c, 1); });
  const Raster many = BitmapOf([](CGContextRef c) { DrawBelowClips(c, 400); });
  EXPECT_EQ(DifferingPixels(few, many, 6), 0);
  EXPECT_EQ(DifferingPixels(many, few, 6), 0);
}

TEST(AClipOfManyParts, IsGoneThroughOnceForAllMarksUnderIt) {
  const Raster picture = BitmapInTime([](CGContextRef c) {
    ClipToDiamond(c, 20000);
    SetFill(c, 1, 0, 0);
    for (int i = 0; i < 2000; ++i)
      FillRect(c, {{0, 0}, {100, 100}});
  });
  EXPECT_EQ(picture.At(50, 50), kRedPixel);
  EXPECT_EQ(picture.At(20, 20), kWhitePixel);
}

CGSharedPattern PatternOf(CGSize cell, const CGAffineTransform& matrix, const CGColor& color) {
  CGPattern pattern;
  pattern.cell = cell;
  pattern.matrix = matrix;
  CGPath all;
  all.AddRectangle({0, 0}, cell);
  pattern.shapes = {{all, color}};
  return std::make_shared<const CGPattern>(std::move(pattern));
}

TEST(LargePatterns, TakeNoLongerWhenTheyTakeTurns) {
  const Raster picture = BitmapInTime([](CGContextRef c) {
    const CGSharedPattern patterns[] = {PatternOf({5000, 5000}, {}, kBlue),
                                        PatternOf({5000, 5000}, {}, kRed)};
    for (int i = 0; i < 2000; ++i) {
      c->SetFillPattern(patterns[i % 2]);
      FillRect(c, {{0, 0}, {50, 100}});
    }
  });
  EXPECT_EQ(picture.At(25, 50), kRedPixel);
}

// What Cairo cannot paint ends all of its drawing.

void FillWith(CGContextRef c, CGSharedPattern pattern) {
  c->SetFillPattern(std::move(pattern));
  FillRect(c, kPageBox);
}

struct Unpaintable {
  const char* name;
  void (*draw)(CGContextRef c);
};

void PrintTo(const Unpaintable& row, std::ostream* out) {
  *out << row.name;
}

const Unpaintable kUnpaintable[] = {
    {"AnImageOfNoWidth",
     [](CGContextRef c) {
       CGContextDrawImage(c, {{20, 20}, {1e-37F, 50}}, ImageOf(1, 1, 1, {0}).get());
     }},
    {"AnImageSquashed",
     [](CGContextRef c) {
       CGContextConcatCTM(c, {1e-30F, 50, 1e-30F, 50, 20, 20});
       CGContextDrawImage(c, {{0, 0}, {1, 1}}, ImageOf(1, 1, 1, {0}).get());
     }},
    {"APatternFarAway",
     [](CGContextRef c) {
       FillWith(c, PatternOf({8, 8}, {.8F, .4F, -.4F, .8F, 1e38F, -1e38F}, kBlue));
     }},
    {"APatternOfNoHeight",
     [](CGContextRef c) {
       FillWith(c, PatternOf({8, 8}, {1, 0, 0, 1e-36F, 0, 0}, kBlue));
     }},
    {"APatternOnALine",
     [](CGContextRef c) {
       FillWith(c, PatternOf({8, 8}, {1, 1, 1, 1, 0, 0}, kBlue));
     }},
    {"AGradientFarAway",
     [](CGContextRef c) {
       CGPattern pattern;
       pattern.shading = CGAxialShading{{0, 0}, {1, 0}, {{0, kBlue}, {1, kRed}}};
       pattern.matrix = {50, 20, -20, 50, 1e38F, -1e38F};
       FillWith(c, std::make_shared<const CGPattern>(std::move(pattern)));
     }},
    {"AGradientOnALine",
     [](CGContextRef c) {
       CGPattern pattern;
       pattern.shading = CGAxialShading{{0, 0}, {1, 0}, {{0, kBlue}, {1, kRed}}};
       pattern.matrix = {1, 1, 1, 1, 0, 0};
       FillWith(c, std::make_shared<const CGPattern>(std::move(pattern)));
     }},
    {"AStrokeThroughALine",
     [](CGContextRef c) {
       CGContextConcatCTM(c, {1e-30F, 0, 0, 50, 0, 0});
       DrawDashed(c, {1, 1}, 0, 1);
     }},
};

class WhatCannotBePainted : public testing::TestWithParam<Unpaintable> {};

TEST_P(WhatCannotBePainted, LeavesTheMarksBehindIt) {
  const Raster picture = BitmapOf([](CGContextRef c) {
    c->SaveGState();
    GetParam().draw(c);
    c->RestoreGState();
    SetFill(c, 1, 0, 0);
    FillRect(c, {{40, 40}, {20, 20}});
  });
  EXPECT_EQ(picture.At(50, 50), kRedPixel);
}

INSTANTIATE_TEST_SUITE_P(, WhatCannotBePainted, testing::ValuesIn(kUnpaintable),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
