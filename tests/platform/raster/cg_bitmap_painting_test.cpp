#include <gtest/gtest.h>

#include "support/bitmap.h"
#include "support/drawn_marks.h"

namespace kelvane::test {
namespace {

class MarkInPixels : public testing::TestWithParam<DrawnMark> {};

TEST_P(MarkInPixels, LooksAsItDoesInPdf) {
  constexpr int kScale = 4;
  const DrawnMark& mark = GetParam();
  if (mark.isFile) GTEST_SKIP() << "images are to be given as pixels";
  const Raster pdf(PdfBytesOf(mark.draw), kScale);
  const Raster pixels = BitmapOf(mark.draw, kScale);
  EXPECT_LE(DifferingPixels(pdf, pixels, mark.tolerance), mark.differing);
  const Raster nothing = BitmapOf([](CGContextRef) {}, kScale);
  EXPECT_GT(DifferingPixels(nothing, pixels, mark.tolerance), 100);
}

INSTANTIATE_TEST_SUITE_P(Every, MarkInPixels, testing::ValuesIn(DrawnMarks()));

}  // namespace
}  // namespace kelvane::test
