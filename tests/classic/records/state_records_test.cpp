#include "classic/records/state_records.h"

#include <gtest/gtest.h>

#include "classic/records/mapping_records.h"
#include "platform/quartz/cg_context_calls.h"
#include "support/context_fields.h"
#include "support/playback.h"
#include "support/surface_fixture.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::Trace;

class StateRecords : public test::SurfaceFixture {};

TEST_F(StateRecords, SaveAndRestoreKeepTheWorldTransformAndTheSurfacesState) {
  Play<SaveDCRecord>({});
  Play<ModifyWorldTransformRecord>(
      Bytes().F32(2).F32(0).F32(0).F32(2).F32(0).F32(0).I32(test::kSetTransform));
  CGContextSetLineWidth(context_.context, 9);
  Play<RestoreDCRecord>(Bytes().I32(-1));
  EXPECT_EQ(context_.worldTransform.eM11, 1);
  EXPECT_EQ(State().ctm, CGAffineTransformIdentity);
  EXPECT_EQ(State().lineWidth, 1);
}

TEST_F(StateRecords, RestoringTwoLevelsRestoresOne) {
  for (const float width : {2.0F, 3.0F, 4.0F}) {
    CGContextSetLineWidth(context_.context, width);
    Play<SaveDCRecord>({});
  }
  Play<RestoreDCRecord>(Bytes().I32(-2));
  EXPECT_EQ(State().lineWidth, 4);
  EXPECT_EQ(context_.savedTransforms.size(), 2U);
}

TEST_F(StateRecords, RestoringMoreThanWasSavedIsHarmless) {
  CGContextSetLineWidth(context_.context, 7);
  Play<RestoreDCRecord>(Bytes().I32(-1));
  EXPECT_EQ(State().lineWidth, 7);
}

TEST_F(StateRecords, AttributesOfTheContextAreNotSaved) {
  Play<SaveDCRecord>({});
  Play<SetMapModeRecord>(Bytes().I32(kMapModeAnisotropic));
  Play<SetBkModeRecord>(Bytes().I32(test::kOpaque));
  Play<RestoreDCRecord>(Bytes().I32(-1));
  EXPECT_EQ(context_.mapMode, kMapModeAnisotropic);
  EXPECT_EQ(context_.bkMode, test::kOpaque);
}

TEST_F(StateRecords, ColoursAreTwoHundredAndFiftySixths) {
  Play<SetBkColorRecord>(Bytes().U32(0x00FFFFFF));
  EXPECT_EQ(context_.bkColor.red, 0.99609375);
  EXPECT_EQ(context_.bkColor.green, 0.99609375);
  EXPECT_EQ(context_.bkColor.blue, 0.99609375);
  Play<SetTextColorRecord>(Bytes().U32(0xAB8000FF));
  EXPECT_EQ(context_.textColor.red, 0.99609375);
  EXPECT_EQ(context_.textColor.green, 0);
  EXPECT_EQ(context_.textColor.blue, 0.5);
}

TEST_F(StateRecords, BackgroundModeAndTextAlignmentAreKeptAsTheyAre) {
  Play<SetBkModeRecord>(Bytes().I32(test::kOpaque));
  Play<SetTextAlignRecord>(Bytes().I32(-1));
  EXPECT_EQ(context_.bkMode, test::kOpaque);
  EXPECT_EQ(context_.textAlign, 0xFFFFFFFFU);
}

TEST_F(StateRecords, EveryArcDirectionButOneIsClockwise) {
  const auto clockwise = [this](std::int32_t direction) {
    Play<SetArcDirectionRecord>(Bytes().I32(direction));
    return context_.clockwise;
  };
  EXPECT_EQ(clockwise(2), 1);
  EXPECT_EQ(clockwise(1), 0);
  EXPECT_EQ(clockwise(0), 1);
  EXPECT_EQ(clockwise(3), 1);
}

TEST_F(StateRecords, TheMiterLimitGoesToTheSurface) {
  Play<SetMiterLimitRecord>(Bytes().U32(4));
  EXPECT_EQ(State().miterLimit, 4);
}

TEST_F(StateRecords, TheMiterLimitLeavesTheContextAndWhatIsSavedAlone) {
  Play<SaveDCRecord>({});
  const std::string before = test::FieldsOf(context_);
  Play<SetMiterLimitRecord>(Bytes().U32(4));
  EXPECT_EQ(test::FieldsOf(context_), before);
  Play<RestoreDCRecord>(Bytes().I32(-1));
  EXPECT_EQ(State().miterLimit, 10);
}

TEST(SetMiterLimitRecord, OfTheInitialLimitWritesNothing) {
  EXPECT_EQ(
      Trace(Metafile().Record(test::EMR_SETMITERLIMIT, Bytes().U32(10)).Polyline({{0, 0}, {1, 1}})),
      Trace(Metafile().Polyline({{0, 0}, {1, 1}})));
}

}  // namespace
}  // namespace kelvane
