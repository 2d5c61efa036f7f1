#pragma once

#include <cstdint>

namespace kelvane {

// Coordinates come from anybody's file, and their sums and differences wrap at 32 bits, as on the
// machines the format was made for.

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
