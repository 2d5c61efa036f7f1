#include "players/wmf/wmf_regions.h"

#include <utility>

namespace kelvane {
namespace {

void AddStored(std::vector<unsigned char>& bytes, std::int32_t value) {
  const auto bits = static_cast<std::uint32_t>(value);
  for (unsigned shift = 0; shift < 32; shift += 8)
    bytes.push_back(static_cast<unsigned char>(bits >> shift));
}

}  // namespace

void KeepRegion(WmfPlayback& playback, std::uint16_t index, const std::vector<RectangleL>& region) {
  std::vector<unsigned char> bytes;
  bytes.reserve(region.size() * kStoredSize<RectangleL>);
  for (const RectangleL& r : region) {
    for (const std::int32_t edge : {r.left, r.top, r.right, r.bottom})
      AddStored(bytes, edge);
  }
  playback.regions.insert_or_assign(index, std::move(bytes));
}

}  // namespace kelvane
