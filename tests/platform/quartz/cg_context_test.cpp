#include "platform/quartz/cg_context.h"

#include <string>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_standard_font.h"
#include "support/surface.h"
#include "support/surface_values.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kDouble;
using test::kInfinity;
using test::kNaN;
using test::StrokeLine;
using test::TraceOf;

constexpr CGAffineTransform kQuarterTurn = {0, 1, -1, 0, 0, 0};

// The path.

TEST(CGContext, MapsPointsByTheTransformInForce) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, {2, 0, 0, 2, 5, 7});
              CGContextMoveToPoint(c, 1, 2);
              CGContextAddLineToPoint(c, 3, 4);
              CGContextAddCurveToPoint(c, 1, 1, 2, 2, 3, 3);
              CGContextClosePath(c);
              CGContextDrawPath(c, kCGPathFill);
            }),
            "move 7 11\nline 11 15\ncurve 7 9 9 11 11 13\nclose\nfill\n");
}

TEST(CGContext, LeavesPointsWhereTheyAreWhenTheTransformChanges) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextMoveToPoint(c, 1, 2);
              CGContextConcatCTM(c, kDouble);
              CGContextAddLineToPoint(c, 3, 4);
              CGContextDrawPath(c, kCGPathFill);
            }),
            "move 1 2\nline 6 8\nfill\n");
}

TEST(CGContext, ConcatenatesBeforeTheTransformInForce) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, kDouble);
              CGContextConcatCTM(c, {1, 0, 0, 1, 10, 0});
              CGContextMoveToPoint(c, 0, 0);
              CGContextAddLineToPoint(c, 1, 1);
              CGContextDrawPath(c, kCGPathFill);
            }),
            "move 20 0\nline 22 2\nfill\n");
}

TEST(CGContext, KeepsARectangleWholeUnderAScale) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, {2, 0, 0, -1, 5, 0});
              FillRect(c, CGRectMake(10, 20, 30, 40));
            }),
            "rect 25 -20 60 -40\nfill\n");
}

TEST(CGContext, DrawsATurnedRectangleAsLines) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, kQuarterTurn);
              FillRect(c, CGRectMake(10, 20, 30, 40));
            }),
            "move -20 10\nline -20 40\nline -60 40\nline -60 10\nclose\nfill\n");
}

TEST(CGContext, AddsAnEllipseFromItsRightmostPoint) {
  const std::string trace = TraceOf([](CGContextRef c) {
    CGContextAddEllipseInRect(c, CGRectMake(0, 0, 20, 10));
    CGContextDrawPath(c, kCGPathStroke);
  });
  EXPECT_EQ(trace.substr(0, trace.find('\n')), "move 20 5");
}

TEST(CGContext, TakesAnyClockwiseFlagButZeroForDecreasingAngles) {
  const auto firstEnd = [](int clockwise) {
    CGPoint end;
    (void)TraceOf([&](CGContextRef c) {
      CGContextAddArc(c, 0, 0, 10, 0, clockwise == 0 ? 1.5F : -1.5F, clockwise);
      end = CGContextGetPathCurrentPoint(c);
    });
    return end;
  };
  EXPECT_GT(firstEnd(0).y, 9);
  EXPECT_LT(firstEnd(1).y, -9);
  EXPECT_LT(firstEnd(-1).y, -9);
}

TEST(CGContext, LosesThePathWhenANewOneBegins) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextMoveToPoint(c, 1, 2);
              CGContextAddLineToPoint(c, 3, 4);
              CGContextBeginPath(c);
              CGContextDrawPath(c, kCGPathStroke);
            }),
            "");
}

TEST(CGContext, TellsTheCurrentPointInUserSpace) {
  (void)TraceOf([](CGContextRef c) {
    CGContextMoveToPoint(c, 30, 50);
    CGContextConcatCTM(c, {2, 0, 0, 2, 10, 10});
    EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{10, 20}));
  });
}

TEST(CGContext, TellsTheOriginForAnEmptyPathUnderAnyTransform) {
  (void)TraceOf([](CGContextRef c) {
    CGContextConcatCTM(c, {2, 0, 0, 2, 10, 10});
    EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{0, 0}));
  });
}

TEST(CGContext, StandsAtARectanglesOrigin) {
  (void)TraceOf([](CGContextRef c) {
    CGContextAddRect(c, CGRectMake(1, 2, 3, 4));
    EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{1, 2}));
    CGContextConcatCTM(c, kQuarterTurn);
    CGContextAddRect(c, CGRectMake(5, 6, 3, 4));
    EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{5, 6}));
  });
}

TEST(CGContext, StandsAtAnEllipsesRightmostPoint) {
  (void)TraceOf([](CGContextRef c) {
    CGContextAddEllipseInRect(c, CGRectMake(0, 0, 20, 10));
    EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{20, 5}));
  });
}

// User space.

TEST(CGContext, ConvertsAPagePointToUserSpace) {
  (void)TraceOf([](CGContextRef c) {
    CGContextConcatCTM(c, {2, 0, 0, 4, 10, 20});
    EXPECT_EQ(CGContextConvertPointToUserSpace(c, {30, 60}), (CGPoint{10, 10}));
  });
}

