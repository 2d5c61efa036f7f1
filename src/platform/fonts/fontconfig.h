#pragma once

#include <fontconfig/fontconfig.h>

#include "base/late_library.h"

namespace kelvane {

// Fontconfig, which only text needs: it is loaded with the first of it.
inline constinit LateLibrary kFontconfig("libfontconfig.so.1");

KELVANE_LATE_FUNCTION(kFontconfig, FcCharSetDestroy)
KELVANE_LATE_FUNCTION(kFontconfig, FcCharSetFirstPage)
KELVANE_LATE_FUNCTION(kFontconfig, FcCharSetHasChar)
KELVANE_LATE_FUNCTION(kFontconfig, FcCharSetNextPage)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigAppFontAddDir)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigAppFontAddFile)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigCreate)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigDestroy)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigGetConfigDirs)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigGetConfigFiles)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigGetFontDirs)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigGetFonts)
KELVANE_LATE_FUNCTION(kFontconfig, FcConfigSubstitute)
KELVANE_LATE_FUNCTION(kFontconfig, FcDefaultSubstitute)
KELVANE_LATE_FUNCTION(kFontconfig, FcFontList)
KELVANE_LATE_FUNCTION(kFontconfig, FcFontSetDestroy)
KELVANE_LATE_FUNCTION(kFontconfig, FcFontSort)
KELVANE_LATE_FUNCTION(kFontconfig, FcInitLoadConfigAndFonts)
KELVANE_LATE_FUNCTION(kFontconfig, FcObjectSetAdd)
KELVANE_LATE_FUNCTION(kFontconfig, FcObjectSetCreate)
KELVANE_LATE_FUNCTION(kFontconfig, FcObjectSetDestroy)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternAddInteger)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternAddString)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternCreate)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternDestroy)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternGetBool)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternGetCharSet)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternGetInteger)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternGetString)
KELVANE_LATE_FUNCTION(kFontconfig, FcPatternGetWithBinding)
KELVANE_LATE_FUNCTION(kFontconfig, FcStrListDone)
KELVANE_LATE_FUNCTION(kFontconfig, FcStrListNext)

}  // namespace kelvane
