#include "base/base64.h"

#include <cstddef>
#include <cstdint>

namespace kelvane {
namespace {

constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

/// Writes 24 bits as four digits.
char* WriteGroup(char* out, std::uint32_t bits) {
  for (int shift = 18; shift >= 0; shift -= 6)
    *out++ = kDigits[bits >> shift & 0x3F];
  return out;
}

}  // namespace

void AppendBase64(std::string& text, std::span<const unsigned char> bytes) {
  const std::size_t start = text.size();
  text.resize(start + (bytes.size() + 2) / 3 * 4);
  char* out = text.data() + start;
  std::size_t at = 0;
  for (; bytes.size() - at >= 3; at += 3) {
    out = WriteGroup(
        out, std::uint32_t{bytes[at]} << 16 | std::uint32_t{bytes[at + 1]} << 8 | bytes[at + 2]);
  }
  const std::size_t left = bytes.size() - at;
  if (left == 0) return;
  out = WriteGroup(
      out, std::uint32_t{bytes[at]} << 16 | (left == 2 ? std::uint32_t{bytes[at + 1]} << 8 : 0));
  out[-1] = '=';
  if (left == 1) out[-2] = '=';
}

}  // namespace kelvane
