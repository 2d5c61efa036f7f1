#pragma once

#include "platform/atsui/atsu_types.h"
#include "platform/corefoundation/cf_base.h"
#include "platform/fonts/font_registry.h"

namespace kelvane {

/// How text is set: font, size, bold, italic. Used by one thread at a time.
class ATSUStyleObject final : public CFObject {
 public:
  /// @param registry  the fonts; must outlive the style.
  explicit ATSUStyleObject(FontRegistry& registry) : registry_(registry) {}

  ATSUFontID font = kDefaultFont;
  Fixed size = 12 << 16;  // points an em
  bool isBold = false;
  bool isItalic = false;

  /// @return the font in this style for an output, looked up once for as long as the attributes
  /// stay.
  const FontStyle& Style(CGFontFilter filter) {
    if (style_ == nullptr || filter != filter_) LookUp(filter);
    return *style_;
  }

  /// To be called when an attribute changed.
  void Forget() { style_ = nullptr; }

 private:
  void LookUp(CGFontFilter filter);

  FontRegistry& registry_;
  const FontStyle* style_ = nullptr;
  CGFontFilter filter_ = nullptr;  // that the style was looked up for
};

using ATSUStyle = ATSUStyleObject*;

/// @param style  becomes a style of this process's default font, 12 points, owned by the caller.
/// @return noErr. Throws std::bad_alloc.
OSStatus ATSUCreateStyle(ATSUStyle* style);

/// Sets attributes, as far as they are known and of the right size.
/// @param tags    kATSUQDBoldfaceTag, kATSUQDItalicTag, kATSUFontTag, kATSUSizeTag.
/// @param sizes   of the values, in bytes: 4. @param values  each of the type that its tag names.
/// @return noErr, or what was wrong with the first attribute that was left out.
OSStatus ATSUSetAttributes(ATSUStyle style, ItemCount count, const ATSUAttributeTag* tags,
                           const ByteCount* sizes, const void* const* values);

/// Gives the style up; layouts made with it keep it.
OSStatus ATSUDisposeStyle(ATSUStyle style) noexcept;

}  // namespace kelvane
