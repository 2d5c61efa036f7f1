#pragma once

#include <cstddef>
#include <limits>
#include <span>
#include <string_view>
#include <vector>

#include "gdiplus/tab_stops.h"
#include "metafile/emfplus/emfplus_enumerations.h"

namespace kelvane::gdiplus {

/// What of a text stands on a line: units, and behind them, where it is trimmed, an ellipsis and
/// perhaps some more of them.
struct StringLine {
  std::size_t begin = 0;
  std::size_t end = 0;
  bool isTrimmed = false;
  std::size_t tailBegin = 0;
  std::size_t tailEnd = 0;
  double width = 0;
};

/// How a text is broken into lines. Lengths are in the unit of the advances.
struct LineRules {
  double available = std::numeric_limits<double>::infinity();  // for a line; may be below 0
  std::size_t mostLines = std::numeric_limits<std::size_t>::max();
  bool wraps = true;
  bool keepsSpaces = false;  // those at the ends of lines count, too
  EmfPlusStringTrimming trimming = EmfPlusStringTrimming::kNone;
  double ellipsis = 0;  // the advance of one
};

/// A text with how far each of its units moves the pen.
struct MeasuredString {
  std::u16string_view units;         // lines end in u'\n'
  std::span<const double> advances;  // one a unit
  const TabStops& tabs;

  /// @return how far a unit moves a pen, which is counted from the start of the line.
  [[nodiscard]] double AdvanceAt(std::size_t unit, double pen) const {
    return units[unit] == u'\t' ? tabs.After(pen) - pen : advances[unit];
  }
};

/// Lines are broken behind spaces and at the characters of the East, or anywhere where a word is
/// longer than a line. Each has a character at least.
std::vector<StringLine> BreakLines(const MeasuredString& text, const LineRules& rules);

}  // namespace kelvane::gdiplus
