#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace kelvane {

/// Appends the number as it stands in a hexadecimal string (ISO 32000-1, 7.3.4.3), high byte first.
/// @param bytes  1 or 2.
inline void AppendHex(std::string& out, std::uint16_t value, int bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::array<char, 4> digits{};
  for (std::size_t i = 0; i < digits.size(); ++i)
    digits[i] = kDigits[(value >> (12 - 4 * i)) & 15];
  out.append(digits.end() - std::ptrdiff_t{2} * bytes, digits.end());
}

}  // namespace kelvane
