#include <algorithm>
#include <cmath>
#include <cstdint>

#include "inputs.h"
#include "support/blits.h"

namespace kelvane::bench {
namespace {

using test::Bytes;
using test::Metafile;

/// Noise as a camera has it, from -7 to 7 and mostly little.
class Grain {
 public:
  int Next() {
    seed_ = seed_ * 1664525 + 1013904223;
    return (static_cast<int>(seed_ >> 28) - static_cast<int>(seed_ >> 24 & 0xF)) / 2;
  }

 private:
  std::uint32_t seed_ = 1;
};

/// Soft light and shade in all three channels, with grain over it.
void AddRow(Bytes& pixels, std::int32_t y, std::int32_t width, Grain& grain) {
  constexpr std::size_t kAlignment = 4;
  const std::size_t start = pixels.Size();
  for (std::int32_t x = 0; x < width; ++x) {
    const double light = 128 + 60 * std::sin(x / 310.0) * std::cos(y / 270.0);
    for (int channel = 0; channel < 3; ++channel) {
      const double shade = light + 30 * std::sin((x + y) / (400.0 + 90 * channel));
      const int value = static_cast<int>(shade) + grain.Next();
      pixels.U8(static_cast<std::uint32_t>(std::clamp(value, 0, 255)));
    }
  }
  pixels.Zeros((kAlignment - (pixels.Size() - start) % kAlignment) % kAlignment);
}

test::BitmapParts PhotoOf(std::int32_t width, std::int32_t height, Grain& grain,
                          std::int32_t top = 0) {
  Bytes pixels;
  for (std::int32_t y = 0; y < height; ++y)
    AddRow(pixels, top + y, width, grain);
  return {Bytes().BitmapHeader({.width = width, .height = height}), pixels};
}

}  // namespace

std::vector<unsigned char> Photo(std::int32_t width, std::int32_t height) {
  Grain grain;
  Metafile metafile;
  metafile.Bounds(0, 0, width, height);
  test::AddBlit(metafile, test::kStretchDibits,
                {.size = {width, height},
                 .sourceSize = {width, height},
                 .bitmap = PhotoOf(width, height, grain)});
  return metafile.Build();
}

std::vector<unsigned char> Strips(std::size_t count) {
  constexpr std::int32_t kWidth = 256;
  Grain grain;
  Metafile metafile;
  metafile.Bounds(0, 0, kWidth, static_cast<std::int32_t>(count));
  for (std::size_t i = 0; i < count; ++i) {
    const auto y = static_cast<std::int32_t>(i);
    test::AddBlit(metafile, test::kStretchDibits,
                  {.destination = {0, y},
                   .size = {kWidth, 1},
                   .sourceSize = {kWidth, 1},
                   .bitmap = PhotoOf(kWidth, 1, grain, y)});
  }
  return metafile.Build();
}

}  // namespace kelvane::bench
