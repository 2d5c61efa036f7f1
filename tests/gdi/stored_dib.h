#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include "metafile/dib.h"

namespace kelvane {

/// A bitmap with its bytes, rows bottom up.
class StoredBitmap {
 public:
  using Color = std::array<std::uint8_t, 3>;  // red, green, blue

  /// @param rows  top first, each of '0' and '1', which number the colours.
  static StoredBitmap Mono(std::initializer_list<std::string_view> rows, Color zero = {0, 0, 0},
                           Color one = {255, 255, 255}) {
    StoredBitmap bitmap(static_cast<std::int32_t>(rows.begin()->size()),
                        static_cast<std::int32_t>(rows.size()), 1);
    for (const Color& c : {zero, one})
      bitmap.header_.insert(bitmap.header_.end(), {c[2], c[1], c[0], 0});
    for (auto row = rows.end(); row != rows.begin();) {
      --row;
      std::vector<unsigned char> bytes((row->size() + 31) / 32 * 4);
      for (std::size_t x = 0; x < row->size(); ++x) {
        if ((*row)[x] == '1') bytes[x / 8] |= static_cast<unsigned char>(0x80U >> (x % 8));
      }
      bitmap.pixels_.insert(bitmap.pixels_.end(), bytes.begin(), bytes.end());
    }
    return bitmap;
  }

  /// @param rows  top first, of 24 bits a pixel.
  static StoredBitmap Rgb(std::initializer_list<std::vector<Color>> rows) {
    StoredBitmap bitmap(static_cast<std::int32_t>(rows.begin()->size()),
                        static_cast<std::int32_t>(rows.size()), 24);
    for (auto row = rows.end(); row != rows.begin();) {
      --row;
      for (const Color& c : *row)
        bitmap.pixels_.insert(bitmap.pixels_.end(), {c[2], c[1], c[0]});
      bitmap.pixels_.resize((bitmap.pixels_.size() + 3) / 4 * 4);
    }
    return bitmap;
  }

  /// @param rows  top first, of 32 bits a pixel as they are stored: blue, green, red, alpha.
  static StoredBitmap Bgra(std::initializer_list<std::vector<std::array<std::uint8_t, 4>>> rows) {
    StoredBitmap bitmap(static_cast<std::int32_t>(rows.begin()->size()),
                        static_cast<std::int32_t>(rows.size()), 32);
    for (auto row = rows.end(); row != rows.begin();) {
      --row;
      for (const auto& pixel : *row)
        bitmap.pixels_.insert(bitmap.pixels_.end(), pixel.begin(), pixel.end());
    }
    return bitmap;
  }

  /// Run-length encoded, of 8 bits a pixel and 256 greys.
  static StoredBitmap RunLengths(std::int32_t width, std::int32_t height,
                                 std::vector<unsigned char> codes) {
    StoredBitmap bitmap(width, height, 8, BI_RLE8);
    for (unsigned grey = 0; grey < 256; ++grey) {
      const auto level = static_cast<unsigned char>(grey);
      bitmap.header_.insert(bitmap.header_.end(), {level, level, level, 0});
    }
    bitmap.pixels_ = std::move(codes);
    return bitmap;
  }

  [[nodiscard]] DibBytes Bytes() const { return {header_, pixels_, DIB_RGB_COLORS}; }
  [[nodiscard]] Dib Read() const { return *Dib::Read(Bytes()); }

 private:
  StoredBitmap(std::int32_t width, std::int32_t height, std::uint16_t bits,
               DibCompression compression = BI_RGB) {
    Append(40);
    Append(static_cast<std::uint32_t>(width));
    Append(static_cast<std::uint32_t>(height));
    Append(1U | std::uint32_t{bits} << 16);
    Append(compression);
    for (int i = 0; i < 5; ++i)
      Append(0);
  }

  void Append(std::uint32_t value) {
    for (int i = 0; i < 4; ++i, value >>= 8)
      header_.push_back(static_cast<unsigned char>(value));
  }

  std::vector<unsigned char> header_;
  std::vector<unsigned char> pixels_;
};

}  // namespace kelvane
