#pragma once

#include <cstddef>
#include <functional>
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

/// A line of text, or a piece of a long one, with each glyph in its place.
struct PlacedLine {
  std::vector<PlacedRun> runs;
  PointD end;                    // where the pen is left, in the line's own axes
  bool lacksCharacters = false;  // some, so far, are in no face
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

/// Lines beyond it are placed in pieces, so that they need no memory in proportion.
inline constexpr std::size_t kMostUnitsOfAPiece = 2000;

/// @param text  borrowed; the glyphs refer to it.
/// @param take  gets each piece in turn, with places in the axes of the whole line; a line that is
///              not long is one.
void PlaceText(const WrittenText& text, const TextFont& font, const TextFrame& frame,
               const Spacing& spacing, const Reading& reading,
               const std::function<void(PlacedLine& piece)>& take);

/// @param text  its own advances do not count.
/// @return how far each unit of a line moves the pen in its face, logical units; what stands
///         together moves it at its first unit.
std::vector<double> MeasureText(const WrittenText& text, const TextFont& font,
                                const TextFrame& frame, const Reading& reading);

}  // namespace kelvane
