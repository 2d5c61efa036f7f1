#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "base/deflater.h"

namespace kelvane {

/// How the pixels of a PNG file are stored (PNG, 11.2.2). The numbers are the format's.
enum class PngColor : std::uint8_t { kGrey = 0, kRgb = 2, kIndexed = 3, kRgba = 6 };

/// A picture to be stored as a PNG file.
struct PngPicture {
  std::size_t width = 0;
  std::size_t height = 0;
  PngColor color = PngColor::kGrey;
  unsigned bits = 8;                       // a component: 1, 2, 4 or 8 where indexed, else 8
  std::span<const unsigned char> rows;     // without padding, top first
  std::vector<unsigned char> colors = {};  // red, green, blue of each that is indexed
  std::vector<unsigned char> alphas = {};  // of the first of these; the others are opaque
  bool isEnlarged = false;                 // whether most rows repeat the one above
};

/// @return how many numbers make a pixel.
std::size_t PngComponents(PngColor color);

/// @return bytes that a row takes.
std::size_t PngRowSize(const PngPicture& picture);

/// @return the bytes of a PNG file; empty for a picture larger than the format has.
std::string PngFile(const PngPicture& picture, Deflater& deflater);

}  // namespace kelvane
