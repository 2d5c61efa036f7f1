#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "classic/context/abstract_context.h"
#include "classic/reader/geometry_types.h"
#include "platform/atsui/atsu_layout.h"

namespace kelvane {

/// Draws a line of text in the context's font and text colour, over a box of the background colour
/// when the background is opaque; a path that is pending is stroked before the box. The brush's
/// fill colour is in force again afterwards, and the current point stands behind the text.
/// @param reference  logical units.
/// @param bounds     the box, logical units.
/// @param dx         how far the pen moves after each unit, page units, wrapping at 32 bits.
void DrawText(AbstractContext& context, std::u16string_view text, PointL reference,
              const RectangleL& bounds, const std::vector<std::uint32_t>& dx);

/// Turns a reference point into the position of the text on the page, in place: the current point
/// under TA_UPDATECP; under MM_TEXT a corner or the middle of the bounds, as the alignment says;
/// otherwise the point itself, raised by the font's height unless it lies on the baseline.
void ChangeTextXY(const AbstractContext& context, std::int32_t& x, std::int32_t& y,
                  const RectangleL& bounds);

/// Draws unit by unit, so that each stands where `dx` says; the pen does not move on its own. Half
/// of a surrogate pair shows nothing alone. A line at an angle is drawn in one, without `dx`.
void DrawStringWithSpacing(const AbstractContext& context, std::u16string_view text,
                           PointL position, const std::vector<std::uint32_t>& dx);

/// @param text  borrowed; must outlive the layout.
/// @return a layout on the context's surface at the context's text angle, owned by the caller
///         (ATSUDisposeTextLayout).
ATSUTextLayout CreateTextLayout(const AbstractContext& context, std::u16string_view text,
                                ATSUStyle style);

}  // namespace kelvane
