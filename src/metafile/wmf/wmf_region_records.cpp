#include "metafile/wmf/wmf_region_records.h"

namespace kelvane {
inline namespace metafile {
namespace {

/// Adds the rectangles of a scan ([MS-WMF] 2.2.2.21): how many numbers there are, top, bottom, the
/// numbers, which are left and right in turns, and again how many there are.
void ReadScan(ByteView& bytes, std::vector<RectangleL>& rectangles) {
  const auto numbers = bytes.Read<std::uint16_t>();
  const auto top = bytes.Read<std::int16_t>();
  const auto bottom = bytes.Read<std::int16_t>();
  const auto sides = bytes.Array<std::int16_t>(numbers);
  bytes.Skip(sizeof(numbers));
  if (bytes.IsShort()) return;
  for (std::size_t i = 0; i + 1 < sides.size(); i += 2)
    rectangles.push_back({sides[i], top, sides[i + 1], bottom});
}

}  // namespace

WmfCreateRegionRecord DecodeWmfCreateRegion(ByteView& bytes) {
  constexpr std::size_t kChainToSize = 10;  // of no use in a file
  bytes.Skip(kChainToSize);
  const auto scans = bytes.Read<std::uint16_t>();
  bytes.Skip(sizeof(std::uint16_t));  // numbers in the longest scan
  WmfCreateRegionRecord record;
  record.bounds = ReadRectangle16(bytes);
  if (bytes.IsShort()) return record;
  ByteView stored = bytes;
  for (std::size_t i = 0; i < scans && !stored.IsShort(); ++i)
    ReadScan(stored, record.rectangles);
  if (stored.IsShort()) record.rectangles = {record.bounds};
  return record;
}

}  // namespace metafile
}  // namespace kelvane
