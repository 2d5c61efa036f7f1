#include "metafile/emf/emf_region_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

/// A region of one rectangle, 48 bytes.
Bytes Region() {
  return Bytes().U32(32).U32(1).U32(1).U32(16).Rectangle(5, 6, 7, 8).Rectangle(5, 6, 7, 8);
}

void ExpectTheRectangle(const RegionData& region) {
  EXPECT_EQ(Elements(region.rectangles), (std::vector<RectangleL>{{5, 6, 7, 8}}));
}

TEST(FillRgnRecord, HasABrushAndARegion) {
  const auto record =
      Decode(DecodeFillRgn, Bytes().Rectangle(1, 2, 3, 4).U32(48).U32(9).Append(Region().Data()));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(record->ihBrush, 9U);
  ExpectTheRectangle(record->region);
}

TEST(FrameRgnRecord, HasABrushASizeAndARegion) {
  const auto record =
      Decode(DecodeFrameRgn,
             Bytes().Rectangle(1, 2, 3, 4).U32(48).U32(9).PointL(10, 11).Append(Region().Data()));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(record->ihBrush, 9U);
  EXPECT_EQ(record->frame, (SizeL{10, 11}));
  ExpectTheRectangle(record->region);
}

TEST(PaintRgnRecord, HasARegion) {
  const auto record =
      Decode(DecodePaintRgn, Bytes().Rectangle(1, 2, 3, 4).U32(48).Append(Region().Data()));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  ExpectTheRectangle(record->region);
}

}  // namespace
}  // namespace kelvane::test
