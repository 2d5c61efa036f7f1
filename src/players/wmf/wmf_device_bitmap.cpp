#include "players/wmf/wmf_device_bitmap.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace kelvane {
namespace {

template <class Number>
void AddNumber(std::vector<unsigned char>& bytes, Number number) {
  for (std::size_t i = 0; i < sizeof(Number); ++i)
    bytes.push_back(static_cast<unsigned char>(static_cast<std::uint32_t>(number) >> (8 * i)));
}

/// Blue comes first in a colour table.
void AddColor(std::vector<unsigned char>& bytes, const DibColor& color) {
  bytes.insert(bytes.end(), color.rbegin(), color.rend());
  bytes.push_back(0);
}

/// Colours by number need a table that is not in the file.
bool KnowsItsColors(const Bitmap16& bitmap) {
  return bitmap.planes == 1 &&
         (bitmap.bitsPixel == 1 || bitmap.bitsPixel == 24 || bitmap.bitsPixel == 32);
}

std::vector<unsigned char> HeaderOf(const Bitmap16& bitmap, DibColor zero, DibColor one) {
  std::vector<unsigned char> header;
  AddNumber(header, std::uint32_t{40});
  AddNumber(header, bitmap.width);
  AddNumber(header, -bitmap.height);  // the top row comes first
  AddNumber(header, std::uint16_t{1});
  AddNumber(header, std::uint16_t{bitmap.bitsPixel});
  for (int i = 0; i < 6; ++i)
    AddNumber(header, std::uint32_t{0});
  if (bitmap.bitsPixel == 1) {
    AddColor(header, zero);
    AddColor(header, one);
  }
  return header;
}

/// Rows end at whole words here, at whole double words there.
std::vector<unsigned char> PixelsOf(const Bitmap16& bitmap, std::size_t rowBytes) {
  const auto stored = static_cast<std::size_t>(bitmap.widthBytes);
  const std::span<const unsigned char> bits = bitmap.bits.Bytes();
  std::vector<unsigned char> pixels(rowBytes * static_cast<std::size_t>(bitmap.height));
  for (std::size_t row = 0; row * stored < bits.size(); ++row) {
    const auto from = bits.subspan(row * stored, std::min(stored, bits.size() - row * stored));
    std::copy_n(from.begin(), std::min(from.size(), rowBytes),
                pixels.begin() + static_cast<std::ptrdiff_t>(row * rowBytes));
  }
  return pixels;
}

}  // namespace

std::optional<WmfDeviceBitmap> WmfDeviceBitmap::Of(const Bitmap16& bitmap, DibColor zero,
                                                   DibColor one) {
  if (!KnowsItsColors(bitmap) || bitmap.width <= 0 || bitmap.height <= 0) return std::nullopt;
  const std::size_t bits = static_cast<std::size_t>(bitmap.width) * bitmap.bitsPixel;
  if ((bits + 7) / 8 > static_cast<std::size_t>(std::max(bitmap.widthBytes, 0)))
    return std::nullopt;
  WmfDeviceBitmap made;
  made.header_ = HeaderOf(bitmap, zero, one);
  made.pixels_ = PixelsOf(bitmap, (bits + 31) / 32 * 4);
  return made;
}

DibBytes WmfDeviceBitmap::Bytes() const {
  return {header_, pixels_, DIB_RGB_COLORS};
}

}  // namespace kelvane
