#include "gdi/region_painting.h"

#include <charconv>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/region_grid.h"
#include "gdi/stored_array.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr ColorRef kRed = {0x0000FF};
constexpr ColorRef kGreen = {0x00FF00};

/// A device with a red brush at 1, which is not selected, and a green one that is.
class RegionPainting : public testing::Test {
 protected:
  RegionPainting() {
    device_->objects.Set(1, CreateSolidBrush(kRed));
    device_.Select(2, CreateSolidBrush(kGreen));
  }

  TracedDevice device_;
};

TEST_F(RegionPainting, FillsWithTheBrushOfTheCall) {
  EXPECT_TRUE(FillRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View(), 1));
  EXPECT_EQ(device_.Take(), "fill-color 1 0 0\nrect 1 2 4 7\nfill\n");
}

TEST_F(RegionPainting, FillsWithAStockBrush) {
  EXPECT_TRUE(FillRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View(), BLACK_BRUSH));
  EXPECT_EQ(device_.Take(), "rect 1 2 4 7\nfill\n");
}

TEST_F(RegionPainting, FailsWithoutABrush) {
  const StoredRectangles region({{1, 2, 5, 9}});
  for (const std::uint32_t handle : {0U, 7U, static_cast<std::uint32_t>(BLACK_PEN)}) {
    EXPECT_FALSE(FillRgn(device_, region.View(), handle));
    EXPECT_FALSE(FrameRgn(device_, region.View(), handle, {1, 1}));
  }
  EXPECT_EQ(device_.Take(), "");
}

TEST_F(RegionPainting, PaintsWithTheSelectedBrush) {
  EXPECT_TRUE(PaintRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View()));
  EXPECT_EQ(device_.Take(), "fill-color 0 1 0\nrect 1 2 4 7\nfill\n");
}

TEST_F(RegionPainting, InvertsByTheDifferenceToWhite) {
  EXPECT_TRUE(InvertRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View()));
  EXPECT_EQ(device_.Take(), "fill-color 1 1 1\nblend difference alpha 1\nrect 1 2 4 7\nfill\n");
}

TEST_F(RegionPainting, InvertsOnceWhereRectanglesOverlap) {
  EXPECT_TRUE(InvertRgn(device_, StoredRectangles({{0, 0, 8, 4}, {4, 0, 12, 4}}).View()));
  EXPECT_EQ(device_.TakeMarks(), "rect 0 0 12 4\nfill\n");
}

TEST_F(RegionPainting, TakesTheOperationThatIsSet) {
  SetROP2(device_, R2_BLACK);
  EXPECT_TRUE(PaintRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View()));
  EXPECT_EQ(device_.Take(), "rect 1 2 4 7\nfill\n");
}

TEST_F(RegionPainting, TakesLogicalUnits) {
  SetWorldTransform(device_, {2, 0, 0, -2, 10, 0});
  EXPECT_TRUE(PaintRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View()));
  EXPECT_EQ(device_.TakeMarks(), "rect 12 -4 8 -14\nfill\n");
}

TEST_F(RegionPainting, TurnsWithTheWorld) {
  SetWorldTransform(device_, {0, 1, -1, 0, 0, 0});
  EXPECT_TRUE(PaintRgn(device_, StoredRectangles({{1, 2, 5, 9}}).View()));
  EXPECT_EQ(device_.TakeMarks(), "move -2 1\nline -2 5\nline -9 5\nline -9 1\nclose\nfill\n");
}

TEST_F(RegionPainting, MarksNothingOfAnEmptyRegion) {
  EXPECT_TRUE(PaintRgn(device_, StoredRectangles({}).View()));
  EXPECT_TRUE(InvertRgn(device_, StoredRectangles({{5, 5, 5, 9}}).View()));
  EXPECT_TRUE(FrameRgn(device_, StoredRectangles({}).View(), 1, {1, 1}));
  EXPECT_EQ(device_.Take(), "");
}

