#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <ostream>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include "base/text_buffer.h"
#include "frontends/inspection/escaped_text.h"
#include "frontends/inspection/value_names.h"
#include "metafile/byte_view.h"
#include "metafile/emfplus/emfplus_types.h"
#include "metafile/gdi_types.h"

namespace kelvane {

/// The units before the first NUL, or all of them: of texts that are stored with room to spare.
template <class Unit>
ArrayView<Unit> UpToNul(const ArrayView<Unit>& units) {
  std::size_t length = 0;
  while (length < units.size() && units[length] != Unit{})
    ++length;
  return units.Part(0, length);
}

/// Writes lines of named fields, "1234 EMR_LINETO Point=(3,4)", to a stream, a piece at a time. No
/// value has a blank or a control character in it but for blanks in quoted text:
///
///     a number        12 or 0.5
///     a named value   MM_TEXT, TA_LEFT|TA_BASELINE; 0x20 for what has no name
///     a colour        #rrggbb; 0xtt112233 when its top byte is not 0; with alpha #aarrggbb
///     a structure     (1,2)
///     a list          2:(1,2),(3,4)    how many, and each of them
///     bytes           9:0a0b0c         how many, and the first of them
///     text            "a\"b\n"         UTF-8; what does not print as \u{1f}, a byte as \xe9
///
class FieldWriter {
 public:
  /// @param out  borrowed. Whether it took what it was given is for it to say.
  explicit FieldWriter(std::ostream& out) : out_(out) {}

  void BeginLine(std::size_t offset, std::string_view name);
  void EndLine();

  template <class T>
  FieldWriter& Field(std::string_view name, const T& value) {
    BeginField(name);
    Write(value);
    FlushWhenLong();
    return *this;
  }

  /// A text of one's own, quoted.
  FieldWriter& Quoted(std::string_view name, std::string_view words);

  /// An index into the object table, or the name of a stock object.
  FieldWriter& Object(std::string_view name, std::uint32_t index);

  /// A number of which the digits of 16 tell more.
  FieldWriter& Hexadecimal(std::string_view name, std::uint32_t number);

  /// The units of a text that are numbers of glyphs.
  template <class Unit>
  FieldWriter& Glyphs(std::string_view name, const ArrayView<Unit>& units) {
    BeginField(name);
    WriteList(units, [](Unit unit) { return std::make_unsigned_t<Unit>(unit); });
    return *this;
  }

  /// Hands the stream what is left.
  void Flush();

 private:
  // What a line is flushed at. Nothing that is written in one go is much longer than the second.
  static constexpr std::size_t kLong = std::size_t{64} * 1024;
  static constexpr std::size_t kNumberRoom = 64;

  void FlushWhenLong() {
    if (text_.View().size() >= kLong) Flush();
  }

  void BeginField(std::string_view name);

  void Write(std::int64_t number);
  void Write(float number);
  void Write(ColorRef color);
  void Write(const Argb& color);
  void Write(std::u16string_view units);
  void Write(const ArrayView<char16_t>& units);
  void Write(const ArrayView<char>& units);           // in a code page that is not known here
  void Write(const ArrayView<unsigned char>& units);  // the low bytes of UTF-16
  void Write(const ByteView& bytes);

  template <class T>
  requires std::is_integral_v<T>
  void Write(T number) { Write(std::int64_t{number}); }

  template <class T>
  requires std::is_enum_v<T>
  void Write(T value) { WriteNamed(NamesOf(value), value); }

  template <StoredStructure T>
  void Write(T structure) {
    char before = '(';
    const auto writeField = [&](const auto& field) {
      text_.Append({&before, 1});
      Write(field);
      before = ',';
    };
    std::apply([&](const auto&... fields) { (writeField(fields), ...); }, structure.Fields());
    text_.Append(")");
  }

  template <class T, std::size_t count>
  void Write(const std::array<T, count>& values) {
    WriteList(values);
  }
  template <class T>
  void Write(const ArrayView<T>& values) {
    WriteList(values);
  }
  template <class T>
  void Write(const std::vector<T>& values) {
    WriteList(values);
  }

  /// A text with room for so many units.
  template <std::size_t count>
  void Write(const std::array<char16_t, count>& units) {
    const std::u16string_view room(units.data(), count);
    Write(room.substr(0, room.find(u'\0')));
  }

  /// @param shown  makes of an element what is written of it.
  template <class List, class Shown = std::identity>
  void WriteList(const List& values, Shown shown = {}) {
    Write(values.size());
    char before = ':';
    for (const auto& value : values) {
      text_.Append({&before, 1});
      Write(shown(value));
      before = ',';
      FlushWhenLong();
    }
  }

  template <class Units>
  void WriteUnits(const Units& units);

  void Write(std::size_t number) { Write(static_cast<std::int64_t>(number)); }
  void WriteHexadecimal(std::uint32_t number);
  void WriteNamed(ValueNames names, std::uint32_t value);

  std::ostream& out_;
  TextBuffer text_;
};

}  // namespace kelvane
