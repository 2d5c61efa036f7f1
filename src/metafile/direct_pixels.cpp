#include "metafile/direct_pixels.h"

#include <algorithm>
#include <bit>

#include "metafile/stored_value.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::size_t kNoByte = 4;

/// @return which byte of a pixel a mask is, or kNoByte.
std::size_t ByteOf(std::uint32_t mask) {
  std::size_t byte = 0;
  while (byte < kNoByte && mask != std::uint32_t{0xFF} << (8 * byte))
    ++byte;
  return byte;
}

unsigned ShiftOf(std::uint32_t mask) {
  if (mask == 0) return 0;
  const auto lowest = static_cast<unsigned>(std::countr_zero(mask));
  const auto width = static_cast<unsigned>(std::bit_width(mask));
  return width < 8 ? lowest : std::max(lowest, width - 8);
}

/// Repeats the bits of a number until they are eight, as Windows does: of five bits, 3 is 24 and 4
/// is 33.
unsigned char WidenedToByte(unsigned value, unsigned bits) {
  unsigned widened = value << (8 - bits);
  for (; bits < 8; bits *= 2)
    widened |= widened >> bits;
  return static_cast<unsigned char>(widened);
}

}  // namespace

DirectPixels::Channel::Channel(std::uint32_t bits) : mask(bits), shift(ShiftOf(bits)) {
  const unsigned most = mask >> shift;
  const auto width = static_cast<unsigned>(std::bit_width(most));
  for (unsigned value = 1; value <= most; ++value)
    values[value] = WidenedToByte(value, width);
}

DirectPixels::ByteChannels DirectPixels::BytesOf(const DibMasks& masks) {
  const ByteChannels bytes = {true, ByteOf(masks.red), ByteOf(masks.green), ByteOf(masks.blue)};
  if (bytes.red == kNoByte || bytes.green == kNoByte || bytes.blue == kNoByte) return {};
  return bytes;
}

DirectPixels::DirectPixels(unsigned bitCount, const DibMasks& masks)
    : bytesPerPixel_(bitCount / 8),
      bytes_(BytesOf(masks)),
      red_(masks.red),
      green_(masks.green),
      blue_(masks.blue),
      alpha_(masks.alpha) {}

template <std::size_t size>
void DirectPixels::CopyBytes(const unsigned char* pixels, std::size_t count,
                             unsigned char* rgb) const {
  const ByteChannels at = bytes_;  // the bytes written cannot be these
  for (std::size_t i = 0; i < count; ++i) {
    rgb[3 * i] = pixels[size * i + at.red];
    rgb[3 * i + 1] = pixels[size * i + at.green];
    rgb[3 * i + 2] = pixels[size * i + at.blue];
  }
}

template <class Pixel>
void DirectPixels::LookUp(const unsigned char* pixels, std::size_t count,
                          unsigned char* rgb) const {
  for (std::size_t i = 0; i < count; ++i) {
    Pixel pixel = 0;
    LoadStored(pixels + sizeof(Pixel) * i, pixel);
    rgb[3 * i] = red_.Of(pixel);
    rgb[3 * i + 1] = green_.Of(pixel);
    rgb[3 * i + 2] = blue_.Of(pixel);
  }
}

void DirectPixels::ToRgb(const unsigned char* pixels, std::size_t count, unsigned char* rgb) const {
  switch (bytesPerPixel_) {
    case 2:
      return LookUp<std::uint16_t>(pixels, count, rgb);
    case 3:
      return CopyBytes<3>(pixels, count, rgb);
    default:
      return bytes_.areAll ? CopyBytes<4>(pixels, count, rgb)
                           : LookUp<std::uint32_t>(pixels, count, rgb);
  }
}

void DirectPixels::ToAlpha(const unsigned char* pixels, std::size_t count,
                           unsigned char* alpha) const {
  for (std::size_t i = 0; i < count; ++i) {
    std::uint32_t pixel = 0;
    LoadStored(pixels + sizeof(pixel) * i, pixel);
    alpha[i] = alpha_.Of(pixel);
  }
}

}  // namespace metafile
}  // namespace kelvane
