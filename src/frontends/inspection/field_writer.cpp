#include "frontends/inspection/field_writer.h"

#include <algorithm>
#include <charconv>

#include "frontends/inspection/escaped_text.h"

namespace kelvane {
namespace {

constexpr std::size_t kShownBytes = 32;

char HexDigit(unsigned value) {
  return "0123456789abcdef"[value & 0xF];
}

char* WriteByte(char* out, unsigned char byte) {
  *out++ = HexDigit(byte >> 4U);
  *out++ = HexDigit(byte);
  return out;
}

}  // namespace

void FieldWriter::BeginLine(std::size_t offset, std::string_view name) {
  Write(offset);
  text_.Append(" ");
  text_.Append(name);
}

void FieldWriter::EndLine() {
  text_.Append("\n");
  FlushWhenLong();
}

void FieldWriter::Flush() {
  const std::string_view text = text_.View();
  out_.write(text.data(), static_cast<std::streamsize>(text.size()));
  text_.Clear();
}

FieldWriter& FieldWriter::Quoted(std::string_view name, std::string_view words) {
  return Field(name,
               ArrayView<char>(reinterpret_cast<const unsigned char*>(words.data()), words.size()));
}

FieldWriter& FieldWriter::Hexadecimal(std::string_view name, std::uint32_t number) {
  BeginField(name);
  WriteHexadecimal(number);
  return *this;
}

FieldWriter& FieldWriter::Object(std::string_view name, std::uint32_t index) {
  return (index & STOCK_OBJECT_BIT) != 0 ? Field(name, static_cast<StockObject>(index))
                                         : Field(name, index);
}

void FieldWriter::BeginField(std::string_view name) {
  text_.Append(" ");
  text_.Append(name);
  text_.Append("=");
}

void FieldWriter::Write(std::int64_t number) {
  char* const room = text_.Room(kNumberRoom);
  text_.EndAt(std::to_chars(room, room + kNumberRoom, number).ptr);
}

void FieldWriter::Write(float number) {
  char* const room = text_.Room(kNumberRoom);
  text_.EndAt(std::to_chars(room, room + kNumberRoom, number).ptr);
}

void FieldWriter::WriteHexadecimal(std::uint32_t number) {
  text_.Append("0x");
  char* const room = text_.Room(kNumberRoom);
  text_.EndAt(std::to_chars(room, room + kNumberRoom, number, 16).ptr);
}

void FieldWriter::Write(ColorRef color) {
  if (color.value >> 24U != 0) return WriteHexadecimal(color.value);
  text_.Append("#");
  char* out = text_.Room(kNumberRoom);
  for (const unsigned char channel : {color.Red(), color.Green(), color.Blue()})
    out = WriteByte(out, channel);
  text_.EndAt(out);
}

void FieldWriter::WriteNamed(ValueNames names, std::uint32_t value) {
  std::uint32_t unnamed = value;
  bool isFirst = true;
  const auto separate = [&] {
    if (!isFirst) text_.Append("|");
    isFirst = false;
  };
  for (const NamedBits& named : names) {
    if ((value & named.mask) != named.bits) continue;
    separate();
    text_.Append(named.name);
    unnamed &= ~named.mask;
  }
  if (unnamed == 0 && !isFirst) return;
  separate();
  if (value == 0) return text_.Append("0");
  WriteHexadecimal(unnamed);
}

void FieldWriter::Write(const Argb& color) {
  text_.Append("#");
  char* out = text_.Room(kNumberRoom);
  for (const unsigned char channel : {color.alpha, color.red, color.green, color.blue})
    out = WriteByte(out, channel);
  text_.EndAt(out);
}

template <class Units>
void FieldWriter::WriteUnits(const Units& units) {
  text_.Append("\"");
  for (std::size_t i = 0; i < units.size(); FlushWhenLong())
    i += AppendEscaped(text_, units[i], i + 1 < units.size() ? units[i + 1] : u'\0');
  text_.Append("\"");
}

void FieldWriter::Write(const ArrayView<char16_t>& units) {
  WriteUnits(units);
}
void FieldWriter::Write(std::u16string_view units) {
  WriteUnits(units);
}

void FieldWriter::Write(const ArrayView<unsigned char>& units) {
  text_.Append("\"");
  for (const unsigned char unit : units) {
    AppendEscaped(text_, unit, u'\0');
    FlushWhenLong();
  }
  text_.Append("\"");
}

void FieldWriter::Write(const ArrayView<char>& units) {
  text_.Append("\"");
  for (const char unit : units) {
    const auto byte = static_cast<unsigned char>(unit);
    if (byte < 0x80) {
      AppendEscaped(text_, byte, u'\0');
    } else {
      text_.Append("\\x");
      text_.EndAt(WriteByte(text_.Room(2), byte));
    }
    FlushWhenLong();
  }
  text_.Append("\"");
}

void FieldWriter::Write(const ByteView& bytes) {
  const auto all = bytes.Bytes();
  Write(all.size());
  if (all.empty()) return;
  text_.Append(":");
  const auto shown = all.first(std::min(all.size(), kShownBytes));
  char* out = text_.Room(2 * kShownBytes);
  for (const unsigned char byte : shown)
    out = WriteByte(out, byte);
  text_.EndAt(out);
  if (shown.size() < all.size()) text_.Append("...");
}

}  // namespace kelvane
