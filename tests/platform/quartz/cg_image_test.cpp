#include "platform/quartz/cg_image.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

#include "support/surface.h"

namespace kelvane {
namespace {

using ByteList = std::vector<unsigned char>;

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
