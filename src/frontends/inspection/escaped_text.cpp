#include "frontends/inspection/escaped_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>

#include "base/unicode.h"

namespace kelvane {
namespace {

struct CharacterRange {
  char32_t first;
  char32_t last;
};

/// Control characters, marks that reorder or hide what stands beside them, ends of lines and
/// paragraphs, halves of characters.
constexpr CharacterRange kEscaped[] = {{0x00, 0x1F},     {0x7F, 0x9F},     {0xAD, 0xAD},
                                       {0x61C, 0x61C},   {0x200B, 0x200F}, {0x2028, 0x202E},
                                       {0x2060, 0x206F}, {0xD800, 0xDFFF}, {0xFEFF, 0xFEFF},
                                       {0xFFF9, 0xFFFB}, {0xFFFE, 0xFFFF}, {0xE0000, 0xE007F}};

bool MustBeEscaped(char32_t character) {
  return std::ranges::any_of(kEscaped, [&](const CharacterRange& range) {
    return character >= range.first && character <= range.last;
  });
}

void AppendNumber(TextBuffer& out, char32_t character) {
  constexpr std::size_t kDigits = 8;
  out.Append("\\u{");
  char* const room = out.Room(kDigits);
  out.EndAt(std::to_chars(room, room + kDigits, static_cast<std::uint32_t>(character), 16).ptr);
  out.Append("}");
}

}  // namespace

std::size_t AppendEscaped(TextBuffer& out, char16_t unit, char16_t next) {
  const std::array<char16_t, 2> units = {unit, next};
  const DecodedCharacter decoded = DecodeUTF16({units.data(), units.size()}, 0);
  if (unit == u'\n') {
    out.Append("\\n");
  } else if (MustBeEscaped(decoded.character)) {
    AppendNumber(out, decoded.character);
  } else {
    if (unit == u'"' || unit == u'\\') out.Append("\\");
    out.Append(ToUTF8(std::u16string_view(units.data(), decoded.units)));
  }
  return decoded.units;
}

std::string Quoted(std::u16string_view text) {
  TextBuffer out;
  out.Append("\"");
  for (std::size_t i = 0; i < text.size();)
    i += AppendEscaped(out, text[i], i + 1 < text.size() ? text[i + 1] : u'\0');
  out.Append("\"");
  return std::string(out.View());
}

}  // namespace kelvane
