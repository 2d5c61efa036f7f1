#pragma once

#include <optional>

#include "gdi/font_book.h"
#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_text_objects.h"

namespace kelvane::gdiplus {

/// @return the font as it is drawn, in world units; nullopt when it has no size, or one beyond any
///         page.
std::optional<TextFont> ResolveFont(Graphics& graphics, const EmfPlusFont& font);

}  // namespace kelvane::gdiplus
