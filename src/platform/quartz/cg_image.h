#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_data_provider.h"

namespace kelvane {

using CGBitmapInfo = std::uint32_t;  // 0: no alpha, the only layout there is
enum CGColorRenderingIntent : std::uint8_t { kCGRenderingIntentDefault = 0 };

/// A picture of 8-bit components, rows top first. The bytes stay the provider's.
class CGImage final : public CFObject {
 public:
  CGImage(std::size_t pixelsWide, std::size_t pixelsHigh, std::size_t rowStride,
          std::size_t componentCount, bool shouldInterpolate, CGDataProviderRef source)
      : width(pixelsWide),
        height(pixelsHigh),
        bytesPerRow(rowStride),
        components(componentCount),
        interpolate(shouldInterpolate),
        provider(CFShare(source)) {}

  const std::size_t width;        // pixels, at least 1
  const std::size_t height;       // rows, at least 1
  const std::size_t bytesPerRow;  // at least width * components
  const std::size_t components;   // 1 grey, 3 RGB
  const bool interpolate;
  const CFOwned<const CGDataProvider> provider;
};

using CGImageRef = const CGImage*;

/// @param bitsPerComponent  8; `bitsPerPixel` 8 times the space's components.
/// @param provider          rows top first, `bytesPerRow` apart; the last row may end after its
///                          pixels. Retained.
/// @param decode            null: components are taken as they stand.
/// @return an image owned by the caller; null when the sizes, the layout and the provider's bytes
///         do not agree. Throws std::bad_alloc.
CGImageRef CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                         std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef space,
                         CGBitmapInfo bitmapInfo, CGDataProviderRef provider, const CGFloat* decode,
                         bool shouldInterpolate, CGColorRenderingIntent intent);

/// Copies an image's rows without their padding, as documents store them.
/// @param pixels       borrowed for the call; rows top first, `bytesPerRow` bytes apart.
/// @param width        bytes used in each row (pixels times components), at least 1.
/// @param height       rows, at least 1.
/// @param bytesPerRow  at least `width`; the last row may end after `width` bytes.
/// @return width * height bytes owned by the caller; nullopt if `pixels` is too short. Throws only
///         std::bad_alloc.
[[nodiscard]] std::optional<std::vector<unsigned char>> PackRows(
    std::span<const unsigned char> pixels, std::size_t width, std::size_t height,
    std::size_t bytesPerRow);

}  // namespace kelvane
