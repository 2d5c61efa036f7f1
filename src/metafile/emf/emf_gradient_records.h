#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_enumerations.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// EMR_GRADIENTFILL ([MS-EMF] 2.3.5.12).

struct GradientFillRecord {
  RectangleL bounds;  // device units, a hint
  GradientFillMode mode{};
  ArrayView<TriVertex> vertices;
  ArrayView<GradientRectangle> rectangles;  // of GRADIENT_FILL_RECT_H and _V
  ArrayView<GradientTriangle> triangles;    // of GRADIENT_FILL_TRIANGLE
};

/// @param bytes  the record behind type and size. Of an unknown mode there are no meshes.
inline GradientFillRecord DecodeGradientFill(ByteView& bytes) {
  GradientFillRecord record;
  record.bounds = bytes.Read<RectangleL>();
  const auto vertices = bytes.Read<std::uint32_t>();
  const auto meshes = bytes.Read<std::uint32_t>();
  record.mode = bytes.Read<GradientFillMode>();
  record.vertices = bytes.Array<TriVertex>(vertices);
  if (record.mode == GRADIENT_FILL_TRIANGLE) {
    record.triangles = bytes.Array<GradientTriangle>(meshes);
  } else if (record.mode == GRADIENT_FILL_RECT_H || record.mode == GRADIENT_FILL_RECT_V) {
    record.rectangles = bytes.Array<GradientRectangle>(meshes);
  }
  return record;
}

}  // namespace metafile
}  // namespace kelvane
