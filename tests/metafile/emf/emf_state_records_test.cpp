#include "metafile/emf/emf_state_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

TEST(RestoreDCRecord, HasALevel) {
  EXPECT_EQ(Decode(DecodeRestoreDC, Bytes().I32(-1))->savedDC, -1);
}

TEST(SetBkModeRecord, HasAMode) {
  EXPECT_EQ(Decode(DecodeSetBkMode, Bytes().U32(2))->mode, OPAQUE);
}

TEST(SetColorRecord, HasAColor) {
  EXPECT_EQ(Decode(DecodeSetColor, Bytes().U32(0x332211))->color, ColorRef{0x332211});
}

TEST(SetPolyFillModeRecord, HasAMode) {
  EXPECT_EQ(Decode(DecodeSetPolyFillMode, Bytes().U32(2))->mode, WINDING);
}

TEST(SetRop2Record, HasAnOperation) {
  EXPECT_EQ(Decode(DecodeSetRop2, Bytes().U32(7))->rop, R2_XORPEN);
}

TEST(SetStretchBltModeRecord, HasAMode) {
  EXPECT_EQ(Decode(DecodeSetStretchBltMode, Bytes().U32(4))->mode, STRETCH_HALFTONE);
}

TEST(SetTextAlignRecord, HasFlags) {
  EXPECT_EQ(Decode(DecodeSetTextAlign, Bytes().U32(0x1F))->align,
            TA_BASELINE | TA_CENTER | TA_UPDATECP);
}

TEST(SetTextJustificationRecord, HasASpaceAndACount) {
  const auto record = Decode(DecodeSetTextJustification, Bytes().I32(-3).I32(4));
  EXPECT_EQ(record->breakExtra, -3);
  EXPECT_EQ(record->breakCount, 4);
}

TEST(SetMapperFlagsRecord, HasFlags) {
  EXPECT_EQ(Decode(DecodeSetMapperFlags, Bytes().U32(1))->flags, 1U);
}

TEST(SetMiterLimitRecord, HasAWholeNumber) {
  EXPECT_EQ(Decode(DecodeSetMiterLimit, Bytes().U32(10))->limit, 10);
}

TEST(SetMiterLimitRecord, MayHaveAFloat) {
  EXPECT_EQ(Decode(DecodeSetMiterLimit, Bytes().F32(10.5F))->limit, 10.5F);
}

TEST(SetColorAdjustmentRecord, HasTwelveNumbers) {
  const auto record = Decode(
      DecodeSetColorAdjustment,
      Bytes().U16(24).U16(1).U16(2).U16(3).U16(4).U16(5).U16(6).U16(7).I16(-8).I16(9).I16(10).I16(
          -11));
  EXPECT_EQ(record->adjustment.size, 24);
  EXPECT_EQ(record->adjustment.redGamma, 3);
  EXPECT_EQ(record->adjustment.referenceWhite, 7);
  EXPECT_EQ(record->adjustment.contrast, -8);
  EXPECT_EQ(record->adjustment.redGreenTint, -11);
}

}  // namespace
}  // namespace kelvane::test
