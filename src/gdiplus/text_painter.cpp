#include "gdiplus/text_painter.h"

#include "gdi/glyph_marks.h"
#include "gdiplus/paint.h"
#include "gdiplus/painting.h"

namespace kelvane::gdiplus {

TextPainter::TextPainter(Graphics& graphics, const TextFont& font, const EmfPlusBrush& brush,
                         const RectangleD& bounds)
    : graphics_(graphics), font_(font), brush_(brush) {
  if (!IsWithinReach(bounds) || !BringClip(graphics)) return;
  const auto paint = PaintOf(graphics, brush, bounds);
  if (!paint) return;
  SetFill(graphics.canvas->Surface(), *paint);
  shows_ = true;
}

void TextPainter::Write(const WrittenText& text, const Reading& reading, const TextFrame& frame,
                        PointD origin) {
  if (text.hasUnknownGlyphs) graphics_.shortfalls.Add(Shortfall::kForeignGlyphs);
  if (text.hasUnknownSymbols) graphics_.shortfalls.Add(Shortfall::kMissingCharacters);
  PlaceText(text, font_, frame, {}, reading, [&](PlacedLine& piece) {
    if (piece.lacksCharacters) graphics_.shortfalls.Add(Shortfall::kMissingCharacters);
    if (!graphics_.outlinesText) return DrawGlyphs(*graphics_.canvas, piece, frame, origin);
    if (!AddOutlines(graphics_.canvas, piece, frame, origin, OutlineUse::kPainted,
                     graphics_.scratch))
      graphics_.shortfalls.Add(Shortfall::kDrawnTooOften);
  });
}

void TextPainter::Underline(double from, double to, const TextFrame& frame, PointD origin) {
  AddRule(font_.underline, font_, from, to, frame, origin, graphics_.scratch);
}

void TextPainter::StrikeOut(double from, double to, const TextFrame& frame, PointD origin) {
  AddRule(font_.strikeOut, font_, from, to, frame, origin, graphics_.scratch);
}

void TextPainter::Finish() {
  PaintFill(graphics_, graphics_.scratch, WINDING, brush_);
}

bool IsWithinReach(const RectangleD& bounds) {
  constexpr double kFarthest = 1e9;  // device units
  return bounds.left >= -kFarthest && bounds.right <= kFarthest && bounds.top >= -kFarthest &&
         bounds.bottom <= kFarthest && bounds.left <= bounds.right && bounds.top <= bounds.bottom;
}

}  // namespace kelvane::gdiplus
