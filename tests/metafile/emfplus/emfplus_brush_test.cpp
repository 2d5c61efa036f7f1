#include "metafile/emfplus/emfplus_brush.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"

namespace kelvane::test {
namespace {

constexpr Argb kRed = {0, 0, 255, 128};
constexpr Argb kGreen = {0, 255, 0, 255};
constexpr XForm kMatrix = {1, 2, 3, 4, 5, 6};

// Of gradients and textures.
constexpr std::uint32_t kHasPath = 0x1;
constexpr std::uint32_t kHasTransform = 0x2;
constexpr std::uint32_t kHasColors = 0x4;
constexpr std::uint32_t kHasFactors = 0x8;
constexpr std::uint32_t kHasVerticalFactors = 0x10;
constexpr std::uint32_t kHasFocus = 0x40;
constexpr std::uint32_t kGamma = 0x80;
constexpr std::uint32_t kInPlace = 0x100;

using Floats = std::vector<float>;

Bytes Brush(std::uint32_t type) {
  return Bytes().U32(kVersion).U32(type);
}

Bytes Matrix() {
  return Bytes().F32(1).F32(2).F32(3).F32(4).F32(5).F32(6);
}

Bytes Factors(float first) {
  return Bytes().U32(2).F32(0).F32(1).F32(first).F32(0.75F);
}

Bytes Colors() {
  return Bytes().U32(2).F32(0).F32(1).U32(0x80FF0000).U32(0xFF00FF00);
}

/// @return the brush, when it is of that kind.
template <class T>
const T* As(const std::optional<EmfPlusBrush>& brush) {
  return brush ? std::get_if<T>(&*brush) : nullptr;
}

TEST(EmfPlusBrush, MayBeAColor) {
  const auto brush = ReadWhole(ReadEmfPlusBrush, SolidBrush(0x80FF0000));
  ASSERT_NE(As<Argb>(brush), nullptr);
  EXPECT_EQ(*As<Argb>(brush), kRed);
}

TEST(EmfPlusBrush, MayBeAHatch) {
  const auto brush = ReadWhole(ReadEmfPlusBrush, Brush(1).U32(52).U32(0x80FF0000).U32(0xFF00FF00));
  const auto* hatch = As<EmfPlusHatchBrush>(brush);
  ASSERT_NE(hatch, nullptr);
  EXPECT_EQ(hatch->style, 52U);
  EXPECT_EQ(hatch->foreground, kRed);
  EXPECT_EQ(hatch->background, kGreen);
}

TEST(EmfPlusBrush, MayBeATexture) {
  const Bytes bytes = Brush(2)
                          .U32(kHasTransform | kInPlace)
                          .I32(3)
                          .Append(Matrix().Data())
                          .Append(PixelImage().Data());
  ByteView view(bytes.Data());
  const auto brush = ReadEmfPlusBrush(view);
  const auto* texture = As<EmfPlusTextureBrush>(brush);
  ASSERT_NE(texture, nullptr);
  EXPECT_EQ(texture->wrap, EmfPlusWrapMode::kTileFlipXY);
  EXPECT_TRUE(texture->staysInPlace);
  EXPECT_EQ(texture->transform, kMatrix);
  ASSERT_TRUE(texture->image);
  EXPECT_EQ(std::get<EmfPlusPixels>(*texture->image).width, 1U);
}

TEST(EmfPlusBrush, MayBeATextureWithoutAnImageButNotWithHalfOfOne) {
  const Bytes without = Brush(2).U32(0).I32(0);
  ByteView view(without.Data());
  const auto brush = ReadEmfPlusBrush(view);
  const auto* texture = As<EmfPlusTextureBrush>(brush);
  ASSERT_NE(texture, nullptr);
  EXPECT_FALSE(texture->image);
  EXPECT_EQ(texture->transform, (XForm{1, 0, 0, 1, 0, 0}));

  const Bytes half = Brush(2).U32(0).I32(0).U32(kVersion);
  view = ByteView(half.Data());
  EXPECT_FALSE(ReadEmfPlusBrush(view));
}

Bytes LinearGradient(std::uint32_t flags) {
  return Brush(4)
      .U32(flags)
      .I32(1)
      .F32(1)
      .F32(2)
      .F32(3)
      .F32(4)
      .U32(0x80FF0000)
      .U32(0xFF00FF00)
      .Zeros(8);
}

TEST(EmfPlusBrush, MayBeALinearGradient) {
  const auto brush = ReadWhole(ReadEmfPlusBrush, LinearGradient(kGamma | kInPlace));
  const auto* gradient = As<EmfPlusLinearGradientBrush>(brush);
  ASSERT_NE(gradient, nullptr);
  EXPECT_EQ(gradient->wrap, EmfPlusWrapMode::kTileFlipX);
  EXPECT_TRUE(gradient->isGammaCorrected);
  EXPECT_TRUE(gradient->staysInPlace);
  EXPECT_EQ(gradient->rectangle, (RectF{1, 2, 3, 4}));
  EXPECT_EQ(gradient->start, kRed);
  EXPECT_EQ(gradient->end, kGreen);
  EXPECT_EQ(gradient->transform, (XForm{1, 0, 0, 1, 0, 0}));
  EXPECT_TRUE(gradient->blend.positions.empty());
}

TEST(EmfPlusBrush, MayBlendBothWays) {
  const auto brush =
      ReadWhole(ReadEmfPlusBrush, LinearGradient(kHasTransform | kHasFactors | kHasVerticalFactors)
                                      .Append(Matrix().Data())
                                      .Append(Factors(0.25F).Data())
                                      .Append(Factors(0.5F).Data()));
  const auto* gradient = As<EmfPlusLinearGradientBrush>(brush);
  ASSERT_NE(gradient, nullptr);
  EXPECT_EQ(gradient->transform, kMatrix);
  EXPECT_EQ(gradient->blend.positions, (Floats{0, 1}));
  EXPECT_EQ(gradient->blend.factors, (Floats{0.25F, 0.75F}));
  EXPECT_TRUE(gradient->blend.colors.empty());
  EXPECT_EQ(gradient->verticalBlend.factors, (Floats{0.5F, 0.75F}));
}

TEST(EmfPlusBrush, MayHaveColorsInPlaceOfFactors) {
  const auto brush =
      ReadWhole(ReadEmfPlusBrush, LinearGradient(kHasColors | kHasFactors).Append(Colors().Data()));
  const auto* gradient = As<EmfPlusLinearGradientBrush>(brush);
  ASSERT_NE(gradient, nullptr);
  EXPECT_EQ(gradient->blend.positions, (Floats{0, 1}));
  EXPECT_EQ(gradient->blend.colors, (std::vector<Argb>{kRed, kGreen}));
  EXPECT_TRUE(gradient->blend.factors.empty());
}

Bytes PathGradient(std::uint32_t flags) {
  return Brush(3).U32(flags).I32(4).U32(0x80FF0000).F32(5).F32(6).U32(1).U32(0xFF00FF00);
}

TEST(EmfPlusBrush, MayBeAPathGradientOfPoints) {
  const auto brush =
      ReadWhole(ReadEmfPlusBrush, PathGradient(0).U32(2).F32(1).F32(2).F32(3).F32(4));
  const auto* gradient = As<EmfPlusPathGradientBrush>(brush);
  ASSERT_NE(gradient, nullptr);
  EXPECT_EQ(gradient->wrap, EmfPlusWrapMode::kClamp);
  EXPECT_EQ(gradient->centerColor, kRed);
  EXPECT_EQ(gradient->center, (PointF{5, 6}));
  EXPECT_EQ(gradient->surroundColors, (std::vector<Argb>{kGreen}));
  EXPECT_EQ(std::get<std::vector<PointF>>(gradient->boundary),
            (std::vector<PointF>{{1, 2}, {3, 4}}));
  EXPECT_EQ(gradient->focusScales, (PointF{}));
}

TEST(EmfPlusBrush, MayBeAPathGradientWithAllThereIs) {
  const Bytes path = LinePath();
  const auto brush =
      ReadWhole(ReadEmfPlusBrush,
                PathGradient(kHasPath | kHasTransform | kHasFactors | kHasFocus | kGamma | kInPlace)
                    .U32(static_cast<std::uint32_t>(path.Size()))
                    .Append(path.Data())
                    .Append(Matrix().Data())
                    .Append(Factors(0.25F).Data())
                    .U32(2)
                    .F32(0.5F)
                    .F32(0.125F));
  const auto* gradient = As<EmfPlusPathGradientBrush>(brush);
  ASSERT_NE(gradient, nullptr);
  EXPECT_TRUE(gradient->isGammaCorrected);
  EXPECT_TRUE(gradient->staysInPlace);
  EXPECT_EQ(std::get<EmfPlusPath>(gradient->boundary).points,
            (std::vector<PointF>{{1, 2}, {3, 4}}));
  EXPECT_EQ(gradient->transform, kMatrix);
  EXPECT_EQ(gradient->blend.factors, (Floats{0.25F, 0.75F}));
  EXPECT_EQ(gradient->focusScales, (PointF{0.5F, 0.125F}));
}

TEST(EmfPlusBrush, CannotCountMoreThanThereIs) {
  constexpr std::uint32_t kMany = 0xFFFFFFFF;
  const Bytes rows[] = {
      LinearGradient(kHasFactors).U32(kMany).Zeros(64),
      LinearGradient(kHasColors).U32(kMany).Zeros(64),
      LinearGradient(kHasVerticalFactors).U32(0x40000000).Zeros(64),
      PathGradient(0).U32(kMany).Zeros(64),
      PathGradient(kHasPath).U32(kMany).Append(LinePath().Data()),
      PathGradient(kHasPath).U32(4).Append(LinePath().Data()),
      PathGradient(kHasFocus).U32(0).U32(3).Zeros(64),
      Brush(3).Zeros(20).U32(kMany).Zeros(64),
  };
  for (const Bytes& bytes : rows) {
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusBrush(view));
  }
}

TEST(EmfPlusBrush, IsOfAKnownTypeAndVersion) {
  for (const Bytes& bytes : {Brush(5).Zeros(64), Bytes().U32(0).U32(0).U32(0)}) {
    ByteView view(bytes.Data());
    EXPECT_FALSE(ReadEmfPlusBrush(view));
  }
}

}  // namespace
}  // namespace kelvane::test
