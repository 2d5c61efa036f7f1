#pragma once

#include <array>
#include <string>
#include <utility>

namespace kelvane::test {

/// A picture in pixels, row 0 at the top.
class Raster {
 public:
  using Color = std::array<int, 3>;  // red, green, blue, from 0 to 255

  /// The first page of a PDF as an external renderer paints it, `scale` pixels a point.
  /// Throws std::runtime_error when the renderer fails or warns.
  explicit Raster(const std::string& pdfBytes, int scale = 1);

  /// @param pixels  three bytes each: red, green, blue.
  Raster(int width, int height, std::string pixels)
      : width_(width), height_(height), pixels_(std::move(pixels)) {}

  [[nodiscard]] int Width() const { return width_; }
  [[nodiscard]] int Height() const { return height_; }
  [[nodiscard]] Color At(int column, int row) const;

 private:
  int width_ = 0;
  int height_ = 0;
  std::string pixels_;
};

inline constexpr Raster::Color kRedPixel = {255, 0, 0};
inline constexpr Raster::Color kGreenPixel = {0, 255, 0};
inline constexpr Raster::Color kBluePixel = {0, 0, 255};
inline constexpr Raster::Color kCyanPixel = {0, 255, 255};
inline constexpr Raster::Color kWhitePixel = {255, 255, 255};

/// How many pixels of two pictures show what the other shows nowhere within a pixel of the place.
/// Renderers that agree on the picture but not on the share that an edge has in a pixel differ in
/// none.
/// @param tolerance  by how much each channel may lie outside the colours found there.
/// @return all pixels for pictures of different sizes.
int DifferingPixels(const Raster& picture, const Raster& other, int tolerance);

}  // namespace kelvane::test
