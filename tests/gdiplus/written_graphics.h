#pragma once

#include <string>

#include "gdi/font_book.h"
#include "gdi/font_map.h"
#include "gdi/traced_device.h"
#include "gdiplus/strings.h"
#include "gdiplus/traced_graphics.h"
#include "metafile/emfplus/emfplus_text_objects.h"

namespace kelvane::gdiplus {

// Liberation Sans has 2048 units an em, so that this size divides its numbers by 32.
inline constexpr float kEm = 64;
inline constexpr double kAscent = 1854 / 32.0;
inline constexpr double kDescent = 434 / 32.0;
inline constexpr double kPitch = (1854 + 434 + 67) / 32.0;
inline constexpr double kUpperA = 1366 / 32.0;
inline constexpr double kLowerA = 1139 / 32.0;
inline constexpr double kSpace = 569 / 32.0;
inline constexpr double kWrittenEllipsis = 2048 / 32.0;

/// A traced graphics that has the fonts of the tests.
class WrittenGraphics : public TracedGraphics {
 public:
  WrittenGraphics() { (*this)->fonts = &book_; }

  static EmfPlusFont Plain(std::int32_t style = 0) {
    return {kEm, EmfPlusUnit::kWorld, style, u"Liberation Sans"};
  }

  /// Margins and other things as text of a program has them that lays out by itself.
  static EmfPlusStringFormat WithoutMargins(std::uint32_t flags = 0) {
    EmfPlusStringFormat format;
    format.flags = flags;
    format.leadingMargin = format.trailingMargin = 0;
    return format;
  }

  /// @return the text of each run since the last time and where it begins, in hundredths.
  std::string Lines() {
    std::string lines;
    for (const std::string& line : LinesWith(Take(), "text")) {
      const auto words = WordsOf(line);
      lines += TextIn(line) + ' ' + Rounded(words[words.size() - 2]) + ' ' + Rounded(words.back()) +
               '\n';
    }
    return lines;
  }

 private:
  static std::string TextIn(const std::string& line) {
    const std::size_t first = line.find('"');
    return line.substr(first, line.rfind('"') + 1 - first);
  }

  FontMap map_;
  FontBook book_{FontRegistry::Shared(), AnyFont, map_};
};

}  // namespace kelvane::gdiplus
