#include "metafile/emf/emf_shape_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

TEST(BoxRecord, HasABox) {
  EXPECT_EQ(Decode(DecodeBox, Bytes().Rectangle(1, 2, 3, 4))->box, (RectangleL{1, 2, 3, 4}));
}

TEST(RoundRectRecord, HasABoxAndTheSizeOfItsCorners) {
  const auto record = Decode(DecodeRoundRect, Bytes().Rectangle(1, 2, 3, 4).PointL(5, 6));
  EXPECT_EQ(record->box, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(record->corner, (SizeL{5, 6}));
}

TEST(ArcRecord, HasABoxAndTwoDirections) {
  const auto record = Decode(DecodeArc, Bytes().Rectangle(1, 2, 3, 4).PointL(5, 6).PointL(-7, 8));
  EXPECT_EQ(record->box, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(record->start, (PointL{5, 6}));
  EXPECT_EQ(record->end, (PointL{-7, 8}));
}

TEST(AngleArcRecord, HasACircleAndTwoAngles) {
  const auto record = Decode(DecodeAngleArc, Bytes().PointL(1, 2).U32(3).F32(90).F32(-45.5F));
  EXPECT_EQ(record->center, (PointL{1, 2}));
  EXPECT_EQ(record->radius, 3U);
  EXPECT_EQ(record->startAngle, 90);
  EXPECT_EQ(record->sweepAngle, -45.5F);
}

TEST(SetPixelVRecord, HasAPointAndItsColor) {
  const auto record = Decode(DecodeSetPixelV, Bytes().PointL(1, 2).U32(0x332211));
  EXPECT_EQ(record->pixel, (PointL{1, 2}));
  EXPECT_EQ(record->color, ColorRef{0x332211});
}

TEST(ExtFloodFillRecord, HasAStartAColorAndAMode) {
  const auto record = Decode(DecodeExtFloodFill, Bytes().PointL(1, 2).U32(0x332211).U32(1));
  EXPECT_EQ(record->start, (PointL{1, 2}));
  EXPECT_EQ(record->color, ColorRef{0x332211});
  EXPECT_EQ(record->mode, FLOODFILLSURFACE);
}

}  // namespace
}  // namespace kelvane::test
