#include "classic/records/state_records.h"

#include <gtest/gtest.h>

#include "classic/records/attribute_records.h"
#include "classic/records/mapping_records.h"
#include "classic/records/transform_records.h"
#include "classic/records/unused_attribute_records.h"
#include "support/playback.h"
#include "support/surface_fixture.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::PageContent;
using test::ReadRecord;
using test::Trace;

constexpr XForm kScaleByTwo = {2, 0, 0, 2, 0, 0};

class StateRecords : public test::SurfaceFixture {
 protected:
  template <class R, class... Arguments>
  void Play(const Bytes& body, Arguments... arguments) {
    ReadRecord<R>(body, arguments...)->drawToPDF(context_);
  }
};

Bytes Transform(const XForm& x) {
  return Bytes().F32(x.eM11).F32(x.eM12).F32(x.eM21).F32(x.eM22).F32(x.eDx).F32(x.eDy);
}

TEST_F(StateRecords, SaveAndRestoreKeepTheWorldTransformAndTheSurfacesState) {
  Play<SaveDCRecord>({});
  Play<ModifyWorldTransformRecord>(Transform(kScaleByTwo).I32(4));
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
  Play<SetMapModeRecord>(Bytes().I32(8));
  Play<SetBkModeRecord>(Bytes().I32(2));
  Play<RestoreDCRecord>(Bytes().I32(-1));
  EXPECT_EQ(context_.mapMode, 8);
  EXPECT_EQ(context_.bkMode, 2);
}

TEST_F(StateRecords, SetWorldTransformLeavesTheSurfaceAlone) {
  Play<SetWorldTransformRecord>(Transform(kScaleByTwo));
  EXPECT_EQ(context_.worldTransform.eM22, 2);
  EXPECT_EQ(State().ctm, CGAffineTransformIdentity);
}

TEST_F(StateRecords, ModifyWorldTransformReplacesTheSurfacesTransform) {
  Play<SetWorldTransformRecord>(Transform(kScaleByTwo));
  Play<ModifyWorldTransformRecord>(Transform({1, 0, 0, 1, 10, 20}).I32(3));
  EXPECT_EQ(State().ctm, CGAffineTransformMake(2, 0, 0, 2, 10, -20));
}

TEST_F(StateRecords, MappingRecordsSetTheMapping) {
  Play<SetMapModeRecord>(Bytes().I32(8));
  Play<SetWindowExtExRecord>(Bytes().I32(1).I32(2));
  Play<SetWindowOrgExRecord>(Bytes().I32(3).I32(4));
  Play<SetViewPortExtExRecord>(Bytes().I32(5).I32(6));
  Play<SetViewPortOrgExRecord>(Bytes().I32(7).I32(8));
  EXPECT_EQ(context_.mapMode, 8);
  EXPECT_EQ(context_.windowExt.cx, 1);
  EXPECT_EQ(context_.windowExt.cy, 2);
  EXPECT_EQ(context_.windowOrg.x, 3);
  EXPECT_EQ(context_.windowOrg.y, 4);
  EXPECT_EQ(context_.viewportExt.cx, 5);
  EXPECT_EQ(context_.viewportExt.cy, 6);
  EXPECT_EQ(context_.viewportOrg.x, 7);
  EXPECT_EQ(context_.viewportOrg.y, 8);
}

TEST_F(StateRecords, TheWindowsDirectionFollowsItsExtent) {
  const auto direction = [this](std::int32_t cy) {
    Play<SetWindowExtExRecord>(Bytes().I32(1).I32(cy));
    return context_.windowExtYPositive;
  };
  EXPECT_EQ(direction(-500), 0);
  EXPECT_EQ(direction(1), 1);
  EXPECT_EQ(direction(0), 0);
}

Bytes Scale(std::int32_t xNum, std::int32_t xDenom, std::int32_t yNum, std::int32_t yDenom) {
  return Bytes().I32(xNum).I32(xDenom).I32(yNum).I32(yDenom);
}

TEST_F(StateRecords, ScalingTheWindowTruncates) {
  context_.windowExt = {100, -100};
  Play<ScaleExtExRecord>(Scale(1, 3, 1, 3), true);
  EXPECT_EQ(context_.windowExt.cx, 33);
  EXPECT_EQ(context_.windowExt.cy, -33);
}

TEST_F(StateRecords, ScalingTheViewportLeavesTheWindowAlone) {
  context_.windowExt = {100, 100};
  context_.viewportExt = {10, 20};
  Play<ScaleExtExRecord>(Scale(3, 1, 1, 2), false);
  EXPECT_EQ(context_.viewportExt.cx, 30);
  EXPECT_EQ(context_.viewportExt.cy, 10);
  EXPECT_EQ(context_.windowExt.cx, 100);
  EXPECT_EQ(context_.windowExt.cy, 100);
}

