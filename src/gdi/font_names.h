#pragma once

#include <string_view>

#include "gdi/font_map.h"
#include "metafile/gdi_objects.h"
#include "platform/fonts/font_registry.h"

namespace kelvane {

/// What the name of a logical font led to.
struct FoundFont {
  FontID font = kDefaultFont;
  bool isOriginal = false;        // the very font that Windows would take
  bool isBold = false;            // whatever weight is asked for
  std::u16string_view name = {};  // of several between semicolons the one that counted; borrowed
};

/// @return the name up to its end, cut to what Windows reads of it; borrowed from the font.
std::u16string_view FaceName(const LogFont& font);

/// @param faceName  one name, or several between semicolons, the first known of which counts.
/// @param kind      of face, to go by when none is known.
FoundFont FindFont(FontRegistry& registry, const FontMap& map, std::u16string_view faceName,
                   PitchAndFamily kind);

}  // namespace kelvane
