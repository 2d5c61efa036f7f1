#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "platform/fonts/font_registry.h"
#include "platform/quartz/harfbuzz.h"

namespace kelvane {

/// A character of a line, with all that decides which neighbours it is shaped together with.
struct LineItem {
  std::size_t start = 0;  // its first unit
  std::size_t units = 1;
  char32_t character = 0;
  StyledFace face;  // without a typeface it makes no glyph
  hb_script_t script = HB_SCRIPT_COMMON;
  std::int8_t level = 0;  // even runs from left to right, odd from right to left
};

/// True for what no glyph ever shows: control characters and unpaired surrogates.
bool MarksNothing(char32_t character);

/// True for what steers the setting of its neighbours and shows nothing of itself.
bool OnlySteers(char32_t character);

/// Which way a line reads as a whole.
enum class LineDirection : std::uint8_t {
  kByText,  // that of the first character that has one
  kRightwards,
  kLeftwards,
};

/// @return the face that a character is drawn from: the style's own when it has it or when no other
///         may or can stand in.
StyledFace FaceFor(char32_t character, const FontStyle& style, bool usesStandIns);

/// @return the line's characters in logical order.
std::vector<LineItem> ItemizeLine(std::u16string_view text, const FontStyle& style,
                                  bool usesStandIns);

/// Sets the items' levels.
/// @param items  not empty.
/// @return for each place on the line, from left to right, the index of the item that stands there.
std::vector<int> OrderLine(std::vector<LineItem>& items, LineDirection direction);

}  // namespace kelvane
