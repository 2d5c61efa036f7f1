#include "platform/quartz/cg_graphics_state.h"

#include <limits>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::StrokeLine;
using test::TraceOf;

CGStrokeGeometry StrokeOfWidth2Under(const CGAffineTransform& ctm) {
  CGGraphicsState state;
  state.lineWidth = 2;
  state.ctm = ctm;
  return StrokeGeometry(state);
}

TEST(StrokeGeometry, KeepsTheWidthUnderTheIdentity) {
  const CGStrokeGeometry stroke = StrokeOfWidth2Under({});
  EXPECT_FALSE(stroke.throughTransform);
  EXPECT_EQ(stroke.width, 2);
}

TEST(StrokeGeometry, ScalesTheWidthUnderAnEvenScale) {
  for (const CGAffineTransform& even :
       {CGAffineTransform{3, 0, 0, 3, 0, 0}, CGAffineTransform{3, 0, 0, -3, 7, 8},
        CGAffineTransform{0, 3, -3, 0, 0, 0}}) {
    const CGStrokeGeometry stroke = StrokeOfWidth2Under(even);
    EXPECT_FALSE(stroke.throughTransform);
    EXPECT_EQ(stroke.width, 6);
  }
}

TEST(StrokeGeometry, KeepsTheWidthUnderARotation) {
  const CGStrokeGeometry stroke = StrokeOfWidth2Under({0.8F, 0.6F, -0.6F, 0.8F, 0, 0});
  EXPECT_FALSE(stroke.throughTransform);
  EXPECT_FLOAT_EQ(stroke.width, 2);
}

TEST(StrokeGeometry, GoesThroughAnUnevenTransform) {
  constexpr CGAffineTransform kUneven = {4, 0, 0, 1, 0, 0};
  const CGStrokeGeometry stroke = StrokeOfWidth2Under(kUneven);
  EXPECT_TRUE(stroke.throughTransform);
  EXPECT_EQ(stroke.width, 2);
  EXPECT_EQ(stroke.transform, kUneven);
  EXPECT_EQ(stroke.inverse, (CGAffineTransform{0.25F, 0, 0, 1, 0, 0}));
}

TEST(StrokeGeometry, IsTheThinnestLineUnderATransformThatCannotBeUndone) {
  constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();
  for (const CGAffineTransform& singular :
       {CGAffineTransform{0, 0, 0, 0, 0, 0}, CGAffineTransform{1, 0, 0, 0, 0, 0},
        CGAffineTransform{1, 2, 2, 4, 0, 0}, CGAffineTransform{kInfinity, 0, 0, 1, 0, 0},
        CGAffineTransform{1e-39F, 0, 0, 1, 0, 0}}) {
    const CGStrokeGeometry stroke = StrokeOfWidth2Under(singular);
    EXPECT_FALSE(stroke.throughTransform);
    EXPECT_EQ(stroke.width, 0);
  }
}

TEST(Stroke, OfWidthZeroIsWritten) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSetLineWidth(c, 0);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "line-width 0\nmove 1 2\nline 3 4\nstroke\n");
}

TEST(Stroke, HasItsWidthScaledEvenly) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSetLineWidth(c, 2);
              CGContextConcatCTM(c, CGAffineTransformMakeScale(3, -3));
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "line-width 6\nmove 3 -6\nline 9 -12\nstroke\n");
}

TEST(Stroke, NamesTheUnevenTransformThatDeformsIt) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSetLineWidth(c, 2);
              CGContextConcatCTM(c, CGAffineTransformMakeScale(4, 1));
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "line-width 2\nmove 4 2\nline 12 4\nstroke under 4 0 0 1 0 0\n");
}

TEST(Stroke, TakesTheTransformInForceWhenItIsPainted) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextMoveToPoint(c, 1, 2);
              CGContextAddLineToPoint(c, 3, 4);
              CGContextConcatCTM(c, CGAffineTransformMakeScale(5, 5));
              CGContextDrawPath(c, kCGPathStroke);
            }),
            "line-width 5\nmove 1 2\nline 3 4\nstroke\n");
}

TEST(Stroke, UnderASingularTransformIsTheThinnestLine) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, CGAffineTransformMakeScale(1, 0));
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "line-width 0\nmove 1 0\nline 3 0\nstroke\n");
}

TEST(Fill, IsNotDeformedTwiceByAnUnevenTransform) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, CGAffineTransformMakeScale(4, 1));
              test::FillRect(c, CGRectMake(1, 2, 3, 4));
            }),
            "rect 4 2 12 4\nfill\n");
}

}  // namespace
}  // namespace kelvane
