#pragma once

#include <gif_lib.h>

#include "base/late_library.h"

namespace kelvane {

// giflib, which only GIF data needs: it is loaded with the first of it.
inline constinit LateLibrary kGifLibrary("libgif.so.7");

KELVANE_LATE_FUNCTION(kGifLibrary, DGifCloseFile)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifExtensionToGCB)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifGetExtension)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifGetExtensionNext)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifGetImageDesc)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifGetLine)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifGetRecordType)
KELVANE_LATE_FUNCTION(kGifLibrary, DGifOpen)

}  // namespace kelvane
