#include "platform/quartz/pdf_to_unicode.h"

#include <algorithm>
#include <utility>

#include "platform/quartz/pdf_hex.h"

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

constexpr std::size_t kBytesAround = std::string_view("<> <>\n").size();

}  // namespace

void ToUnicodeMap::Add(std::uint16_t code, std::u16string_view text) {
  if (text.empty()) return;
  const std::u16string_view kept = text.substr(0, kMostUnits);
  std::string line(kBytesAround + 4 * (1 + kept.size()), ' ');
  char* out = line.data();
  *out++ = '<';
  out = WriteHex(out, code, 2);
  out = std::ranges::copy(std::string_view("> <"), out).out;
  for (const char16_t unit : kept)
    out = WriteHex(out, unit, 2);
  std::ranges::copy(std::string_view(">\n"), out);
  lines_.push_back(std::move(line));
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
