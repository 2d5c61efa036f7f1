#include "classic/bitmap/rgb_compression.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <limits>
#include <span>

#include "classic/reader/reader.h"

namespace kelvane {
namespace {

/// The smallest group of pixels that is whole bytes on both sides.
struct PixelGroup {
  std::size_t pixels;
  std::size_t stored;   // bytes in the file
  std::size_t decoded;  // bytes in the buffer

  [[nodiscard]] constexpr std::uint16_t BitsPerPixel() const {
    return static_cast<std::uint16_t>(8 * decoded / pixels);
  }
};

constexpr PixelGroup kTwo4To8 = {.pixels = 2, .stored = 1, .decoded = 2};
constexpr PixelGroup k8To24 = {.pixels = 1, .stored = 1, .decoded = 3};
constexpr PixelGroup k16To24 = {.pixels = 1, .stored = 2, .decoded = 3};
constexpr PixelGroup k24To24 = {.pixels = 1, .stored = 3, .decoded = 3};
constexpr PixelGroup k32To24 = {.pixels = 1, .stored = 4, .decoded = 3};

/// Bytes of one row.
struct RowSizes {
  std::size_t groups;   // stored bytes of whole groups
  std::size_t stored;   // with the padding in the file
  std::size_t decoded;  // with the padding in the buffer
};

constexpr std::size_t Padded(std::size_t rowBytes) {
  return (rowBytes + 3) / 4 * 4;
}

RowSizes SizesOfRow(const PixelGroup& group, std::size_t width) {
  const std::size_t groups = width / group.pixels * group.stored;
  return {groups, Padded(groups), Padded(width * group.decoded / group.pixels)};
}

// Decodes a row, or what there is of it. A group cut short counts with its missing bytes 0.
template <PixelGroup kGroup, class Convert>
void ConvertRow(std::span<const unsigned char> stored, unsigned char* decoded, Convert convert) {
  const std::size_t whole = stored.size() / kGroup.stored;
  const unsigned char* source = stored.data();
  for (std::size_t i = 0; i < whole; ++i) {
    convert(source, decoded);
    source += kGroup.stored;
    decoded += kGroup.decoded;
  }
  const auto rest = stored.subspan(whole * kGroup.stored);
  if (rest.empty()) return;
  std::array<unsigned char, kGroup.stored> last{};
  std::copy(rest.begin(), rest.end(), last.begin());
  convert(last.data(), decoded);
}

// Each row goes where it belongs at once, so that a bitmap stored bottom row first needs no turning
// over. `convert` makes one group: (stored bytes, decoded bytes).
template <PixelGroup kGroup, class Convert>
std::optional<DecodedPixels> ConvertRows(const BitMapInfoHeader& header, Reader& reader,
                                         Convert convert) {
  if (header.biWidth < 0) return std::nullopt;
  const std::size_t height = static_cast<std::uint32_t>(header.biHeight);
  const RowSizes row = SizesOfRow(kGroup, static_cast<std::size_t>(header.biWidth));
  const std::uint64_t size = std::uint64_t{row.decoded} * height;
  if (size > std::numeric_limits<std::uint32_t>::max()) return std::nullopt;
  if (!reader.ClaimDecodedBytes(size)) return std::nullopt;

  DecodedPixels pixels = {std::vector<unsigned char>(size), kGroup.BitsPerPixel()};
  const std::size_t rows = row.groups == 0 ? 0 : height;
  for (std::size_t i = 0; i < rows && reader.Remaining() > 0; ++i) {
    const auto stored = reader.TakeBytes(row.stored);
    const std::size_t place = header.topDown ? i : height - 1 - i;
    ConvertRow<kGroup>(stored.first(std::min(stored.size(), row.groups)),
                       pixels.bytes.data() + place * row.decoded, convert);
  }
  return pixels;
}

constexpr unsigned char Low8(std::uint32_t value) {
  return static_cast<unsigned char>(value);
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

std::optional<DecodedPixels> Read4BitConvertTo8Bit(const BitMapInfoHeader& header, Reader& reader,
                                                   const GDIPalette& palette) {
  const auto colors = ColorsByIndex<16>(palette);
  return ConvertRows<kTwo4To8>(header, reader,
                               [&colors](const unsigned char* stored, unsigned char* decoded) {
                                 decoded[0] = Low8(colors[*stored >> 4]);
                                 decoded[1] = Low8(colors[*stored & 0xF]);
                               });
}

std::optional<DecodedPixels> Read8BitConvertTo24Bit(const BitMapInfoHeader& header, Reader& reader,
                                                    const GDIPalette& palette) {
  const auto colors = ColorsByIndex<256>(palette);
  return ConvertRows<k8To24>(header, reader,
                             [&colors](const unsigned char* stored, unsigned char* decoded) {
                               const std::uint32_t color = colors[*stored];
                               decoded[0] = Low8(color >> 16);
                               decoded[1] = Low8(color >> 8);
                               decoded[2] = Low8(color);
                             });
}

void RGB555ToRGB(const unsigned char* stored, unsigned char* rgb) {
  const std::uint32_t value = stored[0] | static_cast<std::uint32_t>(stored[1]) << 8;
  rgb[0] = Low8((value >> 7) & 0xF8);
  rgb[1] = Low8((value >> 2) & 0xF8);
  rgb[2] = Low8((value << 3) & 0xF8);
}

void BGRToRGB(const unsigned char* stored, unsigned char* rgb) {
  rgb[0] = stored[2];
  rgb[1] = stored[1];
  rgb[2] = stored[0];
}

}  // namespace

std::optional<DecodedPixels> RGBCompression::Decompress(const BitMapInfoHeader& header,
                                                        Reader& reader,
                                                        const GDIPalette& palette) const {
  if (masks_ == Masks::kBeforePixels) {
    std::array<std::uint32_t, 3> ignored;
    reader.readAll(ignored[0], ignored[1], ignored[2]);
  }
  switch (header.biBitCount) {
    case 4:
      return Read4BitConvertTo8Bit(header, reader, palette);
    case 8:
      return Read8BitConvertTo24Bit(header, reader, palette);
    case 16:
      return ConvertRows<k16To24>(header, reader, RGB555ToRGB);
    case 24:
      return ConvertRows<k24To24>(header, reader, BGRToRGB);
    case 32:
      return ConvertRows<k32To24>(header, reader, BGRToRGB);
    default:
      return std::nullopt;
  }
}

}  // namespace kelvane
