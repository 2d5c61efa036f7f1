#include "platform/svg/svg_color.h"

#include <algorithm>
#include <array>

namespace kelvane {

std::string SvgColor(const CGColor& color) {
  constexpr char kDigits[] = "0123456789abcdef";
  const std::array<unsigned char, 3> bytes = {SvgByte(color.red), SvgByte(color.green),
                                              SvgByte(color.blue)};
  const bool isShort =
      std::ranges::all_of(bytes, [](unsigned char byte) { return byte % 17 == 0; });
  std::string text = "#";
  for (const unsigned char byte : bytes) {
    text += kDigits[byte >> 4];
    if (!isShort) text += kDigits[byte & 0xF];
  }
  return text;
}

}  // namespace kelvane
