#include "platform/quartz/cg_clip_writer.h"

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kClipA;
using test::kMark;
using test::TraceOf;

constexpr CGRect kClipB = {{5, 5}, {40, 40}};

TEST(CGClipWriter, WritesAClipOnceForAllMarksUnderIt) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, kClipA);
              FillRect(c, kMark);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGClipWriter, WritesNoClipWithoutAMarkUnderIt) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipA);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

TEST(CGClipWriter, EndsAClipWithTheStateItWasSetIn) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClipA);
              FillRect(c, kMark);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\nrestore\nrect 10 10 5 5\nfill\n");
}

TEST(CGClipWriter, LetsTheClipsOfOneStateShareASave) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, kClipA);
              CGContextClipToRect(c, kClipB);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 5 5 40 40\nclip\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGClipWriter, AddsALaterClipOfTheSameStateToItsSave) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextClipToRect(c, kClipA);
              FillRect(c, kMark);
              CGContextClipToRect(c, kClipB);
              FillRect(c, kMark);
            }),
            "save\nrect 0 0 50 50\nclip\nrect 10 10 5 5\nfill\n"
            "rect 5 5 40 40\nclip\nrect 10 10 5 5\nfill\nrestore\n");
}

TEST(CGClipWriter, EndsAnInnerClipAndKeepsTheOuter) {
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

TEST(CGClipWriter, KeepsEqualClipsOfDifferentStatesApart) {
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

TEST(CGClipWriter, ClosesWhatIsStillSavedAtThePagesEnd) {
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

}  // namespace
}  // namespace kelvane
