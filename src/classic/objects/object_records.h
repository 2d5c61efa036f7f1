#pragma once

#include <cstdint>

#include "classic/playable/record.h"

namespace kelvane {

/// A record that only names an object.
class ObjectRecord : public Record {
 public:
  void read(Reader& reader) override;

  std::uint32_t objectIndex = 0;  // into the object table; stock objects have the high bit set
};

/// EMR_SELECTOBJECT ([MS-EMF] 2.3.8.5). Selecting is what brings a pen's and a brush's settings to
/// the surface and a font's to the context.
class SelectObjectRecord final : public ObjectRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
};

/// EMR_DELETEOBJECT ([MS-EMF] 2.3.8.3).
class DeleteObjectRecord final : public ObjectRecord {
 public:
  void drawToPDF(AbstractContext& context) const override;
};

}  // namespace kelvane
