#include "platform/atsui/atsu_style.h"

#include <cstring>

#include "platform/fonts/font_registry.h"

namespace kelvane {
namespace {

OSStatus SetAttribute(ATSUStyleObject& style, ATSUAttributeTag tag, ByteCount size,
                      const void* value) {
  std::uint32_t bits = 0;
  if (size != sizeof bits) return kATSUInvalidAttributeSizeErr;
  std::memcpy(&bits, value, sizeof bits);
  switch (tag) {
    case kATSUQDBoldfaceTag:
      style.isBold = bits != 0;
      return noErr;
    case kATSUQDItalicTag:
      style.isItalic = bits != 0;
      return noErr;
    case kATSUFontTag:
      style.font = bits;
      return noErr;
    case kATSUSizeTag:
      style.size = static_cast<Fixed>(bits);
      return noErr;
    default:
      return kATSUInvalidAttributeTagErr;
  }
}

}  // namespace

void ATSUStyleObject::LookUp(CGFontFilter filter) {
  style_ = &registry_.Style(font, isBold, isItalic, filter);
  filter_ = filter;
}

OSStatus ATSUCreateStyle(ATSUStyle* style) {
  *style = new ATSUStyleObject(FontRegistry::Shared());
  return noErr;
}

OSStatus ATSUSetAttributes(ATSUStyle style, ItemCount count, const ATSUAttributeTag* tags,
                           const ByteCount* sizes, const void* const* values) {
  OSStatus status = noErr;
  for (ItemCount i = 0; i < count; ++i) {
    const OSStatus one = SetAttribute(*style, tags[i], sizes[i], values[i]);
    if (status == noErr) status = one;
  }
  style->Forget();
  return status;
}

OSStatus ATSUDisposeStyle(ATSUStyle style) noexcept {
  CFRelease(style);
  return noErr;
}

}  // namespace kelvane
