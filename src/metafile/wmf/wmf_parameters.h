#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

// What calls took as 16-bit arguments, read as the values that they take now. A record has the last
// argument first, so y stands before x and the bottom before the top; structures within a record
// have their own order.

/// An enumeration of 32 bits that is stored in 16.
template <class Enumeration>
constexpr Enumeration ReadEnumeration16(ByteView& bytes) {
  return static_cast<Enumeration>(bytes.Read<std::uint16_t>());
}

/// y, x.
constexpr PointL ReadReversedPoint(ByteView& bytes) {
  const auto y = bytes.Read<std::int16_t>();
  const auto x = bytes.Read<std::int16_t>();
  return {x, y};
}

/// Height, width.
constexpr SizeL ReadReversedSize(ByteView& bytes) {
  const auto height = bytes.Read<std::int16_t>();
  const auto width = bytes.Read<std::int16_t>();
  return {width, height};
}

/// Bottom, right, top, left.
constexpr RectangleL ReadReversedRectangle(ByteView& bytes) {
  const PointL far = ReadReversedPoint(bytes);
  const PointL near = ReadReversedPoint(bytes);
  return {near.x, near.y, far.x, far.y};
}

/// RECT ([MS-WMF] 2.2.2.18): left, top, right, bottom.
constexpr RectangleL ReadRectangle16(ByteView& bytes) {
  const auto upperLeft = bytes.Read<Point16>();
  const auto lowerRight = bytes.Read<Point16>();
  return {upperLeft.x, upperLeft.y, lowerRight.x, lowerRight.y};
}

}  // namespace metafile
}  // namespace kelvane
