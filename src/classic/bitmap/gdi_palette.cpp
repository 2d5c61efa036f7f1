#include "classic/bitmap/gdi_palette.h"

#include "classic/reader/reader.h"

namespace kelvane {

// Blue, green, red and a reserved byte read as one little-endian number are the colour, but for the
// reserved byte.
void GDIPalette::read(Reader& reader) {
  reader.readList(colors, count);
  for (std::uint32_t& color : colors)
    color &= 0x00FFFFFF;
}

std::uint32_t GDIPalette::LookupColor(std::uint32_t index) const {
  if (colors.empty()) {
    return ((index >> 16) & 0x0000FF) + ((index << 16) & 0xFF0000) + (index & 0x00FF00);
  }
  return index < colors.size() ? colors[index] : 0;
}

}  // namespace kelvane
