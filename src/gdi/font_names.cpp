#include "gdi/font_names.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "base/unicode.h"

namespace kelvane {
namespace {

constexpr std::string_view kSans = "Arial";
constexpr std::string_view kSerif = "Times New Roman";
constexpr std::string_view kFixed = "Courier New";
constexpr std::string_view kScript = "Script";

/// A name behind which Windows keeps a font that is not made of outlines, or another font. What it
/// stands for is looked for before anything that has the name or stands for it elsewhere.
struct WindowsName {
  std::string_view folded;
  std::array<std::string_view, 2> faces;  // looked for as they are, in turn; perhaps empty
  std::string_view base;                  // looked for last, or what stands for it
  bool isBold = false;
};

constexpr WindowsName kWindowsNames[] = {
    {"courier", {"Courier"}, kFixed},    // of pixels
    {"fixedsys", {"Fixedsys"}, kFixed},  // of pixels
    {"helv", {"MS Sans Serif", "Microsoft Sans Serif"}, kSans},
    {"helvetica", {}, kSans},
    {"modern", {"Modern"}, kSans},                                      // of strokes
    {"mssansserif", {"MS Sans Serif", "Microsoft Sans Serif"}, kSans},  // of pixels
    {"msserif", {"MS Serif"}, kSerif},                                  // of pixels
    {"msshelldlg", {"Microsoft Sans Serif"}, kSans},
    {"msshelldlg2", {"Tahoma"}, kSans},
    {"roman", {"Roman"}, kSerif},                                     // of strokes
    {"script", {"Script", "Monotype Corsiva"}, "ITC Zapf Chancery"},  // of strokes
    {"smallfonts", {"Small Fonts"}, kSans},                           // of pixels
    {"system", {"System"}, kSans, true},                              // of pixels, in bold only
    {"terminal", {"Terminal"}, kFixed},                               // of pixels
    {"times", {}, kSerif},
    {"tmsrmn", {"MS Serif"}, kSerif},
};

/// A font of symbols, and the face next to which those of other faces look at home.
struct SymbolName {
  std::string_view folded;
  std::string_view base;
};

constexpr SymbolName kSymbolNames[] = {
    {"euclidextra", kSerif}, {"euclidsymbol", kSerif}, {"fences", kSerif},
    {"mtextra", kSerif},     {"symbol", kSerif},       {"webdings", kSans},
    {"wingdings", kSans},    {"wingdings2", kSans},    {"wingdings3", kSans},
};

/// Ends of names that only say which script the font is wanted for.
constexpr std::string_view kScripts[] = {" Baltic", " CE", " Cyr", " Greek", " Tur"};

/// @return the table's row for the name; null for none.
template <class Table>
auto* FindRow(const Table& table, std::string_view name) {
  const std::string folded = FoldFontName(name);
  const auto row = std::ranges::find_if(table, [&](const auto& r) { return r.folded == folded; });
  return row == std::end(table) ? nullptr : &*row;
}

/// @return what a name has before the end that says a script; nothing when it has none.
std::optional<std::string> WithoutScript(const std::string& name) {
  for (const std::string_view script : kScripts) {
    if (name.size() <= script.size()) continue;
    const std::size_t length = name.size() - script.size();
    const bool hasIt =
        name[length] == ' ' && FoldFontName(name.substr(length)) == FoldFontName(script);
    if (hasIt) return name.substr(0, length);
  }
  return std::nullopt;
}

std::string_view BaseOf(PitchAndFamily kind) {
  const int family = kind & FF_MASK;
  if ((kind & PITCH_MASK) == FIXED_PITCH || family == FF_MODERN) return kFixed;
  if (family == FF_ROMAN) return kSerif;
  return family == FF_SCRIPT ? kScript : kSans;
}

class FontFinder {
 public:
  FontFinder(FontRegistry& registry, const FontMap& map) : registry_(registry), map_(map) {}

  /// @return what the user wants for the name. A font is had under any name, that of one which
  ///         Windows replaces as well.
  std::optional<FoundFont> FindWished(const std::string& name) {
    const std::string wish = map_.Find(name);
    if (wish.empty()) return std::nullopt;
    const FontID font = registry_.FindInstalled(wish);
    return font != kNoFont ? FoundFont{font} : FindInstead(wish);
  }

  std::optional<FoundFont> FindOne(const std::string& name) {
    if (auto found = FindWished(name)) return found;
    if (auto found = FindNamed(name)) return found;
    if (const SymbolName* const symbols = FindRow(kSymbolNames, name)) {
      return FindInstead(symbols->base);
    }
    if (const auto shorter = WithoutScript(name)) return FindOne(*shorter);
    return std::nullopt;
  }

  /// @return the font of a name that is not the one asked for.
  std::optional<FoundFont> FindInstead(std::string_view name) {
    auto found = FindNamed(name);
    if (found) found->isOriginal = false;
    return found;
  }

 private:
  std::optional<FoundFont> FindNamed(std::string_view name) {
    const WindowsName* const known = FindRow(kWindowsNames, name);
    if (known == nullptr) return FindAny(name);
    std::optional<FoundFont> found;
    for (const std::string_view face : known->faces) {
      if (!found) found = FindInstalled(face);
    }
    if (!found) found = FindAny(known->base);
    if (found) found->isBold = known->isBold;
    return found;
  }

  std::optional<FoundFont> FindAny(std::string_view name) {
    if (auto found = FindInstalled(name)) return found;
    const FontID font = registry_.FindByFamily(std::string(name));
    if (font == kNoFont) return std::nullopt;
    return FoundFont{font};
  }

  std::optional<FoundFont> FindInstalled(std::string_view name) {
    const FontID font = registry_.FindInstalled(std::string(name));
    if (font == kNoFont) return std::nullopt;
    return FoundFont{.font = font, .isOriginal = true};
  }

  FontRegistry& registry_;
  const FontMap& map_;
};

std::u16string_view Trimmed(std::u16string_view name) {
  const std::size_t first = std::min(name.find_first_not_of(u' '), name.size());
  name.remove_prefix(first);
  return name.substr(0, name.find_last_not_of(u' ') + 1);
}

std::u16string_view WithoutVerticalMark(std::u16string_view name) {
  return name.starts_with(u'@') ? name.substr(1) : name;
}

}  // namespace

std::u16string_view FaceName(const LogFont& font) {
  const std::u16string_view name(font.faceName.data(), font.faceName.size() - 1);
  return name.substr(0, name.find(u'\0'));
}

FoundFont FindFont(FontRegistry& registry, const FontMap& map, std::u16string_view faceName,
                   PitchAndFamily kind) {
  FontFinder finder(registry, map);
  const auto named = [](FoundFont found, std::u16string_view name) {
    found.name = name;
    return found;
  };
  if (const auto found = finder.FindWished(ToUTF8(faceName))) return named(*found, faceName);
  for (std::u16string_view rest = faceName; !rest.empty();) {
    const std::size_t end = std::min(rest.find(u';'), rest.size());
    const std::u16string_view name = WithoutVerticalMark(Trimmed(rest.substr(0, end)));
    if (const auto found = finder.FindOne(ToUTF8(name))) return named(*found, name);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
  for (const std::string_view base : {BaseOf(kind), kSans}) {
    if (const auto found = finder.FindInstead(base)) return named(*found, faceName);
  }
  return named({}, faceName);
}

}  // namespace kelvane
