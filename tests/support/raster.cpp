#include "support/raster.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

/// Whether each channel of a colour lies between the least and the most around a place.
bool ShowsNearby(const Raster& picture, int column, int row, const Raster::Color& color,
                 int tolerance) {
  Raster::Color least = {255, 255, 255};
  Raster::Color most = {0, 0, 0};
  for (int y = std::max(0, row - 1); y <= std::min(picture.Height() - 1, row + 1); ++y) {
    for (int x = std::max(0, column - 1); x <= std::min(picture.Width() - 1, column + 1); ++x) {
      const Raster::Color there = picture.At(x, y);
      for (std::size_t i = 0; i < color.size(); ++i) {
        least[i] = std::min(least[i], there[i]);
        most[i] = std::max(most[i], there[i]);
      }
    }
  }
  for (std::size_t i = 0; i < color.size(); ++i) {
    if (color[i] < least[i] - tolerance || color[i] > most[i] + tolerance) return false;
  }
  return true;
}

}  // namespace

Raster::Raster(const std::string& pdfBytes, int scale) {
  const TemporaryFolder folder;
  WriteFile(folder / "page.pdf", pdfBytes);
  const ProcessResult result = Run({"pdftoppm", "-r", std::to_string(72 * scale), "-singlefile",
                                    folder / "page.pdf", folder / "page"});
  if (result.status != 0 || !result.output.empty()) throw std::runtime_error(result.output);

  std::istringstream file(ReadFile(folder / "page.ppm"));
  std::string signature;
  int maximum = 0;
  file >> signature >> width_ >> height_ >> maximum;
  file.get();
  pixels_.resize(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_) * 3);
  file.read(pixels_.data(), static_cast<std::streamsize>(pixels_.size()));
  if (signature != "P6" || maximum != 255 || !file) throw std::runtime_error("no picture");
}

Raster::Color Raster::At(int column, int row) const {
  if (column < 0 || column >= width_ || row < 0 || row >= height_) {
    throw std::out_of_range("outside the picture");
  }
  const auto first = (static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
                      static_cast<std::size_t>(column)) *
                     3;
  const auto component = [&](std::size_t i) {
    return static_cast<int>(static_cast<unsigned char>(pixels_[first + i]));
  };
  return {component(0), component(1), component(2)};
}

int DifferingPixels(const Raster& picture, const Raster& other, int tolerance) {
  if (picture.Width() != other.Width() || picture.Height() != other.Height()) {
    return picture.Width() * picture.Height();
  }
  int differing = 0;
  for (int row = 0; row < picture.Height(); ++row) {
    for (int column = 0; column < picture.Width(); ++column) {
      if (!ShowsNearby(other, column, row, picture.At(column, row), tolerance) ||
          !ShowsNearby(picture, column, row, other.At(column, row), tolerance)) {
        ++differing;
      }
    }
  }
  return differing;
}

}  // namespace kelvane::test
