#pragma once

#include <string>

#include "platform/quartz/cg_context.h"

namespace kelvane {

/// Makes a surface that writes what is drawn as text, one line an operation, numbers as in a PDF:
///
///     page 0 -50 100 50            BeginPage: origin, size
///     save / restore               around a clip, while it lasts
///     fill-color 1 0 0             state: only when the value changes and the next mark needs it
///     stroke-color 0 0 0
///     line-width 2
///     miter-limit 10
///     line-cap 1
///     line-join 1
///     line-dash 3 1 from 0         lengths, then how far into them lines start
///     fill-pattern 8 8 under a b c d tx ty    a cell's size and matrix, its image if it has
///       image                      one, its shapes; so, too, stroke-pattern
///       fill-color 1 0 0
///     end-pattern
///     fill-pattern 8 8 gap 9 9 mirror-x mirror-y under a b c d tx ty    what not all cells have
///     fill-pattern under a b c d tx ty    a shading, as below
///     end-pattern
///     text-mode 0
///     blend darken alpha 1
///     move 10 -20                  a path, in page space
///     line 30 -40
///     curve 1 2 3 4 5 6
///     rect 10 -60 20 40
///     close
///     fill, eo-fill, stroke, fill-stroke, eo-fill-stroke, clip, eo-clip    what is done with the
///                                  path above
///     stroke under 2 0 0 1 0 0     a stroke deformed by an uneven transform
///     image 2 2 rgb under a b c d tx ty
///     image 9 2 indexed 4 smooth masked 3 1 under a b c d tx ty    gray, rgb, jpeg rgb, mask …
///       bytes 0123456780 8765432100    rows; or a hash of more than 64 pixels, or of a file
///       colors 000000 ffffff
///       mask e0
///     axial 0 0 50 0               colour that changes along a line: start and end
///       stop 0 1 0 0               each colour, where it stands first
///       stop 1 0 0 0 alpha 0.5     one through which what lies below shows; so, too, of others
///     mesh                         triangles
///       vertex 10 -20 1 0 0        each corner with its colour
///     text "Hi" Face 12 under a b c d tx ty    a run of glyphs: text, face, size, matrix,
///       at 0 0                     then each glyph's origin in text space; left out for one glyph
///       at 8.6 0                   at the origin
///     end-page
///
/// @param output  borrowed; must outlive the surface. Lines are appended.
/// @return a surface owned by the caller. Throws std::bad_alloc.
CGContextRef CGTraceContextCreate(std::string& output);

}  // namespace kelvane
