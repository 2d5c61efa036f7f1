#include "metafile/emfplus/emfplus_state_records.h"

#include <algorithm>
#include <array>

#include <gtest/gtest.h>

#include "emfplus_decoding.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kAppend = 0x2000;

Bytes Matrix() {
  return Bytes().F32(1).F32(2).F32(3).F32(4).F32(5).F32(6);
}
constexpr XForm kMatrix = {1, 2, 3, 4, 5, 6};

TEST(EmfPlusHeader, SaysWhatThePictureWasRecordedFor) {
  const auto header =
      DecodeWhole(DecodeEmfPlusHeader, 1, Bytes().U32(0xDBC01002).U32(1).U32(96).U32(120));
  ASSERT_TRUE(header);
  EXPECT_TRUE(header->isDual);
  EXPECT_EQ(header->version, 0xDBC01002);
  EXPECT_TRUE(header->isVideoDisplay);
  EXPECT_EQ(header->dpiX, 96U);
  EXPECT_EQ(header->dpiY, 120U);
}

TEST(EmfPlusHeader, MayBeAllThereIsAndOfAPrinter) {
  const auto header =
      DecodeWhole(DecodeEmfPlusHeader, 0, Bytes().U32(0xDBC01001).U32(0).U32(600).U32(600));
  ASSERT_TRUE(header);
  EXPECT_FALSE(header->isDual);
  EXPECT_FALSE(header->isVideoDisplay);
}

TEST(EmfPlusSetRenderingOrigin, HasAPoint) {
  const auto origin = DecodeWhole(DecodeEmfPlusSetRenderingOrigin, 0, Bytes().PointL(1, -2));
  ASSERT_TRUE(origin);
  EXPECT_EQ(origin->origin, (PointL{1, -2}));
}

TEST(EmfPlusProperties, AreInTheFlags) {
  const auto antiAlias = DecodeWhole(DecodeEmfPlusSetAntiAliasMode, 0x0B, Bytes());
  ASSERT_TRUE(antiAlias);
  EXPECT_TRUE(antiAlias->isOn);
  EXPECT_EQ(antiAlias->mode, EmfPlusSmoothingMode::kAntiAlias8x8);
  EXPECT_FALSE(DecodeWhole(DecodeEmfPlusSetAntiAliasMode, 0x06, Bytes())->isOn);

  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetTextRenderingHint, 0x0105, Bytes())->hint,
            EmfPlusTextRenderingHint::kClearTypeGridFit);
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetTextContrast, 0xF898, Bytes())->contrast, 2200);
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetInterpolationMode, 0x0107, Bytes())->mode,
            EmfPlusInterpolationMode::kHighQualityBicubic);
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetPixelOffsetMode, 0x0104, Bytes())->mode,
            EmfPlusPixelOffsetMode::kHalf);
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetCompositingMode, 0x0101, Bytes())->mode,
            EmfPlusCompositingMode::kSourceCopy);
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetCompositingQuality, 0x0104, Bytes())->quality, 4);
}

TEST(EmfPlusStackEntry, HasALabel) {
  const auto entry = DecodeWhole(DecodeEmfPlusStackEntry, 0, Bytes().U32(0xFFFFFFFF));
  ASSERT_TRUE(entry);
  EXPECT_EQ(entry->label, 0xFFFFFFFF);
}

TEST(EmfPlusBeginContainer, HasTwoRectanglesAUnitAndALabel) {
  const auto container =
      DecodeWhole(DecodeEmfPlusBeginContainer, 0x0102,
                  Bytes().F32(1).F32(2).F32(3).F32(4).F32(5).F32(6).F32(7).F32(8).U32(9));
  ASSERT_TRUE(container);
  EXPECT_EQ(container->destination, (RectF{1, 2, 3, 4}));
  EXPECT_EQ(container->source, (RectF{5, 6, 7, 8}));
  EXPECT_EQ(container->unit, EmfPlusUnit::kPixel);
  EXPECT_EQ(container->label, 9U);
}

TEST(EmfPlusWorldTransforms, HaveANumberForEachWay) {
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusSetWorldTransform, 0, Matrix())->matrix, kMatrix);
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusMultiplyWorldTransform, 0, Matrix())->matrix, kMatrix);
  const Bytes two = Bytes().F32(1.5F).F32(-2);
  const auto shift = DecodeWhole(DecodeEmfPlusTranslateWorldTransform, 0, two);
  EXPECT_EQ((PointF{shift->x, shift->y}), (PointF{1.5F, -2}));
  const auto scale = DecodeWhole(DecodeEmfPlusScaleWorldTransform, 0, two);
  EXPECT_EQ((PointF{scale->x, scale->y}), (PointF{1.5F, -2}));
  EXPECT_EQ(DecodeWhole(DecodeEmfPlusRotateWorldTransform, 0, Bytes().F32(90))->degrees, 90);
}

