#pragma once

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

  BitMapInfoHeader header;  // biBitCount tells `data`'s kind of pixels once there are any
  GDIPalette palette;
  std::vector<unsigned char> data;  // DecodedPixels::bytes
};

}  // namespace kelvane
