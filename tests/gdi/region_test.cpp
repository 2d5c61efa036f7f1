#include "gdi/region.h"

#include <cmath>
#include <limits>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "gdi/region_grid.h"

namespace kelvane {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

Region Combined(const Region& a, const Region& b, RegionMode mode) {
  Steps steps(1U << 24);
  return Combine(a, b, mode, steps).value();
}

std::string Written(const Region& region) {
  std::ostringstream text;
  text << region;
  return text.str();
}

TEST(Region, CombinesAsSetsOfPixelsDo) {
  const std::vector<Region> regions = GridRegions(60);
  for (const Region& a : regions) {
    for (const Region& b : regions) {
      for (const RegionMode mode : kRegionModes) {
        ASSERT_EQ(PixelsOf(Combined(a, b, mode)), CombinePixels(PixelsOf(a), PixelsOf(b), mode))
            << a << ' ' << b << " mode " << mode;
      }
    }
  }
}

TEST(Region, IsTheSameValueHoweverItWasMade) {
  const std::vector<Region> regions = GridRegions(60);
  for (const Region& a : regions) {
    for (const Region& b : regions) {
      for (const RegionMode mode : kRegionModes) {
        const Region combined = Combined(a, b, mode);
        const Pixels pixels = PixelsOf(combined);
        std::vector<RectangleD> one;
        for (int i = 0; i < kGridSize * kGridSize; ++i) {
          if (pixels[static_cast<std::size_t>(i)]) one.push_back(RectangleOfPixel(i));
        }
        ASSERT_EQ(combined, UnionOf(one)) << a << ' ' << b << " mode " << mode;
      }
    }
  }
}

TEST(Region, IsTheUnionOfAnyRectangles) {
  std::mt19937 random(7);  // NOLINT: the same rectangles in every run
  for (int round = 0; round < 2000; ++round) {
    const std::vector<RectangleD> rectangles = RandomRectangles(random);
    Pixels expected;
    for (const RectangleD& rectangle : rectangles)
      expected |= PixelsOf(Region(rectangle));
    ASSERT_EQ(PixelsOf(UnionOf(rectangles)), expected);
  }
}

TEST(Region, BoundsWhatItHolds) {
  for (const Region& region : GridRegions(200)) {
    RectangleD bounds;
    bool first = true;
    region.ForEachRectangle([&](const RectangleD& r) {
      if (first) bounds = r;
      first = false;
      bounds = {std::min(bounds.left, r.left), std::min(bounds.top, r.top),
                std::max(bounds.right, r.right), std::max(bounds.bottom, r.bottom)};
    });
    ASSERT_EQ(region.Bounds(), bounds) << region;
  }
}

TEST(Region, IsEmptyAtFirst) {
  EXPECT_TRUE(Region().IsEmpty());
  EXPECT_FALSE(Region().IsRectangle());
  EXPECT_EQ(Region().Bounds(), RectangleD());
  EXPECT_FALSE(Region().Contains({0, 0}));
}

TEST(Region, OfARectangleWithoutAreaIsEmpty) {
  EXPECT_TRUE(Region({1, 1, 1, 5}).IsEmpty());
  EXPECT_TRUE(Region({1, 5, 3, 5}).IsEmpty());
  EXPECT_TRUE(Region({3, 1, 1, 5}).IsEmpty());
  EXPECT_TRUE(Region({kNaN, 1, 3, 5}).IsEmpty());
  EXPECT_TRUE(UnionOf({{1, 1, 3, kNaN}, {2, 2, 2, 4}}).IsEmpty());
  EXPECT_TRUE(UnionOf({}).IsEmpty());
}

TEST(Region, HoldsItsLeftAndTopEdgesOnly) {
  const Region region({1, 2, 3, 4});
  EXPECT_TRUE(region.Contains({1, 2}));
  EXPECT_FALSE(region.Contains({3, 2}));
  EXPECT_FALSE(region.Contains({1, 4}));
  EXPECT_FALSE(region.Contains({kNaN, 3}));
}

TEST(Region, KeepsFractions) {
  const Region hole = Combined(Region({0.25, 0, 1, 1}), Region({0.5, 0.125, 0.75, 1}), RGN_DIFF);
  EXPECT_EQ(Written(hole), "{[0.25 0 1 0.125][0.25 0.125 0.5 1][0.75 0.125 1 1]}");
}

TEST(Region, JoinsSpansAndBandsThatTouch) {
  EXPECT_EQ(Written(UnionOf({{0, 0, 2, 1}, {2, 0, 3, 1}, {0, 1, 3, 4}})), "{[0 0 3 4]}");
  EXPECT_TRUE(UnionOf({{0, 0, 2, 1}, {2, 0, 3, 1}, {0, 1, 3, 4}}).IsRectangle());
}

TEST(Region, KeepsBandsApartThatDoNotTouch) {
  EXPECT_EQ(Written(UnionOf({{0, 0, 2, 1}, {0, 2, 2, 3}})), "{[0 0 2 1][0 2 2 3]}");
}

TEST(Region, IsEverythingWithoutEnd) {
  const Region everything = Region::Everything();
  EXPECT_TRUE(everything.Contains({-2e9, 2e9}));
  EXPECT_EQ(Combined(everything, Region({1, 1, 2, 2}), RGN_AND), Region({1, 1, 2, 2}));
  EXPECT_EQ(everything.Translated(5, -5), everything);
}

TEST(Region, SaturatesBeyond32Bits) {
  EXPECT_EQ(Region({-1e300, 0, 1e300, 1}).Bounds(),
            (RectangleD{-2147483648.0, 0, 2147483648.0, 1}));
  EXPECT_EQ(Region({-kInfinity, -kInfinity, kInfinity, kInfinity}), Region::Everything());
  EXPECT_TRUE(Region({1e10, 0, 1e11, 1}).IsEmpty());
  EXPECT_EQ(UnionOf({{0, 0, 1e300, 1}}), Region({0, 0, 1e300, 1}));
}

TEST(Region, MovesAsPixelsDo) {
  for (const Region& region : GridRegions(100)) {
    const Region moved = region.Translated(3, -2.5);
    ASSERT_EQ(moved.Translated(-3, 2.5), region);
    region.ForEachRectangle([&](const RectangleD& r) {
      ASSERT_TRUE(moved.Contains({r.left + 3, r.top - 2.5}));
      ASSERT_FALSE(moved.Contains({r.right + 3, r.top - 2.5}));
    });
  }
}

TEST(Region, SaturatesWhenItMoves) {
  const Region region({0, 0, 2147483647, 10});
  EXPECT_EQ(region.Translated(2147483647, 0).Bounds(),
            (RectangleD{2147483647, 0, 2147483648.0, 10}));
  EXPECT_TRUE(region.Translated(0, 1e300).IsEmpty());
  EXPECT_TRUE(region.Translated(-kInfinity, 0).IsEmpty());
  EXPECT_EQ(region.Translated(kNaN, 1), Region({0, 1, 2147483647, 11}));
}

// Two spans that saturate to nothing leave the third; its band becomes one with the next.
TEST(Region, StaysInOrderWhenPartsLeaveThePlane) {
  const Region steps = UnionOf({{0, 0, 1, 1}, {0, 1, 1, 2}, {2e9, 0, 2.1e9, 1}});
  EXPECT_EQ(steps.Translated(5e8, 0), Region({5e8, 0, 5e8 + 1, 2}));
}

// 1000 columns and 1000 rows cross a million times.
TEST(Region, GivesNothingWhenTheStepsRunOut) {
  std::vector<RectangleD> columns;
  std::vector<RectangleD> rows;
  for (int i = 0; i < 2000; i += 2) {
    columns.push_back({double(i), 0, double(i + 1), 2000});
    rows.push_back({0, double(i), 2000, double(i + 1)});
  }
  const Region a = UnionOf(columns);
  const Region b = UnionOf(rows);
  Steps few(100000);
  EXPECT_EQ(Combine(a, b, RGN_XOR, few), std::nullopt);
  Steps enough(10000000);
  EXPECT_EQ(Combine(a, b, RGN_AND, enough)->EdgeCount(), 2U * 1000 * 1000);

  std::ranges::copy(rows, std::back_inserter(columns));
  Steps fewAgain(100000);
  EXPECT_EQ(Region::Union(columns, fewAgain), std::nullopt);
}

}  // namespace
}  // namespace kelvane
