#include "platform/quartz/cg_image.h"

#include <atomic>
#include <limits>
#include <utility>

#include "platform/quartz/cg_image_rows.h"

namespace kelvane {
namespace {

std::uint64_t NextSerial() {
  static std::atomic<std::uint64_t> last{0};
  return ++last;
}

// How many bytes a provider will have made is not known yet.
std::size_t SizeOf(const CGDataProvider& provider) {
  return provider.MakesBytes() ? std::numeric_limits<std::size_t>::max() : provider.Bytes().size();
}

/// @return the pixels as an image; null when their rows do not fit into the provider's bytes.
CGImageRef ImageOfPixels(CGImageParts parts) {
  const std::size_t bitsPerPixel = parts.components * parts.bitsPerComponent;
  constexpr std::size_t kMostBits = std::numeric_limits<std::size_t>::max() - 7;
  if (parts.width > kMostBits / bitsPerPixel) return nullptr;
  const std::size_t rowSize = (parts.width * bitsPerPixel + 7) / 8;
  if (!RowsFit(SizeOf(*parts.provider), rowSize, parts.height, parts.bytesPerRow)) return nullptr;
  return new CGImage(std::move(parts));
}

bool AreBitsOf(const CGColorSpace& space, std::size_t bits) {
  return bits == 8 || (space.IsIndexed() && (bits == 1 || bits == 2 || bits == 4));
}

bool CanBeAMask(const CGImage& image) {
  const bool isGrey = image.components == 1 && image.indexed == nullptr &&
                      image.encoding == CGImage::Encoding::kPixels;
  return image.isMask || (isGrey && image.mask == nullptr);
}

}  // namespace

CGImage::CGImage(CGImageParts parts) : CGImageParts(std::move(parts)), serial(NextSerial()) {}

CGImageRef CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                         std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef space,
                         CGBitmapInfo bitmapInfo, CGDataProviderRef provider, const CGFloat* decode,
                         bool shouldInterpolate, CGColorRenderingIntent /*intent*/) {
  if (space == nullptr || provider == nullptr || decode != nullptr || bitmapInfo != 0)
    return nullptr;
  if (!AreBitsOf(*space, bitsPerComponent)) return nullptr;
  if (bitsPerPixel != bitsPerComponent * space->components) return nullptr;
  return ImageOfPixels({.width = width,
                        .height = height,
                        .bitsPerComponent = bitsPerComponent,
                        .bytesPerRow = bytesPerRow,
                        .components = space->components,
                        .interpolate = shouldInterpolate,
                        .provider = CFShare(provider),
                        .indexed = CFShare(space->IsIndexed() ? space : nullptr)});
}

CGImageRef CGImageMaskCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                             std::size_t bitsPerPixel, std::size_t bytesPerRow,
                             CGDataProviderRef provider, const CGFloat* decode,
                             bool shouldInterpolate) {
  if (provider == nullptr || decode != nullptr) return nullptr;
  if (bitsPerComponent != 1 || bitsPerPixel != 1) return nullptr;
  return ImageOfPixels({.width = width,
                        .height = height,
                        .bitsPerComponent = 1,
                        .bytesPerRow = bytesPerRow,
                        .interpolate = shouldInterpolate,
                        .isMask = true,
                        .provider = CFShare(provider)});
}

CGImageRef CGImageCreateWithMask(CGImageRef image, CGImageRef mask) {
  if (image == nullptr || mask == nullptr) return nullptr;
  if (image->isMask || !CanBeAMask(*mask)) return nullptr;
  return new CGImage({.width = image->width,
                      .height = image->height,
                      .bitsPerComponent = image->bitsPerComponent,
                      .bytesPerRow = image->bytesPerRow,
                      .components = image->components,
                      .interpolate = image->interpolate,
                      .encoding = image->encoding,
                      .provider = CFShare(image->provider.get()),
                      .indexed = CFShare(image->indexed.get()),
                      .mask = CFShare(mask)});
}

CGImageRef CGImageCreateWithJPEG(std::size_t width, std::size_t height, std::size_t components,
                                 CGDataProviderRef provider, bool shouldInterpolate) {
  if (width == 0 || height == 0 || provider == nullptr) return nullptr;
  if (components != 1 && components != 3) return nullptr;
  return new CGImage({.width = width,
                      .height = height,
                      .components = components,
                      .interpolate = shouldInterpolate,
                      .encoding = CGImage::Encoding::kJpeg,
                      .provider = CFShare(provider)});
}

}  // namespace kelvane