TEST(EmfPlusWorldTransforms, AreAppendedByAFlag) {
  for (const std::uint32_t flags : {0U, kAppend}) {
    const bool isAppended = flags == kAppend;
    const Bytes two = Bytes().F32(1).F32(2);
    EXPECT_EQ(DecodeWhole(DecodeEmfPlusMultiplyWorldTransform, flags, Matrix())->isAppended,
              isAppended);
    EXPECT_EQ(DecodeWhole(DecodeEmfPlusTranslateWorldTransform, flags, two)->isAppended,
              isAppended);
    EXPECT_EQ(DecodeWhole(DecodeEmfPlusScaleWorldTransform, flags, two)->isAppended, isAppended);
    EXPECT_EQ(DecodeWhole(DecodeEmfPlusRotateWorldTransform, flags, Bytes().F32(1))->isAppended,
              isAppended);
  }
}

TEST(EmfPlusSetPageTransform, HasAUnitAndAScale) {
  const auto page = DecodeWhole(DecodeEmfPlusSetPageTransform, 0x0106, Bytes().F32(2));
  ASSERT_TRUE(page);
  EXPECT_EQ(page->unit, EmfPlusUnit::kMillimeter);
  EXPECT_EQ(page->scale, 2);
}

TEST(EmfPlusSetClipRect, HasAModeAndARectangleOfFloats) {
  constexpr std::uint32_t kIntegers = 0x4000;
  const auto clip = DecodeWhole(DecodeEmfPlusSetClipRect, kIntegers | 0x0100,
                                Bytes().F32(1).F32(2).F32(3).F32(4));
  ASSERT_TRUE(clip);
  EXPECT_EQ(clip->mode, EmfPlusCombineMode::kIntersect);
  EXPECT_EQ(clip->box, (RectF{1, 2, 3, 4}));
}

TEST(EmfPlusSetClip, HasAModeAndAnObject) {
  const auto path = DecodeWhole(DecodeEmfPlusSetClipPath, 0x0509, Bytes());
  ASSERT_TRUE(path);
  EXPECT_EQ(path->mode, EmfPlusCombineMode::kComplement);
  EXPECT_EQ(path->path, 9U);

  const auto region = DecodeWhole(DecodeEmfPlusSetClipRegion, 0x0409, Bytes());
  ASSERT_TRUE(region);
  EXPECT_EQ(region->mode, EmfPlusCombineMode::kExclude);
  EXPECT_EQ(region->region, 9U);
}

TEST(EmfPlusOffsetClip, HasTwoNumbers) {
  const auto offset = DecodeWhole(DecodeEmfPlusOffsetClip, 0, Bytes().F32(1).F32(-2));
  ASSERT_TRUE(offset);
  EXPECT_EQ((PointF{offset->x, offset->y}), (PointF{1, -2}));
}

TEST(EmfPlusSerializableObject, HasAnEffectAndItsParameters) {
  const Bytes guid = Bytes().Each({0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15});
  const Bytes data = Bytes().Append(guid.Data()).U32(3).Each({7, 8, 9});
  DecodeWhole(DecodeEmfPlusSerializableObject, 0, data);
  const StoredEmfPlusRecord record(0, data.Data());
  const auto object = DecodeEmfPlusSerializableObject(record.Record());
  ASSERT_TRUE(object);
  EXPECT_TRUE(std::ranges::equal(object->effect, guid.Data()));
  EXPECT_TRUE(std::ranges::equal(object->parameters.Bytes(), std::array{7, 8, 9}));
}

TEST(EmfPlusSetTSGraphics, HasAllOfTheState) {
  const Bytes data =
      Bytes().Each({4, 5, 1, 3}).Point(6, -7).U16(2200).Each({2, 4}).Append(Matrix().Data());
  const auto state = DecodeWhole(DecodeEmfPlusSetTSGraphics, 0, data);
  ASSERT_TRUE(state);
  EXPECT_EQ(state->smoothing, EmfPlusSmoothingMode::kAntiAlias8x4);
  EXPECT_EQ(state->textHint, EmfPlusTextRenderingHint::kClearTypeGridFit);
  EXPECT_EQ(state->compositing, EmfPlusCompositingMode::kSourceCopy);
  EXPECT_EQ(state->compositingQuality, 3);
  EXPECT_EQ(state->renderingOrigin, (Point16{6, -7}));
  EXPECT_EQ(state->textContrast, 2200);
  EXPECT_EQ(state->filter, 2);
  EXPECT_EQ(state->pixelOffset, EmfPlusPixelOffsetMode::kHalf);
  EXPECT_EQ(state->worldToDevice, kMatrix);
}

}  // namespace
}  // namespace kelvane::test
