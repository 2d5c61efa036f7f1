#pragma once

#include <cstdint>
#include <optional>
#include <set>

namespace kelvane {

/// Which indexes of the table of objects are taken. Records that create objects do not say where:
/// they take the lowest index that is free, also when nothing comes of them.
class WmfSlots {
 public:
  /// @return nullopt when all are taken.
  std::optional<std::uint16_t> Take();

  /// Nothing happens to one that is free.
  void Free(std::uint16_t index);

 private:
  std::set<std::uint16_t> freed_;  // all below used_
  std::uint32_t used_ = 0;
};

}  // namespace kelvane
