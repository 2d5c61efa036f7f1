#include "support/paths.h"

// This file alone is compiled with the places of the build.

namespace kelvane::test {

std::string SourcePath(const std::filesystem::path& path) {
  const std::filesystem::path root = KELVANE_SOURCE_DIR;
  return path.empty() ? root : root / path;
}

std::string ConverterPath() {
  return KELVANE_CONVERTER;
}

std::string KelvanePath() {
  return KELVANE_TOOL;
}

std::string LibraryPath() {
  return KELVANE_LIBRARY;
}

std::string FontsConfigurationPath() {
  return KELVANE_TEST_FONTS;
}

}  // namespace kelvane::test
