#include "metafile/tiff_library.h"

#include <optional>

#include <dlfcn.h>

namespace kelvane {
inline namespace metafile {
namespace {

// The first of its kind that can be told how much memory it may take.
constexpr const char* kTiffLibrary = "libtiff.so.6";

/// The functions of a library, as long as all that were asked for are there.
class LoadedFunctions {
 public:
  explicit LoadedFunctions(void* library) : library_(library) {}

  template <class Function>
  void Get(Function& function, const char* name) {
    function = reinterpret_cast<Function>(dlsym(library_, name));
    areAllThere_ = areAllThere_ && function != nullptr;
  }
  [[nodiscard]] bool AreAllThere() const { return areAllThere_; }

 private:
  void* library_;
  bool areAllThere_ = true;
};

// It is never unloaded: threads may still be reading when a process ends.
std::optional<TiffLibrary> LoadNow() {
  void* library = dlopen(kTiffLibrary, RTLD_NOW | RTLD_LOCAL);
  if (library == nullptr) return std::nullopt;
  TiffLibrary tiff;
  LoadedFunctions functions(library);
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
