#include "classic/text/font_selection.h"

#include <array>
#include <cstdlib>
#include <cstring>
#include <utility>

#include "platform/atsui/atsu_font.h"

namespace kelvane {
namespace {

using NamePair = std::pair<std::string_view, std::string_view>;

// Generic families, and the fonts that stand for them.
constexpr std::array<NamePair, 8> kGenericFamilies = {{{"serif", "Times Roman"},
                                                       {"Times", "Times Roman"},
                                                       {"sans-serif", "Helvetica"},
                                                       {"sans", "Helvetica"},
                                                       {"cursive", "Apple Chancery"},
                                                       {"fantasy", "American Typewriter"},
                                                       {"monospace", "Courier"},
                                                       {"mono", "Courier"}}};

// The first that a face name contains counts, so the narrower name stands first.
constexpr std::array<NamePair, 6> kPostScriptNames = {{{"Arial Narrow", "ArialNarrow"},
                                                       {"Arial", "Arial"},
                                                       {"Times New Roman", "TimesNewRomanPSMT"},
                                                       {"System", "Arial"},
                                                       {"Verdana", "Verdana"},
                                                       {"SimSun", "SimSun"}}};

std::string_view FullNameFor(std::string_view name) {
  for (const auto& [family, fullName] : kGenericFamilies) {
    if (name == family) return fullName;
  }
  return name;
}

ATSUFontID Find(std::string_view name, FontNameCode code) {
  ATSUFontID font = kNoFont;
  ATSUFindFontFromName(name.data(), name.size(), code, kFontNoPlatformCode, kFontNoScriptCode,
                       kFontNoLanguageCode, &font);
  return font;
}

// Every locale holds ASCII as it is, which spares nearly every unit the way through the locale.
void Narrow(char16_t unit, char& byte) {
  if (unit < 0x80) {
    byte = static_cast<char>(unit);
    return;
  }
  const std::array<wchar_t, 2> wide = {static_cast<wchar_t>(unit), 0};
  (void)std::wcstombs(&byte, wide.data(), 1);
}

}  // namespace

std::string convertToCharString(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  char byte = 0;  // set once: what cannot be converted leaves the byte before it
  for (const char16_t unit : text) {
    Narrow(unit, byte);
    bytes += byte;
  }
  return bytes;
}

ATSUFontID GetFontID(const char* name) {
  ATSUFontID font = Find(FullNameFor(name), kFontFullName);
  if (font == kNoFont) font = Find(name, kFontFamilyName);
  return font == kNoFont ? kDefaultFont : font;
}

ATSUStyle CreateFontStyle(const LogFontW& font) {
  constexpr std::int32_t kBoldWidth = 700;
  const std::uint32_t italic = font.lfItalic == 1 ? 1 : 0;
  const std::uint32_t bold = font.lfWidth == kBoldWidth ? 1 : 0;
  const auto height =
      static_cast<std::uint32_t>(std::abs(static_cast<std::int64_t>(font.lfHeight)));
  const auto size = static_cast<Fixed>(height << 16);
  const ATSUFontID fontID = GetFontID(convertToCharString(font.lfFaceName).c_str());

  constexpr std::array kTags = {kATSUQDItalicTag, kATSUQDBoldfaceTag, kATSUSizeTag, kATSUFontTag};
  constexpr std::array<ByteCount, 4> kSizes = {4, 4, 4, 4};
  const std::array<const void*, 4> values = {&italic, &bold, &size, &fontID};
  ATSUStyle style = nullptr;
  ATSUCreateStyle(&style);
  ATSUSetAttributes(style, kTags.size(), kTags.data(), kSizes.data(), values.data());
  return style;
}

std::string ConvertFontToPostScript(std::u16string_view faceName) {
  std::string name = convertToCharString(faceName);
  for (const auto& [part, postScriptName] : kPostScriptNames) {
    if (name.find(part) != std::string::npos) return std::string(postScriptName);
  }
  return name;
}

}  // namespace kelvane
