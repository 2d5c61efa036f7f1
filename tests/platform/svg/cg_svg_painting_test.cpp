#include <gtest/gtest.h>

#include "support/drawn_marks.h"
#include "support/svg.h"

namespace kelvane::test {
namespace {

class MarkInSvg : public testing::TestWithParam<DrawnMark> {};

// The one as Poppler shows it, the other as librsvg does.
TEST_P(MarkInSvg, LooksAsItDoesInPdf) {
  constexpr int kScale = 4;
  const DrawnMark& mark = GetParam();
  const Raster pdf(PdfBytesOf(mark.draw), kScale);
  const Raster svg = RasterOfSvg(SvgOf(mark.draw), kScale);
  EXPECT_LE(DifferingPixels(pdf, svg, mark.tolerance), mark.differing);
  const Raster nothing = RasterOfSvg(SvgOf([](CGContextRef) {}), kScale);
  EXPECT_GT(DifferingPixels(nothing, svg, mark.tolerance), 100);
}

INSTANTIATE_TEST_SUITE_P(Every, MarkInSvg, testing::ValuesIn(DrawnMarks()));

}  // namespace
}  // namespace kelvane::test
