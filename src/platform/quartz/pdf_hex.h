#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvane {

/// Appends the number as it stands in a hexadecimal string (ISO 32000-1, 7.3.4.3), high byte first.
/// @param bytes  1 or 2.
inline void AppendHex(std::string& out, std::uint16_t value, int bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  for (int shift = 8 * bytes - 4; shift >= 0; shift -= 4)
    out += kDigits[(value >> shift) & 15];
}

}  // namespace kelvane
