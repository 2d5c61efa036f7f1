#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// From logical to device units ([MS-EMF] 2.3.11, 2.3.12): map mode, window and viewport, world
// transform, layout, arc direction.
//
// Decoders take the record behind its type and size, and leave it short when fields are missing.

/// EMR_SETMAPMODE ([MS-EMF] 2.3.11.19).
struct SetMapModeRecord {
  MapMode mode{};
};
inline SetMapModeRecord DecodeSetMapMode(ByteView& bytes) {
  return {bytes.Read<MapMode>()};
}

/// EMR_SETWINDOWORGEX, EMR_SETVIEWPORTORGEX, EMR_SETBRUSHORGEX ([MS-EMF] 2.3.11.12, .29, .31).
struct OriginRecord {
  PointL origin;  // the window's in logical units, the others in device units
};
inline OriginRecord DecodeOrigin(ByteView& bytes) {
  return {bytes.Read<PointL>()};
}

/// EMR_SETWINDOWEXTEX, EMR_SETVIEWPORTEXTEX ([MS-EMF] 2.3.11.28, .30).
struct ExtentRecord {
  SizeL extent;  // the window's in logical units, the viewport's in device units
};
inline ExtentRecord DecodeExtent(ByteView& bytes) {
  return {bytes.Read<SizeL>()};
}

/// EMR_SCALEVIEWPORTEXTEX, EMR_SCALEWINDOWEXTEX ([MS-EMF] 2.3.11.7, .8).
struct ScaleExtentRecord {
  std::int32_t xNum = 0;
  std::int32_t xDenom = 0;
  std::int32_t yNum = 0;
  std::int32_t yDenom = 0;
};
inline ScaleExtentRecord DecodeScaleExtent(ByteView& bytes) {
  return {bytes.Read<std::int32_t>(), bytes.Read<std::int32_t>(), bytes.Read<std::int32_t>(),
          bytes.Read<std::int32_t>()};
}

/// EMR_SETWORLDTRANSFORM ([MS-EMF] 2.3.12.2).
struct SetWorldTransformRecord {
  XForm transform;
};
inline SetWorldTransformRecord DecodeSetWorldTransform(ByteView& bytes) {
  return {bytes.Read<XForm>()};
}

/// EMR_MODIFYWORLDTRANSFORM ([MS-EMF] 2.3.12.1).
struct ModifyWorldTransformRecord {
  XForm transform;
  WorldTransformMode mode{};
};
inline ModifyWorldTransformRecord DecodeModifyWorldTransform(ByteView& bytes) {
  return {bytes.Read<XForm>(), bytes.Read<WorldTransformMode>()};
}

/// EMR_SETLAYOUT ([MS-EMF] 2.3.11.17).
struct SetLayoutRecord {
  Layout layout{};
};
inline SetLayoutRecord DecodeSetLayout(ByteView& bytes) {
  return {bytes.Read<Layout>()};
}

/// EMR_SETARCDIRECTION ([MS-EMF] 2.3.11.9).
struct SetArcDirectionRecord {
  ArcDirection direction{};
};
inline SetArcDirectionRecord DecodeSetArcDirection(ByteView& bytes) {
  return {bytes.Read<ArcDirection>()};
}

}  // namespace metafile
}  // namespace kelvane