TEST_F(StateRecords, ScalingTheWindowAroundKeepsItsDirection) {
  Play<SetWindowExtExRecord>(Bytes().I32(10).I32(10));
  Play<ScaleExtExRecord>(Scale(1, 1, -1, 1), true);
  EXPECT_EQ(context_.windowExt.cy, -10);
  EXPECT_EQ(context_.windowExtYPositive, 1);
}

TEST_F(StateRecords, ScalingByNothingLeavesTheExtent) {
  context_.windowExt = {100, 200};
  Play<ScaleExtExRecord>(Scale(1, 0, 1, 2), true);
  EXPECT_EQ(context_.windowExt.cx, 100);
  EXPECT_EQ(context_.windowExt.cy, 100);
}

TEST_F(StateRecords, ScalingSaturates) {
  context_.windowExt = {0x7FFFFFFF, -0x7FFFFFFF};
  Play<ScaleExtExRecord>(Scale(1000, 1, 1000, 1), true);
  EXPECT_EQ(context_.windowExt.cx, std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(context_.windowExt.cy, std::numeric_limits<std::int32_t>::min());
}

TEST_F(StateRecords, ScalesInSinglePrecision) {
  context_.windowExt = {16777217, 1};  // the nearest float is one less
  Play<ScaleExtExRecord>(Scale(1, 1, 1, 1), true);
  EXPECT_EQ(context_.windowExt.cx, 16777216);
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

TEST_F(StateRecords, ModesAreKeptAsTheyAre) {
  Play<SetBkModeRecord>(Bytes().I32(2));
  Play<SetTextAlignRecord>(Bytes().I32(-1));
  EXPECT_EQ(context_.bkMode, 2);
  EXPECT_EQ(context_.textAlign, 0xFFFFFFFFU);
}

TEST_F(StateRecords, OnlyOneIsCounterClockwise) {
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

TEST(SetMiterLimitRecord, OfTheInitialLimitWritesNothing) {
  EXPECT_EQ(Trace(Metafile().Record(58, Bytes().U32(10)).Polyline({{0, 0}, {1, 1}})),
            Trace(Metafile().Polyline({{0, 0}, {1, 1}})));
}

class UnusedRecords : public testing::TestWithParam<std::uint32_t> {};

TEST_P(UnusedRecords, ChangeNothing) {
  const auto drawing = [](Metafile metafile) {
    return PageContent(metafile.MoveTo(0, 0).LineTo(1, 1).Polygon({{0, 0}, {1, 1}, {1, 0}}));
  };
  const Bytes body = Bytes().U32(2).U32(3).U32(4);
  EXPECT_EQ(drawing(Metafile().Record(GetParam(), body)), drawing(Metafile()));
}

// Brush origin, pixel, fill mode, raster operation, stretch mode, palette, comment, colour
// management, layout.
INSTANTIATE_TEST_SUITE_P(Types, UnusedRecords,
                         testing::Values(13, 15, 19, 20, 21, 48, 70, 98, 115));

TEST(UnusedRecords, KeepWhatTheyRead) {
  EXPECT_EQ(ReadRecord<SetRop2Record>(Bytes().U32(13))->mode, 13U);
  EXPECT_EQ(ReadRecord<SetBrushOrgExRecord>(Bytes().I32(1).I32(-2))->origin.y, -2);
  EXPECT_EQ(ReadRecord<SetPixelVRecord>(Bytes().I32(1).I32(2).U32(3))->color, 3U);
}

/// @return how many bytes a comment's `read` takes.
std::int64_t CommentLength(std::uint32_t count) {
  const Bytes block = Bytes().U32(count).Zeros(60);
  Reader reader(block.Data().data(), static_cast<std::int32_t>(block.Size()));
  GDICommentRecord record;
  record.read(reader);
  return reader.getPosition();
}

TEST(GDICommentRecord, TakesItsBytesAndTheirPadding) {
  EXPECT_EQ(CommentLength(0), 4);
  EXPECT_EQ(CommentLength(4), 8);
  EXPECT_EQ(CommentLength(5), 12);
}

TEST(GDICommentRecord, KeepsTheBytesThatTheDataSupplies) {
  EXPECT_EQ(ReadRecord<GDICommentRecord>(Bytes().U32(5).Zeros(8))->data.size(), 5U);
  EXPECT_EQ(ReadRecord<GDICommentRecord>(Bytes().U32(0xFFFFFFFF).Zeros(8))->data.size(), 8U);
}

}  // namespace
}  // namespace kelvane
