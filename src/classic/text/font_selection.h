#pragma once

#include <string>
#include <string_view>

#include "classic/reader/gdi_structures.h"
#include "platform/atsui/atsu_style.h"

namespace kelvane {

/// Narrows UTF-16 to one byte a unit, terminating zeros included, as the process's locale has it. A
/// unit that the locale cannot hold in one byte repeats the byte before it, the first one 0.
std::string convertToCharString(std::u16string_view text);

/// Looks a font up: first by full name, generic family names having been given a real one, then by
/// the requested name as a family.
/// @param name  zero-terminated.
/// @return the default font when there is neither.
ATSUFontID GetFontID(const char* name);

/// @return the style of text in a logical font, owned by the caller (ATSUDisposeStyle). Its size is
///         the absolute height, and it is bold when the width is 700: the weight plays no part.
ATSUStyle CreateFontStyle(const LogFontW& font);

/// @return the PostScript name of a common face by a name that contains it, or else the narrowed
///         name itself.
std::string ConvertFontToPostScript(std::u16string_view faceName);

}  // namespace kelvane
