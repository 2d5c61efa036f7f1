#include "classic/bitmap/dib.h"

#include <utility>

#include "classic/bitmap/bitmap_compression.h"

namespace kelvane {

void DIB::read(Reader& reader) {
  header.read(reader);
  palette.count = header.biClrUsed;
  palette.read(reader);
  const auto decoder = BitmapCompression::GetCompression(header.biCompression);
  if (!decoder) return;
  auto pixels = decoder->Decompress(header, reader, palette);
  if (!pixels) return;
  data = std::move(pixels->bytes);
  header.biBitCount = pixels->bitsPerPixel;
}

}  // namespace kelvane
