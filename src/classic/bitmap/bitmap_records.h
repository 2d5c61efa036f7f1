#pragma once

#include <cstdint>
#include <vector>

#include "classic/bitmap/bitmap_info_header.h"
#include "classic/bitmap/dib.h"
#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// EMR_BITBLT ([MS-EMF] 2.3.1.2). Only one without a source bitmap is drawn, as a rectangle filled
/// with the current fill colour: that is how writers paint with a brush.
class BitBltRecord final : public Record {
 public:
  /// Fills at once, inside a path bracket and with a hollow brush, too. The raster operations that
  /// leave the destination unchanged or invert it are not drawn.
  void drawToPDF(AbstractContext& context) const override;

  /// Reads the fields and what bytes the data has of the source, wherever their offsets point.
  void read(Reader& reader) override;

  RectangleL rclBounds;    // read, never used in drawing
  std::int32_t xDest = 0;  // destination: logical units
  std::int32_t yDest = 0;
  std::int32_t cxDest = 0;
  std::int32_t cyDest = 0;
  std::uint32_t dwRop = 0;  // ternary raster operation ([MS-WMF] 2.1.1.31)
  std::int32_t xSrc = 0;    // this and all that follows: read, never used in drawing
  std::int32_t ySrc = 0;
  XForm xformSrc;
  std::uint32_t crBkColorSrc = 0;  // COLORREF
  std::uint32_t iUsageSrc = 0;
  std::uint32_t offBmiSrc = 0;  // bytes from the record's start
  std::uint32_t cbBmiSrc = 0;
  std::uint32_t offBitsSrc = 0;  // bytes from the record's start
  std::uint32_t cbBitsSrc = 0;   // as stored; may exceed bitsSrc.size(). Not 0: nothing is drawn
  BitMapInfoHeader bmiSrc;       // read when cbBmiSrc is not 0
  std::vector<unsigned char> bitsSrc;
};

/// EMR_STRETCHDIBITS ([MS-EMF] 2.3.1.7). The whole bitmap is drawn into the bounds; source and
/// destination are not followed.
class StretchDibitsRecord final : public Record {
 public:
  /// Draws the bitmap, unless the raster operation is SRCINVERT, which inverts what is there.
  void drawToPDF(AbstractContext& context) const override;

  /// Reads the fields, the bitmap right behind them, wherever their offsets point, and past the
  /// record's rest.
  void read(Reader& reader) override;

  RectangleL rclBounds;    // drawn into; taken as logical units
  std::int32_t xDest = 0;  // this and all that follows but dwRop: read, never used in drawing
  std::int32_t yDest = 0;
  std::int32_t xSrc = 0;
  std::int32_t ySrc = 0;
  std::int32_t cxSrc = 0;
  std::int32_t cySrc = 0;
  std::uint32_t offBmiSrc = 0;  // bytes from the record's start
  std::uint32_t cbBmiSrc = 0;
  std::uint32_t offBitsSrc = 0;  // bytes from the record's start
  std::uint32_t cbBitsSrc = 0;
  std::uint32_t iUsageSrc = 0;
  std::uint32_t dwRop = 0;  // ternary raster operation ([MS-WMF] 2.1.1.31)
  std::int32_t cxDest = 0;
  std::int32_t cyDest = 0;  // absolute value
  bool flipped = false;     // cyDest was stored negative
  DIB dib;
};

}  // namespace kelvane
