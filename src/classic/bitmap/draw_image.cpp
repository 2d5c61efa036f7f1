#include "classic/bitmap/draw_image.h"

#include <cstddef>

#include "classic/context/coordinates.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_data_provider.h"
#include "platform/quartz/cg_image.h"

namespace kelvane {
namespace {

CFOwned<const CGColorSpace> ColorSpaceOf(const DIB& dib) {
  return CFOwned<const CGColorSpace>(dib.header.biBitCount == 24 ? CGColorSpaceCreateDeviceRGB()
                                                                 : CGColorSpaceCreateDeviceGray());
}

// The image only borrows the bitmap's bytes.
CFOwned<const CGImage> ImageOver(const DIB& dib) {
  constexpr std::size_t kBitsPerComponent = 8;
  constexpr CGBitmapInfo kNoAlpha = 0;
  constexpr bool kInterpolate = true;
  const CFOwned<const CGDataProvider> provider(
      CGDataProviderCreateWithData(nullptr, dib.data.data(), dib.size, nullptr));
  const auto width = static_cast<std::size_t>(dib.header.biWidth);
  const auto height = static_cast<std::size_t>(dib.header.biHeight);
  return CFOwned<const CGImage>(CGImageCreate(width, height, kBitsPerComponent,
                                              dib.header.biBitCount, dib.size / height,
                                              ColorSpaceOf(dib).get(), kNoAlpha, provider.get(),
                                              nullptr, kInterpolate, kCGRenderingIntentDefault));
}

}  // namespace

void DrawImageInRect(AbstractContext& context, const DIB& dib, const RectangleL& rectangle) {
  if (dib.data.empty()) return;
  const CGRect page = RectangleToCGRect(context, rectangle);
  const CGRect user = CGContextConvertRectToUserSpace(context.context, page);
  CGContextDrawImage(context.context, user, ImageOver(dib).get());
}

}  // namespace kelvane
