#include "classic/bitmap/bitmap_info_header.h"

#include "classic/reader/integer_arithmetic.h"
#include "classic/reader/reader.h"

namespace kelvane {

void BitMapInfoHeader::read(Reader& reader) {
  reader.readAll(biSize, biWidth, biHeight, biPlanes, biBitCount, biCompression, biSizeImage,
                 biXPelsPerMeter, biYPelsPerMeter, biClrUsed, biClrImportant);
  if (biHeight < 0) {
    biHeight = WrappingNegate(biHeight);
    topDown = true;
  }
  FixPalette();
}

void BitMapInfoHeader::FixPalette() {
  constexpr std::uint16_t kFewestBitsWithoutTable = 16;
  if (biBitCount >= kFewestBitsWithoutTable) return;
  const std::uint32_t fullTable = 1U << biBitCount;
  if (biClrUsed == 0) biClrUsed = fullTable;
  if (biClrImportant == 0) biClrImportant = fullTable;
}

}  // namespace kelvane
