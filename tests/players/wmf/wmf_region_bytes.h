#pragma once

#include "support/metafile.h"

namespace kelvane::test {

/// A region of one rectangle, as EMF has it in records.
inline Bytes RegionOf(const RectangleL& r) {
  return Bytes()
      .U32(32)
      .U32(1)
      .U32(1)
      .U32(16)
      .Rectangle(r.left, r.top, r.right, r.bottom)
      .Rectangle(r.left, r.top, r.right, r.bottom);
}

/// A record that paints such a region. @param fields  between its size and the region.
inline Bytes PaintedRegion(const RectangleL& r, const Bytes& fields = {}) {
  return Bytes()
      .Rectangle(r.left, r.top, r.right, r.bottom)
      .U32(48)
      .Append(fields.Data())
      .Append(RegionOf(r).Data());
}

/// The same as a Windows metafile has it, with a scan.
inline Bytes StoredRegion(const RectangleL& r) {
  return Bytes()
      .U16(0)
      .U16(6)
      .U32(0)
      .I16(30)
      .I16(1)
      .I16(2)
      .I16(r.left)
      .I16(r.top)
      .I16(r.right)
      .I16(r.bottom)
      .U16(2)
      .I16(r.top)
      .I16(r.bottom)
      .I16(r.left)
      .I16(r.right)
      .U16(2);
}

}  // namespace kelvane::test
