#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "gdi/font_book.h"
#include "gdi/written_text.h"
#include "metafile/emfplus/emfplus_text_objects.h"

namespace kelvane::gdiplus {

/// The characters of a string as they are to be set.
struct StringText {
  WrittenText written;               // lines end in u'\n'; of control characters only tabs are left
  std::vector<std::size_t> hotkeys;  // units that are underlined, in order
};

StringText ReadString(std::u16string_view text, const TextFont& font,
                      const EmfPlusStringFormat& format);

}  // namespace kelvane::gdiplus
