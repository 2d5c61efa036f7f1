#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kMark;
using test::SetFill;
using test::StrokeLine;
using test::TraceOf;

const std::string kFilled = "rect 10 10 5 5\nfill\n";

/// A cell of two units with a red square in its corner.
CGSharedPattern RedSquares() {
  CGPattern pattern;
  pattern.cell = {2, 2};
  pattern.matrix = {3, 0, 0, 3, 1, 1};
  CGPath square;
  square.AddRectangle({0, 0}, {1, 1});
  pattern.shapes.push_back({square, {1, 0, 0, 1}});
  return std::make_shared<const CGPattern>(std::move(pattern));
}

const std::string kRedSquares =
    "pattern 2 2 under 3 0 0 3 1 1\n  fill-color 1 0 0\nrect 0 0 1 1\nend-pattern\n";

TEST(Painting, MixesMarksAsTheModeSays) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSetBlendMode(c, kCGBlendModeDarken);
              FillRect(c, kMark);
              CGContextSetBlendMode(c, kCGBlendModeNormal);
              FillRect(c, kMark);
            }),
            "blend darken alpha 1\n" + kFilled + "blend normal alpha 1\n" + kFilled);
}

TEST(Painting, KeepsAlphaFrom0To1) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSetAlpha(c, 0.5F);
              FillRect(c, kMark);
              CGContextSetAlpha(c, -3);
              CGContextSetAlpha(c, test::kNaN);
              FillRect(c, kMark);
            }),
            "blend normal alpha 0.5\n" + kFilled + "blend normal alpha 0\n" + kFilled);
}

TEST(Painting, FillsWithAPatternInThePlaceOfTheColor) {
  const CGSharedPattern squares = RedSquares();
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              SetFill(c, 0, 1, 0);
              c->SetFillPattern(squares);
              FillRect(c, kMark);
              FillRect(c, kMark);
            }),
            "fill-" + kRedSquares + kFilled + kFilled);
}

TEST(Painting, WritesAColorAgainAfterAPattern) {
  const CGSharedPattern squares = RedSquares();
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              FillRect(c, kMark);
              c->SetFillPattern(squares);
              FillRect(c, kMark);
              SetFill(c, 0, 0, 0);
              FillRect(c, kMark);
            }),
            kFilled + "fill-" + kRedSquares + kFilled + "fill-color 0 0 0\n" + kFilled);
}

TEST(Painting, StrokesWithAPattern) {
  const CGSharedPattern squares = RedSquares();
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              c->SetStrokePattern(squares);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "stroke-" + kRedSquares + "move 1 2\nline 3 4\nstroke\n");
}

TEST(Painting, CutsToAPathByTheEvenOddRule) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              c->AddRect(kMark);
              CGContextEOClip(c);
              FillRect(c, kMark);
            }),
            "save\nrect 10 10 5 5\neo-clip\n" + kFilled + "restore\n");
}

TEST(Painting, TakesAPathInUserSpaceAndLeavesItEmpty) {
  CGPath path;
  path.AddRectangle({1, 2}, {3, 4});
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextConcatCTM(c, CGAffineTransformMakeScale(2, 2));
              c->SwapPath(path);
              CGContextDrawPath(c, kCGPathFill);
            }),
            "rect 2 4 6 8\nfill\n");
  EXPECT_TRUE(path.IsEmpty());
}

}  // namespace
}  // namespace kelvane
