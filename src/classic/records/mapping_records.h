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

/// EMR_SETMAPMODE ([MS-EMF] 2.3.11.19).
class SetMapModeRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  std::int32_t iMode = 0;  // MM_
};

/// EMR_SETWINDOWEXTEX ([MS-EMF] 2.3.11.30).
class SetWindowExtExRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  SIZEL extent;  // logical units
};

/// EMR_SETWINDOWORGEX ([MS-EMF] 2.3.11.31).
class SetWindowOrgExRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  Point origin;  // logical units
};

/// EMR_SETVIEWPORTEXTEX ([MS-EMF] 2.3.11.28).
class SetViewPortExtExRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  SIZEL extent;  // page units
};

/// EMR_SETVIEWPORTORGEX ([MS-EMF] 2.3.11.29).
class SetViewPortOrgExRecord final : public Record {
 public:
  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  Point origin;  // page units
};

/// Which extent a ScaleExtExRecord scales.
enum class ScaledExtent : std::uint8_t { kViewport, kWindow };

/// EMR_SCALEVIEWPORTEXTEX and EMR_SCALEWINDOWEXTEX ([MS-EMF] 2.3.11.7, 2.3.11.8). The window's
/// direction, which SetWindowExtEx notes, stays even when scaling turns the extent around. A
/// denominator of 0 leaves its extent.
class ScaleExtExRecord final : public Record {
 public:
  explicit ScaleExtExRecord(ScaledExtent scaledExtent) : scaled(scaledExtent) {}

  void drawToPDF(AbstractContext& context) const override;
  void read(Reader& reader) override;

  const ScaledExtent scaled;
  std::int32_t xNum = 0;
  std::int32_t xDenom = 0;
  std::int32_t yNum = 0;
  std::int32_t yDenom = 0;
};

}  // namespace kelvane
