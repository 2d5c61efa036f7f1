#include "base/unicode.h"

namespace kelvane {
namespace {

void AppendUTF8(std::string& out, char32_t character) {
  const auto append = [&](char32_t byte) { out += static_cast<char>(byte); };
  const auto appendTail = [&](int shift) { append(0x80 | ((character >> shift) & 0x3F)); };
  if (character < 0x80) return append(character);
  if (character < 0x800) {
    append(0xC0 | character >> 6);
    return appendTail(0);
  }
  if (character < 0x10000) {
    append(0xE0 | character >> 12);
    appendTail(6);
    return appendTail(0);
  }
  append(0xF0 | character >> 18);
  appendTail(12);
  appendTail(6);
  appendTail(0);
}

/// @return how many bytes the sequence has that starts with `lead`; 0 when none does.
std::size_t SequenceLength(unsigned char lead) {
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead < 0xE0) return 2;
  if (lead >= 0xE0 && lead < 0xF0) return 3;
  return lead >= 0xF0 && lead < 0xF5 ? 4 : 0;
}

}  // namespace

bool IsUTF8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = SequenceLength(static_cast<unsigned char>(bytes.front()));
    if (length == 0 || length > bytes.size()) return false;
    for (const char byte : bytes.substr(1, length - 1)) {
      if ((static_cast<unsigned char>(byte) & 0xC0) != 0x80) return false;
    }
    bytes.remove_prefix(length);
  }
  return true;
}

std::string ToUTF8(std::string_view bytes) {
  if (IsUTF8(bytes)) return std::string(bytes);
  std::string out;
  for (const char byte : bytes)
    AppendUTF8(out, static_cast<unsigned char>(byte));
  return out;
}

std::string ToUTF8(std::u16string_view text) {
  constexpr char32_t kReplacement = 0xFFFD;
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const DecodedCharacter decoded = DecodeUTF16(text, at);
    const bool isUnpaired = decoded.units == 1 && (text[at] & 0xF800) == 0xD800;
    AppendUTF8(out, isUnpaired ? kReplacement : decoded.character);
    at += decoded.units;
  }
  return out;
}

}  // namespace kelvane
