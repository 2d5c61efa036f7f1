#pragma once

#include <array>
#include <string>

namespace kelvane::test {

/// The first page of a PDF as an external renderer paints it, one pixel a point, row 0 at the top.
class Raster {
 public:
  using Color = std::array<int, 3>;  // red, green, blue, from 0 to 255

  /// Throws std::runtime_error when the renderer fails or warns.
  explicit Raster(const std::string& pdfBytes);

  [[nodiscard]] Color At(int column, int row) const;

 private:
  int width_ = 0;
  int height_ = 0;
  std::string pixels_;
};

}  // namespace kelvane::test
