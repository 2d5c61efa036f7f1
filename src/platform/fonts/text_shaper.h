#pragma once

#include <string_view>
#include <vector>

#include "platform/fonts/font_registry.h"
#include "platform/quartz/cg_glyph_run.h"

namespace kelvane {

/// Glyphs of one face, in the order they stand on the line from left to right.
struct ShapedRun {
  StyledFace face;
  std::vector<CGPositionedGlyph> glyphs;  // origins in ems; text borrowed from what was shaped
};

/// Sets a line of text from left to right: puts it in visual order, takes each character from
/// `style` or, with `usesStandIns`, from a face that has it, and shapes it. A character that no
/// face has becomes the box for missing ones. Control characters, unpaired surrogates and
/// characters that only steer the setting make no glyphs.
/// @param text  borrowed; must outlive the runs.
/// @param pen   where the line starts, in ems; becomes where it ends.
std::vector<ShapedRun> ShapeLine(std::u16string_view text, const FontStyle& style,
                                 bool usesStandIns, double& pen);

/// @return how much of the front of a line is shaped at a time. The order of characters is found by
///         code that needs stack for the length of what it orders, so a line too long for any page
///         is set piece by piece, cut behind a space where there is one.
std::u16string_view FirstPiece(std::u16string_view text);

}  // namespace kelvane
