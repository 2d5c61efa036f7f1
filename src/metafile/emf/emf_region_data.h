#pragma once

#include <cstdint>

#include "metafile/byte_view.h"
#include "metafile/gdi_types.h"

namespace kelvane {
inline namespace metafile {

/// RGNDATA ([MS-EMF] 2.2.24): an area as rectangles, right and bottom edges excluded.
struct RegionData {
  RectangleL bounds;
  ArrayView<RectangleL> rectangles;
  bool isWhole = true;  // whether there are as many as are counted
};

/// @param size  the bytes of the region as its record has them.
/// @return what they hold. A count of rectangles is believed no further than they reach.
inline RegionData DecodeRegionData(ByteView& bytes, std::uint32_t size) {
  constexpr std::size_t kSizeAndType = 8;  // 32 and 1, always
  ByteView data = bytes.Split(size);
  data.Skip(kSizeAndType);
  const auto count = data.Read<std::uint32_t>();
  data.Skip(sizeof(std::uint32_t));  // the bytes of the rectangles, which may be wrong
  const auto bounds = data.Read<RectangleL>();
  if (data.IsShort()) bytes.Fail();
  const auto rectangles = data.ArrayUpTo<RectangleL>(count);
  return {bounds, rectangles, rectangles.size() == count};
}

}  // namespace metafile
}  // namespace kelvane
