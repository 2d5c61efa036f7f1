#include "gdi/brush_pattern.h"

#include <string>

#include <gtest/gtest.h>

#include "gdi/polygons.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;

constexpr RgbColor kBlue = {0, 0, 255};
constexpr RgbColor kGreen = {0, 255, 0};

/// Even-odd, by the crossings to the right.
bool IsInside(const std::vector<PointD>& figure, PointD point) {
  bool isInside = false;
  for (std::size_t i = 0; i < figure.size(); ++i) {
    const PointD a = figure[i];
    const PointD b = figure[(i + 1) % figure.size()];
    if ((a.y > point.y) == (b.y > point.y)) continue;
    if (point.x < a.x + (point.y - a.y) * (b.x - a.x) / (b.y - a.y)) isInside = !isInside;
  }
  return isInside;
}

/// Which middles of the cell's pixels lie in a path, rows from the top.
std::string PictureOf(const CGPath& path) {
  const Polygons polygons = Flattened(path, WINDING, 0.01);
  std::string picture;
  for (int row = 0; row < 8; ++row) {
    for (int column = 0; column < 8; ++column) {
      const PointD middle = {column + 0.5, 7.5 - row};
      bool isInside = false;
      for (const auto& figure : polygons.figures)
        isInside = isInside || IsInside(figure, middle);
      picture += isInside ? '#' : '.';
    }
    picture += '\n';
  }
  return picture;
}

std::string LinesOf(HatchStyle hatch) {
  const auto pattern = MakePattern({.kind = Brush::Kind::kHatched, .color = kBlue, .hatch = hatch},
                                   RasterStep::Color::kPaint);
  return PictureOf(pattern->shapes.back().path);
}

// The pixels that Windows sets.
TEST(BrushPattern, HasSixHatchesOfLines) {
  EXPECT_EQ(LinesOf(HS_HORIZONTAL),
            "........\n........\n........\n########\n........\n........\n........\n........\n");
  EXPECT_EQ(LinesOf(HS_VERTICAL),
            "....#...\n....#...\n....#...\n....#...\n....#...\n....#...\n....#...\n....#...\n");
  EXPECT_EQ(LinesOf(HS_FDIAGONAL),
            "#.......\n.#......\n..#.....\n...#....\n....#...\n.....#..\n......#.\n.......#\n");
  EXPECT_EQ(LinesOf(HS_BDIAGONAL),
            ".......#\n......#.\n.....#..\n....#...\n...#....\n..#.....\n.#......\n#.......\n");
  EXPECT_EQ(LinesOf(HS_CROSS),
            "....#...\n....#...\n....#...\n########\n....#...\n....#...\n....#...\n....#...\n");
  EXPECT_EQ(LinesOf(HS_DIAGCROSS),
            "#......#\n.#....#.\n..#..#..\n...##...\n...##...\n..#..#..\n.#....#.\n#......#\n");
}

TEST(BrushPattern, PaintsTheGapsOfAHatchFirstWhenTheyHaveAColor) {
  BrushPaint paint = {.kind = Brush::Kind::kHatched, .color = kBlue, .background = kGreen};
  const auto opaque = MakePattern(paint, RasterStep::Color::kPaint);
  ASSERT_EQ(opaque->shapes.size(), 2U);
  EXPECT_EQ(opaque->shapes[0].color, (CGColor{0, 1, 0, 1}));
  EXPECT_EQ(opaque->shapes[1].color, (CGColor{0, 0, 1, 1}));
  paint.background.reset();
  EXPECT_EQ(MakePattern(paint, RasterStep::Color::kPaint)->shapes.size(), 1U);
}

TEST(BrushPattern, ChangesItsColorsForAStepOfARasterOperation) {
  const BrushPaint paint = {.kind = Brush::Kind::kHatched, .color = kBlue};
  const auto inverse = MakePattern(paint, RasterStep::Color::kInversePaint);
  EXPECT_EQ(inverse->shapes[0].color, (CGColor{1, 1, 0, 1}));
}

