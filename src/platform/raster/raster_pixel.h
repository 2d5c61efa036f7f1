#pragma once

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/quartz/cg_color_space.h"
#include "platform/raster/cairo_library.h"

namespace kelvane {

// Pixels as Cairo has them: alpha, red, green and blue from the high bits on, colours multiplied by
// alpha.

constexpr std::uint32_t OpaquePixel(std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
  return 0xFF000000U | std::uint32_t{red} << 16 | std::uint32_t{green} << 8 | blue;
}

inline std::uint32_t OpaquePixel(const CGColor& color) {
  const auto byte = [](CGFloat part) { return static_cast<std::uint8_t>(std::lround(part * 255)); };
  return OpaquePixel(byte(color.red), byte(color.green), byte(color.blue));
}

constexpr std::uint8_t AlphaOf(std::uint32_t pixel) {
  return static_cast<std::uint8_t>(pixel >> 24);
}

/// @return a channel times a fraction of 255, rounded.
constexpr std::uint32_t Part(std::uint32_t channel, std::uint32_t of255) {
  return (channel * of255 + 127) / 255;
}

/// @return the pixel with its alpha multiplied.
constexpr std::uint32_t Faded(std::uint32_t pixel, std::uint8_t alpha) {
  return Part(pixel >> 24, alpha) << 24 | Part(pixel >> 16 & 0xFF, alpha) << 16 |
         Part(pixel >> 8 & 0xFF, alpha) << 8 | Part(pixel & 0xFF, alpha);
}

/// @return the colours before they were multiplied by alpha, which is not 0; opaque.
constexpr std::uint32_t Unfaded(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  const auto channel = [alpha](std::uint32_t faded) {
    const std::uint32_t whole = (faded * 255 + alpha / 2) / alpha;
    return whole < 255 ? whole : 255U;
  };
  return 0xFF000000U | channel(pixel >> 16 & 0xFF) << 16 | channel(pixel >> 8 & 0xFF) << 8 |
         channel(pixel & 0xFF);
}

/// The pixels of an image surface while they are read and written.
class PixelRows {
 public:
  explicit PixelRows(cairo_surface_t* surface)
      : surface_(surface),
        bytesPerRow_(static_cast<std::size_t>(cairo_image_surface_get_stride(surface))) {
    cairo_surface_flush(surface);
    data_ = cairo_image_surface_get_data(surface);
  }
  ~PixelRows() { cairo_surface_mark_dirty(surface_); }
  PixelRows(const PixelRows&) = delete;
  PixelRows& operator=(const PixelRows&) = delete;

  [[nodiscard]] std::uint32_t* Row(std::size_t y) const {
    return reinterpret_cast<std::uint32_t*>(data_ + y * bytesPerRow_);
  }

  /// @return a row of a mask.
  [[nodiscard]] std::span<std::uint8_t> Bytes(std::size_t y) const {
    return {data_ + y * bytesPerRow_,
            static_cast<std::size_t>(cairo_image_surface_get_width(surface_))};
  }

 private:
  cairo_surface_t* surface_;
  std::size_t bytesPerRow_;
  unsigned char* data_;
};

}  // namespace kelvane
