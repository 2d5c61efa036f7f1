#pragma once

#include <tiffio.h>

namespace kelvane {
inline namespace metafile {

/// The functions of libtiff that are used here. It brings a dozen libraries along, and most
/// programs never meet a TIFF file: so it is loaded with the first of them.
struct TiffLibrary {
  decltype(&TIFFOpenOptionsAlloc) allocateOptions = nullptr;
  decltype(&TIFFOpenOptionsFree) freeOptions = nullptr;
  decltype(&TIFFOpenOptionsSetMaxSingleMemAlloc) setMostMemoryAtOnce = nullptr;
  decltype(&TIFFOpenOptionsSetErrorHandlerExtR) setErrorHandler = nullptr;
  decltype(&TIFFOpenOptionsSetWarningHandlerExtR) setWarningHandler = nullptr;
  decltype(&TIFFClientOpenExt) open = nullptr;
  decltype(&TIFFClose) close = nullptr;
  decltype(&TIFFGetField) getField = nullptr;
  decltype(&TIFFGetFieldDefaulted) getFieldOrDefault = nullptr;
  decltype(&TIFFIsTiled) isTiled = nullptr;
  decltype(&TIFFNumberOfTiles) countTiles = nullptr;
  decltype(&TIFFNumberOfStrips) countStrips = nullptr;
  decltype(&TIFFTileSize64) tileSize = nullptr;
  decltype(&TIFFStripSize64) stripSize = nullptr;
  decltype(&TIFFGetStrileByteCount) storedSize = nullptr;
  decltype(&TIFFReadRGBAImageOriented) readRgba = nullptr;
};

/// @return the library, which stays loaded; null when it is not installed. Loads it once, for all
///         threads.
const TiffLibrary* LoadTiffLibrary();

}  // namespace metafile
}  // namespace kelvane
