#pragma once

#include <cstdint>

#include "classic/playable/record.h"
#include "classic/reader/geometry_types.h"

namespace kelvane {

/// EMR_SETWORLDTRANSFORM ([MS-EMF] 2.3.12.2). Only the context hears of it; the surface's transform
/// stays.
class SetWorldTransformRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  XForm xform;
};

/// EMR_MODIFYWORLDTRANSFORM ([MS-EMF] 2.3.12.1): changes the world transform and puts the result in
/// the place of the surface's.
class ModifyWorldTransformRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  XForm xform;
  std::int32_t iMode = 0;  // a TransformMode
};

}  // namespace kelvane
