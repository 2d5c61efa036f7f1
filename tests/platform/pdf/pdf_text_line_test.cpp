#include "platform/pdf/pdf_text_line.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

PdfTextStyle Style(CGFloat size = 10, const CGAffineTransform& matrix = {}) {
  return {"/F1", 2, size, matrix};
}

/// A line with one glyph of half an em at (0, 0).
PdfTextLine Line(const PdfTextStyle& style = Style()) {
  PdfTextLine line;
  line.Start(style, {0, 0});
  line.Add(0, 500);
  return line;
}

TEST(PdfTextLine, HasNoGapWhereTheWidthLeads) {
  EXPECT_EQ(Line().Gap(Style(), {5, 0}), 0);
}

TEST(PdfTextLine, MeasuresAGapInThousandthsOfAnEm) {
  EXPECT_EQ(Line().Gap(Style(), {6, 0}), 100);
}

TEST(PdfTextLine, GoesBackOverAGlyph) {
  EXPECT_EQ(Line().Gap(Style(), {4, 0}), -100);
}

TEST(PdfTextLine, MeasuresAlongATurnedBaseline) {
  const PdfTextStyle upwards = Style(10, {0, 1, -1, 0, 50, 50});
  EXPECT_EQ(Line(upwards).Gap(Style(10, {0, 1, -1, 0, 50, 56}), {0, 0}), 100);
}

TEST(PdfTextLine, DoesNotAddUpRounding) {
  PdfTextLine line = Line();
  CGFloat sum = 0;
  for (int i = 1; i <= 90; ++i) {
    const CGFloat gap = line.Gap(Style(), {static_cast<CGFloat>(i) * 5.004F, 0}).value_or(0);
    line.Add(gap, 500);
    sum += gap;
  }
  EXPECT_EQ(sum, 36);  // each glyph stands 0.4 thousandths too far for the width before it
}

TEST(PdfTextLine, HasNoGapForWhatIsTooSmallToSee) {
  EXPECT_EQ(Line().Gap(Style(), {5.0049F, 0}), 0);               // half a thousandth of an em
  EXPECT_EQ(Line(Style(100)).Gap(Style(100), {50.009F, 0}), 0);  // a hundredth of a point
}

TEST(PdfTextLine, HasWholeGapsWhereTheyAreNearEnough) {
  EXPECT_EQ(Line(Style(100)).Gap(Style(100), {51.009F, 0}), 10);
  EXPECT_FLOAT_EQ(Line(Style(100)).Gap(Style(100), {51.03F, 0}).value_or(0), 10.3F);
}

TEST(PdfTextLine, IsFinerForLargeText) {
  EXPECT_FLOAT_EQ(Line(Style(100)).Gap(Style(100), {50.02F, 0}).value_or(0), 0.2F);
}

TEST(PdfTextLine, IsFinerStillForTextAsLargeAsAPage) {
  EXPECT_FLOAT_EQ(Line(Style(1000)).Gap(Style(1000), {500.03F, 0}).value_or(0), 0.03F);
  EXPECT_FLOAT_EQ(Line(Style(8192)).Gap(Style(8192), {4096.03125F, 0}).value_or(0), 0.004F);
}

TEST(PdfTextLine, EndsBeforeAnotherBaseline) {
  EXPECT_FALSE(Line().Gap(Style(), {5, 1}).has_value());
}

TEST(PdfTextLine, EndsBeforeAnotherFont) {
  PdfTextStyle other = Style();
  other.font = "/F2";
  EXPECT_FALSE(Line().Gap(other, {5, 0}).has_value());
}

TEST(PdfTextLine, EndsBeforeAnotherSize) {
  EXPECT_FALSE(Line().Gap(Style(11), {5, 0}).has_value());
}

TEST(PdfTextLine, EndsBeforeAnotherDirection) {
  EXPECT_FALSE(Line().Gap(Style(10, {1, 0, 0.2F, 1, 0, 0}), {5, 0}).has_value());
}

TEST(PdfTextLine, EndsBeforeAGapOfManyEms) {
  EXPECT_FALSE(Line().Gap(Style(), {400, 0}).has_value());
}

TEST(PdfTextLine, EndsAfterAHundredGlyphs) {
  PdfTextLine line = Line();
  for (int i = 1; i < 100; ++i)
    line.Add(0, 0);
  EXPECT_FALSE(line.Gap(Style(), {5, 0}).has_value());
}

TEST(PdfTextLine, DoesNotGoOnWithoutArea) {
  const PdfTextStyle flat = Style(10, {1, 0, 0, 0, 0, 0});
  EXPECT_FALSE(Line(flat).Gap(flat, {5, 0}).has_value());
}

}  // namespace
}  // namespace kelvane
