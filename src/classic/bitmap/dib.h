#pragma once

#include <cstdint>
#include <vector>

#include "classic/bitmap/bitmap_info_header.h"
#include "classic/bitmap/gdi_palette.h"

namespace kelvane {

class Reader;

/// A device-independent bitmap, decoded while it is read.
struct DIB {
  /// Reads header, colour table and pixels, each right behind the one before. Called once. When the
  /// pixels are of a kind that is left undecoded, or more than may be decoded, they are left unread
  /// and `data` is empty. Throws std::bad_alloc.
  void read(Reader& reader);

  std::uint32_t size = 0;          // bytes of `data`; until there are any, as the owner set it
  std::uint32_t bitsPosition = 0;  // where the owner expects the pixels; never consulted
  BitMapInfoHeader header;         // biBitCount tells `data`'s kind of pixels once there are any
  GDIPalette palette;
  std::vector<unsigned char> data;  // rows top first, each padded to a multiple of 4 bytes
};

}  // namespace kelvane
