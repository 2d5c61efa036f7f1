#include <limits>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/surface_values.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kClipA;
using test::kMark;
using test::TraceOf;

TEST(CGContextClip, EmptiesThePath) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextAddRect(c, kClipA);
              CGContextClip(c);
              CGContextDrawPath(c, kCGPathFill);
            }),
            "");
}

TEST(CGContextClip, LosesThePathThatClipToRectFinds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextMoveToPoint(c, 1, 2);
              CGContextAddLineToPoint(c, 3, 4);
              CGContextClipToRect(c, kClipA);
              CGContextDrawPath(c, kCGPathStroke);
            }),
            "");
}

TEST(CGContextClip, MapsItsPathByTheTransformInForce) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, CGAffineTransformMakeScale(2, 2));
              CGContextClipToRect(c, CGRectMake(1, 1, 10, 10));
              FillRect(c, kMark);
            }),
            "save\nrect 2 2 20 20\nclip\nrect 20 20 10 10\nfill\nrestore\n");
}

TEST(CGContextClip, ToAnEmptyPathChangesNothing) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClip(c);
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

TEST(CGContextClip, ToAPathThatIsNotFiniteChangesNothing) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, CGRectMake(0, 0, std::numeric_limits<CGFloat>::infinity(), 1));
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

TEST(CGContextClip, ToMovesAloneHidesAllThatFollows) {
  const CFOwned<const CGImage> image = test::ImageOf(1, 1, 1, {0});
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextMoveToPoint(c, 1, 2);
              CGContextClip(c);
              FillRect(c, kMark);
              CGContextDrawImage(c, kMark, image.get());
              test::DrawHelvetica(c, u"A", 12);
            }),
            "");
}

TEST(CGContextClip, HidesOnlyUntilItsStateIsRestored) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextMoveToPoint(c, 1, 2);
              CGContextClip(c);
              FillRect(c, kMark);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

}  // namespace
}  // namespace kelvane
