#pragma once

#include <cstdint>
#include <limits>

namespace kelvane {

// Coordinates come from anybody's file: nothing that a sum, a scale or a shift makes of them may be
// undefined.

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

/// The same for a number without a sign: what lies above saturates at its own highest value. What
/// lies below 0 keeps the bits of the signed number.
constexpr std::uint32_t TruncateToUnsigned(double value) {
  constexpr double kHighest = std::numeric_limits<std::uint32_t>::max();
  if (value >= kHighest) return std::numeric_limits<std::uint32_t>::max();
  if (value > 0) return static_cast<std::uint32_t>(value);
  return static_cast<std::uint32_t>(Truncate(value));
}

// Sums and differences wrap at 32 bits, as on the machines the format was made for.

constexpr std::int32_t WrappingAdd(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

constexpr std::int32_t WrappingSubtract(std::int32_t a, std::int32_t b) {
  return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) - static_cast<std::uint32_t>(b));
}

constexpr std::int32_t WrappingNegate(std::int32_t a) {
  return WrappingSubtract(0, a);
}

}  // namespace kelvane
