#include "platform/pdf/pdf_to_unicode.h"

#include <algorithm>

#include "base/text_buffer.h"
#include "platform/pdf/pdf_hex.h"

namespace kelvane {
namespace {

constexpr std::string_view kHead =
    "/CIDInit /ProcSet findresource begin\n"
    "12 dict begin\n"
    "begincmap\n"
    "/CIDSystemInfo << /Registry (Adobe) /Ordering (UCS) /Supplement 0 >> def\n"
    "/CMapName /Adobe-Identity-UCS def\n"
    "/CMapType 2 def\n"
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

}  // namespace

void ToUnicodeMap::Add(std::uint16_t code, std::u16string_view text) {
  if (text.empty()) return;
  TextBuffer line;
  const auto appendHex = [&](std::uint16_t value) { line.EndAt(WriteHex(line.Room(4), value, 2)); };
  line.Append("<");
  appendHex(code);
  line.Append("> <");
  for (const char16_t unit : text.substr(0, kMostUnits))
    appendHex(unit);
  line.Append(">\n");
  lines_.emplace_back(line.View());
}

std::string ToUnicodeMap::Text() const {
  std::string text(kHead);
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    const std::size_t inBlock = i % kMostLinesInBlock;
    if (inBlock == 0) {
      text += std::to_string(std::min(kMostLinesInBlock, lines_.size() - i)) + " beginbfchar\n";
    }
    text += lines_[i];
    if (inBlock + 1 == kMostLinesInBlock || i + 1 == lines_.size()) text += "endbfchar\n";
  }
  return text += kTail;
}

}  // namespace kelvane
