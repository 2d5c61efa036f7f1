#pragma once

#include <string_view>

#include "platform/atsui/atsu_style.h"
#include "platform/atsui/atsu_types.h"
#include "platform/quartz/cg_context.h"

namespace kelvane {

/// A line of text that belongs to the caller, with the style it is set in. Used by one thread at a
/// time.
class ATSUTextLayoutObject final : public CFObject {
 public:
  explicit ATSUTextLayoutObject(CFOwned<ATSUStyleObject> textStyle) : style(std::move(textStyle)) {}

  std::u16string_view text;  // borrowed
  CFOwned<ATSUStyleObject> style;
  bool usesStandIns = false;
  CGContextRef context = nullptr;  // borrowed
  Fixed rotation = 0;              // degrees, counter-clockwise
};

using ATSUTextLayout = ATSUTextLayoutObject*;

/// @param text         borrowed; must stay until the layout is disposed of or the pointer moved.
/// @param offset       where the layout's text begins; kATSUFromTextBeginning for the start.
/// @param length       units from there; kATSUToTextEnd for all that are left.
/// @param totalLength  units that `text` has.
/// @param runCount     1: all the text is set in one style, so `runLengths` is not read.
/// @param styles       the style; shared with the layout.
/// @param layout       becomes a layout owned by the caller.
/// @return noErr, or paramErr for another number of runs. Throws std::bad_alloc.
OSStatus ATSUCreateTextLayoutWithTextPtr(const UniChar* text, UniCharArrayOffset offset,
                                         UniCharCount length, UniCharCount totalLength,
                                         ItemCount runCount, const UniCharCount* runLengths,
                                         const ATSUStyle* styles, ATSUTextLayout* layout);

/// Makes the layout one of other text, in the same style. Arguments are as above.
OSStatus ATSUSetTextPointerLocation(ATSUTextLayout layout, const UniChar* text,
                                    UniCharArrayOffset offset, UniCharCount length,
                                    UniCharCount totalLength);

/// @param isOn  lets characters that the font does not have be taken from a font that has them.
OSStatus ATSUSetTransientFontMatching(ATSUTextLayout layout, bool isOn);

/// Sets attributes, as far as they are known and of the right size.
/// @param tags   kATSULineRotationTag, kATSUCGContextTag.
/// @param sizes  of the values, in bytes.
/// @return noErr, or what was wrong with the first attribute that was left out.
OSStatus ATSUSetLayoutControls(ATSUTextLayout layout, ItemCount count, const ATSUAttributeTag* tags,
                               const ByteCount* sizes, const void* const* values);

/// Draws a part of the layout's text from (x, y) in user space, in the direction of the line
/// rotation, in the surface's fill colour. The surface's text matrix plays no part. Half of a
/// surrogate pair drawn on its own marks nothing, and neither does text of size 0 or below.
/// @param offset, length  as above, within the layout's text.
/// @return noErr, or paramErr for a layout without a surface. Throws std::bad_alloc.
OSStatus ATSUDrawText(ATSUTextLayout layout, UniCharArrayOffset offset, UniCharCount length,
                      ATSUTextMeasurement x, ATSUTextMeasurement y);

OSStatus ATSUDisposeTextLayout(ATSUTextLayout layout) noexcept;

}  // namespace kelvane
