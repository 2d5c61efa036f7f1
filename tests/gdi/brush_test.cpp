#include "gdi/brush.h"

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr ColorRef kRed = {0x0000FF};
constexpr ColorRef kGreen = {0x00FF00};
constexpr ColorRef kBlue = {0xFF0000};
constexpr RgbColor kRedRgb = {255, 0, 0};
constexpr RgbColor kGreenRgb = {0, 255, 0};
constexpr RgbColor kBlueRgb = {0, 0, 255};

/// With red text on green.
BrushPaint Resolve(const Brush& brush, BackgroundMode mode = OPAQUE) {
  const Palette palette({kBlueRgb});
  return ResolveBrush(brush, {kRed, kGreen, mode, palette});
}

BrushPaint ResolveHatch(std::uint32_t hatch, BackgroundMode mode = OPAQUE) {
  return Resolve(CreateBrushIndirect({BS_HATCHED, kBlue, static_cast<HatchStyle>(hatch)}).value(),
                 mode);
}

TEST(Brush, PaintsItsColor) {
  const BrushPaint paint = Resolve(CreateBrushIndirect({BS_SOLID, kBlue, {}}).value());
  EXPECT_EQ(paint.kind, Brush::Kind::kSolid);
  EXPECT_EQ(paint.color, kBlueRgb);
}

TEST(Brush, LooksItsColorUpWhenItPaints) {
  EXPECT_EQ(Resolve(CreateSolidBrush({0x01000000})).color, kBlueRgb);
}

TEST(Brush, PaintsNothingWhenNull) {
  EXPECT_EQ(Resolve(CreateBrushIndirect({BS_NULL, kBlue, {}}).value()).kind, Brush::Kind::kNull);
}

TEST(Brush, HatchesInItsColorOnTheBackground) {
  const BrushPaint paint = ResolveHatch(HS_CROSS);
  EXPECT_EQ(paint.kind, Brush::Kind::kHatched);
  EXPECT_EQ(paint.color, kBlueRgb);
  EXPECT_EQ(paint.background, kGreenRgb);
}

TEST(Brush, LeavesAHatchesGapsWhenTheBackgroundIsTransparent) {
  EXPECT_EQ(ResolveHatch(HS_CROSS, TRANSPARENT).background, std::nullopt);
}

TEST(Brush, HasHatchesThatAreSolid) {
  const struct {
    std::uint32_t hatch;
    RgbColor color;
  } rows[] = {{6, kBlueRgb}, {7, kBlueRgb},   {8, kRedRgb},
              {9, kRedRgb},  {10, kGreenRgb}, {11, kGreenRgb}};
  for (const auto& [hatch, color] : rows) {
    const BrushPaint paint = ResolveHatch(hatch, TRANSPARENT);
    EXPECT_EQ(paint.kind, Brush::Kind::kSolid) << hatch;
    EXPECT_EQ(paint.color, color) << hatch;
  }
}

TEST(Brush, IsNoneOfAStyleOrHatchThatIsNone) {
  EXPECT_FALSE(CreateBrushIndirect({BS_HATCHED, kBlue, static_cast<HatchStyle>(12)}));
  EXPECT_FALSE(CreateBrushIndirect({BS_DIBPATTERN, kBlue, {}}));
  EXPECT_FALSE(CreateBrushIndirect({static_cast<BrushStyle>(77), kBlue, {}}));
}

TEST(Brush, OfOneBitAPixelTakesTheTextsAndTheBackgroundsColorInEveryMode) {
  const unsigned char header[1] = {};
  for (const BackgroundMode mode : {OPAQUE, TRANSPARENT}) {
    const BrushPaint paint = Resolve(CreatePatternBrush({header, {}, DIB_PAL_INDICES}), mode);
    EXPECT_EQ(paint.kind, Brush::Kind::kMonoPattern);
    EXPECT_EQ(paint.color, kRedRgb);
    EXPECT_EQ(paint.background, kGreenRgb);
    EXPECT_EQ(paint.pattern.header.data(), header);
    EXPECT_EQ(paint.pattern.usage, DIB_PAL_INDICES);
  }
}

TEST(Brush, OfABitmapKeepsItsColors) {
  const BrushPaint paint = Resolve(CreateDIBPatternBrushPt({}));
  EXPECT_EQ(paint.kind, Brush::Kind::kPattern);
  EXPECT_EQ(paint.background, std::nullopt);
}

TEST(Brush, TakesThePaletteAlongWhenItsBitmapNumbersColors) {
  const BrushPaint paint = Resolve(CreateDIBPatternBrushPt({{}, {}, DIB_PAL_COLORS}));
  EXPECT_EQ(paint.palette, (std::vector<DibColor>{{0, 0, 255}}));
  EXPECT_TRUE(Resolve(CreateDIBPatternBrushPt({})).palette.empty());
}

}  // namespace
}  // namespace kelvane
