#pragma once

#include <optional>

#include <hb.h>

#include "platform/quartz/cg_font.h"

namespace kelvane {

/// Reads what a face says of itself from its tables.
/// @param font  in units of the face's em.
/// @return nothing for a face whose outlines a document of version 1.4 cannot carry.
std::optional<CGFontDescription> DescribeFace(hb_font_t* font);

}  // namespace kelvane
