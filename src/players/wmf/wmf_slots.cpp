#include "players/wmf/wmf_slots.h"

namespace kelvane {

std::optional<std::uint16_t> WmfSlots::Take() {
  if (!freed_.empty()) return freed_.extract(freed_.begin()).value();
  constexpr std::uint32_t kMost = 0xFFFE;  // as many as a table of objects has beside the first
  if (used_ >= kMost) return std::nullopt;
  return static_cast<std::uint16_t>(used_++);
}

void WmfSlots::Free(std::uint16_t index) {
  if (index < used_) freed_.insert(index);
}

}  // namespace kelvane
