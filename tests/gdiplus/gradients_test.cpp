#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/painted_brushes.h"

namespace kelvane::gdiplus {
namespace {

EmfPlusLinearGradientBrush RedToBlue(EmfPlusWrapMode wrap = EmfPlusWrapMode::kTile) {
  EmfPlusLinearGradientBrush brush;
  brush.wrap = wrap;
  brush.rectangle = {10, 20, 50, 25};
  brush.start = kRed;
  brush.end = kBlue;
  return brush;
}

constexpr RectangleD kInside = {10, 20, 60, 45};

TEST(LinearGradientBrush, RunsFromTheLeftOfItsRectangleToItsRight) {
  EXPECT_EQ(PaintedWith(RedToBlue(), kInside),
            "fill-pattern under 50 0 0 25 10 20\n"
            "axial 0 0 1 0\n  stop 0 1 0 0\n  stop 1 0 0 1\n"
            "end-pattern\n");
}

TEST(LinearGradientBrush, GoesThroughItsOwnTransformThenTheWorld) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.transform = {0, 1, -1, 0, 0, 0};  // a quarter turn
  TracedGraphics graphics;
  graphics->state.world = {2, 0, 0, 2, 0, 0};
  EXPECT_EQ(PaintedWith(graphics, brush, {-90, 20, -40, 120}),
            "fill-pattern under 0 100 -50 0 -40 20\n"
            "axial 0 0 1 0\n  stop 0 1 0 0\n  stop 1 0 0 1\n"
            "end-pattern\n");
}

TEST(LinearGradientBrush, RepeatsAsFarAsTheMark) {
  EXPECT_EQ(PaintedWith(RedToBlue(), {0, 20, 110, 45}),
            "fill-pattern under 50 0 0 25 10 20\n"
            "axial -1 0 2 0\n"
            "  stop 0 1 0 0\n  stop 0.33333334 0 0 1\n"
            "  stop 0.33333334 1 0 0\n  stop 0.6666667 0 0 1\n"
            "  stop 0.6666667 1 0 0\n  stop 1 0 0 1\n"
            "end-pattern\n");
}

TEST(LinearGradientBrush, TurnsBackWhereItIsFlipped) {
  EXPECT_EQ(PaintedWith(RedToBlue(EmfPlusWrapMode::kTileFlipX), {-40, 20, 60, 45}),
            "fill-pattern under 50 0 0 25 10 20\n"
            "axial -1 0 1 0\n"
            "  stop 0 0 0 1\n  stop 0.5 1 0 0\n  stop 1 0 0 1\n"
            "end-pattern\n");
}

TEST(LinearGradientBrush, FollowsItsFactors) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.blend = {{0, 0.25F, 1}, {0, 0.5F, 1}, {}};
  const std::string trace = PaintedWith(brush, kInside);
  EXPECT_EQ(trace.substr(trace.find("  stop")),
            "  stop 0 1 0 0\n  stop 0.25 0.5 0 0.5\n  stop 1 0 0 1\nend-pattern\n");
}

TEST(LinearGradientBrush, HasColorsInPlaceOfItsTwo) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.blend = {{0, 0.5F, 1}, {}, {kGreen, kRed, kClearBlue}};
  const std::string trace = PaintedWith(brush, kInside);
  EXPECT_EQ(trace.substr(trace.find("  stop")),
            "  stop 0 0 1 0\n  stop 0.5 1 0 0\n  stop 1 0 0 1 alpha 0\nend-pattern\n");
}

TEST(LinearGradientBrush, WithABlendOutOfOrderHasNone) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.blend = {{1, 0}, {0, 1}, {}};
  EXPECT_EQ(PaintedWith(brush, kInside), PaintedWith(RedToBlue(), kInside));
}

TEST(LinearGradientBrush, OfOneAlphaIsOpaqueUnderThatAlpha) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.start.alpha = brush.end.alpha = 128;
  EXPECT_EQ(PaintedWith(brush, kInside),
            PaintedWith(RedToBlue(), kInside) + "blend normal alpha 0.502\n");
}

TEST(LinearGradientBrush, OfOneColorIsThatColor) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.end = kRed;
  EXPECT_EQ(PaintedWith(brush, kInside), "fill-color 1 0 0\n");
  brush.start.alpha = brush.end.alpha = 0;
  EXPECT_EQ(PaintedWith(brush, kInside), "nothing");
}