TEST(CGContext, ConvertsAPageRectangleToTheBoxOfItsCorners) {
  (void)TraceOf([](CGContextRef c) {
    CGContextConcatCTM(c, kQuarterTurn);
    EXPECT_EQ(CGContextConvertRectToUserSpace(c, CGRectMake(0, 0, 10, 20)),
              CGRectMake(0, -10, 20, 10));
  });
}

// Saving and restoring.

TEST(CGContext, RestoresTheWholeState) {
  (void)TraceOf([](CGContextRef c) {
    const CGGraphicsState before = c->State();
    CGContextSaveGState(c);
    CGContextConcatCTM(c, kDouble);
    test::SetFill(c, 1, 0, 0);
    test::SetStroke(c, 0, 1, 0);
    CGContextSetLineWidth(c, 5);
    CGContextSetMiterLimit(c, 3);
    CGContextSetTextDrawingMode(c, kCGTextStroke);
    CGContextRestoreGState(c);

    const CGGraphicsState& after = c->State();
    EXPECT_EQ(after.ctm, before.ctm);
    EXPECT_EQ(after.fillColor, before.fillColor);
    EXPECT_EQ(after.strokeColor, before.strokeColor);
    EXPECT_EQ(after.fillComponents, before.fillComponents);
    EXPECT_EQ(after.strokeComponents, before.strokeComponents);
    EXPECT_EQ(after.lineWidth, before.lineWidth);
    EXPECT_EQ(after.miterLimit, before.miterLimit);
    EXPECT_EQ(after.textMode, before.textMode);
  });
}

TEST(CGContext, StartsWithTheStateOfAFreshPage) {
  (void)TraceOf([](CGContextRef c) {
    EXPECT_EQ(CGContextGetCTM(c), CGAffineTransformIdentity);
    EXPECT_EQ(c->State().fillColor, (CGColor{0, 0, 0, 1}));
    EXPECT_EQ(c->State().strokeColor, (CGColor{0, 0, 0, 1}));
    EXPECT_EQ(c->State().lineWidth, 1);
    EXPECT_EQ(c->State().miterLimit, 10);
    EXPECT_EQ(c->State().textMode, kCGTextFill);
  });
}

TEST(CGContext, KeepsThePathWhenTheStateIsRestored) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextMoveToPoint(c, 1, 2);
              CGContextSaveGState(c);
              CGContextAddLineToPoint(c, 3, 4);
              CGContextRestoreGState(c);
              CGContextDrawPath(c, kCGPathStroke);
            }),
            "move 1 2\nline 3 4\nstroke\n");
}

TEST(CGContext, KeepsTheTextMatrixWhenTheStateIsRestored) {
  (void)TraceOf([](CGContextRef c) {
    CGContextSaveGState(c);
    CGContextSetTextMatrix(c, kDouble);
    CGContextRestoreGState(c);
    EXPECT_EQ(CGContextGetTextMatrix(c), kDouble);
  });
}

TEST(CGContext, RestoresNothingWhenNothingIsSaved) {
  (void)TraceOf([](CGContextRef c) {
    CGContextConcatCTM(c, kDouble);
    CGContextRestoreGState(c);
    EXPECT_EQ(CGContextGetCTM(c), kDouble);
  });
}

TEST(CGContext, RestoresInTheOrderOfSaving) {
  (void)TraceOf([](CGContextRef c) {
    for (const CGFloat width : {2.0F, 3.0F, 4.0F}) {
      CGContextSetLineWidth(c, width);
      CGContextSaveGState(c);
    }
    for (const CGFloat width : {4.0F, 3.0F, 2.0F, 2.0F}) {
      CGContextRestoreGState(c);
      EXPECT_EQ(c->State().lineWidth, width);
    }
  });
}

// Painting.

class PathDrawingMode : public testing::TestWithParam<std::pair<CGPathDrawingMode, const char*>> {};

TEST_P(PathDrawingMode, PaintsThePath) {
  const auto [mode, name] = GetParam();
  EXPECT_EQ(TraceOf([mode = mode](CGContextRef c) {
              CGContextAddRect(c, CGRectMake(1, 2, 3, 4));
              CGContextDrawPath(c, mode);
            }),
            std::string("rect 1 2 3 4\n") + name + "\n");
}

INSTANTIATE_TEST_SUITE_P(Modes, PathDrawingMode,
                         testing::Values(std::pair{kCGPathFill, "fill"},
                                         std::pair{kCGPathEOFill, "eo-fill"},
                                         std::pair{kCGPathStroke, "stroke"},
                                         std::pair{kCGPathFillStroke, "fill-stroke"},
                                         std::pair{kCGPathEOFillStroke, "eo-fill-stroke"}));

TEST(CGContext, EmptiesThePathByPaintingIt) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              StrokeLine(c, {1, 2}, {3, 4});
              EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{0, 0}));
              CGContextAddLineToPoint(c, 5, 6);
              CGContextAddLineToPoint(c, 7, 8);
              CGContextDrawPath(c, kCGPathStroke);
            }),
            "move 1 2\nline 3 4\nstroke\nmove 5 6\nline 7 8\nstroke\n");
}

