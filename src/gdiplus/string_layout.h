#pragma once

#include <string_view>
#include <vector>

#include "gdi/font_book.h"
#include "gdi/geometry.h"
#include "gdi/text_frame.h"
#include "gdi/text_layout.h"
#include "gdiplus/string_lines.h"
#include "gdiplus/string_text.h"
#include "gdiplus/tab_stops.h"
#include "metafile/emfplus/emfplus_text_objects.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane::gdiplus {

/// What stands for text that there is no room for.
inline constexpr char16_t kStringEllipsis = u'\u2026';

/// The rectangle of a string. Its own axes run along the lines and from each line to the next, from
/// the corner where the first line begins.
struct StringBox {
  TransformD toWorld;
  double length = 0;  // along lines; 0 for none
  double depth = 0;   // across them; 0 for none
};

/// A line that knows its place in the box.
struct PlacedStringLine {
  double start;     // along the line
  double baseline;  // across
};

/// A string that is set into its rectangle. Lengths are world units.
class StringLayout {
 public:
  /// @param font, format  borrowed.
  StringLayout(std::u16string_view text, const TextFont& font, const RectF& rectangle,
               const EmfPlusStringFormat& format);

  [[nodiscard]] const StringText& Text() const { return text_; }
  [[nodiscard]] MeasuredString Measured() const { return {text_.written.units, advances_, tabs_}; }
  [[nodiscard]] double EllipsisAdvance() const { return ellipsis_; }
  [[nodiscard]] const StringBox& Box() const { return box_; }
  [[nodiscard]] const std::vector<StringLine>& Lines() const { return lines_; }
  [[nodiscard]] const Reading& LineReading() const { return reading_; }

  /// @param line  its number.
  [[nodiscard]] PlacedStringLine PlaceOf(std::size_t line) const;

  /// @return what holds a line, in the axes of the box, with an em around it for glyphs that reach
  ///         out of their cells.
  [[nodiscard]] RectangleD ReachOf(std::size_t line) const;

  /// @return the same of all lines.
  [[nodiscard]] RectangleD Reach() const;

  /// Whether lines are longer than the box, or there are more of them than it holds.
  [[nodiscard]] bool Overflows() const;

 private:
  [[nodiscard]] LineRules Rules() const;
  [[nodiscard]] double Pitch() const { return font_.ascent + font_.descent + font_.leading; }

  /// Of all lines; nothing is left below the last one.
  [[nodiscard]] double Depth() const {
    return static_cast<double>(lines_.size()) * Pitch() - font_.leading;
  }

  const TextFont& font_;
  const EmfPlusStringFormat& format_;
  StringBox box_;
  bool isVertical_;
  Reading reading_;
  StringText text_;
  std::vector<double> advances_;
  TabStops tabs_;
  double ellipsis_;
  std::vector<StringLine> lines_;
  double widest_ = 0;
};

}  // namespace kelvane::gdiplus
