#include "platform/quartz/cg_image.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "platform/quartz/cg_image_rows.h"
#include "support/images.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::ByteList;
using test::GrayOf;
using test::IndexedOf;
using test::Masked;
using test::MaskOf;

constexpr std::size_t kHuge = std::numeric_limits<std::size_t>::max();

/// What CGImageCreate is asked for; as it stands, a good image of 2 x 2 RGB pixels.
struct Request {
  std::size_t width = 2;
  std::size_t height = 2;
  std::size_t bitsPerComponent = 8;
  std::size_t bitsPerPixel = 24;
  std::size_t bytesPerRow = 6;
  std::size_t components = 3;
  CGBitmapInfo info = 0;
  std::size_t byteCount = 12;
  const CGFloat* decode = nullptr;
};

CFOwned<const CGImage> Create(const Request& r) {
  const CFOwned<const CGColorSpace> space(r.components == 1 ? CGColorSpaceCreateDeviceGray()
                                                            : CGColorSpaceCreateDeviceRGB());
  const auto provider = test::ProviderOf(ByteList(r.byteCount));
  return CFOwned<const CGImage>(CGImageCreate(r.width, r.height, r.bitsPerComponent, r.bitsPerPixel,
                                              r.bytesPerRow, space.get(), r.info, provider.get(),
                                              r.decode, true, kCGRenderingIntentDefault));
}

TEST(CGImageCreate, KeepsTheLayout) {
  const auto image = Create({.width = 2, .height = 3, .bytesPerRow = 8, .byteCount = 24});
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->width, 2U);
  EXPECT_EQ(image->height, 3U);
  EXPECT_EQ(image->bytesPerRow, 8U);
  EXPECT_EQ(image->components, 3U);
  EXPECT_TRUE(image->interpolate);
}

TEST(CGImageCreate, TakesALastRowWithoutPadding) {
  EXPECT_NE(Create({.bytesPerRow = 8, .byteCount = 14}), nullptr);
}

TEST(CGImageCreate, TakesGrey) {
  EXPECT_NE(Create({.bitsPerPixel = 8, .bytesPerRow = 2, .components = 1, .byteCount = 4}),
            nullptr);
}

TEST(CGImageCreate, KeepsTheProvider) {
  auto provider = test::ProviderOf(ByteList{7});
  const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
  const CFOwned<const CGImage> image(CGImageCreate(1, 1, 8, 8, 1, gray.get(), 0, provider.get(),
                                                   nullptr, false, kCGRenderingIntentDefault));
  provider.reset();
  EXPECT_EQ(image->provider->Bytes()[0], 7);
}

constexpr CGFloat kDecode[] = {1, 0};

class ImageRefusal : public testing::TestWithParam<std::pair<const char*, Request>> {};

TEST_P(ImageRefusal, IsNull) {
  EXPECT_EQ(Create(GetParam().second), nullptr);
}

INSTANTIATE_TEST_SUITE_P(
    Requests, ImageRefusal,
    testing::Values(
        std::pair{"NoWidth", Request{.width = 0}}, std::pair{"NoHeight", Request{.height = 0}},
        std::pair{"NoRowBytes", Request{.bytesPerRow = 0}},
        std::pair{"OneBit", Request{.bitsPerComponent = 1}},
        std::pair{"SixteenBits", Request{.bitsPerComponent = 16}},
        std::pair{"AlphaByte", Request{.bitsPerPixel = 32, .bytesPerRow = 8, .byteCount = 16}},
        std::pair{"GreyPixelsInRGB", Request{.bitsPerPixel = 8}},
        std::pair{"AlphaInfo", Request{.info = 1}}, std::pair{"Decode", Request{.decode = kDecode}},
        std::pair{"RowsTooShort", Request{.bytesPerRow = 5}},
        std::pair{"DataTooShort", Request{.byteCount = 11}},
        std::pair{"NoData", Request{.byteCount = 0}},
        std::pair{"WidthThatWraps", Request{.width = kHuge / 3 + 2, .bytesPerRow = 6}},
        std::pair{"HeightThatWraps", Request{.height = kHuge / 6 + 2}},
        std::pair{"RowsThatWrap", Request{.bytesPerRow = kHuge}}),
    [](const auto& row) { return std::string(row.param.first); });

