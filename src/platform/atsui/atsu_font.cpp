#include "platform/atsui/atsu_font.h"

#include <string>
#include <string_view>

#include "base/unicode.h"
#include "platform/fonts/font_registry.h"

namespace kelvane {

OSStatus ATSUFindFontFromName(const void* name, ByteCount length, FontNameCode nameCode,
                              std::uint32_t /*platform*/, std::uint32_t /*script*/,
                              std::uint32_t /*language*/, ATSUFontID* fontID) {
  const std::string text = ToUTF8(std::string_view(static_cast<const char*>(name), length));
  FontRegistry& registry = FontRegistry::Shared();
  *fontID = kNoFont;
  if (nameCode == kFontFullName) *fontID = registry.FindByFullName(text);
  if (nameCode == kFontFamilyName) *fontID = registry.FindByFamily(text);
  return *fontID == kNoFont ? kATSUInvalidFontErr : noErr;
}

}  // namespace kelvane
