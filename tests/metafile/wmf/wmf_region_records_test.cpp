#include "metafile/wmf/wmf_region_records.h"

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kRegionSize = 22;  // without scans

/// A region of so many scans, which are to follow, and bounds.
Bytes RegionOf(std::uint32_t scans) {
  return Bytes().U16(0).U16(6).U32(0).U16(kRegionSize).U16(scans).U16(4).Point(-1, 2).Point(30, 40);
}
constexpr RectangleL kRegionBounds = {-1, 2, 30, 40};

/// One of two rectangles.
Bytes Scan() {
  return Bytes().U16(4).I16(-5).I16(6).I16(1).I16(2).I16(-3).I16(4).U16(4);
}

/// The rectangles of a region whose scans may be broken.
std::vector<RectangleL> RectanglesOf(const Bytes& body) {
  return DecodeWmf(DecodeWmfCreateRegion, body, kRegionSize)->rectangles;
}

TEST(WmfCreateRegionRecord, HasARectangleForEachPairOfAScan) {
  EXPECT_EQ(RectanglesOf(RegionOf(1).Append(Scan().Data())),
            (std::vector<RectangleL>{{1, -5, 2, 6}, {-3, -5, 4, 6}}));
}

TEST(WmfCreateRegionRecord, HasTheRectanglesOfAllScans) {
  const Bytes scans = Bytes(Scan()).U16(2).I16(6).I16(7).I16(8).I16(9).U16(2);
  EXPECT_EQ(RectanglesOf(RegionOf(2).Append(scans.Data())),
            (std::vector<RectangleL>{{1, -5, 2, 6}, {-3, -5, 4, 6}, {8, 6, 9, 7}}));
}

TEST(WmfCreateRegionRecord, HasBounds) {
  const auto record = DecodeWmf(DecodeWmfCreateRegion, RegionOf(0));
  EXPECT_EQ(record->bounds, kRegionBounds);
  EXPECT_TRUE(record->rectangles.empty());
}

TEST(WmfCreateRegionRecord, IsItsBoundsWhenScansAreMissing) {
  EXPECT_EQ(RectanglesOf(RegionOf(2).Append(Scan().Data())),
            std::vector<RectangleL>{kRegionBounds});
  EXPECT_EQ(RectanglesOf(RegionOf(0xFFFF)), std::vector<RectangleL>{kRegionBounds});
}

TEST(WmfFillRegionRecord, HasARegionAndABrush) {
  const auto record = DecodeWmf(DecodeWmfFillRegion, Bytes().U16(3).U16(4));
  EXPECT_EQ(record->region, 3);
  EXPECT_EQ(record->brush, 4);
}

TEST(WmfFrameRegionRecord, HasTheHeightOfItsFrameBeforeTheWidth) {
  const auto record = DecodeWmf(DecodeWmfFrameRegion, Bytes().U16(3).U16(4).I16(6).I16(5));
  EXPECT_EQ(record->region, 3);
  EXPECT_EQ(record->brush, 4);
  EXPECT_EQ(record->frame, (SizeL{5, 6}));
}

}  // namespace
}  // namespace kelvane::test
