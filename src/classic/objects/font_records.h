#pragma once

#include <cstdint>

#include "classic/playable/record.h"
#include "classic/reader/gdi_structures.h"

namespace kelvane {

/// EMR_EXTCREATEFONTINDIRECTW ([MS-EMF] 2.3.7.8): puts a font into the object table and at once
/// makes its escapement the angle of text, whether or not the font is ever selected.
class ExtCreateFontIndirectWRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;

  /// Always reads the longest form of the structure, 320 bytes, and then moves the reader to the
  /// record's declared end, since files carry shorter and longer ones. What was read beyond a short
  /// record's end is kept.
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;
  ExtLogFontW font;
};

}  // namespace kelvane
