#pragma once

#include <cstdint>
#include <vector>

#include "classic/context/abstract_context.h"
#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

// Records that are read and change nothing: playback has no raster operations, palettes, colour
// management or brush patterns, and always fills polygons by the even-odd rule.

/// One that carries a single number.
class UnusedModeRecord : public Record {
 public:
  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& reader) override;

  std::uint32_t mode = 0;  // as stored
};

/// EMR_SETPOLYFILLMODE ([MS-EMF] 2.3.11.22).
class SetPolyFillModeRecord final : public UnusedModeRecord {};

/// EMR_SETROP2 ([MS-EMF] 2.3.11.23).
class SetRop2Record final : public UnusedModeRecord {};

/// EMR_SETSTRETCHBLTMODE ([MS-EMF] 2.3.11.24).
class SetStretchBltModeRecord final : public UnusedModeRecord {};

/// EMR_SETICMMODE ([MS-EMF] 2.3.11.14).
class SetICMModeRecord final : public UnusedModeRecord {};

/// EMR_SETLAYOUT ([MS-EMF] 2.3.11.17).
class SetLayoutRecord final : public UnusedModeRecord {};

/// EMR_SELECTPALETTE ([MS-EMF] 2.3.8.6). The number is a palette's index.
class SelectPaletteRecord final : public UnusedModeRecord {};

/// EMR_SETBRUSHORGEX ([MS-EMF] 2.3.11.12).
class SetBrushOrgExRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& reader) override;

  Point origin;  // device units
};

/// EMR_SETPIXELV ([MS-EMF] 2.3.5.36).
class SetPixelVRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override { context.EmptyDraw("SetPixelV"); }
  void read(Reader& reader) override;

  Point pixel;              // logical units
  std::uint32_t color = 0;  // COLORREF
};

/// EMR_GDICOMMENT ([MS-EMF] 2.3.3.1).
class GDICommentRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& /*context*/) const override {}

  /// Reads the count, the bytes the data supplies, and the padding to a multiple of four.
  void read(Reader& reader) override;

  std::uint32_t cbData = 0;        // bytes, as stored
  std::vector<std::uint8_t> data;  // never consulted
};

}  // namespace kelvane
