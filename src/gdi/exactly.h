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

constexpr TransformD Exactly(const CGAffineTransform& t) {
  return {t.a, t.b, t.c, t.d, t.tx, t.ty};
}

/// The other way, into the single precision of paths and surfaces.
inline CGPoint Rounded(PointD point) {
  return {static_cast<CGFloat>(point.x), static_cast<CGFloat>(point.y)};
}

inline CGAffineTransform Rounded(const TransformD& t) {
  return {static_cast<CGFloat>(t.m11), static_cast<CGFloat>(t.m12), static_cast<CGFloat>(t.m21),
          static_cast<CGFloat>(t.m22), static_cast<CGFloat>(t.dx),  static_cast<CGFloat>(t.dy)};
}

}  // namespace kelvane
