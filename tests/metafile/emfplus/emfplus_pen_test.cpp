#include "metafile/emfplus/emfplus_pen.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"

namespace kelvane::test {
namespace {

constexpr Argb kRed = {0, 0, 255, 128};
constexpr std::uint32_t kEveryField = 0x1FFF;

Bytes PathCap(std::uint32_t flags) {
  return Bytes()
      .U32(kVersion)
      .I32(0)
      .U32(flags)
      .U32(2)
      .F32(1.5F)
      .U32(1)
      .U32(3)
      .U32(2)
      .F32(4)
      .F32(0.5F)
      .Zeros(16);
}

Bytes ArrowCap() {
  return Bytes()
      .U32(kVersion)
      .I32(1)
      .F32(5)
      .F32(6)
      .F32(7)
      .U32(1)
      .U32(2)
      .U32(3)
      .U32(1)
      .F32(8)
      .F32(9)
      .Zeros(16);
}

/// What stores how large it is.
Bytes Sized(const Bytes& object) {
  return Bytes().U32(static_cast<std::uint32_t>(object.Size())).Append(object.Data());
}

Bytes Pen(std::uint32_t flags) {
  return Bytes().U32(kVersion).U32(0).U32(flags).U32(2).F32(3.5F);
}

TEST(EmfPlusCustomLineCap, MayBeFilled) {
  const auto cap = ReadWhole(ReadEmfPlusCustomLineCap, PathCap(1).Append(Sized(LinePath()).Data()));
  ASSERT_TRUE(cap);
  const auto& paths = std::get<EmfPlusPathCap>(*cap);
  EXPECT_EQ(paths.baseCap, EmfPlusLineCap::kRound);
  EXPECT_EQ(paths.baseInset, 1.5F);
  EXPECT_EQ(paths.strokeStartCap, EmfPlusLineCap::kSquare);
  EXPECT_EQ(paths.strokeEndCap, EmfPlusLineCap::kTriangle);
  EXPECT_EQ(paths.strokeJoin, EmfPlusLineJoin::kRound);
  EXPECT_EQ(paths.miterLimit, 4);
  EXPECT_EQ(paths.widthScale, 0.5F);
  ASSERT_TRUE(paths.fill);
  EXPECT_EQ(paths.fill->points.size(), 2U);
  EXPECT_FALSE(paths.stroke);
}

TEST(EmfPlusCustomLineCap, MayBeStrokedOrBoth) {
  const Bytes path = Sized(LinePath());
  const auto stroked = ReadWhole(ReadEmfPlusCustomLineCap, PathCap(2).Append(path.Data()));
  ASSERT_TRUE(stroked);
  EXPECT_FALSE(std::get<EmfPlusPathCap>(*stroked).fill);
  EXPECT_TRUE(std::get<EmfPlusPathCap>(*stroked).stroke);

  const auto both =
      ReadWhole(ReadEmfPlusCustomLineCap, PathCap(3).Append(path.Data()).Append(path.Data()));
  ASSERT_TRUE(both);
  EXPECT_TRUE(std::get<EmfPlusPathCap>(*both).fill);
  EXPECT_TRUE(std::get<EmfPlusPathCap>(*both).stroke);
}

TEST(EmfPlusCustomLineCap, MayBeAnArrow) {
  const auto cap = ReadWhole(ReadEmfPlusCustomLineCap, ArrowCap());
  ASSERT_TRUE(cap);
  const auto& arrow = std::get<EmfPlusArrowCap>(*cap);
  EXPECT_EQ(arrow.width, 5);
  EXPECT_EQ(arrow.height, 6);
  EXPECT_EQ(arrow.middleInset, 7);
  EXPECT_TRUE(arrow.isFilled);
  EXPECT_EQ(arrow.lineStartCap, EmfPlusLineCap::kRound);
  EXPECT_EQ(arrow.lineEndCap, EmfPlusLineCap::kTriangle);
  EXPECT_EQ(arrow.lineJoin, EmfPlusLineJoin::kBevel);
  EXPECT_EQ(arrow.miterLimit, 8);
  EXPECT_EQ(arrow.widthScale, 9);
}

TEST(EmfPlusCustomLineCap, IsNoneOfAnotherTypeOrWithoutItsPath) {
  for (const Bytes& bytes : {Bytes().U32(kVersion).I32(2).Zeros(64), PathCap(1).U32(0xFFFFFFFF),
                             PathCap(1).U32(4).Append(LinePath().Data())}) {
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusCustomLineCap(view));
  }
}

TEST(EmfPlusPen, NeedsNoMoreThanAUnitAWidthAndABrush) {
  const auto pen = ReadWhole(ReadEmfPlusPen, Pen(0).Append(SolidBrush(0x80FF0000).Data()));
  ASSERT_TRUE(pen);
  EXPECT_EQ(pen->unit, EmfPlusUnit::kPixel);
  EXPECT_EQ(pen->width, 3.5F);
  EXPECT_EQ(std::get<Argb>(pen->brush), kRed);
  EXPECT_EQ(pen->startCap, EmfPlusLineCap::kFlat);
  EXPECT_EQ(pen->join, EmfPlusLineJoin::kMiter);
  EXPECT_EQ(pen->miterLimit, 10);
  EXPECT_EQ(pen->style, EmfPlusLineStyle::kSolid);
  EXPECT_EQ(pen->alignment, EmfPlusPenAlignment::kCenter);
  EXPECT_TRUE(pen->dashes.empty());
  EXPECT_FALSE(pen->customStartCap);
}

TEST(EmfPlusPen, MayHaveEveryField) {
  const auto pen = ReadWhole(ReadEmfPlusPen, Pen(kEveryField)
                                                 .F32(1)
                                                 .F32(2)
                                                 .F32(3)
                                                 .F32(4)
                                                 .F32(5)
                                                 .F32(6)
                                                 .I32(0xFF)
                                                 .I32(0x14)
                                                 .I32(2)
                                                 .F32(7)
                                                 .I32(5)
                                                 .I32(3)
                                                 .F32(8)
                                                 .U32(2)
                                                 .F32(9)
                                                 .F32(10)
                                                 .I32(1)
                                                 .U32(2)
                                                 .F32(0)
                                                 .F32(0.5F)
                                                 .Append(Sized(ArrowCap()).Data())
                                                 .Append(Sized(PathCap(0)).Data())
                                                 .Append(SolidBrush(0x80FF0000).Data()));
  ASSERT_TRUE(pen);
  EXPECT_EQ(pen->transform, (XForm{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(pen->startCap, EmfPlusLineCap::kCustom);
  EXPECT_EQ(pen->endCap, EmfPlusLineCap::kArrowAnchor);
  EXPECT_EQ(pen->join, EmfPlusLineJoin::kRound);
  EXPECT_EQ(pen->miterLimit, 7);
  EXPECT_EQ(pen->style, EmfPlusLineStyle::kCustom);
  EXPECT_EQ(pen->dashCap, EmfPlusDashCap::kTriangle);
  EXPECT_EQ(pen->dashOffset, 8);
  EXPECT_EQ(pen->dashes, (std::vector<float>{9, 10}));
  EXPECT_EQ(pen->alignment, EmfPlusPenAlignment::kInset);
  EXPECT_EQ(pen->compound, (std::vector<float>{0, 0.5F}));
  ASSERT_TRUE(pen->customStartCap);
  EXPECT_TRUE(std::holds_alternative<EmfPlusArrowCap>(*pen->customStartCap));
  ASSERT_TRUE(pen->customEndCap);
  EXPECT_TRUE(std::holds_alternative<EmfPlusPathCap>(*pen->customEndCap));
  EXPECT_EQ(std::get<Argb>(pen->brush), kRed);
}

TEST(EmfPlusPen, CannotCountMoreThanThereIs) {
  constexpr std::uint32_t kMany = 0xFFFFFFFF;
  for (const std::uint32_t field : {0x100U, 0x400U, 0x800U, 0x1000U}) {
    const Bytes bytes = Pen(field).U32(kMany).Append(SolidBrush(0).Data());
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusPen(view)) << field;
  }
}

}  // namespace
}  // namespace kelvane::test
