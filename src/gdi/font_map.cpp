#include "gdi/font_map.h"

namespace kelvane {

std::string FoldFontName(std::string_view name) {
  std::string folded;
  for (const char byte : name) {
    if (byte == ' ') continue;
    const bool isCapital = byte >= 'A' && byte <= 'Z';
    folded += isCapital ? static_cast<char>(byte - 'A' + 'a') : byte;
  }
  return folded;
}

FontMap::FontMap() = default;
FontMap::FontMap(const FontMap& other) = default;
FontMap::FontMap(FontMap&& other) noexcept = default;
FontMap& FontMap::operator=(const FontMap& other) = default;
FontMap& FontMap::operator=(FontMap&& other) noexcept = default;
FontMap::~FontMap() = default;

void FontMap::Add(std::string_view asked, std::string_view used) {
  used_.insert_or_assign(FoldFontName(asked), std::string(used));
}

std::string FontMap::Find(std::string_view asked) const {
  const auto wish = used_.find(FoldFontName(asked));
  return wish == used_.end() ? std::string() : wish->second;
}

}  // namespace kelvane
