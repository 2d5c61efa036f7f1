#pragma once

#include "platform/quartz/cg_path.h"
#include "platform/quartz/harfbuzz.h"

namespace kelvane {

/// @return the outline of a glyph in the units of `font`, y upwards; empty for a blank and for a
///         glyph that the face does not have.
CGPath GlyphOutline(hb_font_t* font, hb_codepoint_t glyph);

}  // namespace kelvane
