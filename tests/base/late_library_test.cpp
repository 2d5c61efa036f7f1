#include "base/late_library.h"

#include <stdexcept>
#include <string>

#include <dlfcn.h>
#include <gif_lib.h>
#include <gtest/gtest.h>
#include <png.h>
#include <tiffio.h>

namespace kelvane {
namespace {

constinit LateLibrary kPng("libpng16.so.16");
constinit LateLibrary kGif("libgif.so.7");
constinit LateLibrary kMissing("libkelvane-no-such-library.so.0");

KELVANE_LATE_FUNCTION(kPng, png_access_version_number)
KELVANE_LATE_FUNCTION(kPng, TIFFGetVersion)
KELVANE_LATE_FUNCTION(kGif, GifErrorString)
KELVANE_LATE_FUNCTION(kMissing, png_get_copyright)

bool IsLoaded(const char* file) {
  void* const handle = dlopen(file, RTLD_LAZY | RTLD_NOLOAD);
  if (handle != nullptr) dlclose(handle);
  return handle != nullptr;
}

template <class Function>
std::string FailureOf(const Function& function) {
  try {
    function();
  } catch (const std::runtime_error& error) {
    return error.what();
  }
  return "none";
}

TEST(LateLibrary, IsLoadedByTheFirstCallOfOneOfItsFunctions) {
  EXPECT_EQ(IsLoaded("libgif.so.7"), false);
  EXPECT_STREQ(GifErrorString(D_GIF_ERR_OPEN_FAILED), "Failed to open given file");
  EXPECT_EQ(IsLoaded("libgif.so.7"), true);
}

TEST(LateLibrary, IsThereWhereItIsInstalled) {
  EXPECT_EQ(kPng.IsThere(), true);
  EXPECT_EQ(kMissing.IsThere(), false);
}

TEST(LateLibrary, NamesTheFileThatIsNotThere) {
  const std::string failure = FailureOf([] { png_get_copyright(nullptr); });
  EXPECT_NE(failure.find("libkelvane-no-such-library.so.0"), std::string::npos) << failure;
}

TEST(LateLibrary, NamesTheFunctionThatIsNotThere) {
  const std::string failure = FailureOf([] { TIFFGetVersion(); });
  EXPECT_NE(failure.find("TIFFGetVersion"), std::string::npos) << failure;
}

}  // namespace
}  // namespace kelvane
