#pragma once

#include <cstdint>

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

}  // namespace kelvane
