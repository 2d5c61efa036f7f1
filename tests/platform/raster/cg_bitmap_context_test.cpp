#include "platform/raster/cg_bitmap_context.h"

#include <array>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "metafile/png_decoder.h"
#include "platform/quartz/cg_context_calls.h"
#include "support/bitmap.h"
#include "support/images.h"

namespace kelvane {
namespace {

using test::BitmapOf;
using test::FillRect;
using test::PngOf;
using test::Raster;
using test::SetFill;
using testing::StartsWith;

using Bytes = std::vector<unsigned char>;

constexpr Raster::Color kBlack = {0, 0, 0};

/// Red, green, blue and alpha of all pixels.
Bytes PixelsOf(const std::string& file) {
  const std::span<const unsigned char> bytes(reinterpret_cast<const unsigned char*>(file.data()),
                                             file.size());
  const auto header = ReadPngHeader(bytes);
  return DecodePngWithAlpha(bytes, {0, 0, header->width, header->height}).value_or(Bytes());
}

TEST(CGBitmapContextCreate, GivesNothingForNoConsumerAndNoSize) {
  EXPECT_EQ(CGBitmapContextCreate(nullptr, {.width = 1, .height = 1}), nullptr);
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  EXPECT_EQ(CGBitmapContextCreate(consumer.get(), {.width = 0, .height = 1}), nullptr);
  EXPECT_EQ(CGBitmapContextCreate(consumer.get(), {.width = 1, .height = 32768}), nullptr);
}

TEST(CGBitmapContext, WritesAFileOfItsSize) {
  const std::string file = PngOf([](CGContextRef) {}, {.width = 30, .height = 20});
  EXPECT_THAT(file, StartsWith("\x89PNG"));
  const Raster picture = test::RasterOfPng(file);
  EXPECT_EQ(picture.Width(), 30);
  EXPECT_EQ(picture.Height(), 20);
  EXPECT_EQ(picture.At(29, 19), test::kWhitePixel);
}

TEST(CGBitmapContext, StretchesThePageOverItsPixels) {
  const Raster picture = test::RasterOfPng(PngOf(
      [](CGContextRef c) {
        SetFill(c, 1, 0, 0);
        FillRect(c, {{50, 0}, {50, 50}});
      },
      {.width = 20, .height = 4}));
  EXPECT_EQ(picture.At(9, 3), test::kWhitePixel);
  EXPECT_EQ(picture.At(10, 3), test::kRedPixel);
  EXPECT_EQ(picture.At(19, 2), test::kRedPixel);
  EXPECT_EQ(picture.At(19, 1), test::kWhitePixel);
}

TEST(CGBitmapContext, HasItsBackgroundBelowAll) {
  EXPECT_EQ(PixelsOf(PngOf([](CGContextRef) {},
                           {.width = 1, .height = 1, .background = CGColor{0, .5F, 1, 1}})),
            (Bytes{0, 128, 255, 255}));
}

TEST(CGBitmapContext, IsClearWhereNothingIsPaintedWithoutABackground) {
  const auto draw = [](CGContextRef c) {
    SetFill(c, 1, .5F, 0);
    CGContextSetAlpha(c, .5F);
    FillRect(c, {{0, 0}, {50, 100}});
  };
  const Bytes pixels = PixelsOf(PngOf(draw, {.width = 2, .height = 1, .background = std::nullopt}));
  ASSERT_EQ(pixels.size(), 8U);
  EXPECT_NEAR(pixels[0], 255, 1);
  EXPECT_NEAR(pixels[1], 128, 1);
  EXPECT_EQ(pixels[3], 128);
  EXPECT_EQ(pixels[7], 0);
}

TEST(CGBitmapContext, MixesMarksWithWhitePaperWithoutABackground) {
  const Bytes pixels = PixelsOf(PngOf(
      [](CGContextRef c) {
        SetFill(c, 1, 0, 0);
        CGContextSetBlendMode(c, kCGBlendModeDifference);
        FillRect(c, {{0, 0}, {50, 100}});
      },
      {.width = 2, .height = 1, .background = std::nullopt}));
  EXPECT_EQ(pixels, (Bytes{0, 255, 255, 255, 255, 255, 255, 255}));
}

TEST(CGBitmapContext, DrawsHairlinesAsOnePixel) {
  for (const int scale : {1, 4}) {
    const Raster picture = BitmapOf(
        [scale](CGContextRef c) {
          CGContextSetLineWidth(c, 0);
          // Through the middle of a row of pixels.
          const CGFloat y = 50 + .5F / static_cast<CGFloat>(scale);
          test::StrokeLine(c, {0, y}, {100, y});
        },
        scale);
    const int row = 50 * scale - 1;
    EXPECT_EQ(picture.At(50 * scale, row), (Raster::Color{0, 0, 0}));
    EXPECT_EQ(picture.At(50 * scale, row - 1), test::kWhitePixel);
    EXPECT_EQ(picture.At(50 * scale, row + 1), test::kWhitePixel);
  }
}

TEST(CGBitmapContext, ShrinksImagesByArea) {
  const auto image = test::ImageOf(2, 2, 1, {0, 255, 255, 0});
  const Raster picture = test::RasterOfPng(PngOf(
      [&](CGContextRef c) {
        CGContextDrawImage(c, {{0, 0}, {100, 100}}, image.get());
      },
      {.width = 1, .height = 1}));
  EXPECT_NEAR(picture.At(0, 0)[0], 128, 8);
}

TEST(CGBitmapContext, LooksAtTheCornersOfPixelsWhereItSmooths) {
  const auto image = test::ImageOf(2, 1, 1, {0, 255});
  const Raster raster = BitmapOf([&](CGContextRef c) {
    CGContextDrawImage(c, {{0, 0}, {100, 100}}, image.get());
  });
  EXPECT_EQ(raster.At(0, 50), kBlack);
  EXPECT_NEAR(raster.At(25, 50)[0], 128, 4);
  EXPECT_EQ(raster.At(50, 50), test::kWhitePixel);
  EXPECT_EQ(raster.At(99, 99), test::kWhitePixel);
}

TEST(CGBitmapContext, LeavesAnImageOfItsOwnSizeAsItIs) {
  const auto image = test::ImageOf(2, 2, 1, {0, 255, 255, 0});
  const Raster raster = BitmapOf([&](CGContextRef c) {
    CGContextDrawImage(c, {{10, 10}, {2, 2}}, image.get());
  });
  EXPECT_EQ(raster.At(10, 88), kBlack);
  EXPECT_EQ(raster.At(11, 88), test::kWhitePixel);
  EXPECT_EQ(raster.At(10, 89), test::kWhitePixel);
  EXPECT_EQ(raster.At(11, 89), kBlack);
}

TEST(CGBitmapContext, LeavesNoSeamBetweenImagesThatMeet) {
  const auto image = test::ImageOf(1, 1, 3, {255, 0, 0});
  const Raster picture = BitmapOf([&](CGContextRef c) {
    CGContextDrawImage(c, {{0, 0}, {33.3F, 100}}, image.get());
    CGContextDrawImage(c, {{33.3F, 0}, {66.7F, 100}}, image.get());
  });
  for (int x = 0; x < 100; ++x)
    EXPECT_EQ(picture.At(x, 50), test::kRedPixel) << x;
}

TEST(CGBitmapContext, PaintsTheFirstPageAlone) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(
      CGBitmapContextCreate(consumer.get(), {.width = 4, .height = 4}));
  for (const CGFloat red : {1.0F, 0.0F}) {
    CGContextBeginPage(surface.get(), &test::kPageBox);
    SetFill(surface.get(), red, 0, 0);
    FillRect(surface.get(), test::kPageBox);
    CGContextEndPage(surface.get());
  }
  surface->Close();
  const Raster picture = test::RasterOfPng({data->bytes.begin(), data->bytes.end()});
  EXPECT_EQ(picture.At(1, 1), test::kRedPixel);
}

TEST(CGBitmapContext, LeavesNothingWithoutClosing) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  CFOwned<CGContext> surface(CGBitmapContextCreate(consumer.get(), {.width = 4, .height = 4}));
  CGContextBeginPage(surface.get(), &test::kPageBox);
  surface.reset();
  EXPECT_TRUE(data->bytes.empty());
}

