// Paths of very many lines: they look like the same paths with fewer, and take as long as their
// lines are, however they cross.

#include <cmath>
#include <ctime>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/bitmap.h"
#include "support/images.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

/// The corners of a star whose lines cross.
std::vector<CGPoint> Star() {
  std::vector<CGPoint> corners;
  for (int i = 0; i < 7; ++i) {
    const auto angle = static_cast<CGFloat>(3 * i * 2 * std::numbers::pi / 7 + 0.1);
    corners.push_back({50 + 45 * std::cos(angle), 50 + 45 * std::sin(angle)});
  }
  return corners;
}

/// Adds a figure with each of its lines cut into so many.
void AddFigure(CGContextRef c, const std::vector<CGPoint>& corners, int parts, bool isClosed) {
  CGContextMoveToPoint(c, corners[0].x, corners[0].y);
  const std::size_t lines = corners.size() - (isClosed ? 0 : 1);
  for (std::size_t i = 0; i < lines; ++i) {
    const CGPoint from = corners[i];
    const CGPoint to = corners[(i + 1) % corners.size()];
    for (int part = 1; part <= parts; ++part) {
      const CGFloat way = static_cast<CGFloat>(part) / static_cast<CGFloat>(parts);
      CGContextAddLineToPoint(c, from.x + (to.x - from.x) * way, from.y + (to.y - from.y) * way);
    }
  }
  if (isClosed) CGContextClosePath(c);
}

struct Way {
  const char* name;
  void (*draw)(CGContextRef c, int parts);
};

void PrintTo(const Way& way, std::ostream* out) {
  *out << way.name;
}

class PathOfManyLines : public testing::TestWithParam<Way> {};

TEST_P(PathOfManyLines, LooksAsOneOfFewDoes) {
  constexpr int kScale = 2;
  constexpr int kNearly = 6;      // of 255, in each channel
  constexpr int kCrossings = 12;  // where what two pieces cover of a pixel adds up
  const Way& way = GetParam();
  const auto drawn = [&way](int parts) {
    return BitmapOf([&](CGContextRef c) { way.draw(c, parts); }, kScale);
  };
  const Raster few = drawn(1);
  EXPECT_LE(DifferingPixels(few, drawn(200), kNearly), kCrossings);
  EXPECT_GT(DifferingPixels(few, BitmapOf([](CGContextRef) {}, kScale), kNearly), 1000);
}

const Way kWays[] = {
    {"filled",
     [](CGContextRef c, int parts) {
       AddFigure(c, Star(), parts, true);
       CGContextDrawPath(c, kCGPathFill);
     }},
    {"filled_by_turns",
     [](CGContextRef c, int parts) {
       AddFigure(c, Star(), parts, true);
       CGContextDrawPath(c, kCGPathEOFill);
     }},
    {"filled_beyond_the_page",
     [](CGContextRef c, int parts) {
       std::vector<CGPoint> corners = Star();
       for (CGPoint& corner : corners)
         corner = {3 * corner.x - 150, 3 * corner.y - 130};
       AddFigure(c, corners, parts, true);
       CGContextDrawPath(c, kCGPathEOFill);
     }},
    {"filled_and_clear",
     [](CGContextRef c, int parts) {
       CGContextSetAlpha(c, 0.5F);
       AddFigure(c, Star(), parts, true);
       CGContextDrawPath(c, kCGPathFill);
     }},
    {"clipping",
     [](CGContextRef c, int parts) {
       AddFigure(c, Star(), parts, true);
       CGContextEOClip(c);
       CGContextAddRect(c, {{0, 0}, {100, 100}});
       CGContextDrawPath(c, kCGPathFill);
     }},
    {"stroked",
     [](CGContextRef c, int parts) {
       CGContextSetLineWidth(c, 4);
       AddFigure(c, Star(), parts, false);
       CGContextDrawPath(c, kCGPathStroke);
     }},
    {"stroked_around",
     [](CGContextRef c, int parts) {
       CGContextSetLineWidth(c, 4);
       AddFigure(c, Star(), parts, true);
       CGContextDrawPath(c, kCGPathStroke);
     }},
    {"stroked_with_square_ends",
     [](CGContextRef c, int parts) {
       CGContextSetLineWidth(c, 4);
       CGContextSetLineCap(c, kCGLineCapSquare);
       AddFigure(c, Star(), parts, false);
       CGContextDrawPath(c, kCGPathStroke);
     }},
    {"dashed",
     [](CGContextRef c, int parts) {
       CGContextSetLineWidth(c, 4);
       c->SetLineDash(3, std::vector<CGFloat>{10, 5});
       AddFigure(c, Star(), parts, true);
       CGContextDrawPath(c, kCGPathStroke);
     }},
};

INSTANTIATE_TEST_SUITE_P(Every, PathOfManyLines, testing::ValuesIn(kWays),
                         [](const auto& row) { return row.param.name; });

TEST(APathOfManyLines, LeavesThePageAloneHoweverFarAwayItLies) {
  constexpr CGFloat kFar = 1e12F;
  for (const CGPoint away : {CGPoint{-kFar, 0}, {kFar, 0}, {0, -kFar}, {0, kFar}}) {
    const Raster picture = BitmapOf([away](CGContextRef c) {
      std::vector<CGPoint> corners = Star();
      for (CGPoint& corner : corners)
        corner = {1000 * corner.x + away.x, 1000 * corner.y + away.y};
      AddFigure(c, corners, 200, true);
      CGContextDrawPath(c, kCGPathFillStroke);
      CGContextAddRect(c, {{0, 0}, {50, 100}});
      CGContextDrawPath(c, kCGPathFill);
    });
    EXPECT_EQ(picture.At(25, 50), (Raster::Color{0, 0, 0}));
    EXPECT_EQ(picture.At(75, 50), kWhitePixel);
  }
}

/// Lines across the page, each of which crosses most others.
void AddTangle(CGContextRef c, int lines) {
  CGContextMoveToPoint(c, 0, 0);
  for (int i = 1; i < lines; ++i) {
    const auto at = static_cast<CGFloat>(i * 37 % 101);
    CGContextAddLineToPoint(c, at, i % 2 == 0 ? 0 : 100);
  }
}

TEST(ATangle, IsFilledInTime) {
  const std::clock_t start = std::clock();
  BitmapOf([](CGContextRef c) {
    AddTangle(c, 30'000);
    CGContextDrawPath(c, kCGPathEOFill);
  });
  EXPECT_LT(std::clock() - start, CLOCKS_PER_SEC * kSlowdown);
}

TEST(ATangle, IsStrokedInTime) {
  const std::clock_t start = std::clock();
  const Raster picture = BitmapOf([](CGContextRef c) {
    AddTangle(c, 30'000);
    CGContextDrawPath(c, kCGPathStroke);
  });
  EXPECT_LT(std::clock() - start, 3 * CLOCKS_PER_SEC * kSlowdown);
  EXPECT_EQ(picture.At(50, 50), (Raster::Color{0, 0, 0}));
}

}  // namespace
}  // namespace kelvane::test
