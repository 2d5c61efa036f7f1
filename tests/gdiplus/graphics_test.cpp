#include "gdiplus/graphics.h"

#include <gtest/gtest.h>

namespace kelvane::gdiplus {
namespace {

Graphics At(double dotsPerInch) {
  return {nullptr, {dotsPerInch, dotsPerInch}};
}

TEST(PageUnits, AreLengthsOnTheDevice) {
  struct Row {
    EmfPlusUnit unit;
    double pixels;  // of 144 units at 300 dots per inch
  };
  for (const Row& row :
       {Row{EmfPlusUnit::kDisplay, 144}, Row{EmfPlusUnit::kPixel, 144},
        Row{EmfPlusUnit::kPoint, 600}, Row{EmfPlusUnit::kInch, 43200},
        Row{EmfPlusUnit::kDocument, 144}, Row{EmfPlusUnit::kMillimeter, 144 * 300 / 25.4}}) {
    Graphics graphics = At(300);
    graphics.state.pageUnit = row.unit;
    EXPECT_NEAR(PageToDevice(graphics).Map({144, 0}).x, row.pixels, 1e-9);
    EXPECT_NEAR(PageToDevice(graphics).Map({0, 144}).y, row.pixels, 1e-9);
  }
}

TEST(WorldPoints, GoThroughTheWorldThenThePageThenTheContainer) {
  Graphics graphics = At(96);
  graphics.state.world = {1, 0, 0, 1, 5, 0};
  graphics.state.pageScale = 2;
  graphics.state.container = {0, 1, -1, 0, 100, 0};  // a quarter turn
  const PointD point = WorldToDevice(graphics).Map({10, 20});
  EXPECT_DOUBLE_EQ(point.x, 100 - 40);
  EXPECT_DOUBLE_EQ(point.y, 30);
}

TEST(AGraphicsWithoutACanvas, ShowsNothing) {
  Graphics graphics = At(96);
  EXPECT_FALSE(BringClip(graphics));
}

}  // namespace
}  // namespace kelvane::gdiplus
