#pragma once

#include <string_view>
#include <vector>

#include "platform/atsui/font_registry.h"
#include "platform/quartz/cg_glyph_run.h"

namespace kelvane {

/// Glyphs of one face, in the order they stand on the line from left to right.
struct ShapedRun {
  StyledFace face;
  std::vector<CGPositionedGlyph> glyphs;  // origins in ems; text borrowed from what was shaped
};

/// Sets a line of text from (0, 0) to the right: puts it in visual order, takes each character
/// from `style` or, with `usesStandIns`, from a face that has it, and shapes it. A character that
/// no face has becomes the box for missing ones. Control characters, unpaired surrogates and
/// characters that only steer the setting make no glyphs.
/// @param text  borrowed; must outlive the runs.
std::vector<ShapedRun> ShapeLine(std::u16string_view text, const FontStyle& style,
                                 bool usesStandIns);

}  // namespace kelvane
