#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_brush.h"
#include "metafile/emfplus/emfplus_text_objects.h"
#include "metafile/emfplus/emfplus_types.h"

namespace kelvane::gdiplus {

/// Writes text into a rectangle.
/// @param layout  world units; without width lines are as long as they are, without height there is
///                no end to them.
/// @param format  null for the default one.
void DrawString(Graphics& graphics, std::u16string_view text, const EmfPlusFont& font,
                const EmfPlusBrush& brush, const RectF& layout, const EmfPlusStringFormat* format);

/// Writes glyphs, each in its place.
/// @param values   characters or glyph numbers. @param places  of their origins on the baseline,
///                 world units; what has none is left out.
/// @param options  kEmfPlusCmapLookup and those after it.
/// @param matrix   of the glyphs about their own origins; null for none.
void DrawDriverString(Graphics& graphics, std::u16string_view values,
                      std::span<const PointF> places, const EmfPlusFont& font,
                      const EmfPlusBrush& brush, std::uint32_t options, const XForm* matrix);

}  // namespace kelvane::gdiplus
