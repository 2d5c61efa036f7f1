#pragma once

#include <string_view>
#include <vector>

#include "platform/fonts/font_registry.h"
#include "platform/fonts/text_items.h"
#include "platform/quartz/cg_glyph_run.h"

namespace kelvane {

/// How the pen of a line moves at a glyph, ems. Marks stand elsewhere than where the pen is.
struct PenMove {
  double from = 0;
  double by = 0;
};

/// Glyphs of one face, in the order they stand on the line from left to right.
struct ShapedRun {
  StyledFace face;
  std::vector<CGPositionedGlyph> glyphs;  // origins in ems; text borrowed from what was shaped
  std::vector<PenMove> moves;             // for each glyph
};

/// How a line is set.
struct LineSetting {
  bool usesStandIns = false;  // a character is taken from a face that has it
  bool isRefined = true;      // with kerning, and with ligatures that only look better
  LineDirection direction = LineDirection::kByText;
};

/// Sets a line of text from left to right: puts it in visual order, takes each character from
/// `style` or from a stand-in, and shapes it. A character that no face has becomes the box for
/// missing ones. Control characters, unpaired surrogates and characters that only steer the setting
/// make no glyphs.
/// @param text  borrowed; must outlive the runs.
/// @param pen   where the line starts, in ems; becomes where it ends.
std::vector<ShapedRun> ShapeLine(std::u16string_view text, const FontStyle& style,
                                 const LineSetting& setting, double& pen);

/// @return how much of the front of a line is shaped at a time. The order of characters is found by
///         code that needs stack for the length of what it orders, so a line too long for any page
///         is set piece by piece, cut behind a space where there is one.
std::u16string_view FirstPiece(std::u16string_view text);

}  // namespace kelvane
