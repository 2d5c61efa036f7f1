#include "gdi/font_names.h"

#include <algorithm>
#include <iterator>

#include "gdi/font_map.h"

namespace kelvane {
namespace {

constexpr std::string_view kSans = kFaceOfLastResort;
constexpr std::string_view kSerif = "Times New Roman";
constexpr std::string_view kFixed = "Courier New";
constexpr std::string_view kScript = "Script";

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
    {"msshelldlg2", {"Tahoma"}, kSans},
    {"times", {}, kSerif},
    {"tmsrmn", {"MS Serif"}, kSerif},
};

struct SymbolFontName {
  std::string_view folded;
  std::string_view base;
};

constexpr SymbolFontName kSymbolNames[] = {
    {"euclidextra", kSerif}, {"euclidsymbol", kSerif}, {"fences", kSerif},
    {"mtextra", kSerif},     {"symbol", kSerif},       {"webdings", kSans},
    {"wingdings", kSans},    {"wingdings2", kSans},    {"wingdings3", kSans},
};

constexpr std::string_view kScripts[] = {" Baltic", " CE", " Cyr", " Greek", " Tur"};

/// @return the table's row for the name; null for none.
template <class Row, std::size_t kSize>
const Row* FindRow(const Row (&table)[kSize], std::string_view name) {
  const Row* const row = std::ranges::find(table, FoldFontName(name), &Row::folded);
  return row == std::end(table) ? nullptr : row;
}

}  // namespace

const WindowsFontName* FindWindowsFontName(std::string_view name) {
  return FindRow(kWindowsNames, name);
}

std::string_view BaseOfSymbols(std::string_view name) {
  const SymbolFontName* const row = FindRow(kSymbolNames, name);
  return row == nullptr ? std::string_view() : row->base;
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
