#include "support/images.h"

#include <initializer_list>

#include "support/surface.h"

namespace kelvane::test {

CFOwned<const CGDataProvider> MakerOf(const ByteList& bytes, int& timesAsked) {
  return CFOwned<const CGDataProvider>(CGDataProviderCreateMaking([bytes, &timesAsked] {
    ++timesAsked;
    return bytes;
  }));
}

CFOwned<const CGImage> GrayOf(std::size_t width, std::size_t height,
                              const CFOwned<const CGDataProvider>& provider) {
  const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
  return CFOwned<const CGImage>(CGImageCreate(width, height, 8, 8, width, gray.get(), 0,
                                              provider.get(), nullptr, false,
                                              kCGRenderingIntentDefault));
}

CFOwned<const CGImage> MaskOf(std::size_t width, std::size_t height, const ByteList& rows,
                              bool interpolate) {
  return CFOwned<const CGImage>(CGImageMaskCreate(width, height, 1, 1, (width + 7) / 8,
                                                  ProviderOf(rows).get(), nullptr, interpolate));
}

CFOwned<const CGImage> IndexedOf(std::size_t width, std::size_t height, std::size_t bits,
                                 const ByteList& colors, const ByteList& rows) {
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  const CFOwned<const CGColorSpace> space(
      CGColorSpaceCreateIndexed(rgb.get(), colors.size() / 3 - 1, colors.data()));
  return CFOwned<const CGImage>(CGImageCreate(width, height, bits, bits, (width * bits + 7) / 8,
                                              space.get(), 0, ProviderOf(rows).get(), nullptr,
                                              false, kCGRenderingIntentDefault));
}

CFOwned<const CGImage> Masked(const CFOwned<const CGImage>& image,
                              const CFOwned<const CGImage>& mask) {
  return CFOwned<const CGImage>(CGImageCreateWithMask(image.get(), mask.get()));
}

// Nothing but the two codes that a block needs: that its grey is the middle one, and that it ends.
// Both are one bit, 0.
ByteList JpegOf(unsigned char components) {
  ByteList file = {0xFF, 0xD8, 0xFF, 0xDB, 0, 67, 0};  // start; the quantisation table
  file.insert(file.end(), 64, 16);
  const auto append = [&file](std::initializer_list<int> bytes) {
    for (const int byte : bytes)
      file.push_back(static_cast<unsigned char>(byte));
  };
  append({0xFF, 0xC0, 0, 8 + 3 * components, 8, 0, 8, 0, 8, components});  // the frame
  for (int i = 1; i <= components; ++i)
    append({i, 0x11, 0});
  for (const int table : {0x00, 0x10}) {  // a code of one bit for the symbol 0, of DC and of AC
    append({0xFF, 0xC4, 0, 20, table, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
  }
  append({0xFF, 0xDA, 0, 6 + 2 * components, components});  // the scan
  for (int i = 1; i <= components; ++i)
    append({i, 0});
  append({0, 63, 0, components == 1 ? 0x3F : 0x03, 0xFF, 0xD9});  // its bits; the end
  return file;
}

}  // namespace kelvane::test
