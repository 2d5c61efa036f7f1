#pragma once

#include "gdi/geometry.h"
#include "metafile/gdi_types.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// A point of a file or of a path, in the numbers that geometry is computed in.
template <class Point>
constexpr PointD Exactly(Point point) {
  return {static_cast<double>(point.x), static_cast<double>(point.y)};
}

constexpr RectangleD Exactly(const RectangleL& r) {
  return {static_cast<double>(r.left), static_cast<double>(r.top), static_cast<double>(r.right),
          static_cast<double>(r.bottom)};
}

}  // namespace kelvane
