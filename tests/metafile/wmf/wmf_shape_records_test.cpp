#include "metafile/wmf/wmf_shape_records.h"

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

/// Bottom, right, top, left.
Bytes ReversedBox() {
  return Bytes().I16(40).I16(30).I16(20).I16(-10);
}
constexpr RectangleL kReversedBox = {-10, 20, 30, 40};

TEST(WmfBoxRecord, HasTheBottomFirst) {
  EXPECT_EQ(DecodeWmf(DecodeWmfBox, ReversedBox())->box, kReversedBox);
}

TEST(WmfRoundRectRecord, HasTheCornerBeforeTheBox) {
  const auto record =
      DecodeWmf(DecodeWmfRoundRect, Bytes().I16(8).I16(7).Append(ReversedBox().Data()));
  EXPECT_EQ(record->corner, (SizeL{7, 8}));
  EXPECT_EQ(record->box, kReversedBox);
}

TEST(WmfArcRecord, HasEndStartAndBox) {
  const Bytes points = Bytes().I16(4).I16(-3).I16(2).I16(1);
  const auto record = DecodeWmf(DecodeWmfArc, Bytes(points).Append(ReversedBox().Data()));
  EXPECT_EQ(record->end, (PointL{-3, 4}));
  EXPECT_EQ(record->start, (PointL{1, 2}));
  EXPECT_EQ(record->box, kReversedBox);
}

TEST(WmfPolyRecord, HasPointsXFirst) {
  const auto record = DecodeWmf(DecodeWmfPoly, Bytes().U16(2).Point(1, 2).Point(-3, 4));
  EXPECT_EQ(Elements(record->points), (std::vector<Point16>{{1, 2}, {-3, 4}}));
}

TEST(WmfPolyRecord, HasThePointsThatAreThereWhateverTheirCount) {
  const auto record = DecodeWmf(DecodeWmfPoly, Bytes().I16(-1).Point(1, 2), 0xFFFF);
  EXPECT_TRUE(record.IsShort());
  EXPECT_EQ(Elements(record->points), (std::vector<Point16>{{1, 2}}));
}

TEST(WmfPolyPolygonRecord, HasCountsAndAllPoints) {
  const Bytes counts = Bytes().U16(2).U16(1).U16(2);
  const auto record =
      DecodeWmf(DecodeWmfPolyPolygon, Bytes(counts).Point(1, 2).Point(3, 4).Point(-5, 6));
  EXPECT_EQ(Elements(record->counts), (std::vector<std::uint16_t>{1, 2}));
  EXPECT_EQ(Elements(record->points), (std::vector<Point16>{{1, 2}, {3, 4}, {-5, 6}}));
}

TEST(WmfSetPixelRecord, HasAColorBeforeYAndX) {
  const auto record = DecodeWmf(DecodeWmfSetPixel, Bytes().U32(0x332211).I16(2).I16(-1));
  EXPECT_EQ(record->color, ColorRef{0x332211});
  EXPECT_EQ(record->pixel, (PointL{-1, 2}));
}

TEST(WmfFloodFillRecord, GoesUpToAColor) {
  const auto record = DecodeWmf(DecodeWmfFloodFill, Bytes().U32(0x332211).I16(2).I16(-1));
  EXPECT_EQ(record->mode, FLOODFILLBORDER);
  EXPECT_EQ(record->color, ColorRef{0x332211});
  EXPECT_EQ(record->start, (PointL{-1, 2}));
}

TEST(WmfFloodFillRecord, HasAModeFirstWhenItIsTheLaterOne) {
  const auto record = DecodeWmf(DecodeWmfExtFloodFill, Bytes().U16(1).U32(0x332211).I16(2).I16(-1));
  EXPECT_EQ(record->mode, FLOODFILLSURFACE);
  EXPECT_EQ(record->color, ColorRef{0x332211});
  EXPECT_EQ(record->start, (PointL{-1, 2}));
}

}  // namespace
}  // namespace kelvane::test
