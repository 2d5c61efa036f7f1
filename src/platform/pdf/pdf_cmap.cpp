#include "platform/pdf/pdf_cmap.h"

#include <algorithm>

#include "base/text_buffer.h"
#include "platform/pdf/pdf_hex.h"

namespace kelvane {
namespace {

constexpr std::string_view kHead =
    "/CIDInit /ProcSet findresource begin\n"
    "12 dict begin\n"
    "begincmap\n";

constexpr std::string_view kCodeSpace =
    "1 begincodespacerange\n"
    "<0000> <FFFF>\n"
    "endcodespacerange\n";

constexpr std::string_view kTail =
    "endcmap\n"
    "CMapName currentdict /CMap defineresource pop\n"
    "end\n"
    "end\n";

constexpr std::size_t kMostLinesInBlock = 100;
constexpr std::size_t kMostUnits = 256;  // of UTF-16 that one code may stand for: 512 bytes

/// @param definitions  what the map is. @param lines  its entries. @param entries  what the
/// entries are called: bfchar or cidchar.
std::string CMap(const std::string& definitions, const std::vector<std::string>& lines,
                 const std::string& entries) {
  std::string text(kHead);
  text += definitions;
  text += kCodeSpace;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::size_t inBlock = i % kMostLinesInBlock;
    if (inBlock == 0) {
      text +=
          std::to_string(std::min(kMostLinesInBlock, lines.size() - i)) + " begin" + entries + '\n';
    }
    text += lines[i];
    if (inBlock + 1 == kMostLinesInBlock || i + 1 == lines.size()) text += "end" + entries + '\n';
  }
  return text += kTail;
}

/// Appends the units between angle brackets.
void AppendHexString(TextBuffer& line, std::u16string_view units) {
  line.Append("<");
  for (const char16_t unit : units)
    line.EndAt(WriteHex(line.Room(4), unit, 2));
  line.Append(">");
}

}  // namespace

void ToUnicodeMap::Add(std::uint16_t code, std::u16string_view text) {
  if (text.empty()) return;
  TextBuffer line;
  AppendHexString(line, std::u16string(1, code));
  line.Append(" ");
  AppendHexString(line, text.substr(0, kMostUnits));
  line.Append("\n");
  lines_.emplace_back(line.View());
}

std::string ToUnicodeMap::Text() const {
  return CMap(
      "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
      "/CMapName /Adobe-Identity-UCS def\n"
      "/CMapType 2 def\n",
      lines_, "bfchar");
}

void EncodingMap::Add(std::uint16_t code, std::uint16_t identifier) {
  TextBuffer line;
  AppendHexString(line, std::u16string(1, code));
  line.Append(" " + std::to_string(identifier) + '\n');
  lines_.emplace_back(line.View());
}

std::string EncodingMap::Text() const {
  return CMap(
      "/CIDSystemInfo << /Registry (Adobe) /Ordering (Identity) /Supplement 0 >> def\n"
      "/CMapName /" +
          std::string(kName) +
          " def\n"
          "/CMapType 1 def\n"
          "/WMode 0 def\n",
      lines_, "cidchar");
}

}  // namespace kelvane
