#include "platform/svg/svg_enlarging.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "base/packed_number.h"

namespace kelvane {
namespace {

using PixelBytes = std::vector<unsigned char>;

constexpr std::size_t kMostPixels = std::size_t{1} << 16;  // of an enlarged picture

/// How many times each pixel is repeated, so that the picture has no more pixels than it may.
std::size_t FactorFor(const PngPicture& picture) {
  const double pixels = static_cast<double>(picture.width) * static_cast<double>(picture.height);
  const double factor = std::sqrt(static_cast<double>(kMostPixels) / pixels);
  return factor < 2 ? 1 : static_cast<std::size_t>(factor);
}

void AppendRepeated(PixelBytes& to, std::span<const unsigned char> pixel, std::size_t times) {
  for (std::size_t i = 0; i < times; ++i)
    to.insert(to.end(), pixel.begin(), pixel.end());
}

/// A row with each pixel repeated, a number of less than a byte in one of its own.
PixelBytes WideRow(const PngPicture& picture, std::span<const unsigned char> row,
                   std::size_t times) {
  PixelBytes wide;
  const std::size_t components = PngComponents(picture.color);
  wide.reserve(picture.width * components * times);
  for (std::size_t x = 0; x < picture.width; ++x) {
    if (picture.bits == 8) {
      AppendRepeated(wide, row.subspan(x * components, components), times);
    } else {
      wide.insert(wide.end(), times, PackedNumber(row, x, picture.bits));
    }
  }
  return wide;
}

}  // namespace

void SvgEnlarging::Enlarge(PngPicture& picture, PixelBytes& rows) {
  const std::size_t factor = FactorFor(picture);
  const std::size_t pixels = picture.width * picture.height * factor * factor;
  if (factor < 2 || pixels > left_) return;
  left_ -= pixels;
  PixelBytes larger;
  larger.reserve(pixels * PngComponents(picture.color));
  const std::size_t rowSize = PngRowSize(picture);
  for (std::size_t y = 0; y < picture.height; ++y)
    AppendRepeated(larger, WideRow(picture, picture.rows.subspan(y * rowSize, rowSize), factor),
                   factor);
  rows = std::move(larger);
  picture.rows = rows;
  picture.isEnlarged = true;
  picture.bits = 8;
  picture.width *= factor;
  picture.height *= factor;
}

void GoOnByOnePixel(PngPicture& picture, PixelBytes& rows) {
  const std::size_t rowSize = PngRowSize(picture);
  const std::size_t pixelSize = PngComponents(picture.color);
  PixelBytes larger;
  larger.reserve((picture.width + 1) * (picture.height + 1) * pixelSize);
  for (std::size_t y = 0; y <= picture.height; ++y) {
    const std::size_t from = std::min(y, picture.height - 1);
    const PixelBytes row = WideRow(picture, picture.rows.subspan(from * rowSize, rowSize), 1);
    larger.insert(larger.end(), row.begin(), row.end());
    AppendRepeated(larger, std::span(row).last(pixelSize), 1);
  }
  rows = std::move(larger);
  picture.rows = rows;
  picture.bits = 8;
  picture.width += 1;
  picture.height += 1;
}

}  // namespace kelvane
