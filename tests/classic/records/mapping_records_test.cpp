#include "classic/records/mapping_records.h"

#include <limits>

#include <gtest/gtest.h>

#include "support/surface_fixture.h"

namespace kelvane {
namespace {

using test::Bytes;

constexpr XForm kScaleByTwo = {2, 0, 0, 2, 0, 0};

class MappingRecords : public test::SurfaceFixture {};

Bytes Transform(const XForm& x) {
  return Bytes().F32(x.eM11).F32(x.eM12).F32(x.eM21).F32(x.eM22).F32(x.eDx).F32(x.eDy);
}

TEST_F(MappingRecords, SetWorldTransformLeavesTheSurfaceAlone) {
  Play<SetWorldTransformRecord>(Transform(kScaleByTwo));
  EXPECT_EQ(context_.worldTransform.eM22, 2);
  EXPECT_EQ(State().ctm, CGAffineTransformIdentity);
}

TEST_F(MappingRecords, ModifyWorldTransformReplacesTheSurfacesTransform) {
  Play<SetWorldTransformRecord>(Transform(kScaleByTwo));
  Play<ModifyWorldTransformRecord>(Transform({1, 0, 0, 1, 10, 20}).I32(3));
  EXPECT_EQ(State().ctm, CGAffineTransformMake(2, 0, 0, 2, 10, -20));
}

TEST_F(MappingRecords, KeepModeExtentsAndOriginsInTheContext) {
  Play<SetMapModeRecord>(Bytes().I32(kMapModeAnisotropic));
  Play<SetWindowExtExRecord>(Bytes().I32(1).I32(2));
  Play<SetWindowOrgExRecord>(Bytes().I32(3).I32(4));
  Play<SetViewPortExtExRecord>(Bytes().I32(5).I32(6));
  Play<SetViewPortOrgExRecord>(Bytes().I32(7).I32(8));
  EXPECT_EQ(context_.mapMode, kMapModeAnisotropic);
  EXPECT_EQ(context_.windowExt.cx, 1);
  EXPECT_EQ(context_.windowExt.cy, 2);
  EXPECT_EQ(context_.windowOrg.x, 3);
  EXPECT_EQ(context_.windowOrg.y, 4);
  EXPECT_EQ(context_.viewportExt.cx, 5);
  EXPECT_EQ(context_.viewportExt.cy, 6);
  EXPECT_EQ(context_.viewportOrg.x, 7);
  EXPECT_EQ(context_.viewportOrg.y, 8);
}

TEST_F(MappingRecords, TheWindowsDirectionFollowsItsExtent) {
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

TEST_F(MappingRecords, ScalingTheWindowTruncates) {
  context_.windowExt = {100, -100};
  Play<ScaleExtExRecord>(Scale(1, 3, 1, 3), ScaledExtent::kWindow);
  EXPECT_EQ(context_.windowExt.cx, 33);
  EXPECT_EQ(context_.windowExt.cy, -33);
}

TEST_F(MappingRecords, ScalingTheViewportLeavesTheWindowAlone) {
  context_.windowExt = {100, 100};
  context_.viewportExt = {10, 20};
  Play<ScaleExtExRecord>(Scale(3, 1, 1, 2), ScaledExtent::kViewport);
  EXPECT_EQ(context_.viewportExt.cx, 30);
  EXPECT_EQ(context_.viewportExt.cy, 10);
  EXPECT_EQ(context_.windowExt.cx, 100);
  EXPECT_EQ(context_.windowExt.cy, 100);
}

TEST_F(MappingRecords, ScalingTheWindowAroundKeepsItsDirection) {
  Play<SetWindowExtExRecord>(Bytes().I32(10).I32(10));
  Play<ScaleExtExRecord>(Scale(1, 1, -1, 1), ScaledExtent::kWindow);
  EXPECT_EQ(context_.windowExt.cy, -10);
  EXPECT_EQ(context_.windowExtYPositive, 1);
}

TEST_F(MappingRecords, ScalingByNothingLeavesTheExtent) {
  context_.windowExt = {100, 200};
  Play<ScaleExtExRecord>(Scale(1, 0, 1, 2), ScaledExtent::kWindow);
  EXPECT_EQ(context_.windowExt.cx, 100);
  EXPECT_EQ(context_.windowExt.cy, 100);
}

TEST_F(MappingRecords, ScalingSaturates) {
  context_.windowExt = {0x7FFFFFFF, -0x7FFFFFFF};
  Play<ScaleExtExRecord>(Scale(1000, 1, 1000, 1), ScaledExtent::kWindow);
  EXPECT_EQ(context_.windowExt.cx, std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(context_.windowExt.cy, std::numeric_limits<std::int32_t>::min());
}

TEST_F(MappingRecords, ScalesInSinglePrecision) {
  context_.windowExt = {16777217, 1};  // the nearest float is one less
  Play<ScaleExtExRecord>(Scale(1, 1, 1, 1), ScaledExtent::kWindow);
  EXPECT_EQ(context_.windowExt.cx, 16777216);
}

}  // namespace
}  // namespace kelvane
