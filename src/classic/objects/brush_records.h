#pragma once

#include <cstdint>
#include <vector>

#include "classic/playable/record.h"
#include "classic/reader/gdi_structures.h"

namespace kelvane {

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

}  // namespace kelvane
