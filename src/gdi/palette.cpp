#include "gdi/palette.h"

#include <algorithm>
#include <utility>

namespace kelvane {

Palette::Palette(std::vector<RgbColor> entries)
    : entries_(std::move(entries)), size_(std::min(entries_.size(), kMostEntries)) {
  entries_.resize(size_);
}

Palette Palette::Default() {
  return Palette({{0x00, 0x00, 0x00}, {0x80, 0x00, 0x00}, {0x00, 0x80, 0x00}, {0x80, 0x80, 0x00},
                  {0x00, 0x00, 0x80}, {0x80, 0x00, 0x80}, {0x00, 0x80, 0x80}, {0xC0, 0xC0, 0xC0},
                  {0xC0, 0xDC, 0xC0}, {0xA6, 0xCA, 0xF0}, {0xFF, 0xFB, 0xF0}, {0xA0, 0xA0, 0xA4},
                  {0x80, 0x80, 0x80}, {0xFF, 0x00, 0x00}, {0x00, 0xFF, 0x00}, {0xFF, 0xFF, 0x00},
                  {0x00, 0x00, 0xFF}, {0xFF, 0x00, 0xFF}, {0x00, 0xFF, 0xFF}, {0xFF, 0xFF, 0xFF}});
}

RgbColor Palette::At(std::size_t index) const {
  if (index >= size_) index = 0;
  return index < entries_.size() ? entries_[index] : RgbColor();
}

bool Palette::Resize(std::size_t size) {
  if (size == 0 || size > kMostEntries) return false;
  entries_.resize(std::min(size, entries_.size()));  // what is cut off does not come back
  size_ = size;
  return true;
}

// Entries are only there once they are set, or a file of nothing but sizes would take far more
// memory than it has bytes.
void Palette::Set(std::size_t index, RgbColor color) {
  if (index >= entries_.size()) entries_.resize(index + 1);
  entries_[index] = color;
}

Palette PaletteOf(ArrayView<PaletteEntry> entries) {
  std::vector<RgbColor> colors;
  for (const PaletteEntry entry : entries) {
    if (colors.size() == Palette::kMostEntries) break;
    colors.push_back({entry.red, entry.green, entry.blue});
  }
  return Palette(std::move(colors));
}

std::vector<DibColor> ColorsOf(const Palette& palette) {
  std::vector<DibColor> colors;
  for (std::size_t i = 0; i < palette.Size(); ++i) {
    const RgbColor color = palette.At(i);
    colors.push_back({color.red, color.green, color.blue});
  }
  return colors;
}

RgbColor ResolveColor(ColorRef color, const Palette& palette) {
  if (color.IsPaletteIndex()) return palette.At(color.PaletteIndex());
  return {color.Red(), color.Green(), color.Blue()};
}

}  // namespace kelvane
