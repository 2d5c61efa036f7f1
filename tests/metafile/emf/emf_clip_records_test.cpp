#include "metafile/emf/emf_clip_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

/// A region of two rectangles, said to have `count`.
Bytes Region(std::uint32_t count = 2) {
  return Bytes()
      .U32(32)
      .U32(1)
      .U32(count)
      .U32(16 * count)
      .Rectangle(1, 2, 7, 8)
      .Rectangle(1, 2, 3, 4)
      .Rectangle(5, 6, 7, 8);
}

TEST(OffsetClipRgnRecord, HasAnOffset) {
  EXPECT_EQ(Decode(DecodeOffsetClipRgn, Bytes().PointL(-1, 2))->offset, (PointL{-1, 2}));
}

TEST(ClipRectRecord, HasARectangle) {
  EXPECT_EQ(Decode(DecodeClipRect, Bytes().Rectangle(1, 2, 3, 4))->clip, (RectangleL{1, 2, 3, 4}));
}

TEST(ExtSelectClipRgnRecord, HasAModeAndARegion) {
  const auto record =
      Decode(DecodeExtSelectClipRgn, Bytes().U32(64).U32(4).Append(Region().Data()));
  EXPECT_EQ(record->mode, RGN_DIFF);
  EXPECT_TRUE(record->hasRegion);
  EXPECT_EQ(record->region.bounds, (RectangleL{1, 2, 7, 8}));
  EXPECT_EQ(Elements(record->region.rectangles),
            (std::vector<RectangleL>{{1, 2, 3, 4}, {5, 6, 7, 8}}));
}

TEST(ExtSelectClipRgnRecord, MayHaveNoRegion) {
  const auto record = Decode(DecodeExtSelectClipRgn, Bytes().U32(0).U32(5));
  EXPECT_EQ(record->mode, RGN_COPY);
  EXPECT_FALSE(record->hasRegion);
  EXPECT_TRUE(record->region.rectangles.empty());
}

TEST(RegionData, HasNoMoreRectanglesThanItsBytes) {
  const auto record =
      Decode(DecodeExtSelectClipRgn, Bytes().U32(64).U32(5).Append(Region(0x10000000).Data()));
  EXPECT_FALSE(record.IsShort());
  EXPECT_EQ(record->region.rectangles.size(), 2U);
}

TEST(RegionData, MayHaveNoRectangles) {
  const Bytes region = Bytes().U32(32).U32(1).U32(0).U32(0).Rectangle(0, 0, 0, 0);
  const auto record = Decode(DecodeExtSelectClipRgn, Bytes().U32(32).U32(5).Append(region.Data()));
  EXPECT_TRUE(record->hasRegion);
  EXPECT_TRUE(record->region.rectangles.empty());
}

TEST(RegionData, IsShortWhenItsOwnSizeLeavesNoRoomForItsHeader) {
  const Bytes bytes = Bytes().Zeros(8).U32(31).U32(5).Append(Region().Data());
  EXPECT_TRUE(DecodedRecord(DecodeExtSelectClipRgn, bytes.Data()).IsShort());
}

}  // namespace
}  // namespace kelvane::test
