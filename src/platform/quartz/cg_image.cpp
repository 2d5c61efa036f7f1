#include "platform/quartz/cg_image.h"

namespace kelvane {
namespace {

// True when `rows` rows, `bytesPerRow` apart and the last only `width` bytes long, lie within
// `size` bytes. Divides instead of multiplying, so no size can wrap.
bool RowsFit(std::size_t size, std::size_t width, std::size_t rows, std::size_t bytesPerRow) {
  if (width == 0 || rows == 0 || bytesPerRow < width || size < width) return false;
  return (size - width) / bytesPerRow >= rows - 1;
}

}  // namespace

CGImageRef CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                         std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef space,
                         CGBitmapInfo bitmapInfo, CGDataProviderRef provider, const CGFloat* decode,
                         bool shouldInterpolate, CGColorRenderingIntent /*intent*/) {
  if (space == nullptr || provider == nullptr || decode != nullptr || bitmapInfo != 0)
    return nullptr;
  const std::size_t components = space->components;
  if (bitsPerComponent != 8 || bitsPerPixel != 8 * components) return nullptr;
  if (width > bytesPerRow / components) return nullptr;
  if (!RowsFit(provider->Bytes().size(), width * components, height, bytesPerRow)) return nullptr;
  return new CGImage(width, height, bytesPerRow, components, shouldInterpolate, provider);
}

std::optional<std::vector<unsigned char>> PackRows(std::span<const unsigned char> pixels,
                                                   std::size_t width, std::size_t height,
                                                   std::size_t bytesPerRow) {
  if (!RowsFit(pixels.size(), width, height, bytesPerRow)) return std::nullopt;
  std::vector<unsigned char> packed;
  packed.reserve(width * height);
  for (std::size_t row = 0; row < height; ++row) {
    const auto bytes = pixels.subspan(row * bytesPerRow, width);
    packed.insert(packed.end(), bytes.begin(), bytes.end());
  }
  return packed;
}

}  // namespace kelvane
