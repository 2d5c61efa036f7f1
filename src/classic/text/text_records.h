#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "classic/playable/record.h"
#include "classic/reader/gdi_structures.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// EMR_EXTTEXTOUTA, EMR_EXTTEXTOUTW ([MS-EMF] 2.3.5.7, 2.3.5.8). T is char or std::uint16_t. The
/// string and the spacing are taken from where they usually stand, one behind the other; their
/// offsets only tell whether they are there. Options and rectangle of the text block are not used.
template <class T>
class ExtTextOutRecord final : public Record {
 public:
  /// Draws the text. Two bytes of 8-bit text are taken for one UTF-16 unit, the first for its high
  /// half, and there are as many units as bytes: those that no bytes are left for show nothing.
  void drawToPDF(AbstractContext& context) const override;

  /// When the data ends early, the whole units and spacings read are kept.
  void read(Reader& reader) override;

  RectangleL bounds;               // logical units
  std::uint32_t graphicsMode = 0;  // read, never used
  float xScale = 0;                // read, never used
  float yScale = 0;                // read, never used
  TextW block;
  std::vector<T> text;
  std::vector<std::uint32_t> spacing;  // stored in logical units, taken for page units
};

}  // namespace kelvane