// What other outputs cannot do.

TEST(CGBitmapContext, CombinesTheBitsOfMarksWithThoseBelow) {
  static constexpr std::uint8_t kPaintXorThere = 0x5A;
  const Raster picture = BitmapOf([](CGContextRef c) {
    SetFill(c, 0x0F / 255.0F, 0x33 / 255.0F, 1);
    FillRect(c, {{0, 0}, {100, 100}});
    c->SetBitOperation(kPaintXorThere);
    SetFill(c, 0x55 / 255.0F, 0, 1);
    CGContextClipToRect(c, {{0, 0}, {50, 100}});
    FillRect(c, {{0, 0}, {100, 50}});
  });
  EXPECT_EQ(picture.At(25, 75), (Raster::Color{0x5A, 0x33, 0}));
  EXPECT_EQ(picture.At(75, 75), (Raster::Color{0x0F, 0x33, 255}));
  EXPECT_EQ(picture.At(25, 25), (Raster::Color{0x0F, 0x33, 255}));
}

TEST(CGBitmapContext, CombinesImagesWithPaintAndWhatIsBelow) {
  static constexpr std::uint8_t kMerged =
      0xCA;  // the image where paint has bits, else what is there
  const auto image = test::ImageOf(1, 1, 3, {0xAA, 0xAA, 0xAA});
  const Raster picture = BitmapOf([&](CGContextRef c) {
    SetFill(c, 0x55 / 255.0F, 0x55 / 255.0F, 0x55 / 255.0F);
    FillRect(c, {{0, 0}, {100, 100}});
    SetFill(c, 0xF0 / 255.0F, 0, 1);
    c->SetBitOperation(kMerged);
    CGContextDrawImage(c, {{0, 0}, {100, 100}}, image.get());
  });
  EXPECT_EQ(picture.At(50, 50), (Raster::Color{0xA5, 0x55, 0xAA}));
}

TEST(CGBitmapContext, MixesMarksAgainOnceABlendModeIsSet) {
  const Raster picture = BitmapOf([](CGContextRef c) {
    c->SetBitOperation(std::uint8_t{0x55});
    CGContextSetBlendMode(c, kCGBlendModeNormal);
    SetFill(c, 1, 0, 0);
    FillRect(c, {{0, 0}, {100, 100}});
  });
  EXPECT_EQ(picture.At(50, 50), test::kRedPixel);
}

}  // namespace
}  // namespace kelvane