TEST(CGImageCreate, IsNullWithoutAColourSpaceOrAProvider) {
  const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
  const auto provider = test::ProviderOf(ByteList{7});
  EXPECT_EQ(CGImageCreate(1, 1, 8, 8, 1, nullptr, 0, provider.get(), nullptr, false,
                          kCGRenderingIntentDefault),
            nullptr);
  EXPECT_EQ(CGImageCreate(1, 1, 8, 8, 1, gray.get(), 0, nullptr, nullptr, false,
                          kCGRenderingIntentDefault),
            nullptr);
}

TEST(CGImageCreate, AsksNoProviderThatMakesItsBytes) {
  int timesAsked = 0;
  EXPECT_NE(GrayOf(2, 2, test::MakerOf({1}, timesAsked)), nullptr);
  EXPECT_EQ(timesAsked, 0);
}

TEST(CGImageCreate, NumbersEachImage) {
  const auto provider = test::ProviderOf({7});
  const auto first = GrayOf(1, 1, provider);
  const auto second = GrayOf(1, 1, provider);
  EXPECT_NE(first->serial, second->serial);
}

constexpr std::size_t kTwoColors = 6;  // bytes of a table

TEST(CGImageCreate, TakesNumbersOfColoursOfAnyOfItsSizes) {
  for (const std::size_t bits : {1U, 2U, 4U, 8U}) {
    const auto image = IndexedOf(9, 1, bits, ByteList(kTwoColors), ByteList((9 * bits + 7) / 8));
    ASSERT_NE(image, nullptr) << bits;
    EXPECT_EQ(image->bitsPerComponent, bits);
    EXPECT_EQ(image->RowSize(), (9 * bits + 7) / 8);
    EXPECT_TRUE(image->indexed->IsIndexed());
  }
}

TEST(CGImageCreate, IsNullForNumbersOfOtherSizes) {
  EXPECT_EQ(IndexedOf(1, 1, 3, ByteList(kTwoColors), {0}), nullptr);
  EXPECT_EQ(IndexedOf(1, 1, 16, ByteList(kTwoColors), {0, 0}), nullptr);
}

TEST(CGImageCreate, IsNullForNumbersThatFallShort) {
  EXPECT_EQ(IndexedOf(9, 1, 1, ByteList(kTwoColors), {0}), nullptr);
}

TEST(CGImageMaskCreate, HasABitForEachPixel) {
  const auto mask = MaskOf(9, 2, {0, 0, 0, 0}, true);
  ASSERT_NE(mask, nullptr);
  EXPECT_TRUE(mask->isMask);
  EXPECT_TRUE(mask->interpolate);
  EXPECT_EQ(mask->bitsPerComponent, 1U);
  EXPECT_EQ(mask->RowSize(), 2U);
}

TEST(CGImageMaskCreate, IsNullForWhatDoesNotAgree) {
  const auto create = [](std::size_t bits, std::size_t bytesPerRow, std::size_t size,
                         const CGFloat* decode = nullptr) {
    return CFOwned<const CGImage>(CGImageMaskCreate(
        9, 1, bits, bits, bytesPerRow, test::ProviderOf(ByteList(size)).get(), decode, false));
  };
  EXPECT_NE(create(1, 2, 2), nullptr);
  EXPECT_EQ(create(8, 9, 9), nullptr);
  EXPECT_EQ(create(1, 1, 2), nullptr);
  EXPECT_EQ(create(1, 2, 1), nullptr);
  EXPECT_EQ(create(1, 2, 2, kDecode), nullptr);
  EXPECT_EQ(CGImageMaskCreate(9, 1, 1, 1, 2, nullptr, nullptr, false), nullptr);
}

TEST(CGImageCreateWithMask, KeepsThePictureAndTheMask) {
  const auto image = IndexedOf(9, 1, 1, ByteList(kTwoColors), {0, 0});
  const auto mask = MaskOf(1, 1, {0});
  const auto masked = Masked(image, mask);
  ASSERT_NE(masked, nullptr);
  EXPECT_EQ(masked->width, 9U);
  EXPECT_EQ(masked->bitsPerComponent, 1U);
  EXPECT_EQ(masked->indexed, image->indexed);
  EXPECT_EQ(masked->provider, image->provider);
  EXPECT_EQ(masked->mask, mask);
  EXPECT_NE(masked->serial, image->serial);
}

