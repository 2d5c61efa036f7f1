#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "metafile/gdi_enumerations.h"

namespace kelvane {
inline namespace metafile {

using DibColor = std::array<std::uint8_t, 3>;  // red, green, blue

/// Which bits of a pixel hold what; none when a channel is not there.
struct DibMasks {
  std::uint32_t red = 0;
  std::uint32_t green = 0;
  std::uint32_t blue = 0;
  std::uint32_t alpha = 0;
};

/// What stands before the pixels of a bitmap, of whichever kind of header ([MS-WMF] 2.2.2.3, .9,
/// [MS-EMF] 2.2.4, .5).
struct DibHeader {
  std::int32_t width = 0;   // pixels, as stored
  std::int32_t height = 0;  // below zero for rows that are stored top first
  std::uint16_t bitCount = 0;
  DibCompression compression = BI_RGB;
  DibMasks masks;                // of 16, 24 and 32 bits
  std::vector<DibColor> colors;  // of 1, 4 and 8 bits: 2^bitCount, those that are missing black
};

/// @param palette  the colours that a table of DIB_PAL_COLORS numbers, or of DIB_PAL_INDICES the
///                 pixels. Numbers beyond it mean the first, and without any all are black.
/// @return nullopt when bytes are missing other than those of the colour table, or the header is of
///         an unknown kind.
std::optional<DibHeader> ReadDibHeader(std::span<const unsigned char> bytes, DibUsage usage,
                                       std::span<const DibColor> palette);

/// @return the bytes of header, masks and colour table, behind which a bitmap in one piece has its
///         pixels; 0 when the header makes no sense. There may be fewer.
std::uint64_t DibHeaderSize(std::span<const unsigned char> bytes, DibUsage usage);

}  // namespace metafile
}  // namespace kelvane
