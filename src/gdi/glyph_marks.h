#pragma once

#include <cstdint>

#include "gdi/canvas.h"
#include "gdi/font_book.h"
#include "gdi/geometry.h"
#include "gdi/text_frame.h"
#include "gdi/text_layout.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// Draws a line of text onto the page with the fill that the surface has.
/// @param origin  device units, of the line's own axes. @param line  is used up.
void DrawGlyphs(Canvas& canvas, PlacedLine& line, const TextFrame& frame, PointD origin);

/// What becomes of outlines: those of a path that is kept may be painted again and again.
enum class OutlineUse : std::uint8_t { kPainted, kKept };

/// Adds the outlines of a line of text to a path in device units. A face that is made bold keeps
/// its thin outlines.
/// @param canvas  null affords any number.
/// @return false when there are more of them than the file can afford; some are missing then.
bool AddOutlines(Canvas* canvas, const PlacedLine& line, const TextFrame& frame, PointD origin,
                 OutlineUse use, CGPath& path);

/// Adds a rectangle of a line's own axes to a path in device units.
void AddLineBox(const TextFrame& frame, PointD origin, const RectangleD& box, CGPath& path);

/// Adds a rule along a part of a line, a pixel thick at least.
/// @param from, to  along the baseline, logical units.
void AddRule(const TextRule& rule, const TextFont& font, double from, double to,
             const TextFrame& frame, PointD origin, CGPath& path);

}  // namespace kelvane
