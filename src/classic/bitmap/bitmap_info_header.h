#pragma once

#include <cstdint>

namespace kelvane {

class Reader;

/// BITMAPINFOHEADER ([MS-WMF] 2.2.2.3): the fields in file order, then how the rows run.
struct BitMapInfoHeader {
  /// Reads the fields and makes biHeight its absolute value. What the data does not supply stays 0.
  void read(Reader& reader);

  /// Gives a bitmap with a colour table but no colour counts the full table: 2^biBitCount colours.
  void FixPalette();

  std::uint32_t biSize = 0;          // bytes, as stored; not used to skip
  std::int32_t biWidth = 0;          // pixels; negative in broken files
  std::int32_t biHeight = 0;         // rows; -2^31 stays: as unsigned bits it is its own absolute
  std::uint16_t biPlanes = 0;        // read, never used
  std::uint16_t biBitCount = 0;      // bits a pixel: as stored, and as decoded once the pixels are
  std::uint32_t biCompression = 0;   // [MS-WMF] 2.1.1.7
  std::uint32_t biSizeImage = 0;     // read, never used
  std::int32_t biXPelsPerMeter = 0;  // read, never used
  std::int32_t biYPelsPerMeter = 0;  // read, never used
  std::uint32_t biClrUsed = 0;       // colours in the table
  std::uint32_t biClrImportant = 0;  // never used
  bool topDown = false;  // the first stored row is the top one: biHeight was stored negative
};

}  // namespace kelvane
