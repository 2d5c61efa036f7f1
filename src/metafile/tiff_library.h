#pragma once

#include <tiffio.h>

#include "base/late_library.h"

namespace kelvane {

// libtiff, which brings a dozen libraries along, and most programs never meet a TIFF file: it is
// loaded with the first of them. The first of its kind that can be told how much memory it may
// take.
inline constinit LateLibrary kTiffLibrary("libtiff.so.6");

KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFClientOpenExt)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFClose)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFGetField)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFGetFieldDefaulted)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFGetStrileByteCount)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFIsTiled)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFNumberOfStrips)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFNumberOfTiles)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFOpenOptionsAlloc)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFOpenOptionsFree)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFOpenOptionsSetErrorHandlerExtR)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFOpenOptionsSetMaxSingleMemAlloc)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFOpenOptionsSetWarningHandlerExtR)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFReadRGBAImageOriented)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFStripSize64)
KELVANE_LATE_FUNCTION(kTiffLibrary, TIFFTileSize64)

}  // namespace kelvane
