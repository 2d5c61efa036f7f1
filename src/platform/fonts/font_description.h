#pragma once

#include <optional>

#include "platform/quartz/cg_font.h"
#include "platform/quartz/harfbuzz.h"

namespace kelvane {

/// Reads what a face says of itself from its tables.
/// @param font  in units of the face's em.
/// @return nothing for what has no glyphs, and so is no face.
std::optional<CGFontDescription> DescribeFace(hb_font_t* font);

}  // namespace kelvane
