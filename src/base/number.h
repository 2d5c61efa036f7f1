#pragma once

#include <cstddef>

namespace kelvane {

/// Room that WriteNumber needs: the longest number has 48 characters.
inline constexpr std::size_t kNumberRoom = 64;

/// Writes the shortest decimal that reads back to the same value: no exponent (ISO 32000-1, 7.3.3),
/// no ".0", no negative zero. A whole number beyond 64 bits ends in its point. An infinite value
/// becomes the largest finite one, not-a-number 0.
/// @param out  at least kNumberRoom characters.
/// @return the end of what was written.
char* WriteNumber(char* out, float value);

}  // namespace kelvane
