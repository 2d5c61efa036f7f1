#pragma once

#include "platform/atsui/atsu_types.h"

namespace kelvane {

/// Which of a font's names is meant.
using FontNameCode = std::uint32_t;
inline constexpr FontNameCode kFontFamilyName = 1;
inline constexpr FontNameCode kFontFullName = 4;

/// Names are looked up whatever platform, script and language they are for.
inline constexpr std::uint32_t kFontNoPlatformCode = 0xFFFFFFFF;
inline constexpr std::uint32_t kFontNoScriptCode = 0xFFFFFFFF;
inline constexpr std::uint32_t kFontNoLanguageCode = 0xFFFFFFFF;

/// Looks a font up. A name that is not installed leads to the font that the machine's configuration
/// puts in its place as one of the same metrics.
/// @param name    UTF-8, or Latin-1 where it is not that; borrowed.
/// @param length  bytes.
/// @param fontID  becomes the font, or 0 when the name leads to none.
/// @return noErr, or kATSUInvalidFontErr when there is none. Throws std::bad_alloc.
OSStatus ATSUFindFontFromName(const void* name, ByteCount length, FontNameCode nameCode,
                              std::uint32_t platform, std::uint32_t script, std::uint32_t language,
                              ATSUFontID* fontID);

}  // namespace kelvane
