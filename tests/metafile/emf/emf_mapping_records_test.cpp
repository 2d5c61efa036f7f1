#include "metafile/emf/emf_mapping_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

Bytes TransformBytes() {
  return Bytes().F32(1).F32(2).F32(3).F32(4).F32(5).F32(-6.5F);
}
constexpr XForm kTransform = {1, 2, 3, 4, 5, -6.5F};

TEST(SetMapModeRecord, HasAMode) {
  EXPECT_EQ(Decode(DecodeSetMapMode, Bytes().U32(8))->mode, MM_ANISOTROPIC);
}

TEST(OriginRecord, HasAnOrigin) {
  EXPECT_EQ(Decode(DecodeOrigin, Bytes().PointL(-1, 2))->origin, (PointL{-1, 2}));
}

TEST(ExtentRecord, HasAnExtent) {
  EXPECT_EQ(Decode(DecodeExtent, Bytes().PointL(1, -2))->extent, (SizeL{1, -2}));
}

TEST(ScaleExtentRecord, HasAFractionForEachAxis) {
  const auto record = Decode(DecodeScaleExtent, Bytes().I32(-1).I32(2).I32(3).I32(4));
  EXPECT_EQ(record->xNum, -1);
  EXPECT_EQ(record->xDenom, 2);
  EXPECT_EQ(record->yNum, 3);
  EXPECT_EQ(record->yDenom, 4);
}

TEST(SetWorldTransformRecord, HasATransform) {
  EXPECT_EQ(Decode(DecodeSetWorldTransform, TransformBytes())->transform, kTransform);
}

TEST(ModifyWorldTransformRecord, HasATransformAndAMode) {
  const auto record = Decode(DecodeModifyWorldTransform, TransformBytes().U32(2));
  EXPECT_EQ(record->transform, kTransform);
  EXPECT_EQ(record->mode, MWT_LEFTMULTIPLY);
}

TEST(SetLayoutRecord, HasFlags) {
  EXPECT_EQ(Decode(DecodeSetLayout, Bytes().U32(9))->layout,
            LAYOUT_RTL | LAYOUT_BITMAPORIENTATIONPRESERVED);
}

TEST(SetArcDirectionRecord, HasADirection) {
  EXPECT_EQ(Decode(DecodeSetArcDirection, Bytes().U32(2))->direction, AD_CLOCKWISE);
}

}  // namespace
}  // namespace kelvane::test
