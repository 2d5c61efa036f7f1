#pragma once

#include <cstdint>
#include <tuple>

#include "metafile/byte_view.h"
#include "metafile/stored_dib.h"

namespace kelvane {
inline namespace metafile {

/// The four numbers by which records say where a bitmap lies: offset and size of the header, offset
/// and size of the pixels.
struct DibPlace {
  std::uint32_t headerOffset = 0;  // from the start of the record
  std::uint32_t headerSize = 0;    // 0 when there is no bitmap
  std::uint32_t pixelsOffset = 0;  // from the start of the record
  std::uint32_t pixelsSize = 0;

  constexpr auto Fields() { return std::tie(headerOffset, headerSize, pixelsOffset, pixelsSize); }
};

/// @return the bytes at the place. The record is short when they are not all there.
constexpr StoredDib DibAt(ByteView& record, const DibPlace& place) {
  if (place.headerSize == 0) return {};
  return {record.Slice(place.headerOffset, place.headerSize),
          record.Slice(place.pixelsOffset, place.pixelsSize)};
}

}  // namespace metafile
}  // namespace kelvane
