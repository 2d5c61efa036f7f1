#include "metafile/tiff_library.h"

#include <optional>

#include "base/loaded_functions.h"

namespace kelvane {
inline namespace metafile {
namespace {

// The first of its kind that can be told how much memory it may take.
constexpr const char* kTiffLibrary = "libtiff.so.6";

std::optional<TiffLibrary> LoadNow() {
  TiffLibrary tiff;
  LoadedFunctions functions(kTiffLibrary);
  functions.Get(tiff.allocateOptions, "TIFFOpenOptionsAlloc");
  functions.Get(tiff.freeOptions, "TIFFOpenOptionsFree");
  functions.Get(tiff.setMostMemoryAtOnce, "TIFFOpenOptionsSetMaxSingleMemAlloc");
  functions.Get(tiff.setErrorHandler, "TIFFOpenOptionsSetErrorHandlerExtR");
  functions.Get(tiff.setWarningHandler, "TIFFOpenOptionsSetWarningHandlerExtR");
  functions.Get(tiff.open, "TIFFClientOpenExt");
  functions.Get(tiff.close, "TIFFClose");
  functions.Get(tiff.getField, "TIFFGetField");
  functions.Get(tiff.getFieldOrDefault, "TIFFGetFieldDefaulted");
  functions.Get(tiff.isTiled, "TIFFIsTiled");
  functions.Get(tiff.countTiles, "TIFFNumberOfTiles");
  functions.Get(tiff.countStrips, "TIFFNumberOfStrips");
  functions.Get(tiff.tileSize, "TIFFTileSize64");
  functions.Get(tiff.stripSize, "TIFFStripSize64");
  functions.Get(tiff.storedSize, "TIFFGetStrileByteCount");
  functions.Get(tiff.readRgba, "TIFFReadRGBAImageOriented");
  if (!functions.AreAllThere()) return std::nullopt;
  return tiff;
}

}  // namespace

const TiffLibrary* LoadTiffLibrary() {
  static const std::optional<TiffLibrary> kLibrary = LoadNow();
  return kLibrary ? &*kLibrary : nullptr;
}

}  // namespace metafile
}  // namespace kelvane