TEST_F(RegionPainting, FramesInside) {
  EXPECT_TRUE(FrameRgn(device_, StoredRectangles({{0, 0, 10, 10}}).View(), 1, {2, 3}));
  EXPECT_EQ(device_.Take(),
            "fill-color 1 0 0\nrect 0 0 10 3\nrect 0 3 2 4\nrect 8 3 2 4\nrect 0 7 10 3\nfill\n");
}

TEST_F(RegionPainting, FramesAsWideWithASizeBelowZero) {
  EXPECT_TRUE(FrameRgn(device_, StoredRectangles({{0, 0, 10, 10}}).View(), 1, {-5, -5}));
  EXPECT_EQ(device_.TakeMarks(), "rect 0 0 10 10\nfill\n");
}

// A frame on a grid, against what it is: the pixels that have one outside of the region near
// them, in their row or column.

int WholeNumber(std::string_view word) {
  int value = 0;
  std::from_chars(word.data(), word.data() + word.size(), value);
  return value;
}

std::size_t IndexOf(int x, int y) {
  return static_cast<std::size_t>(y) * kGridSize + static_cast<std::size_t>(x);
}

/// The pixels of the grid that the rectangles of a trace cover.
Pixels PaintedPixels(const std::string& trace) {
  Pixels painted;
  for (const std::string& line : LinesWith(trace, "rect")) {
    const auto words = WordsOf(line);
    const int left = WholeNumber(words[1]);
    const int top = WholeNumber(words[2]);
    for (int y = top; y < top + WholeNumber(words[4]); ++y)
      for (int x = left; x < left + WholeNumber(words[3]); ++x)
        painted.set(IndexOf(x, y));
  }
  return painted;
}

bool IsOutside(const Pixels& pixels, int x, int y) {
  const bool isOnGrid = x >= 0 && x < kGridSize && y >= 0 && y < kGridSize;
  return !isOnGrid || !pixels[IndexOf(x, y)];
}

bool IsNearOutside(const Pixels& pixels, int x, int y, int width, int height) {
  for (int dy = -height; dy <= height; ++dy)
    if (IsOutside(pixels, x, y + dy)) return true;
  for (int dx = -width; dx <= width; ++dx)
    if (IsOutside(pixels, x + dx, y)) return true;
  return false;
}

Pixels FrameOf(const Pixels& pixels, int width, int height) {
  Pixels frame;
  for (int y = 0; y < kGridSize; ++y)
    for (int x = 0; x < kGridSize; ++x)
      frame[IndexOf(x, y)] = !IsOutside(pixels, x, y) && IsNearOutside(pixels, x, y, width, height);
  return frame;
}

StoredRectangles Stored(const std::vector<RectangleD>& rectangles) {
  StoredRectangles stored({});
  for (const RectangleD& r : rectangles)
    stored.Add({static_cast<std::int32_t>(r.left), static_cast<std::int32_t>(r.top),
                static_cast<std::int32_t>(r.right), static_cast<std::int32_t>(r.bottom)});
  return stored;
}

TEST_F(RegionPainting, FramesWhatIsNearTheOutside) {
  std::mt19937 random(7);  // NOLINT: the same regions in every run
  for (int i = 0; i < 300; ++i) {
    const std::vector<RectangleD> rectangles = RandomRectangles(random);
    const Pixels region = PixelsOf(UnionOf(rectangles));
    for (const auto& [width, height] : {std::pair(1, 1), std::pair(2, 1), std::pair(1, 3)}) {
      ASSERT_TRUE(FrameRgn(device_, Stored(rectangles).View(), 1, {width, height}));
      ASSERT_EQ(PaintedPixels(device_.Take()), FrameOf(region, width, height))
          << UnionOf(rectangles) << ' ' << width << ' ' << height;
    }
  }
}

TEST_F(RegionPainting, FillsWhatLiesInAnyOfTheRectangles) {
  std::mt19937 random(8);  // NOLINT: the same regions in every run
  for (int i = 0; i < 300; ++i) {
    const std::vector<RectangleD> rectangles = RandomRectangles(random);
    ASSERT_TRUE(FillRgn(device_, Stored(rectangles).View(), 1));
    ASSERT_EQ(PaintedPixels(device_.Take()), PixelsOf(UnionOf(rectangles)));
  }
}

}  // namespace
}  // namespace kelvane
