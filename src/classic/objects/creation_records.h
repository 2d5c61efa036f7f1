#pragma once

#include <cstdint>
#include <vector>

#include "classic/playable/record.h"
#include "classic/reader/gdi_structures.h"

namespace kelvane {

/// EMR_CREATEPEN ([MS-EMF] 2.3.7.7): puts a pen into the object table.
class CreatePenRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;
  LogicalPen pen;
};

/// EMR_EXTCREATEPEN ([MS-EMF] 2.3.7.9). A pattern bitmap, if there is one, is not read.
class ExtCreatePenRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;
  std::uint32_t bitmapInfoOffset = 0;  // bytes, as the next three; not used
  std::uint32_t bitmapInfoSize = 0;
  std::uint32_t bitsOffset = 0;
  std::uint32_t bitsSize = 0;
  ExtLogPen pen;
};

/// EMR_CREATEBRUSHINDIRECT ([MS-EMF] 2.3.7.1): puts a brush into the object table.
class CreateBrushIndirectRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;
  LogicalBrush brush;
};

/// EMR_CREATEMONOBRUSH and EMR_CREATEDIBPATTERNBRUSHPT ([MS-EMF] 2.3.7.5, 2.3.7.4), which are laid
/// out alike: puts a pattern brush into the object table, without its pattern.
class CreateDIBBrushRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;

  /// As many bytes follow the fields as `bitsOffset` says: that field, not `bitsSize`, counts them.
  /// Those that the data supplies are kept.
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;
  std::uint32_t usage = 0;  // DIB_
  std::uint32_t bitmapInfoOffset = 0;
  std::uint32_t bitmapInfoSize = 0;
  std::uint32_t bitsOffset = 0;
  std::uint32_t bitsSize = 0;
  std::vector<std::uint8_t> bytes;  // undecoded, never consulted
};

/// EMR_EXTCREATEFONTINDIRECTW ([MS-EMF] 2.3.7.8): puts a font into the object table and at once
/// makes its escapement the angle of text, whether or not the font is ever selected.
class ExtCreateFontIndirectWRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;

  /// Always reads the longest form of the structure, 320 bytes, and then moves the reader to the
  /// record's declared end, since files carry shorter and longer ones. What was read beyond a short
  /// record's end is kept. Where the data ends inside the record, the reader stays there. A size
  /// that is negative as a signed number leads back behind the record, where parsing ends.
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;
  ExtLogFontW font;
};

}  // namespace kelvane
