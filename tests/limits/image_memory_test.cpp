#include <cstdint>
#include <vector>

#include <gtest/gtest.h>

#include "limits/allocations.h"
#include "platform/corefoundation/cf_data.h"
#include "platform/pdf/cg_pdf_context.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_data_consumer.h"
#include "support/surface.h"

namespace kelvane::test {
namespace {

using ByteList = std::vector<unsigned char>;

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

Usage DrawingImage(const ByteList& bytes, std::size_t bytesPerRow) {
  const auto image = ImageOf(kSide, kSide, 3, bytes, bytesPerRow);
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGPDFContextCreate(consumer.get(), &kPageBox, nullptr));
  CGContextBeginPage(surface.get(), &kPageBox);
  const std::size_t before = LiveBytes();
  StartPeak();
  CGContextDrawImage(surface.get(), kPageBox, image.get());
  return {PeakBytes() - before, LiveBytes() - before};
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

}  // namespace
}  // namespace kelvane::test
