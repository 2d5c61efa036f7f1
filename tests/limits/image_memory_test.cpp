#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "limits/allocations.h"
#include "platform/corefoundation/cf_data.h"
#include "platform/pdf/cg_pdf_context.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_data_consumer.h"
#include "support/images.h"
#include "support/surface.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kSide = 2000;  // pixels of three bytes
constexpr std::size_t kPixels = kSide * kSide * 3;
constexpr std::size_t kAllowance = 1 << 20;  // for objects, and for what deflating keeps

/// Bytes that do not deflate.
ByteList Noise(std::size_t size) {
  ByteList bytes(size);
  std::uint32_t seed = 1;
  for (unsigned char& byte : bytes) {
    seed = seed * 1664525 + 1013904223;
    byte = static_cast<unsigned char>(seed >> 24);
  }
  return bytes;
}

/// A document's memory, above what the pixels take.
struct Usage {
  std::size_t whileDrawn;
  std::size_t afterwards;
};

Usage Drawing(const CFOwned<const CGImage>& image) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &kPageBox, nullptr));
  CGContextBeginPage(surface.get(), &kPageBox);
  const std::size_t before = LiveBytes();
  StartPeak();
  CGContextDrawImage(surface.get(), kPageBox, image.get());
  return {PeakBytes() - before, LiveBytes() - before};
}

Usage DrawingImage(const ByteList& bytes, std::size_t bytesPerRow) {
  return Drawing(ImageOf(kSide, kSide, 3, bytes, bytesPerRow));
}

/// @return what makes the bytes of an image anew.
CFOwned<const CGDataProvider> NoiseMaker() {
  return CFOwned<const CGDataProvider>(CGDataProviderCreateMaking([] { return Noise(kPixels); }));
}

TEST(DrawingAnImage, TakesNoMoreThanItsPixelsDeflated) {
  const Usage usage = DrawingImage(Noise(kPixels), kSide * 3);
  EXPECT_GT(usage.afterwards, kPixels);  // as they cannot be
  EXPECT_LT(usage.whileDrawn, kPixels + kAllowance);
}

TEST(DrawingAnImage, KeepsOfAFlatOneNextToNothing) {
  const Usage usage = DrawingImage(ByteList(kPixels, 0x80), kSide * 3);
  EXPECT_LT(usage.afterwards, kAllowance);
  EXPECT_LT(usage.whileDrawn, kPixels + kAllowance);  // the room for the worst that could be
}

TEST(DrawingAnImage, TakesOneMoreCopyOfRowsWithPadding) {
  const Usage usage = DrawingImage(Noise(kSide * (kSide * 3 + 4)), kSide * 3 + 4);
  EXPECT_LT(usage.whileDrawn, 2 * kPixels + kAllowance);
  EXPECT_LT(usage.afterwards, kPixels + kAllowance);
}

TEST(DrawingAnImage, TakesPixelsThatAreMadeOnlyUntilTheyAreDeflated) {
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  const CFOwned<const CGImage> image(CGImageCreate(kSide, kSide, 8, 24, kSide * 3, rgb.get(), 0,
                                                   NoiseMaker().get(), nullptr, false,
                                                   kCGRenderingIntentDefault));
  const Usage usage = Drawing(image);
  EXPECT_LT(usage.whileDrawn, 2 * kPixels + kAllowance);
  EXPECT_LT(usage.afterwards, kPixels + kAllowance);
}

TEST(DrawingAnImage, TakesAMaskAndAPictureOneAfterTheOther) {
  const CFOwned<const CGImage> picture(CGImageCreateWithMask(
      GrayOf(kSide * 3, kSide, NoiseMaker()).get(), GrayOf(kSide, kSide * 3, NoiseMaker()).get()));
  const Usage usage = Drawing(picture);
  EXPECT_LT(usage.whileDrawn, 3 * kPixels + kAllowance);  // one deflated, one made and deflated
  EXPECT_LT(usage.afterwards, 2 * kPixels + kAllowance);
}

TEST(DrawingAnImage, TakesAJpegFileAsItLies) {
  const ByteList file = Noise(kPixels);
  const auto drawing = [](const CFOwned<const CGDataProvider>& provider) {
    return Drawing(
        CFOwned<const CGImage>(CGImageCreateWithJPEG(kSide, kSide, 3, provider.get(), false)));
  };
  EXPECT_LT(drawing(ProviderOf(file)).whileDrawn, kAllowance);
  EXPECT_LT(drawing(NoiseMaker()).whileDrawn, kPixels + kAllowance);
}

}  // namespace
}  // namespace kelvane::test
