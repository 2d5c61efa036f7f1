#include "metafile/dib_header.h"

#include <algorithm>
#include <cstddef>

#include "metafile/byte_view.h"

namespace kelvane {
inline namespace metafile {
namespace {

constexpr std::uint32_t kCoreHeaderSize = 12;
constexpr std::uint32_t kInfoHeaderSize = 40;
constexpr std::uint32_t kMasksInHeaderSize = 52;  // headers of this size and more hold the masks
constexpr std::uint32_t kAlphaInHeaderSize = 56;  // and of this size that of alpha, too

constexpr std::size_t kCoreEntrySize = 3;  // blue, green, red
constexpr std::size_t kInfoEntrySize = 4;  // and a byte that means nothing

/// @return a colour of the palette, as a logical palette has it: beyond its end the first.
DibColor PaletteColor(std::span<const DibColor> palette, std::size_t index) {
  if (palette.empty()) return {};
  return palette[index < palette.size() ? index : 0];
}

DibColor ReadColor(ByteView& bytes, std::size_t entrySize) {
  const auto entry = bytes.Read<DibColor>();
  bytes.Skip(entrySize - sizeof(DibColor));
  return {entry[2], entry[1], entry[0]};
}

/// @param bytes  from the table on, which may end early. @param used  0 for all that there can be.
std::vector<DibColor> ReadColors(ByteView bytes, std::size_t bitCount, std::uint32_t used,
                                 std::size_t entrySize, DibUsage usage,
                                 std::span<const DibColor> palette) {
  std::vector<DibColor> colors(std::size_t{1} << bitCount);
  std::size_t stored = used == 0 ? colors.size() : std::min<std::size_t>(used, colors.size());
  if (usage == DIB_PAL_INDICES) {
    for (std::size_t i = 0; i < colors.size(); ++i)
      colors[i] = PaletteColor(palette, i);
  } else if (usage == DIB_PAL_COLORS) {
    stored = std::min(stored, bytes.Remaining() / sizeof(std::uint16_t));
    for (std::size_t i = 0; i < stored; ++i)
      colors[i] = PaletteColor(palette, bytes.Read<std::uint16_t>());
  } else {
    stored = std::min(stored, bytes.Remaining() / entrySize);
    for (std::size_t i = 0; i < stored; ++i)
      colors[i] = ReadColor(bytes, entrySize);
  }
  return colors;
}

bool HasColors(const DibHeader& header) {
  return header.bitCount == 1 || header.bitCount == 4 || header.bitCount == 8;
}

DibMasks MasksOf(std::uint16_t bitCount) {
  if (bitCount == 16) return {0x7C00, 0x03E0, 0x001F, 0};
  return {0xFF0000, 0x00FF00, 0x0000FF, bitCount == 32 ? 0xFF000000 : 0};
}

/// @return the bits of a pixel that belong to no colour, where alpha is when a header does not say.
std::uint32_t BitsLeft(const DibMasks& masks) {
  return ~(masks.red | masks.green | masks.blue);
}

std::optional<DibHeader> ReadCoreHeader(ByteView bytes, DibUsage usage,
                                        std::span<const DibColor> palette) {
  DibHeader header;
  header.width = bytes.Read<std::uint16_t>();
  header.height = bytes.Read<std::uint16_t>();
  bytes.Skip(sizeof(std::uint16_t));  // planes
  header.bitCount = bytes.Read<std::uint16_t>();
  if (bytes.IsShort()) return std::nullopt;
  header.masks = MasksOf(header.bitCount);
  if (HasColors(header)) {
    header.colors = ReadColors(bytes, header.bitCount, 0, kCoreEntrySize, usage, palette);
  }
  return header;
}

/// @param size  of the header, as it says itself, and bytes that begin behind that number.
std::optional<DibHeader> ReadInfoHeader(std::uint32_t size, ByteView bytes, DibUsage usage,
                                        std::span<const DibColor> palette) {
  DibHeader header;
  header.width = bytes.Read<std::int32_t>();
  header.height = bytes.Read<std::int32_t>();
  bytes.Skip(sizeof(std::uint16_t));  // planes
  header.bitCount = bytes.Read<std::uint16_t>();
  header.compression = bytes.Read<DibCompression>();
  bytes.Skip(3 * sizeof(std::uint32_t));  // size of the pixels, and their density
  const auto colorsUsed = bytes.Read<std::uint32_t>();
  bytes.Skip(sizeof(std::uint32_t));  // how many colours matter
  ByteView table = bytes;
  table.Skip(size - kInfoHeaderSize);
  header.masks = MasksOf(header.bitCount);
  if (header.compression == BI_BITFIELDS) {  // behind a header of 40 bytes, within all others
    header.masks.red = bytes.Read<std::uint32_t>();
    header.masks.green = bytes.Read<std::uint32_t>();
    header.masks.blue = bytes.Read<std::uint32_t>();
    header.masks.alpha = size >= kAlphaInHeaderSize ? bytes.Read<std::uint32_t>() : 0;
    if (header.bitCount == 32 && header.masks.alpha == 0)
      header.masks.alpha = BitsLeft(header.masks);
  }
  if (bytes.IsShort()) return std::nullopt;
  if (HasColors(header)) {
    header.colors = ReadColors(table, header.bitCount, colorsUsed, kInfoEntrySize, usage, palette);
  }
  return header;
}

}  // namespace

std::uint64_t DibHeaderSize(std::span<const unsigned char> bytes, DibUsage usage) {
  const auto header = ReadDibHeader(bytes, usage, {});
  if (!header) return 0;
  ByteView view(bytes);
  const auto size = view.Read<std::uint32_t>();
  const bool isCore = size == kCoreHeaderSize;
  std::uint64_t colors = HasColors(*header) ? header->colors.size() : 0;
  if (!isCore) {
    constexpr std::size_t kBetweenSizeAndColorsUsed = 28;
    view.Skip(kBetweenSizeAndColorsUsed);
    const auto used = view.Read<std::uint32_t>();
    if (used != 0 && (colors == 0 || used < colors)) colors = used;
  }
  if (usage == DIB_PAL_INDICES) colors = 0;
  constexpr std::size_t kMasksSize = 12;
  const bool hasMasksBehind = size == kInfoHeaderSize && header->compression == BI_BITFIELDS;
  const std::size_t entrySize = usage == DIB_PAL_COLORS ? sizeof(std::uint16_t)
                                : isCore                ? kCoreEntrySize
                                                        : kInfoEntrySize;
  return size + (hasMasksBehind ? kMasksSize : 0) + colors * entrySize;
}

std::optional<DibHeader> ReadDibHeader(std::span<const unsigned char> bytes, DibUsage usage,
                                       std::span<const DibColor> palette) {
  ByteView view(bytes);
  const auto size = view.Read<std::uint32_t>();
  if (size == kCoreHeaderSize) return ReadCoreHeader(view, usage, palette);
  if (size == kInfoHeaderSize || size >= kMasksInHeaderSize) {
    return ReadInfoHeader(size, view, usage, palette);
  }
  return std::nullopt;
}

}  // namespace metafile
}  // namespace kelvane
