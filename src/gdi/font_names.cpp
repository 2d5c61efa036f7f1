#include "gdi/font_names.h"

#include <algorithm>
#include <iterator>

#include "gdi/font_map.h"
#include "gdi/symbol_tables.h"

namespace kelvane {
namespace {

constexpr std::string_view kSans = kFaceOfLastResort;
constexpr std::string_view kSerif = "Times New Roman";
constexpr std::string_view kFixed = "Courier New";
constexpr std::string_view kScript = "Script";
constexpr std::string_view kWideSans = "DejaVu Sans";  // open letters, made for screens

constexpr WindowsFontName kWindowsNames[] = {
    // Fonts of pixels or strokes.
    {"courier", {"Courier"}, kFixed},
    {"fixedsys", {"Fixedsys"}, kFixed},
    {"modern", {"Modern"}, kSans},
    {"mssansserif", {"MS Sans Serif", "Microsoft Sans Serif"}, kSans},
    {"msserif", {"MS Serif"}, kSerif},
    {"roman", {"Roman"}, kSerif},
    {"script", {"Script", "Monotype Corsiva"}, "ITC Zapf Chancery"},
    {"smallfonts", {"Small Fonts"}, kSans},
    {"system", {"System"}, kSans, true},
    {"terminal", {"Terminal"}, kFixed},
    // Names of other fonts.
    {"helv", {"MS Sans Serif", "Microsoft Sans Serif"}, kSans},
    {"helvetica", {}, kSans},
    {"msshelldlg", {"Microsoft Sans Serif"}, kSans},
    {"msshelldlg2", {"Tahoma"}, kWideSans},
    {"times", {}, kSerif},
    {"tmsrmn", {"MS Serif"}, kSerif},
    // Fonts for screens, which every Windows has. Arial is too narrow to stand for them.
    {"microsoftyahei", {"Microsoft YaHei"}, kWideSans},
    {"microsoftyaheiui", {"Microsoft YaHei UI", "Microsoft YaHei"}, kWideSans},
    {"segoeui", {"Segoe UI"}, kWideSans},
    {"tahoma", {"Tahoma"}, kWideSans},
    {"verdana", {"Verdana"}, kWideSans},
};

constexpr std::string_view kScripts[] = {" Baltic", " CE", " Cyr", " Greek", " Tur"};

}  // namespace

const WindowsFontName* FindWindowsFontName(std::string_view name) {
  const auto* const row =
      std::ranges::find(kWindowsNames, FoldFontName(name), &WindowsFontName::folded);
  return row == std::end(kWindowsNames) ? nullptr : row;
}

std::string_view BaseOfSymbols(const SymbolEncoding& symbols) {
  const bool isForFormulas = &symbols == &kSymbol || &symbols == &kMTExtra;
  return isForFormulas ? kSerif : kSans;
}

std::optional<std::string> WithoutScript(std::string_view name) {
  for (const std::string_view script : kScripts) {
    if (name.size() <= script.size()) continue;
    const std::string_view start = name.substr(0, name.size() - script.size());
    const std::string_view end = name.substr(start.size());
    if (end.starts_with(' ') && FoldFontName(end) == FoldFontName(script)) {
      return std::string(start);
    }
  }
  return std::nullopt;
}

// Windows would rather have the wrong strokes than letters of unequal width.
std::string_view FaceOfKind(PitchAndFamily kind) {
  const int family = kind & FF_MASK;
  if ((kind & PITCH_MASK) == FIXED_PITCH || family == FF_MODERN) return kFixed;
  if (family == FF_ROMAN) return kSerif;
  return family == FF_SCRIPT ? kScript : kSans;
}

std::u16string_view FaceName(const LogFont& font) {
  const std::u16string_view name(font.faceName.data(), font.faceName.size() - 1);
  return name.substr(0, name.find(u'\0'));
}

}  // namespace kelvane
