#pragma once

#include <optional>

#include "gdi/font_book.h"
#include "gdi/geometry.h"
#include "gdi/text_frame.h"
#include "gdi/text_layout.h"
#include "gdi/written_text.h"
#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_brush.h"

namespace kelvane::gdiplus {

/// Puts lines of text onto the page in the colours of a brush. Everything is borrowed.
class TextPainter {
 public:
  /// @param font    of all lines. @param bounds  of all of them, device units.
  TextPainter(Graphics& graphics, const TextFont& font, const EmfPlusBrush& brush,
              const RectangleD& bounds);

  /// Whether anything that is written can be seen.
  [[nodiscard]] bool Shows() const { return shows_; }

  /// @param origin  of the line's own axes, device units.
  void Write(const WrittenText& text, const Reading& reading, const TextFrame& frame,
             PointD origin);

  /// @param from, to  along the line, world units.
  void Underline(double from, double to, const TextFrame& frame, PointD origin);
  void StrikeOut(double from, double to, const TextFrame& frame, PointD origin);

  /// Paints what is drawn as shapes.
  void Finish();

 private:
  Graphics& graphics_;
  const TextFont& font_;
  const EmfPlusBrush& brush_;
  bool shows_ = false;
};

/// Whether text can be on a page at all: numbers beyond these no output can hold.
bool IsWithinReach(const RectangleD& bounds);

}  // namespace kelvane::gdiplus
