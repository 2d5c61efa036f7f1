#pragma once

#include <cstdint>

#include "classic/playable/record.h"

namespace kelvane {

/// EMR_SAVEDC ([MS-EMF] 2.3.11.8): saves the world transform and the surface's state.
class SaveDCRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& /*reader*/) override {}
};

/// EMR_RESTOREDC ([MS-EMF] 2.3.11.6): restores one level of each, however many the record asks for.
class RestoreDCRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::int32_t iRelative = 0;  // levels, negative
};

}  // namespace kelvane
