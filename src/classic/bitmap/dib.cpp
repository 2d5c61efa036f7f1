#include "classic/bitmap/dib.h"

#include "classic/bitmap/bitmap_compression.h"

namespace kelvane {

void DIB::read(Reader& reader) {
  header.read(reader);
  palette.count = header.biClrUsed;
  palette.read(reader);
  const auto decoder = BitmapCompression::GetCompression(header.biCompression);
  if (!decoder) return;
  decoder->size = size;
  decoder->width = static_cast<std::uint32_t>(header.biWidth);
  decoder->height = static_cast<std::uint32_t>(header.biHeight);
  decoder->bitCount = header.biBitCount;
  decoder->topDown = header.topDown;
  decoder->Decompress(data, reader, palette);
  size = decoder->size;
  header.biBitCount = static_cast<std::uint16_t>(decoder->bitCount);
}

}  // namespace kelvane
