#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "gdi/font_book.h"
#include "gdi/font_map.h"
#include "gdi/text_output.h"
#include "gdi/traced_device.h"

namespace kelvane {

/// A traced device that has the fonts of the tests.
class WrittenDevice : public TracedDevice {
 public:
  WrittenDevice() { (*this)->fonts = &book_; }

  /// @return the text that was written since the last time: where each run begins, a line each.
  std::string TakeOrigins() { return OriginsOf(Take()); }

  static std::string OriginsOf(std::string_view trace) {
    std::string origins;
    for (const std::string& line : LinesWith(trace, "text")) {
      const auto words = WordsOf(line);
      origins += Rounded(words[words.size() - 2]) + ' ' + Rounded(words.back()) + '\n';
    }
    return origins;
  }

 private:
  FontMap map_;
  FontBook book_{FontRegistry::Shared(), AnyFont, map_};
};

inline LogFont FontOf(std::u16string_view name, std::int32_t height) {
  LogFont font;
  font.height = height;
  std::ranges::copy(name, font.faceName.begin());
  return font;
}

}  // namespace kelvane
