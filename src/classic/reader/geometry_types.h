#pragma once

#include <cstdint>

namespace kelvane {

// The metafile's plain geometry, in file order ([MS-EMF] 2.2, [MS-WMF] 2.2.2). Units are the
// record's own.

/// POINTS: two signed 16-bit coordinates.
struct Point16 {
  std::int16_t x = 0;
  std::int16_t y = 0;
};

/// POINT, where a record stores it inside an object or beside a colour.
struct Point {
  std::int32_t x = 0;
  std::int32_t y = 0;
};

/// POINTL: two signed 32-bit coordinates.
struct PointL {
  std::int32_t x = 0;
  std::int32_t y = 0;
};

struct SIZEL {
  std::int32_t cx = 0;
  std::int32_t cy = 0;
};

/// RECTL: edges, in any order; y grows downwards.
struct RectangleL {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;
};

/// XFORM, for row vectors: x' = x eM11 + y eM21 + eDx, y' = x eM12 + y eM22 + eDy.
struct XForm {
  float eM11 = 0;
  float eM12 = 0;
  float eM21 = 0;
  float eM22 = 0;
  float eDx = 0;
  float eDy = 0;
};

inline constexpr XForm kIdentityTransform = {1, 0, 0, 1, 0, 0};

/// @return the single-precision product: applying it equals applying `a`, then `b`.
constexpr XForm CrossMultiply(const XForm& a, const XForm& b) {
  return {a.eM11 * b.eM11 + a.eM12 * b.eM21,       a.eM11 * b.eM12 + a.eM12 * b.eM22,
          a.eM21 * b.eM11 + a.eM22 * b.eM21,       a.eM21 * b.eM12 + a.eM22 * b.eM22,
          a.eDx * b.eM11 + a.eDy * b.eM21 + b.eDx, a.eDx * b.eM12 + a.eDy * b.eM22 + b.eDy};
}

/// A run of UTF-16 units to be read into memory that belongs to somebody else.
struct WcharString {
  std::uint16_t* data = nullptr;  // borrowed; room for `length` units
  std::int32_t length = 0;        // units
};

}  // namespace kelvane
