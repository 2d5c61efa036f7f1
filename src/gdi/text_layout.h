#pragma once

#include <vector>

#include "gdi/font_book.h"
#include "gdi/geometry.h"
#include "gdi/text_frame.h"
#include "gdi/written_text.h"
#include "platform/quartz/cg_glyph_run.h"

namespace kelvane {

/// Glyphs of one face in a line. Their origins are in the line's own axes: along its baseline and
/// up from it, logical units.
struct PlacedRun {
  StyledFace face;
  std::vector<CGPositionedGlyph> glyphs;
  bool isTurned = false;  // a quarter to the left, as in lines that run downwards
};

/// A line of text with each glyph in its place.
struct PlacedLine {
  std::vector<PlacedRun> runs;
  PointD end;                    // where the pen is left, in the line's own axes
  bool lacksCharacters = false;  // some are in no face
};

/// What is added where a face's own advances count.
struct Spacing {
  double pixel = 0;     // logical units that advances are whole multiples of; 0 does not round
  double perUnit = 0;   // logical units, behind each character
  double perSpace = 0;  // logical units, at each space
};

/// How the characters of a line come into their order.
struct Reading {
  bool isOrdered = false;  // they are in it
  bool isLeftwards = false;
};

/// @param text  borrowed; the glyphs of the line refer to it.
PlacedLine PlaceText(const WrittenText& text, const TextFont& font, const TextFrame& frame,
                     const Spacing& spacing, const Reading& reading);

}  // namespace kelvane
