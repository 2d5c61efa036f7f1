#pragma once

#include <string>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/svg/svg_paint.h"

namespace kelvane {

/// The stroke of a mark, in the space of its element.
struct SvgStroke {
  CGFloat width = 0;        // 0: as thin as can be
  CGFloat lengthScale = 1;  // of dashes, to that space
};

/// What of a mark is painted.
struct SvgMark {
  bool fills = false;
  bool strokes = false;
  bool isEvenOdd = false;
  bool isPath = false;               // else text, whose class is that of its face
  CGAffineTransform transform = {};  // of the element
  SvgStroke stroke = {};
};

/// The class of lines that are one pixel wide however large a page is shown, and its rules. Those
/// who know nothing of such lines know nothing of sums either, and stay with the width that the
/// element has.
inline constexpr const char* kSvgHairline = "h";
inline constexpr const char* kSvgHairlineRules =
    ".h{vector-effect:non-scaling-stroke;stroke-width:calc(1px)}";

/// @return whether the mark has such a line.
bool IsHairline(const CGGraphicsState& state, const SvgMark& mark);

/// Writes attributes that paint a mark under the state; those are left out that are as they are
/// anyway. Throws as the providers of patterns' images do.
void AppendSvgStyle(std::string& text, const CGGraphicsState& state, const SvgMark& mark,
                    SvgPaints& paints);

}  // namespace kelvane
