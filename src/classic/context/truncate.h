#pragma once

#include <cstdint>
#include <limits>

namespace kelvane {

/// Truncates toward zero; values outside 32 bits saturate and not-a-number gives 0, where a plain
/// cast would be undefined.
constexpr std::int32_t Truncate(double value) {
  constexpr double kLowest = std::numeric_limits<std::int32_t>::min();
  constexpr double kHighest = std::numeric_limits<std::int32_t>::max();
  if (value != value) return 0;
  if (value <= kLowest) return std::numeric_limits<std::int32_t>::min();
  if (value >= kHighest) return std::numeric_limits<std::int32_t>::max();
  return static_cast<std::int32_t>(value);
}

}  // namespace kelvane
