#include "platform/raster/raster_image.h"

#include <algorithm>
#include <new>
#include <optional>
#include <span>

#include "platform/quartz/cg_image_pixel.h"
#include "platform/quartz/cg_image_rows.h"
#include "platform/raster/cg_bitmap_context.h"
#include "platform/raster/raster_pixel.h"

namespace kelvane {
namespace {

using Bytes = std::span<const unsigned char>;

struct PictureSize {
  std::size_t width;
  std::size_t height;
};

/// One of the parts of a picture, looked up by the picture's pixels: image and mask may differ in
/// size.
class PicturePart {
 public:
  PicturePart(const CGImage& image, const PictureSize& size)
      : image_(image), rows_(image), size_(size) {}

  [[nodiscard]] bool IsWhole() const { return rows_.AreWhole(); }

  /// @param painted  what an image mask is painted in.
  void WriteColors(std::size_t y, std::uint32_t painted, std::uint32_t* to) const {
    const Bytes row = RowAt(y);
    for (std::size_t x = 0; x < size_.width; ++x) {
      const std::size_t column = ColumnAt(x);
      if (image_.isMask) {
        to[x] = AlphaInRow(image_, row, column) != 0 ? painted : 0;
      } else {
        const auto [red, green, blue] = ColorInRow(image_, row, column);
        to[x] = OpaquePixel(red, green, blue);
      }
    }
  }

  /// Fades pixels to how much is seen of each.
  void Fade(std::size_t y, std::uint32_t* pixels) const {
    const Bytes row = RowAt(y);
    for (std::size_t x = 0; x < size_.width; ++x)
      pixels[x] = Faded(pixels[x], AlphaInRow(image_, row, ColumnAt(x)));
  }

 private:
  [[nodiscard]] Bytes RowAt(std::size_t y) const {
    return rows_.Row(y * image_.height / size_.height);
  }
  [[nodiscard]] std::size_t ColumnAt(std::size_t x) const { return x * image_.width / size_.width; }

  const CGImage& image_;
  CGImageRows rows_;
  PictureSize size_;
};

PictureSize SizeOf(const CGImage& image) {
  if (image.mask == nullptr) return {image.width, image.height};
  return {std::max(image.width, image.mask->width), std::max(image.height, image.mask->height)};
}

CairoOwned<cairo_surface_t> Make(const CGImage& image, const CGColor& paint) {
  const PictureSize size = SizeOf(image);
  if (image.encoding != CGImage::Encoding::kPixels) return nullptr;
  if (size.width > kCGBitmapMostASide || size.height > kCGBitmapMostASide) return nullptr;
  const PicturePart colors(image, size);
  std::optional<PicturePart> mask;
  if (image.mask != nullptr) mask.emplace(*image.mask, size);
  if (!colors.IsWhole() || (mask && !mask->IsWhole())) return nullptr;
  CairoOwned<cairo_surface_t> surface(cairo_image_surface_create(
      CAIRO_FORMAT_ARGB32, static_cast<int>(size.width), static_cast<int>(size.height)));
  if (cairo_surface_status(surface.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  const PixelRows pixels(surface.get());
  const std::uint32_t painted = OpaquePixel(paint);
  for (std::size_t y = 0; y < size.height; ++y) {
    colors.WriteColors(y, painted, pixels.Row(y));
    if (mask) mask->Fade(y, pixels.Row(y));
  }
  return surface;
}

}  // namespace

cairo_surface_t* RasterImages::PixelsOf(const CGImage& image, const CGColor& paint) {
  constexpr std::size_t kRoom = std::size_t{1} << 24;  // pixels
  const Key key = {image.serial, image.isMask ? OpaquePixel(paint) : 0};
  const auto known = kept_.find(key);
  if (known != kept_.end()) return known->second.get();
  const PictureSize extent = SizeOf(image);
  const std::size_t size = extent.width * extent.height;
  if (pixels_ + size > kRoom) {
    kept_.clear();
    pixels_ = 0;
  }
  const auto& made = kept_.emplace(key, Make(image, paint)).first->second;
  if (made != nullptr) pixels_ += size;
  return made.get();
}

CGAffineTransform PixelsToSquare(cairo_surface_t* pixels) {
  const auto width = static_cast<CGFloat>(cairo_image_surface_get_width(pixels));
  const auto height = static_cast<CGFloat>(cairo_image_surface_get_height(pixels));
  return {1 / width, 0, 0, -1 / height, 0, 1};
}

}  // namespace kelvane
