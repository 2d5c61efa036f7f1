#pragma once

#include "gdi/font_map.h"
#include "platform/fonts/font_registry.h"
#include "players/text_setting.h"

namespace kelvane::test {

/// @return text in the fonts of this process, without wishes.
inline kelvane::TextSetting InstalledFonts() {
  static const FontMap kNoWishes;
  return {FontRegistry::Shared(), kNoWishes};
}

}  // namespace kelvane::test
