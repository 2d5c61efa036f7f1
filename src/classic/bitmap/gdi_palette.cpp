#include "classic/bitmap/gdi_palette.h"

#include "classic/reader/reader.h"

namespace kelvane {

void GDIPalette::read(Reader& reader) {
  reader.readList(colors, count, [&reader](std::uint32_t& color) { color = ReadColor(reader); });
}

// As a little-endian number the four bytes are the colour, but for the last.
std::uint32_t GDIPalette::ReadColor(Reader& reader) {
  std::uint32_t color = 0;
  reader.read(color);
  return color & 0x00FFFFFF;
}

std::uint32_t GDIPalette::LookupColor(std::uint32_t index) const {
  if (colors.empty()) {
    return ((index >> 16) & 0x0000FF) + ((index << 16) & 0xFF0000) + (index & 0x00FF00);
  }
  return index < colors.size() ? colors[index] : 0;
}

}  // namespace kelvane
