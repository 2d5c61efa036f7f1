#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_data_provider.h"

namespace kelvane {

using CGBitmapInfo = std::uint32_t;  // 0: no alpha, the only layout there is
enum CGColorRenderingIntent : std::uint8_t { kCGRenderingIntentDefault = 0 };

class CGImage;

/// What an image is made of.
struct CGImageParts {
  /// What the provider's bytes are.
  enum class Encoding : std::uint8_t {
    kPixels,  // rows top first, `bytesPerRow` apart, each pixel's components from the high bits on
    kJpeg,    // a whole JPEG file
  };

  std::size_t width = 0;             // pixels, at least 1
  std::size_t height = 0;            // rows, at least 1
  std::size_t bitsPerComponent = 8;  // 1, 2, 4 or 8 of an indexed space, 1 of a mask, else 8
  std::size_t bytesPerRow = 0;       // at least what a row's pixels fill; 0 for a JPEG file
  std::size_t components = 1;        // 1 grey, a mask or numbers of colours; 3 RGB
  bool interpolate = false;
  bool isMask = false;  // where bits are 0 the fill colour or pattern is painted; elsewhere nothing
  Encoding encoding = Encoding::kPixels;
  CFOwned<const CGDataProvider> provider = nullptr;
  CFOwned<const CGColorSpace> indexed =
      nullptr;  // the space of an image of numbers; null for another one

  // A picture over the same square, of whatever size, that tells how much of this one is seen: a
  // mask, whose bits of 1 hide, or grey, which is alpha. Null: all of it.
  CFOwned<const CGImage> mask = nullptr;
};

/// A picture. The bytes stay the provider's.
class CGImage final : public CFObject, public CGImageParts {
 public:
  explicit CGImage(CGImageParts parts);

  /// Of pixels: how many bytes of each row they fill.
  [[nodiscard]] std::size_t RowSize() const {
    return (width * components * bitsPerComponent + 7) / 8;
  }

  const std::uint64_t serial;  // never used for another image in this process
};

using CGImageRef = const CGImage*;

/// @param bitsPerComponent  8; or 1, 2 or 4 of an indexed space.
/// @param bitsPerPixel      as many for each of the space's components.
/// @param provider          rows top first, `bytesPerRow` apart; the last row may end after its
///                          pixels. One that makes its bytes is not asked for them yet; should they
///                          fall short, the image is not drawn. Retained.
/// @param decode            null: components are taken as they stand.
/// @return an image owned by the caller; null when the sizes, the layout and the provider's bytes
///         do not agree. Throws std::bad_alloc.
CGImageRef CGImageCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                         std::size_t bitsPerPixel, std::size_t bytesPerRow, CGColorSpaceRef space,
                         CGBitmapInfo bitmapInfo, CGDataProviderRef provider, const CGFloat* decode,
                         bool shouldInterpolate, CGColorRenderingIntent intent);

/// A stencil: where its bits are 0 it lets the fill colour or pattern through, where they are 1
/// nothing.
/// @param bitsPerComponent  1, as bitsPerPixel.
/// @param bytesPerRow       at least (width + 7) / 8; the high bit is the leftmost pixel.
/// @param provider          as for CGImageCreate.
/// @param decode            null.
/// @return an image owned by the caller; null when what is given does not agree. Throws
///         std::bad_alloc.
CGImageRef CGImageMaskCreate(std::size_t width, std::size_t height, std::size_t bitsPerComponent,
                             std::size_t bitsPerPixel, std::size_t bytesPerRow,
                             CGDataProviderRef provider, const CGFloat* decode,
                             bool shouldInterpolate);

/// The same picture, seen only where a mask lets it be seen.
/// @param image  not a mask. A mask it has already is replaced.
/// @param mask   an image mask, or grey of 8 bits that has no mask itself; of any size. Retained.
/// @return an image owned by the caller; null for a null and for images of other kinds. Throws
///         std::bad_alloc.
CGImageRef CGImageCreateWithMask(CGImageRef image, CGImageRef mask);

/// @param width       these three as the file's header says.
/// @param components  1 (grey) or 3 (colours).
/// @param provider    a whole JPEG file. Retained.
/// @return an image owned by the caller; null for sizes of 0, another number of components and a
///         null provider. Throws std::bad_alloc.
CGImageRef CGImageCreateWithJPEG(std::size_t width, std::size_t height, std::size_t components,
                                 CGDataProviderRef provider, bool shouldInterpolate);

}  // namespace kelvane