/// A header for pixels of one bit, and their two colours: red and white.
Bytes MonoHeader(std::int32_t width, std::int32_t height) {
  return Bytes()
      .BitmapHeader({.width = width, .height = height, .bitCount = 1})
      .Color(255, 0, 0)
      .Color(255, 255, 255);
}

std::vector<unsigned char> PixelsOf(const CGPattern& pattern) {
  const auto bytes = pattern.image->provider->Bytes();
  return {bytes.begin(), bytes.end()};
}

TEST(BrushPattern, ShowsABitmapInItsOwnColors) {
  const Bytes header = MonoHeader(2, 1);
  const Bytes pixels = Bytes().Each({0x40, 0, 0, 0});
  const auto pattern =
      MakePattern({.kind = Brush::Kind::kPattern, .pattern = {header.Data(), pixels.Data()}},
                  RasterStep::Color::kPaint);
  ASSERT_TRUE(pattern);
  EXPECT_EQ(pattern->cell, (CGSize{2, 1}));
  EXPECT_EQ(PixelsOf(*pattern), (std::vector<unsigned char>{255, 0, 0, 255, 255, 255}));
}

TEST(BrushPattern, ShowsAMonoBitmapInTextAndBackgroundColor) {
  const Bytes header = MonoHeader(2, 1);
  const Bytes pixels = Bytes().Each({0x40, 0, 0, 0});
  const auto pattern = MakePattern({.kind = Brush::Kind::kMonoPattern,
                                    .color = kBlue,
                                    .background = kGreen,
                                    .pattern = {header.Data(), pixels.Data()}},
                                   RasterStep::Color::kPaint);
  ASSERT_TRUE(pattern);
  EXPECT_EQ(PixelsOf(*pattern), (std::vector<unsigned char>{0, 0, 255, 0, 255, 0}));
}

TEST(BrushPattern, ShowsABitmapInColorsOfThePalette) {
  const Bytes header = Bytes().BitmapHeader({.width = 2, .height = 1, .bitCount = 1}).U16(1).U16(0);
  const Bytes pixels = Bytes().Each({0x40, 0, 0, 0});
  const auto pattern = MakePattern({.kind = Brush::Kind::kPattern,
                                    .pattern = {header.Data(), pixels.Data(), DIB_PAL_COLORS},
                                    .palette = {{1, 2, 3}, {4, 5, 6}}},
                                   RasterStep::Color::kPaint);
  ASSERT_TRUE(pattern);
  EXPECT_EQ(PixelsOf(*pattern), (std::vector<unsigned char>{4, 5, 6, 1, 2, 3}));
}

TEST(BrushPattern, IsAsLargeAsItsPixelsWhereAFewBytesMayBeMany) {
  constexpr std::uint32_t kRunLengths = 1;
  const Bytes runs = Bytes().BitmapHeader(
      {.width = 0x7FFFFFFF, .height = 2, .bitCount = 8, .compression = kRunLengths});
  const Bytes codes = Bytes().Each({2, 1});
  const auto sizeOf = [&](const Bytes& header) {
    return SizeOfPattern({.kind = Brush::Kind::kPattern, .pattern = {header.Data(), codes.Data()}});
  };
  EXPECT_EQ(sizeOf(runs), 0xFFFFFFFEU);
  EXPECT_EQ(sizeOf(MonoHeader(1, 1)), 2U);
  EXPECT_EQ(sizeOf(MonoHeader(9999, 9999)), 2U);  // no bitmap, for its pixels are missing
}

TEST(BrushPattern, IsNoneWithoutPixels) {
  const Bytes header = MonoHeader(2, 9);
  EXPECT_FALSE(MakePattern({.kind = Brush::Kind::kPattern, .pattern = {header.Data(), {}}},
                           RasterStep::Color::kPaint));
}

}  // namespace
}  // namespace kelvane
