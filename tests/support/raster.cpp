#include "support/raster.h"

#include <sstream>
#include <stdexcept>

#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {

Raster::Raster(const std::string& pdfBytes) {
  const TemporaryFolder folder;
  WriteFile(folder / "page.pdf", pdfBytes);
  const ProcessResult result =
      Run({"pdftoppm", "-r", "72", "-singlefile", folder / "page.pdf", folder / "page"});
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

}  // namespace kelvane::test
