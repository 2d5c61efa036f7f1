#include "metafile/dib.h"

#include <bit>
#include <cstdlib>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kMasksInHeaderSize = 52;  // headers of this size and more hold the masks

struct Masks {
  std::uint32_t red;
  std::uint32_t green;
  std::uint32_t blue;
};

struct DibLayout {
  std::int64_t width = 0;
  std::int64_t height = 0;  // negative for rows that are stored top first
  std::uint16_t bitCount = 0;
  DibCompression compression = BI_RGB;
  std::uint32_t colorsUsed = 0;
  Masks masks{};
  std::vector<DibColor> colors;
};

/// Blue comes first, and a fourth byte means nothing.
std::vector<DibColor> ReadColors(ByteView& bytes, std::size_t count, std::size_t entrySize) {
  std::vector<DibColor> colors;
  for (; count > 0 && bytes.Remaining() >= entrySize; --count) {
    const auto entry = bytes.Read<DibColor>();
    bytes.Skip(entrySize - sizeof(DibColor));
    colors.push_back({entry[2], entry[1], entry[0]});
  }
  return colors;
}

std::size_t ColorCount(const DibLayout& layout) {
  if (layout.bitCount > 8) return 0;
  const std::size_t all = std::size_t{1} << layout.bitCount;
  return layout.colorsUsed == 0 || layout.colorsUsed > all ? all : layout.colorsUsed;
}

Masks MasksOf(DibLayout& layout, ByteView& bytes) {
  if (layout.compression == BI_BITFIELDS) {
    return {bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>(), bytes.Read<std::uint32_t>()};
  }
  if (layout.bitCount == 16) return {0x7C00, 0x03E0, 0x001F};
  return {0xFF0000, 0x00FF00, 0x0000FF};
}

DibLayout ReadLayout(ByteView bytes) {
  DibLayout layout;
  const auto size = bytes.Read<std::uint32_t>();
  if (size == kCoreHeaderSize) {
    layout.width = bytes.Read<std::uint16_t>();
    layout.height = bytes.Read<std::uint16_t>();
    bytes.Skip(sizeof(std::uint16_t));  // planes
    layout.bitCount = bytes.Read<std::uint16_t>();
    layout.masks = MasksOf(layout, bytes);
    layout.colors = ReadColors(bytes, ColorCount(layout), 3);
    return layout;
  }
  layout.width = bytes.Read<std::int32_t>();
  layout.height = bytes.Read<std::int32_t>();
  bytes.Skip(sizeof(std::uint16_t));  // planes
  layout.bitCount = bytes.Read<std::uint16_t>();
  layout.compression = bytes.Read<DibCompression>();
  bytes.Skip(3 * sizeof(std::uint32_t));  // size of the pixels, and their density
  layout.colorsUsed = bytes.Read<std::uint32_t>();
  bytes.Skip(sizeof(std::uint32_t));  // how many colours matter
  if (bytes.IsShort() || size < kInfoHeaderSize) return {};
  layout.masks = MasksOf(layout, bytes);
  if (size >= kMasksInHeaderSize && layout.compression != BI_BITFIELDS) {
    bytes.Skip(size - kInfoHeaderSize);
  } else if (size >= kMasksInHeaderSize) {
    bytes.Skip(size - kMasksInHeaderSize);
  }
  layout.colors = ReadColors(bytes, ColorCount(layout), 4);
  return layout;
}

/// @return the bits of a mask as a channel from 0 to 255.
std::uint8_t Channel(std::uint32_t pixel, std::uint32_t mask) {
  if (mask == 0) return 0;
  const int shift = std::countr_zero(mask);
  const std::uint64_t most = mask >> shift;
  return static_cast<std::uint8_t>(((pixel & mask) >> shift) * std::uint64_t{255} / most);
}

class RowDecoder {
 public:
  explicit RowDecoder(const DibLayout& layout) : layout_(layout) {}

  void Decode(const unsigned char* row, unsigned char* rgb) const {
    for (std::size_t x = 0; x < static_cast<std::size_t>(layout_.width); ++x, rgb += 3) {
      const DibColor color = layout_.bitCount <= 8 ? Indexed(row, x) : Direct(row, x);
      rgb[0] = color[0];
      rgb[1] = color[1];
      rgb[2] = color[2];
    }
  }

 private:
  [[nodiscard]] DibColor Indexed(const unsigned char* row, std::size_t x) const {
    const std::size_t bit = x * layout_.bitCount;
    const unsigned shift = 8U - layout_.bitCount - static_cast<unsigned>(bit % 8);
    const std::size_t index = (row[bit / 8] >> shift) & ((1U << layout_.bitCount) - 1);
    return index < layout_.colors.size() ? layout_.colors[index] : DibColor{};
  }

  [[nodiscard]] DibColor Direct(const unsigned char* row, std::size_t x) const {
    const std::size_t bytes = layout_.bitCount / 8U;
    std::uint32_t pixel = 0;
    for (std::size_t i = 0; i < bytes; ++i)
      pixel |= std::uint32_t{row[x * bytes + i]} << (8 * i);
    return {Channel(pixel, layout_.masks.red), Channel(pixel, layout_.masks.green),
            Channel(pixel, layout_.masks.blue)};
  }

  const DibLayout& layout_;
};

bool IsKnown(const DibLayout& layout) {
  switch (layout.bitCount) {
    case 1:
    case 4:
    case 8:
    case 24:
      return layout.compression == BI_RGB;
    case 16:
    case 32:
      return layout.compression == BI_RGB || layout.compression == BI_BITFIELDS;
    default:
      return false;
  }
}

}  // namespace

std::optional<DibPixels> DecodeDib(std::span<const unsigned char> header,
                                   std::span<const unsigned char> pixels,
                                   std::span<const DibColor> colors) {
  DibLayout layout = ReadLayout(ByteView(header));
  if (!IsKnown(layout) || layout.width <= 0 || layout.height == 0) return std::nullopt;
  if (!colors.empty()) layout.colors.assign(colors.begin(), colors.end());

  DibPixels decoded;
  decoded.width = static_cast<std::size_t>(layout.width);
  decoded.height = static_cast<std::size_t>(std::abs(layout.height));
  const std::size_t rowSize = (decoded.width * layout.bitCount + 31) / 32 * 4;
  if (pixels.size() / rowSize < decoded.height) return std::nullopt;
  decoded.rgb.resize(decoded.width * decoded.height * 3);
  const RowDecoder decoder(layout);
  for (std::size_t y = 0; y < decoded.height; ++y) {
    const std::size_t stored = layout.height < 0 ? y : decoded.height - 1 - y;
    decoder.Decode(pixels.data() + stored * rowSize, decoded.rgb.data() + y * decoded.width * 3);
  }
  return decoded;
}

}  // namespace metafile
}  // namespace kelvane
