#pragma once

#include <filesystem>
#include <string>

namespace kelvane::test {

/// @param path  below the root of the checkout; empty for the root itself.
std::string SourcePath(const std::filesystem::path& path);

/// The two tools and the shared library of this build.
std::string ConverterPath();
std::string KelvanePath();
std::string LibraryPath();

/// The Fontconfig configuration of the tests: the same fonts on every machine.
std::string FontsConfigurationPath();

}  // namespace kelvane::test
