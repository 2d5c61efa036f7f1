#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kelvane {

/// Writes the number as it stands in a hexadecimal string (ISO 32000-1, 7.3.4.3), high byte first.
/// @param out    room for two digits a byte.
/// @param bytes  1 or 2.
/// @return the end of what was written.
inline char* WriteHex(char* out, std::uint16_t value, int bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (int shift = bytes * 8 - 4; shift >= 0; shift -= 4)
    *out++ = kDigits[static_cast<std::size_t>(value >> shift) & 15];
  return out;
}

}  // namespace kelvane
