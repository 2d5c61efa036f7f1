#include "frontends/json_writer.h"

#include <array>
#include <charconv>

#include "base/unicode.h"

namespace kelvane {

void JsonWriter::Key(std::string_view name) {
  BeginValue();
  Quote(name);
  json_ += ':';
  isFirst_ = true;
}

void JsonWriter::Text(std::string_view text) {
  BeginValue();
  Quote(ToUTF8(text));
}

void JsonWriter::Number(double number) {
  std::array<char, 32> digits;
  BeginValue();
  json_.append(digits.data(),
               std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr);
}

void JsonWriter::Count(std::size_t count) {
  BeginValue();
  json_ += std::to_string(count);
}

void JsonWriter::Open(char bracket) {
  BeginValue();
  json_ += bracket;
  isFirst_ = true;
}

void JsonWriter::Close(char bracket) {
  json_ += bracket;
  isFirst_ = false;
}

void JsonWriter::BeginValue() {
  if (!isFirst_) json_ += ',';
  isFirst_ = false;
}

void JsonWriter::Quote(std::string_view utf8) {
  constexpr std::string_view kHexDigits = "0123456789abcdef";
  json_ += '"';
  for (const char byte : utf8) {
    const auto code = static_cast<unsigned char>(byte);
    if (code < 0x20) {
      json_.append("\\u00").append(1, kHexDigits[code >> 4]).append(1, kHexDigits[code & 0xF]);
      continue;
    }
    if (byte == '"' || byte == '\\') json_ += '\\';
    json_ += byte;
  }
  json_ += '"';
}

}  // namespace kelvane
