#include "gdiplus/paint.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdiplus/painted_brushes.h"

namespace kelvane::gdiplus {
namespace {

TEST(SolidBrush, IsAColorAndItsAlpha) {
  EXPECT_EQ(PaintedWith(kRed), "fill-color 1 0 0\n");
  EXPECT_EQ(PaintedWith(kHalfRed), "fill-color 1 0 0\nblend normal alpha 0.502\n");
}

TEST(SolidBrush, LeavesNoMarkWhereItIsClear) {
  EXPECT_EQ(PaintedWith(kClearBlue), "nothing");
}

TEST(SolidBrush, EndsThePatternAndTheAlphaBefore) {
  TracedGraphics graphics;
  PaintedWith(graphics, EmfPlusHatchBrush{0, kHalfRed, kHalfRed});
  EXPECT_EQ(PaintedWith(graphics, kRed), "fill-color 1 0 0\nblend normal alpha 1\n");
}

TEST(SolidBrush, StrokesInItsColorAndAlpha) {
  TracedGraphics graphics;
  CGContext& surface = graphics.OnCanvas().Surface();
  SetStroke(surface, *PaintOf(graphics, kHalfRed, kMark));
  surface.MoveToPoint({0, 0});
  surface.AddLineToPoint({1, 0});
  surface.DrawPath(kCGPathStroke);
  EXPECT_EQ(graphics.Take(),
            "stroke-color 1 0 0\nblend normal alpha 0.502\nmove 0 0\nline 1 0\nstroke\n");
}

TEST(SolidBrush, WithoutACanvasLeavesNoMark) {
  Graphics graphics(nullptr, {96, 96});
  EXPECT_FALSE(PaintOf(graphics, kRed, kMark));
}

// A hatch is placed as brushes of a device context are: a sixteenth of a pixel into the first one.
TEST(HatchBrush, RepeatsItsPixelsOverItsBackground) {
  constexpr std::uint32_t kLargeGrid = 4;
  EXPECT_EQ(PaintedWith(EmfPlusHatchBrush{kLargeGrid, kRed, kBlue}),
            "fill-pattern 8 8 under 1 0 0 -1 0.0625 8.0625\n"
            "  fill-color 0 0 1\n"
            "rect 0 0 8 8\n"
            "  fill-color 1 0 0\n"
            "rect 0 7 8 1\n"
            "rect 0 0 1 7\n"
            "end-pattern\n");
}

TEST(HatchBrush, HasDiagonalsAsWideAsAPixelAcross) {
  constexpr std::uint32_t kForwardDiagonal = 2;
  const std::string trace = PaintedWith(EmfPlusHatchBrush{kForwardDiagonal, kRed, kClearBlue});
  EXPECT_NE(trace.find("move 0 8\nline 0.70710677 8\n"), std::string::npos) << trace;
}

TEST(HatchBrush, BeginsAtTheRenderingOrigin) {
  TracedGraphics graphics;
  graphics->state.renderingOrigin = {3, 2};
  constexpr std::uint32_t kHorizontal = 0;
  EXPECT_EQ(PaintedWith(graphics, EmfPlusHatchBrush{kHorizontal, kRed, kClearBlue}),
            "fill-pattern 8 8 under 1 0 0 -1 3.0625 10.0625\n"
            "  fill-color 1 0 0\n"
            "rect 0 7 8 1\n"
            "end-pattern\n");
}

TEST(HatchBrush, KeepsItsSizeInEveryWorld) {
  TracedGraphics graphics;
  graphics->state.world = {5, 0, 0, 5, 1, 1};
  const std::string trace = PaintedWith(graphics, EmfPlusHatchBrush{0, kRed, kBlue});
  EXPECT_EQ(trace.substr(0, 46), "fill-pattern 8 8 under 1 0 0 -1 0.0625 8.0625\n");
}

// What is behind translucent lines would show through them.
TEST(HatchBrush, LeavesOutTheBackgroundBehindTranslucentLines) {
  constexpr std::uint32_t kDarkHorizontal = 29;
  EXPECT_EQ(PaintedWith(EmfPlusHatchBrush{kDarkHorizontal, kHalfRed, kBlue}),
            "fill-pattern 8 8 under 1 0 0 -1 0.0625 8.0625\n"
            "  fill-color 0 0 1\n"
            "rect 0 4 8 2\n"
            "rect 0 0 8 2\n"
            "  fill-color 1 0 0 alpha 0.502\n"
            "rect 0 6 8 2\n"
            "rect 0 2 8 2\n"
            "end-pattern\n");
}

TEST(HatchBrush, OfOneAlphaIsOpaqueUnderThatAlpha) {
  constexpr Argb kHalfBlue = {255, 0, 0, 128};
  EXPECT_EQ(PaintedWith(EmfPlusHatchBrush{0, kHalfRed, kHalfBlue}),
            "fill-pattern 8 8 under 1 0 0 -1 0.0625 8.0625\n"
            "  fill-color 0 0 1\n"
            "rect 0 0 8 8\n"
            "  fill-color 1 0 0\n"
            "rect 0 7 8 1\n"
            "end-pattern\n"
            "blend normal alpha 0.502\n");
}

TEST(HatchBrush, IsMadeOnce) {
  TracedGraphics graphics;
  const EmfPlusHatchBrush brush = {0, kRed, kBlue};
  EXPECT_EQ(PaintOf(graphics, brush, kMark)->pattern, PaintOf(graphics, brush, kMark)->pattern);
}

TEST(HatchBrush, OfNoStyleOrNoColorLeavesNoMark) {
  EXPECT_EQ(PaintedWith(EmfPlusHatchBrush{kEmfPlusHatchStyles, kRed, kBlue}), "nothing");
  EXPECT_EQ(PaintedWith(EmfPlusHatchBrush{0, kClearBlue, kClearBlue}), "nothing");
}

const std::vector<unsigned char>& TwoPixels() {
  static const std::vector<unsigned char> kRow = {0, 0, 255, 255, 0, 0};
  return kRow;
}

EmfPlusTextureBrush TextureOf(EmfPlusWrapMode wrap) {
  EmfPlusTextureBrush brush;
  brush.wrap = wrap;
  brush.image = EmfPlusPixels{2, 1, 6, EmfPlusPixelFormat::k24Rgb, {}, TwoPixels()};
  return brush;
}

TEST(TextureBrush, HasAWorldUnitForAPixel) {
  TracedGraphics graphics;
  graphics->state.world = {5, 0, 0, 10, 3, 4};
  EXPECT_EQ(PaintedWith(graphics, TextureOf(EmfPlusWrapMode::kTile)),
            "fill-pattern 2 1 under 5 0 0 -10 3 14\n  image\nend-pattern\n");
}

TEST(TextureBrush, GoesThroughItsOwnTransformFirst) {
  EmfPlusTextureBrush brush = TextureOf(EmfPlusWrapMode::kTile);
  brush.transform = {0, 2, -2, 0, 0, 0};  // a quarter turn
  TracedGraphics graphics;
  graphics->state.world = {1, 0, 0, 1, 50, 0};
  EXPECT_EQ(PaintedWith(graphics, brush),
            "fill-pattern 2 1 under 0 2 2 0 48 0\n  image\nend-pattern\n");
}

TEST(TextureBrush, StaysInPlaceIfItIsTo) {
  EmfPlusTextureBrush brush = TextureOf(EmfPlusWrapMode::kTile);
  brush.staysInPlace = true;
  TracedGraphics graphics;
  graphics->state.world = {5, 0, 0, 5, 9, 9};
  EXPECT_EQ(PaintedWith(graphics, brush),
            "fill-pattern 2 1 under 1 0 0 -1 0 1\n  image\nend-pattern\n");
}

TEST(TextureBrush, MirrorsItsImageAsItWraps) {
  const auto firstLine = [](EmfPlusWrapMode wrap) {
    const std::string trace = PaintedWith(TextureOf(wrap));
    return trace.substr(0, trace.find(" under"));
  };
  EXPECT_EQ(firstLine(EmfPlusWrapMode::kTileFlipX), "fill-pattern 2 1 mirror-x");
  EXPECT_EQ(firstLine(EmfPlusWrapMode::kTileFlipY), "fill-pattern 2 1 mirror-y");
  EXPECT_EQ(firstLine(EmfPlusWrapMode::kTileFlipXY), "fill-pattern 2 1 mirror-x mirror-y");
}

// To the right the mark reaches 8.02 beyond the image's 2, below 9.02 beyond its 1: the next
// whole number but one.
TEST(TextureBrush, IsNotRepeatedWithinAMarkWhenItIsClamped) {
  const std::string trace = PaintedWith(TextureOf(EmfPlusWrapMode::kClamp));
  EXPECT_EQ(trace.substr(0, trace.find(" under")), "fill-pattern 2 1 gap 10 11");
}

TEST(TextureBrush, WithoutAnImageIsTold) {
  TracedGraphics graphics;
  EXPECT_EQ(PaintedWith(graphics, EmfPlusTextureBrush{}), "nothing");
  EXPECT_TRUE(graphics->shortfalls.Has(Shortfall::kUnreadablePattern));
}

}  // namespace
}  // namespace kelvane::gdiplus
