#pragma once

#include <span>
#include <string_view>

#include "platform/quartz/cg_font.h"
#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// What makes upright outlines italic: 12 degrees, as italics have.
inline constexpr CGAffineTransform kCGSlant = {1, 0, 0.2125565617F, 1, 0, 0};

struct CGPositionedGlyph {
  CGGlyph glyph = 0;
  CGPoint origin;            // text space
  std::u16string_view text;  // what the glyph stands for; empty when a neighbour stands for it, too
};

/// Glyphs of one face and size, in the order they stand on the line. Everything is borrowed for the
/// call.
struct CGGlyphRun {
  CGFontRef font;
  CGFloat size;  // text space units an em, above 0
  /// Text space to user space, or to page space once it reached a back end.
  CGAffineTransform matrix;
  std::span<const CGPositionedGlyph> glyphs;

  // What is made up for a face that is missing.
  bool isSlanted = false;     // drawn as italics; part of the matrix once it reached a back end
  bool isEmboldened = false;  // drawn as bold; each back end thickens the outlines itself
};

}  // namespace kelvane