// The middle between black and white has half of the light: 0.5 ^ (1 / 2.2).
TEST(LinearGradientBrush, MixesColorsAsLightWhenGammaIsCorrected) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.start = {0, 0, 0, 255};
  brush.end = {255, 255, 255, 255};
  brush.isGammaCorrected = true;
  const std::string trace = PaintedWith(brush, kInside);
  EXPECT_NE(trace.find("  stop 0.5 0.73 0.73 0.73\n"), std::string::npos) << trace;
}

TEST(LinearGradientBrush, ThatRepeatsTooOftenIsItsAverage) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.rectangle.width = 0.01F;
  TracedGraphics graphics;
  EXPECT_EQ(PaintedWith(graphics, brush, {0, 0, 100, 100}), "fill-color 0.5 0 0.5\n");
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kBrushTooComplex));
}

TEST(LinearGradientBrush, WithoutAWidthLeavesNoMark) {
  EmfPlusLinearGradientBrush brush = RedToBlue();
  brush.rectangle.width = 0;
  EXPECT_EQ(PaintedWith(brush, kInside), "nothing");
}

EmfPlusPathGradientBrush Square() {
  EmfPlusPathGradientBrush brush;
  brush.wrap = EmfPlusWrapMode::kClamp;
  brush.centerColor = kRed;
  brush.center = {5, 5};
  brush.surroundColors = {kBlue};
  brush.boundary = std::vector<PointF>{{0, 0}, {10, 0}, {10, 10}, {0, 10}};
  return brush;
}

/// @return the corners of a mesh in a trace, a line each, in whole points.
std::vector<std::string> CornersIn(const std::string& trace) {
  std::vector<std::string> corners;
  for (const std::string& line : LinesWith(trace.substr(trace.find("  vertex")), "")) {
    auto words = WordsOf(line);
    if (words.size() < 5 || words[2] != "vertex") continue;
    std::string corner = Rounded(words[3]) + ' ' + Rounded(words[4]);
    for (std::size_t i = 5; i < words.size(); ++i)
      corner += ' ' + std::string(words[i]);
    corners.push_back(corner);
  }
  return corners;
}

TEST(PathGradientBrush, IsATriangleForEachEdge) {
  const auto corners = CornersIn(PaintedWith(Square()));
  ASSERT_EQ(corners.size(), 12U);
  EXPECT_EQ(corners[0], "0 0 0 0 1");
  EXPECT_EQ(corners[1], "10 0 0 0 1");
  EXPECT_EQ(corners[2], "5 5 1 0 0");
  EXPECT_EQ(corners[9], "0 10 0 0 1");
  EXPECT_EQ(corners[10], "0 0 0 0 1");
}

TEST(PathGradientBrush, RepeatsTheLastOfTooFewColors) {
  EmfPlusPathGradientBrush brush = Square();
  brush.surroundColors = {kBlue, kGreen};
  const auto corners = CornersIn(PaintedWith(brush));
  ASSERT_EQ(corners.size(), 12U);
  EXPECT_EQ(corners[0], "0 0 0 0 1");
  EXPECT_EQ(corners[1], "10 0 0 1 0");
  EXPECT_EQ(corners[9], "0 10 0 1 0");
}

// Half of the way to the centre there is a ring: a quarter of the centre's colour.
TEST(PathGradientBrush, HasRingsForItsBlend) {
  EmfPlusPathGradientBrush brush = Square();
  brush.blend = {{0, 0.5F, 1}, {0, 0.25F, 1}, {}};
  const auto corners = CornersIn(PaintedWith(brush));
  ASSERT_EQ(corners.size(), 4U * 9);
  EXPECT_EQ(corners[0], "0 0 0 0 1");
  EXPECT_EQ(corners[1], "10 0 0 0 1");
  EXPECT_EQ(corners[2], "7.5 2.5 0.25 0 0.75");
  EXPECT_EQ(corners[5], "2.5 2.5 0.25 0 0.75");
  EXPECT_EQ(corners[8], "5 5 1 0 0");
}

TEST(PathGradientBrush, IsTheCentersColorWithinItsFocus) {
  EmfPlusPathGradientBrush brush = Square();
  brush.focusScales = {0.5F, 0.2F};
  const auto corners = CornersIn(PaintedWith(brush));
  ASSERT_EQ(corners.size(), 4U * 9);
  EXPECT_EQ(corners[2], "7.5 4 1 0 0");
  EXPECT_EQ(corners[5], "2.5 4 1 0 0");
  EXPECT_EQ(corners[6], "2.5 4 1 0 0");
  EXPECT_EQ(corners[7], "7.5 4 1 0 0");
  EXPECT_EQ(corners[8], "5 5 1 0 0");
}