TEST(CGImageCreateWithMask, TakesOnlyMasksAndPlainGreyAsMasks) {
  const auto gray = test::ImageOf(1, 1, 1, {7});
  const auto mask = MaskOf(1, 1, {0});
  EXPECT_NE(Masked(gray, gray), nullptr);
  EXPECT_EQ(Masked(gray, test::ImageOf(1, 1, 3, {1, 2, 3})), nullptr);
  EXPECT_EQ(Masked(gray, IndexedOf(1, 1, 8, ByteList(kTwoColors), {0})), nullptr);
  EXPECT_EQ(Masked(gray, Masked(gray, mask)), nullptr);
  EXPECT_EQ(Masked(gray, nullptr), nullptr);
}

TEST(CGImageCreateWithMask, MasksNoMaskAndNothing) {
  const auto mask = MaskOf(1, 1, {0});
  EXPECT_EQ(Masked(mask, mask), nullptr);
  EXPECT_EQ(Masked(nullptr, mask), nullptr);
}

CFOwned<const CGImage> JpegImage(std::size_t width, std::size_t height, std::size_t components,
                                 const CFOwned<const CGDataProvider>& file) {
  return CFOwned<const CGImage>(
      CGImageCreateWithJPEG(width, height, components, file.get(), false));
}

TEST(CGImageCreateWithJPEG, TakesWhatTheHeaderSays) {
  const auto image = JpegImage(8, 9, 3, test::ProviderOf({1}));
  ASSERT_NE(image, nullptr);
  EXPECT_EQ(image->encoding, CGImage::Encoding::kJpeg);
  EXPECT_EQ(image->width, 8U);
  EXPECT_EQ(image->height, 9U);
  EXPECT_EQ(image->components, 3U);
}

TEST(CGImageCreateWithJPEG, IsNullForWhatNoFileHas) {
  const auto file = test::ProviderOf({1});
  EXPECT_EQ(JpegImage(0, 8, 1, file), nullptr);
  EXPECT_EQ(JpegImage(8, 0, 1, file), nullptr);
  EXPECT_EQ(JpegImage(8, 8, 2, file), nullptr);
  EXPECT_EQ(JpegImage(8, 8, 1, nullptr), nullptr);
}

TEST(PackRows, LeavesThePaddingOut) {
  EXPECT_EQ(PackRows(ByteList{1, 2, 0, 0, 3, 4, 0, 0}, 2, 2, 4), (ByteList{1, 2, 3, 4}));
}

TEST(PackRows, TakesALastRowWithoutPadding) {
  EXPECT_EQ(PackRows(ByteList{1, 2, 0, 0, 3, 4}, 2, 2, 4), (ByteList{1, 2, 3, 4}));
}

TEST(PackRows, TakesRowsWithoutPadding) {
  EXPECT_EQ(PackRows(ByteList{1, 2, 3, 4}, 2, 2, 2), (ByteList{1, 2, 3, 4}));
}

TEST(PackRows, HasNoResultForTooFewPixels) {
  EXPECT_EQ(PackRows(ByteList{1, 2, 0, 0, 3}, 2, 2, 4), std::nullopt);
}

TEST(PackRows, HasNoResultForRowsThatOverlap) {
  EXPECT_EQ(PackRows(ByteList{1, 2, 3, 4}, 2, 2, 1), std::nullopt);
}

TEST(PackRows, HasNoResultForSizesThatWrap) {
  EXPECT_EQ(PackRows(ByteList{1, 2, 3, 4}, 1, kHuge, 2), std::nullopt);
  EXPECT_EQ(PackRows(ByteList{1, 2, 3, 4}, kHuge, 1, kHuge), std::nullopt);
  EXPECT_EQ(PackRows(ByteList{1, 2, 3, 4}, 1, 3, kHuge), std::nullopt);
}

}  // namespace
}  // namespace kelvane
