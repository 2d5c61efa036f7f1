#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "metafile/array_view.h"
#include "metafile/dib_header.h"
#include "metafile/gdi_types.h"

namespace kelvane {

struct RgbColor {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;

  friend bool operator==(const RgbColor&, const RgbColor&) = default;
};

/// A logical palette: colours by number. It may change while it is selected.
class Palette {
 public:
  /// Entries beyond the most that Windows allows are left out.
  static constexpr std::size_t kMostEntries = 1024;

  explicit Palette(std::vector<RgbColor> entries);

  /// The twenty colours that are there without a palette.
  static Palette Default();

  [[nodiscard]] std::size_t Size() const { return size_; }

  /// @return the colour of an entry, of the first when there are not as many; black of none.
  [[nodiscard]] RgbColor At(std::size_t index) const;

  /// Sets those entries that exist.
  /// @param entries  a range of PaletteEntry.
  template <class Entries>
  void SetEntries(std::size_t start, const Entries& entries) {
    for (const PaletteEntry& entry : entries) {
      if (start >= size_) return;
      Set(start++, {entry.red, entry.green, entry.blue});
    }
  }

  /// New entries are black.
  /// @return false, and changes nothing, for a size of 0 and beyond the most.
  bool Resize(std::size_t size);

 private:
  void Set(std::size_t index, RgbColor color);

  std::vector<RgbColor> entries_;  // up to the last that was ever set
  std::size_t size_;
};

/// @return a palette of the entries of a file.
Palette PaletteOf(ArrayView<PaletteEntry> entries);

/// @return all entries, for the bitmaps that number them.
std::vector<DibColor> ColorsOf(const Palette& palette);

/// @return the colour, by the palette's entry when it is a number of one.
RgbColor ResolveColor(ColorRef color, const Palette& palette);

}  // namespace kelvane
