#include "platform/quartz/cg_image_rows.h"

namespace kelvane {

// Divides instead of multiplying, so no size can wrap.
bool RowsFit(std::size_t size, std::size_t width, std::size_t rows, std::size_t bytesPerRow) {
  if (width == 0 || rows == 0 || bytesPerRow < width || size < width) return false;
  return (size - width) / bytesPerRow >= rows - 1;
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

CGImageRows::CGImageRows(const CGImage& image)
    : image_(image), provided_(image.provider->Provide()) {}

bool CGImageRows::AreWhole() const {
  return RowsFit(provided_.View().size(), image_.RowSize(), image_.height, image_.bytesPerRow);
}

std::span<const unsigned char> CGImageRows::Packed() {
  if (!AreWhole()) return {};
  const std::size_t rowSize = image_.RowSize();
  if (image_.bytesPerRow == rowSize) return provided_.View().first(rowSize * image_.height);
  if (!packed_) packed_ = PackRows(provided_.View(), rowSize, image_.height, image_.bytesPerRow);
  return *packed_;
}

}  // namespace kelvane
