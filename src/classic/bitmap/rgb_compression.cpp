#include "classic/bitmap/rgb_compression.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <span>

#include "classic/reader/reader.h"

namespace kelvane {
namespace {

constexpr unsigned char Low8(std::uint32_t value) {
  return static_cast<unsigned char>(value);
}

// Each of these makes decoded bytes of stored ones: of a pixel, or of two that share a byte.

void Read4BitConvertTo8Bit(const std::array<std::uint32_t, 2>& colors, unsigned char* decoded) {
  decoded[0] = Low8(colors[0]);
  decoded[1] = Low8(colors[1]);
}

void Read8BitConvertTo24Bit(std::uint32_t color, unsigned char* decoded) {
  decoded[0] = Low8(color >> 16);
  decoded[1] = Low8(color >> 8);
  decoded[2] = Low8(color);
}

void RGB555ToRGB(std::uint32_t value, unsigned char* rgb) {
  rgb[0] = Low8((value >> 7) & 0xF8);
  rgb[1] = Low8((value >> 2) & 0xF8);
  rgb[2] = Low8((value << 3) & 0xF8);
}

void Read16BitConvertTo24Bit(const unsigned char* stored, unsigned char* decoded) {
  RGB555ToRGB(stored[0] | static_cast<std::uint32_t>(stored[1]) << 8, decoded);
}

void Read24Bit(const unsigned char* stored, unsigned char* decoded) {
  decoded[0] = stored[2];
  decoded[1] = stored[1];
  decoded[2] = stored[0];
}

void Read32BitConvertTo24Bit(const unsigned char* stored, unsigned char* decoded) {
  Read24Bit(stored, decoded);
}

// The colours of every index a pixel can hold, so that pixels are decoded without looking at the
// table's end.
template <std::size_t kIndexes>
std::array<std::uint32_t, kIndexes> ColorsByIndex(const GDIPalette& palette) {
  std::array<std::uint32_t, kIndexes> colors;
  for (std::uint32_t i = 0; i < kIndexes; ++i)
    colors[i] = palette.LookupColor(i);
  return colors;
}

constexpr std::uint64_t Padded(std::uint64_t rowBytes) {
  return (rowBytes + 3) / 4 * 4;
}

// Decodes a row, or what there is of it. A pixel cut short counts with its missing bytes 0.
template <std::size_t kStored, std::size_t kDecoded, class ReadPixel>
void ReadRow(std::span<const unsigned char> stored, unsigned char* decoded, ReadPixel readPixel) {
  const std::size_t whole = stored.size() / kStored;
  const unsigned char* source = stored.data();
  for (std::size_t i = 0; i < whole; ++i) {
    readPixel(source, decoded);
    source += kStored;
    decoded += kDecoded;
  }
  const auto rest = stored.subspan(whole * kStored);
  if (rest.empty()) return;
  std::array<unsigned char, kStored> last{};
  std::copy(rest.begin(), rest.end(), last.begin());
  readPixel(last.data(), decoded);
}

}  // namespace

void RGBCompression::Decompress(std::vector<unsigned char>& data, Reader& reader,
                                const GDIPalette& palette) {
  if (compression == kBitfields) {
    std::array<std::uint32_t, 3> ignored;
    reader.read(ignored);
  }
  ReadBuffer(data, reader, palette);
}

void RGBCompression::ReadBuffer(std::vector<unsigned char>& data, Reader& reader,
                                const GDIPalette& palette) {
  using Bytes = const unsigned char*;
  switch (bitCount) {
    case 4: {
      const auto colors = ColorsByIndex<16>(palette);
      return ReadXBitConvertToYBit<4, 8>(
          data, reader, [&colors](Bytes stored, unsigned char* decoded) {
            Read4BitConvertTo8Bit(Expand4BitTuple(*stored, colors), decoded);
          });
    }
    case 8: {
      const auto colors = ColorsByIndex<256>(palette);
      return ReadXBitConvertToYBit<8, 24>(data, reader,
                                          [&colors](Bytes stored, unsigned char* decoded) {
                                            Read8BitConvertTo24Bit(colors[*stored], decoded);
                                          });
    }
    case 16:
      return ReadXBitConvertToYBit<16, 24>(data, reader, [](Bytes stored, unsigned char* decoded) {
        Read16BitConvertTo24Bit(stored, decoded);
      });
    case 24:
      return ReadXBitConvertToYBit<24, 24>(
          data, reader, [](Bytes stored, unsigned char* decoded) { Read24Bit(stored, decoded); });
    case 32:
      return ReadXBitConvertToYBit<32, 24>(data, reader, [](Bytes stored, unsigned char* decoded) {
        Read32BitConvertTo24Bit(stored, decoded);
      });
    default:
      return;
  }
}

template <std::uint32_t kInBits, std::uint32_t kOutBits, class ReadPixel>
void RGBCompression::ReadXBitConvertToYBit(std::vector<unsigned char>& data, Reader& reader,
                                           ReadPixel readPixel) {
  constexpr std::uint32_t kPixels = kInBits < 8 ? 8 / kInBits : 1;  // at a time: whole bytes
  constexpr std::size_t kStored = kInBits * kPixels / 8;
  constexpr std::size_t kDecoded = kOutBits * kPixels / 8;
  const bool isNegative = width > std::uint32_t{std::numeric_limits<std::int32_t>::max()};
  const std::uint64_t outRow = Padded(std::uint64_t{width} * kOutBits / 8);
  const std::uint64_t outSize = outRow * height;
  if (isNegative || outSize > std::numeric_limits<std::uint32_t>::max()) return;
  if (!reader.ClaimDecodedBytes(outSize)) return;

  size = static_cast<std::uint32_t>(outSize);
  bitCount = kOutBits;
  data.assign(size, 0);
  const std::size_t inRow = width / kPixels * kStored;
  const std::size_t rows = inRow == 0 ? 0 : height;
  for (std::size_t row = 0; row < rows && reader.Remaining() > 0; ++row) {
    const auto stored = reader.TakeBytes(Padded(inRow));
    ReadRow<kStored, kDecoded>(stored.first(std::min(stored.size(), inRow)),
                               data.data() + FlipUpDown(row) * outRow, readPixel);
  }
}

}  // namespace kelvane
