#pragma once

#include <optional>

#include <hb.h>

#include "platform/quartz/cg_font.h"

namespace kelvane {

/// Reads what a face says of itself from its tables.
/// @param font  in units of the face's em.
/// @return nothing for what has no glyphs, and so is no face.
std::optional<CGFontDescription> DescribeFace(hb_font_t* font);

}  // namespace kelvane
