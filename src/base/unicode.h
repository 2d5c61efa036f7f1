#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kelvane {

constexpr bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}
constexpr bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

/// A character of UTF-16 text.
struct DecodedCharacter {
  char32_t character;  // an unpaired surrogate stands for itself
  std::size_t units;   // 1 or 2
};

/// @param at  below text.size().
constexpr DecodedCharacter DecodeUTF16(std::u16string_view text, std::size_t at) {
  const char16_t unit = text[at];
  if (!IsHighSurrogate(unit) || at + 1 == text.size() || !IsLowSurrogate(text[at + 1])) {
    return {unit, 1};
  }
  const char32_t high = unit & 0x3FFU;
  return {0x10000 + (high << 10 | (text[at + 1] & 0x3FFU)), 2};
}

/// @return the text as UTF-8; an unpaired surrogate becomes U+FFFD.
std::string ToUTF8(std::u16string_view text);

bool IsUTF8(std::string_view bytes);

/// @return the bytes as UTF-8: as they are when they are that, or else taken for Latin-1.
std::string ToUTF8(std::string_view bytes);

}  // namespace kelvane
