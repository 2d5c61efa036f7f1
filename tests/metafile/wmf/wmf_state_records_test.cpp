#include "metafile/wmf/wmf_state_records.h"

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

TEST(WmfModeRecord, HasAModeInAWord) {
  EXPECT_EQ(DecodeWmf(DecodeWmfMode<BackgroundMode>, Bytes().U16(2))->mode, OPAQUE);
  EXPECT_EQ(DecodeWmf(DecodeWmfMode<MapMode>, Bytes().U16(8))->mode, MM_ANISOTROPIC);
  EXPECT_EQ(DecodeWmf(DecodeWmfMode<TextAlign>, Bytes().U16(0x118))->mode,
            TA_BASELINE | TA_RTLREADING);
}

TEST(WmfModeRecord, MayHaveAWordTooMany) {
  EXPECT_EQ(DecodeWmf(DecodeWmfMode<PolyFillMode>, Bytes().U16(2).U16(0xFFFF), 2)->mode, WINDING);
}

TEST(WmfColorRecord, HasAColor) {
  EXPECT_EQ(DecodeWmf(DecodeWmfColor, Bytes().U32(0x02332211))->color, ColorRef{0x02332211});
}

TEST(WmfRestoreDCRecord, HasASignedLevel) {
  EXPECT_EQ(DecodeWmf(DecodeWmfRestoreDC, Bytes().I16(-1))->savedDC, -1);
}

TEST(WmfPointRecord, HasYBeforeX) {
  EXPECT_EQ(DecodeWmf(DecodeWmfPoint, Bytes().I16(-20).I16(10))->point, (PointL{10, -20}));
}

TEST(WmfExtentRecord, HasTheHeightBeforeTheWidth) {
  EXPECT_EQ(DecodeWmf(DecodeWmfExtent, Bytes().I16(-20).I16(10))->extent, (SizeL{10, -20}));
}

TEST(WmfScaleExtentRecord, HasTheLastArgumentFirst) {
  const auto record = DecodeWmf(DecodeWmfScaleExtent, Bytes().I16(4).I16(-3).I16(2).I16(1));
  EXPECT_EQ(record->xNum, 1);
  EXPECT_EQ(record->xDenom, 2);
  EXPECT_EQ(record->yNum, -3);
  EXPECT_EQ(record->yDenom, 4);
}

TEST(WmfSetTextCharExtraRecord, HasASignedSpace) {
  EXPECT_EQ(DecodeWmf(DecodeWmfSetTextCharExtra, Bytes().I16(-5))->extra, -5);
}

TEST(WmfSetTextJustificationRecord, HasTheCountBeforeTheSpace) {
  const auto record = DecodeWmf(DecodeWmfSetTextJustification, Bytes().U16(3).I16(-40));
  EXPECT_EQ(record->breakCount, 3);
  EXPECT_EQ(record->breakExtra, -40);
}

TEST(WmfSetMapperFlagsRecord, HasFlags) {
  EXPECT_EQ(DecodeWmf(DecodeWmfSetMapperFlags, Bytes().U32(1))->flags, 1U);
}

}  // namespace
}  // namespace kelvane::test
