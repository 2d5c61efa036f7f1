#include "gdiplus/string_text.h"

#include <string>

#include "gdi/text_reading.h"
#include "gdiplus/string_digits.h"

namespace kelvane::gdiplus {
namespace {

class StringReader {
 public:
  StringReader(const TextFont& font, const EmfPlusStringFormat& format)
      : font_(font), hotkeys_(format.hotkeys), zero_(ZeroOf(format)) {}

  StringText Read(std::u16string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      const char16_t unit = text[at];
      const bool isLast = at + 1 == text.size();
      if (unit == u'&' && hotkeys_ != EmfPlusHotkeyPrefix::kNone) {
        if (!isLast) TakeHotkey(text[++at]);
      } else if (unit == u'\r' && !isLast && text[at + 1] == u'\n') {
        continue;  // the two are one end of a line
      } else {
        Take(unit);
      }
    }
    EndStretch();
    return std::move(text_);
  }

 private:
  /// Two prefixes are the character itself.
  void TakeHotkey(char16_t unit) {
    if (unit != u'&' && hotkeys_ == EmfPlusHotkeyPrefix::kShow) {
      EndStretch();
      text_.hotkeys.push_back(text_.written.units.size());
    }
    Take(unit);
  }

  void Take(char16_t unit) {
    if (unit == u'\r' || unit == u'\n' || unit == u'\t') {
      EndStretch();
      text_.written.units += unit == u'\r' ? u'\n' : unit;
    } else if (unit >= u'0' && unit <= u'9') {
      stretch_.units += static_cast<char16_t>(zero_ + (unit - u'0'));
    } else if (unit >= u' ') {
      stretch_.units += unit;
    }
  }

  /// Characters between those that steer the layout are what the face takes them for.
  void EndStretch() {
    InterpretText(false, font_, stretch_);
    text_.written.units += stretch_.units;
    stretch_.units.clear();
    text_.written.hasUnknownSymbols = stretch_.hasUnknownSymbols;
  }

  const TextFont& font_;
  EmfPlusHotkeyPrefix hotkeys_;
  char16_t zero_;
  WrittenText stretch_;
  StringText text_;
};

}  // namespace

StringText ReadString(std::u16string_view text, const TextFont& font,
                      const EmfPlusStringFormat& format) {
  return StringReader(font, format).Read(text);
}

}  // namespace kelvane::gdiplus
