#include "gdi/sample_images.h"

#include <utility>

namespace kelvane {
namespace {

constexpr std::size_t kBitsOfAByte = 8;

}  // namespace

CFOwned<const CGDataProvider> ProviderOf(std::vector<unsigned char> bytes) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  data->bytes = std::move(bytes);
  return CFOwned<const CGDataProvider>(CGDataProviderCreateWithCFData(data.get()));
}

CFOwned<const CGImage> ImageOfSamples(const SampleLayout& layout, const CGDataProvider& provider) {
  const std::size_t bits = layout.bits * layout.space->components;
  return CFOwned<const CGImage>(CGImageCreate(
      layout.width, layout.height, layout.bits, bits, BytesOfSamples(layout.width, bits),
      layout.space.get(), 0, &provider, nullptr, layout.isSmooth, kCGRenderingIntentDefault));
}

CFOwned<const CGImage> ImageOfRgb(std::size_t width, std::size_t height,
                                  std::vector<unsigned char> rgb, bool isSmooth) {
  CFOwned<const CGColorSpace> space(CGColorSpaceCreateDeviceRGB());
  return ImageOfSamples({width, height, kBitsOfAByte, std::move(space), isSmooth},
                        *ProviderOf(std::move(rgb)));
}

CFOwned<const CGImage> ImageOfGray(std::size_t width, std::size_t height,
                                   std::vector<unsigned char> gray, bool isSmooth) {
  CFOwned<const CGColorSpace> space(CGColorSpaceCreateDeviceGray());
  return ImageOfSamples({width, height, kBitsOfAByte, std::move(space), isSmooth},
                        *ProviderOf(std::move(gray)));
}

}  // namespace kelvane
