#include "gdiplus/pixel_formats.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <span>

#include "base/packed_number.h"
#include "metafile/alpha_multiplied.h"

namespace kelvane::gdiplus {
namespace {

using PixelBytes = const unsigned char*;

constexpr std::uint8_t kFullChannel = 255;

/// Channels of 16 bits stand for amounts of light, of which this is the most.
constexpr unsigned kFullLight = 8192;

unsigned Read16(PixelBytes bytes) {
  return static_cast<unsigned>(bytes[0] | bytes[1] << 8);
}

/// @return a channel of 5 or 6 bits in 8.
std::uint8_t Widened(unsigned value, unsigned bits) {
  value &= (1U << bits) - 1;
  return static_cast<std::uint8_t>(value << (8 - bits) | value >> (2 * bits - 8));
}

/// Amounts of light as channels.
std::vector<std::uint8_t> MakeChannels() {
  constexpr double kGamma = 2.2;
  std::vector<std::uint8_t> channels(kFullLight + 1);
  for (unsigned light = 0; light <= kFullLight; ++light) {
    const double part = static_cast<double>(light) / kFullLight;
    channels[light] = static_cast<std::uint8_t>(std::lround(std::pow(part, 1 / kGamma) * 255));
  }
  return channels;
}

std::uint8_t ChannelOf(unsigned light) {
  static const std::vector<std::uint8_t> kChannels = MakeChannels();
  return kChannels[std::min(light, kFullLight)];
}

std::uint8_t AlphaOf(unsigned light) {
  return static_cast<std::uint8_t>(std::min(light, kFullLight) * 255 / kFullLight);
}

// One pixel each.

Argb Gray16(PixelBytes p) {
  return {p[1], p[1], p[1], kFullChannel};
}

Argb Rgb555(PixelBytes p) {
  const unsigned v = Read16(p);
  return {Widened(v, 5), Widened(v >> 5, 5), Widened(v >> 10, 5), kFullChannel};
}

Argb Rgb565(PixelBytes p) {
  const unsigned v = Read16(p);
  return {Widened(v, 5), Widened(v >> 5, 6), Widened(v >> 11, 5), kFullChannel};
}

Argb Argb1555(PixelBytes p) {
  Argb color = Rgb555(p);
  color.alpha = (p[1] & 0x80) != 0 ? kFullChannel : 0;
  return color;
}

Argb Rgb888(PixelBytes p) {
  return {p[0], p[1], p[2], kFullChannel};
}

Argb Argb8888(PixelBytes p) {
  return {p[0], p[1], p[2], p[3]};
}

Argb Premultiplied8888(PixelBytes p) {
  const auto divided = [alpha = p[3]](unsigned channel) {
    return static_cast<std::uint8_t>(DividedByAlpha(channel, alpha, kFullChannel));
  };
  return {divided(p[0]), divided(p[1]), divided(p[2]), p[3]};
}

Argb Rgb48(PixelBytes p) {
  return {ChannelOf(Read16(p)), ChannelOf(Read16(p + 2)), ChannelOf(Read16(p + 4)), kFullChannel};
}

Argb Argb64(PixelBytes p) {
  Argb color = Rgb48(p);
  color.alpha = AlphaOf(Read16(p + 6));
  return color;
}

Argb Premultiplied64(PixelBytes p) {
  const unsigned alpha = std::min(Read16(p + 6), kFullLight);
  const auto divided = [alpha](unsigned light) {
    return ChannelOf(DividedByAlpha(light, alpha, kFullLight));
  };
  return {divided(Read16(p)), divided(Read16(p + 2)), divided(Read16(p + 4)), AlphaOf(alpha)};
}

void Append(std::vector<unsigned char>& rgba, Argb color) {
  rgba.insert(rgba.end(), {color.red, color.green, color.blue, color.alpha});
}

template <std::size_t kSize>
std::vector<unsigned char> Direct(const EmfPlusPixels& pixels, Argb (*colorOf)(PixelBytes)) {
  std::vector<unsigned char> rgba;
  rgba.reserve(4 * pixels.width * pixels.height);
  for (std::size_t y = 0; y < pixels.height; ++y) {
    PixelBytes row = pixels.rows.data() + y * pixels.stride;
    for (std::size_t x = 0; x < pixels.width; ++x)
      Append(rgba, colorOf(row + kSize * x));
  }
  return rgba;
}

/// Numbers that the palette does not have are black.
std::vector<unsigned char> Indexed(const EmfPlusPixels& pixels, unsigned bits) {
  constexpr Argb kBlack = {0, 0, 0, kFullChannel};
  std::vector<unsigned char> rgba;
  rgba.reserve(4 * pixels.width * pixels.height);
  for (std::size_t y = 0; y < pixels.height; ++y) {
    const std::span<const unsigned char> row = std::span(pixels.rows).subspan(y * pixels.stride);
    for (std::size_t x = 0; x < pixels.width; ++x) {
      const unsigned char index = PackedNumber(row, x, bits);
      Append(rgba, index < pixels.palette.size() ? pixels.palette[index] : kBlack);
    }
  }
  return rgba;
}

bool AreThere(const EmfPlusPixels& pixels, unsigned bits) {
  const std::size_t rowSize = pixels.width / 8 * bits + (pixels.width % 8 * bits + 7) / 8;
  return pixels.width > 0 && pixels.height > 0 && rowSize <= pixels.stride &&
         rowSize <= pixels.rows.size() &&
         (pixels.rows.size() - rowSize) / pixels.stride >= pixels.height - 1;
}

}  // namespace

std::optional<std::vector<unsigned char>> RgbaOf(const EmfPlusPixels& pixels) {
  const unsigned bits = EmfPlusBitsPerPixel(pixels.format);
  if (bits == 0 || !AreThere(pixels, bits)) return std::nullopt;
  switch (pixels.format) {
    case EmfPlusPixelFormat::k1Indexed:
    case EmfPlusPixelFormat::k4Indexed:
    case EmfPlusPixelFormat::k8Indexed:
      return Indexed(pixels, bits);
    case EmfPlusPixelFormat::k16Gray:
      return Direct<2>(pixels, Gray16);
    case EmfPlusPixelFormat::k16Rgb555:
      return Direct<2>(pixels, Rgb555);
    case EmfPlusPixelFormat::k16Rgb565:
      return Direct<2>(pixels, Rgb565);
    case EmfPlusPixelFormat::k16Argb1555:
      return Direct<2>(pixels, Argb1555);
    case EmfPlusPixelFormat::k24Rgb:
      return Direct<3>(pixels, Rgb888);
    case EmfPlusPixelFormat::k32Rgb:
      return Direct<4>(pixels, Rgb888);
    case EmfPlusPixelFormat::k32Argb:
      return Direct<4>(pixels, Argb8888);
    case EmfPlusPixelFormat::k32PremultipliedArgb:
      return Direct<4>(pixels, Premultiplied8888);
    case EmfPlusPixelFormat::k48Rgb:
      return Direct<6>(pixels, Rgb48);
    case EmfPlusPixelFormat::k64Argb:
      return Direct<8>(pixels, Argb64);
    case EmfPlusPixelFormat::k64PremultipliedArgb:
    case EmfPlusPixelFormat::k64PremultipliedArgbByItsBits:
      return Direct<8>(pixels, Premultiplied64);
    case EmfPlusPixelFormat::kUndefined:
      break;
  }
  return std::nullopt;
}

}  // namespace kelvane::gdiplus