TEST(CGContext, MarksNothingForAnEmptyPathOrMovesAlone) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextDrawPath(c, kCGPathFillStroke);
              CGContextMoveToPoint(c, 1, 2);
              CGContextMoveToPoint(c, 3, 4);
              CGContextDrawPath(c, kCGPathFillStroke);
            }),
            "");
}

TEST(CGContext, EmptiesAPathOfMovesByPaintingIt) {
  (void)TraceOf([](CGContextRef c) {
    CGContextMoveToPoint(c, 1, 2);
    CGContextDrawPath(c, kCGPathStroke);
    EXPECT_EQ(CGContextGetPathCurrentPoint(c), (CGPoint{0, 0}));
  });
}

TEST(CGContext, LeavesOutAPathWithACoordinateThatIsNotFinite) {
  for (const CGFloat bad : {kNaN, kInfinity, -kInfinity}) {
    EXPECT_EQ(TraceOf([bad](CGContextRef c) {
                StrokeLine(c, {1, 2}, {bad, 4});
                StrokeLine(c, {1, 2}, {3, 4});
              }),
              "move 1 2\nline 3 4\nstroke\n");
  }
}

TEST(CGContext, LeavesOutAPathThatTheTransformTakesOutOfRange) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, CGAffineTransformMakeScale(1e30F, 1));
              FillRect(c, CGRectMake(0, 0, 1e30F, 1));
            }),
            "");
}

TEST(CGContext, LeavesOutAStrokeOfAWidthThatIsNotFinite) {
  for (const CGFloat bad : {kNaN, kInfinity}) {
    EXPECT_EQ(TraceOf([bad](CGContextRef c) {
                CGContextSetLineWidth(c, bad);
                StrokeLine(c, {1, 2}, {3, 4});
                FillRect(c, CGRectMake(1, 2, 3, 4));
              }),
              "rect 1 2 3 4\nfill\n");
  }
}

TEST(CGContext, LeavesOutImagesAndTextThatAreNotFinite) {
  const CFOwned<const CGImage> image = test::ImageOf(1, 1, 1, {0});
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextDrawImage(c, CGRectMake(0, 0, kInfinity, 1), image.get());
              CGContextDrawImage(c, CGRectMake(kNaN, 0, 1, 1), image.get());
              test::DrawHelvetica(c, u"A", kInfinity);
              test::DrawHelvetica(c, u"A", 12, {kNaN, 0, 0, 1, 0, 0});
            }),
            "");
}

TEST(CGContext, MarksNothingForTextOfNoSize) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              test::DrawHelvetica(c, u"A", 0);
              test::DrawHelvetica(c, u"A", -1);
            }),
            "");
}

/// A letter as a run of its own.
CGGlyphRun LetterRun(const CGPositionedGlyph& letter) {
  return {CGFontGetStandardHelvetica(), 12, {}, {&letter, 1}};
}

constexpr CGPositionedGlyph kLetter = {'A', {}, u"A"};

TEST(CGContext, SlantsARunBeforeItIsTransformed) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, kQuarterTurn);
              CGGlyphRun run = LetterRun(kLetter);
              run.isSlanted = true;
              c->DrawGlyphRun(run);
            }),
            "text \"A\" Helvetica 12 under 0 1 -1 0.21255656 0 0\n");
}

TEST(CGContext, ThickensARunByAStrokeInTheFillColour) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              constexpr CGFloat kGray[] = {0.5F, 1};
              CGContextSetFillColor(c, kGray);
              CGGlyphRun run = LetterRun(kLetter);
              run.isEmboldened = true;
              c->DrawGlyphRun(run);
            }),
            "fill-color 0.5 0.5 0.5\nstroke-color 0.5 0.5 0.5\nline-width 0.5\nmiter-limit 2\n"
            "text-mode 2\ntext \"A\" Helvetica 12 under 1 0 0 1 0 0\n");
}

TEST(CGContext, ThickensNoTextThatIsNotFilledAlone) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSetTextDrawingMode(c, kCGTextInvisible);
              CGGlyphRun run = LetterRun(kLetter);
              run.isEmboldened = true;
              c->DrawGlyphRun(run);
            }),
            "text-mode 3\ntext \"A\" Helvetica 12 under 1 0 0 1 0 0\n");
}

TEST(CGContext, MarksNothingForANullImage) {
  EXPECT_EQ(TraceOf([](CGContextRef c) { CGContextDrawImage(c, CGRectMake(0, 0, 1, 1), nullptr); }),
            "");
}

// Line attributes.

TEST(CGContext, TakesALineWidthBelowZeroForZero) {
  (void)TraceOf([](CGContextRef c) {
    CGContextSetLineWidth(c, -3);
    EXPECT_EQ(c->State().lineWidth, 0);
  });
}

TEST(CGContext, KeepsItsMiterLimitWhenGivenNoNumber) {
  (void)TraceOf([](CGContextRef c) {
    CGContextSetMiterLimit(c, kNaN);
    EXPECT_EQ(c->State().miterLimit, 10);
  });
}

}  // namespace
}  // namespace kelvane
