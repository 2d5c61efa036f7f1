#include "platform/quartz/cg_state_writer.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::SetFill;
using test::SetStroke;
using test::StrokeLine;
using test::TraceOf;

constexpr CGRect kMark = {{10, 10}, {5, 5}};
constexpr CGRect kClipA = {{0, 0}, {50, 50}};
constexpr CGRect kClipB = {{5, 5}, {40, 40}};

// State.

TEST(CGStateWriter, WritesNoStateThatNoMarkNeeds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0);
              SetStroke(c, 0, 1, 0);
              CGContextSetLineWidth(c, 3);
              CGContextSetMiterLimit(c, 4);
              CGContextSetTextDrawingMode(c, kCGTextStroke);
            }),
            "");
}

TEST(CGStateWriter, WritesOnlyWhatAFillNeeds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0.5F);
              SetStroke(c, 0, 1, 0);
              CGContextSetLineWidth(c, 3);
              FillRect(c, kMark);
            }),
            "fill-color 1 0 0.5\nrect 10 10 5 5\nfill\n");
}

TEST(CGStateWriter, WritesOnlyWhatAStrokeNeeds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0);
              SetStroke(c, 0, 1, 0);
              CGContextSetLineWidth(c, 3);
              CGContextSetMiterLimit(c, 4);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "stroke-color 0 1 0\nline-width 3\nmiter-limit 4\nmove 1 2\nline 3 4\nstroke\n");
}

TEST(CGStateWriter, WritesAValueOnlyWhenItChanges) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
              SetFill(c, 0, 0, 1);
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
            }),
            "fill-color 1 0 0\nrect 10 10 5 5\nfill\nrect 10 10 5 5\nfill\n");
}

TEST(CGStateWriter, WritesNoValueThePageStartsWith) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetStroke(c, 0, 0, 0);
              CGContextSetLineWidth(c, 1);
              CGContextSetMiterLimit(c, 10);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "move 1 2\nline 3 4\nstroke\n");
}

TEST(CGStateWriter, WritesNoColourForAChangeOfAlpha) {
  constexpr std::array<CGFloat, 2> kBlackHalfSeenThrough = {0, 0.5F};
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextSetFillColor(c, kBlackHalfSeenThrough.data());
              CGContextSetStrokeColor(c, kBlackHalfSeenThrough.data());
              CGContextAddRect(c, kMark);
              CGContextDrawPath(c, kCGPathFillStroke);
            }),
            "rect 10 10 5 5\nfill-stroke\n");
}

TEST(CGStateWriter, WritesNoStateForASaveAndRestoreWithoutAMark) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              SetFill(c, 1, 0, 0);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

TEST(CGStateWriter, WritesAnInheritedValueBackAfterARestore) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "fill-color 1 0 0\nrect 10 10 5 5\nfill\nfill-color 0 0 0\nrect 10 10 5 5\nfill\n");
}

struct TextModeCase {
  CGTextDrawingMode mode;
  const char* lines;
};

class TextModeNeeds : public testing::TestWithParam<TextModeCase> {};

TEST_P(TextModeNeeds, AreWhatTheModePaintsWith) {
  const TextModeCase& row = GetParam();
  const std::string trace = TraceOf([&](CGContextRef c) {
    SetFill(c, 1, 0, 0);
    SetStroke(c, 0, 1, 0);
    CGContextSetTextDrawingMode(c, row.mode);
    test::DrawHelvetica(c, u"A", 12);
  });
  EXPECT_EQ(trace.substr(0, trace.find("text \"")), row.lines);
}

INSTANTIATE_TEST_SUITE_P(
    Modes, TextModeNeeds,
    testing::Values(TextModeCase{kCGTextFill, "fill-color 1 0 0\n"},
                    TextModeCase{kCGTextStroke, "stroke-color 0 1 0\ntext-mode 1\n"},
                    TextModeCase{kCGTextFillStroke,
                                 "fill-color 1 0 0\nstroke-color 0 1 0\ntext-mode 2\n"},
                    TextModeCase{kCGTextInvisible, "text-mode 3\n"}));

// Clips.

TEST(CGStateWriter, WritesAClipOnceForAllMarksUnderIt) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, kClipA);
              FillRect(c, kMark);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGStateWriter, WritesNoClipWithoutAMarkUnderIt) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipA);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

TEST(CGStateWriter, EndsAClipWithTheStateItWasSetIn) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipA);
              FillRect(c, kMark);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\nrestore\nrect 10 10 5 5\nfill\n");
}

TEST(CGStateWriter, LetsTheClipsOfOneStateShareASave) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, kClipA);
              CGContextClipToRect(c, kClipB);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 5 5 40 40\nclip\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGStateWriter, AddsALaterClipOfTheSameStateToItsSave) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, kClipA);
              FillRect(c, kMark);
              CGContextClipToRect(c, kClipB);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\n"
            "rect 5 5 40 40\nclip\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGStateWriter, EndsAnInnerClipAndKeepsTheOuter) {
  EXPECT_EQ(
      TraceOf([](CGContextRef c) {
        CGContextClipToRect(c, kClipA);
        CGContextSaveGState(c);
        CGContextClipToRect(c, kClipB);
        FillRect(c, kMark);
        CGContextRestoreGState(c);
        FillRect(c, kMark);
      }),
      "save\nrect 0 0 50 50\nclip\nsave\nrect 5 5 40 40\nclip\nrect 10 10 5 5\nfill\nrestore\n"
      "rect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGStateWriter, KeepsEqualClipsOfDifferentStatesApart) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              for (int i = 0; i < 2; ++i) {
                CGContextSaveGState(c);
                CGContextClipToRect(c, kClipA);
                FillRect(c, kMark);
                CGContextRestoreGState(c);
              }
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\nrestore\n"
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGStateWriter, KnowsWhichValuesARestoreBringsBack) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipA);
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nfill-color 1 0 0\nrect 10 10 5 5\nfill\nrestore\n"
            "rect 10 10 5 5\nfill\nfill-color 1 0 0\nrect 10 10 5 5\nfill\n");
}

TEST(CGStateWriter, ClosesWhatIsStillSavedAtThePagesEnd) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipA);
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipB);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nsave\nrect 5 5 40 40\nclip\n"
            "rect 10 10 5 5\nfill\nrestore\nrestore\n");
}

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