TEST(PathGradientBrush, KeepsAlphaThatChanges) {
  EmfPlusPathGradientBrush brush = Square();
  brush.surroundColors = {kClearBlue};
  const auto corners = CornersIn(PaintedWith(brush));
  ASSERT_EQ(corners.size(), 12U);
  EXPECT_EQ(corners[0], "0 0 0 0 1 alpha 0");
  EXPECT_EQ(corners[2], "5 5 1 0 0");
}

TEST(PathGradientBrush, RepeatsItsBoxAsFarAsTheMark) {
  EmfPlusPathGradientBrush brush = Square();
  brush.wrap = EmfPlusWrapMode::kTile;
  EXPECT_EQ(CornersIn(PaintedWith(brush, {0, 0, 10, 10})).size(), 12U);
  const auto corners = CornersIn(PaintedWith(brush, {2, 2, 18, 8}));
  ASSERT_EQ(corners.size(), 24U);
  EXPECT_EQ(corners[12], "10 0 0 0 1");
  EXPECT_EQ(corners[14], "15 5 1 0 0");
}

TEST(PathGradientBrush, MirrorsEveryOtherBoxWhenItIsFlipped) {
  EmfPlusPathGradientBrush brush = Square();
  brush.wrap = EmfPlusWrapMode::kTileFlipX;
  brush.center = {2, 5};
  const auto corners = CornersIn(PaintedWith(brush, {2, 2, 18, 8}));
  ASSERT_EQ(corners.size(), 24U);
  EXPECT_EQ(corners[2], "2 5 1 0 0");
  EXPECT_EQ(corners[14], "18 5 1 0 0");
}

TEST(PathGradientBrush, FlattensTheCurvesOfItsBoundary) {
  EmfPlusPathGradientBrush brush = Square();
  brush.boundary = EmfPlusPath{{{0, 0}, {0, 8}, {10, 8}, {10, 0}}, {0, 3, 3, 0x83}, false};
  brush.surroundColors = {kBlue, kBlue, kBlue, kGreen};
  const auto corners = CornersIn(PaintedWith(brush));
  EXPECT_GT(corners.size(), 15U);
  EXPECT_EQ(corners[0], "0 0 0 0 1");
  const std::size_t last = corners.size() - 3;
  EXPECT_EQ(corners[last], "10 0 0 1 0");
  EXPECT_EQ(corners[last + 1], "0 0 0 0 1");
}

TEST(PathGradientBrush, OfTooManyPartsIsTheCentersColor) {
  EmfPlusPathGradientBrush brush = Square();
  std::vector<PointF> polygon;
  for (int i = 0; i < 100000; ++i)
    polygon.push_back({static_cast<float>(i % 1000), static_cast<float>(i % 7)});
  brush.boundary = polygon;
  TracedGraphics graphics;
  EXPECT_EQ(PaintedWith(graphics, brush), "fill-color 1 0 0\n");
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kBrushTooComplex));
}

TEST(PathGradientBrush, ThatWouldRepeatTooOftenIsThereOnce) {
  EmfPlusPathGradientBrush brush = Square();
  brush.wrap = EmfPlusWrapMode::kTile;
  brush.transform = {0.001F, 0, 0, 0.001F, 0, 0};
  TracedGraphics graphics;
  EXPECT_EQ(CornersIn(PaintedWith(graphics, brush)).size(), 12U);
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kBrushTooComplex));
}

TEST(PathGradientBrush, WithoutAnAreaLeavesNoMark) {
  EmfPlusPathGradientBrush brush = Square();
  brush.boundary = std::vector<PointF>{};
  EXPECT_EQ(PaintedWith(brush), "nothing");
  brush.boundary = std::vector<PointF>{{0, 0}, {10, 0}};
  EXPECT_EQ(PaintedWith(brush), "nothing");
}

TEST(PathGradientBrush, WithoutACanvasLeavesNoMark) {
  Graphics graphics(nullptr, {96, 96});
  EXPECT_FALSE(PaintOf(graphics, Square(), kMark));
}

}  // namespace
}  // namespace kelvane::gdiplus
