#include "platform/quartz/cg_value_writer.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/surface_values.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kMark;
using test::SetFill;
using test::SetStroke;
using test::StrokeLine;
using test::TraceOf;

constexpr CGRect kClip = {{0, 0}, {50, 50}};

TEST(CGValueWriter, WritesNoStateThatNoMarkNeeds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0);
              SetStroke(c, 0, 1, 0);
              CGContextSetLineWidth(c, 3);
              CGContextSetMiterLimit(c, 4);
              CGContextSetTextDrawingMode(c, kCGTextStroke);
            }),
            "");
}

TEST(CGValueWriter, WritesOnlyWhatAFillNeeds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0.5F);
              SetStroke(c, 0, 1, 0);
              CGContextSetLineWidth(c, 3);
              FillRect(c, kMark);
            }),
            "fill-color 1 0 0.5\nrect 10 10 5 5\nfill\n");
}

TEST(CGValueWriter, WritesOnlyWhatAStrokeNeeds) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0);
              SetStroke(c, 0, 1, 0);
              CGContextSetLineWidth(c, 3);
              CGContextSetMiterLimit(c, 4);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "stroke-color 0 1 0\nline-width 3\nmiter-limit 4\nmove 1 2\nline 3 4\nstroke\n");
}

TEST(CGValueWriter, WritesAValueOnlyWhenItChanges) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
              SetFill(c, 0, 0, 1);
              SetFill(c, 1, 0, 0);
              FillRect(c, kMark);
            }),
            "fill-color 1 0 0\nrect 10 10 5 5\nfill\nrect 10 10 5 5\nfill\n");
}

TEST(CGValueWriter, WritesNoValueThePageStartsWith) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              SetStroke(c, 0, 0, 0);
              CGContextSetLineWidth(c, 1);
              CGContextSetMiterLimit(c, 10);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "move 1 2\nline 3 4\nstroke\n");
}

TEST(CGValueWriter, WritesNoColourForAChangeOfAlpha) {
  constexpr std::array<CGFloat, 2> kBlackHalfSeenThrough = {0, 0.5F};
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextSetFillColor(c, kBlackHalfSeenThrough.data());
              CGContextSetStrokeColor(c, kBlackHalfSeenThrough.data());
              CGContextAddRect(c, kMark);
              CGContextDrawPath(c, kCGPathFillStroke);
            }),
            "rect 10 10 5 5\nfill-stroke\n");
}

TEST(CGValueWriter, WritesNoStateForASaveAndRestoreWithoutAMark) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              SetFill(c, 1, 0, 0);
              CGContextRestoreGState(c);
              FillRect(c, kMark);
            }),
            "rect 10 10 5 5\nfill\n");
}

TEST(CGValueWriter, WritesAnInheritedValueBackAfterARestore) {
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

TEST(CGValueWriter, KnowsWhichValuesARestoreBringsBack) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextSaveGState(c);
              CGContextClipToRect(c, kClip);
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

}  // namespace
}  // namespace kelvane
