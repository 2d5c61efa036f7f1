#include "support/install.h"

#include <filesystem>
#include <stdexcept>
#include <utility>

namespace kelvane::test {
namespace {

// The prefix, of a depth of its own.
const std::string kPrefix = "/opt/some/where";

const std::string kCCompiler = KELVANE_C_COMPILER;
const std::string kCppCompiler = KELVANE_CXX_COMPILER;

std::vector<std::string> Joined(std::vector<std::string> first,
                                const std::vector<std::string>& second) {
  first.insert(first.end(), second.begin(), second.end());
  return first;
}

}  // namespace

InstalledTree::InstalledTree() {
  const ProcessResult result =
      Run({"env", "DESTDIR=" + folder_.Path().string(), KELVANE_CMAKE_COMMAND, "--install",
           KELVANE_BINARY_DIR, "--prefix", kPrefix});
  if (result.status != 0) throw std::runtime_error("cannot install: " + result.output);
}

std::string InstalledTree::operator/(std::string_view name) const {
  return (std::filesystem::path(folder_.Path().string() + kPrefix) / name).string();
}

std::set<std::string> InstalledTree::Files() const {
  const std::filesystem::path root = *this / "";
  std::set<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    if (entry.is_directory()) continue;
    std::string name = entry.path().lexically_relative(root).string();
    if (entry.is_symlink()) name += " -> " + std::filesystem::read_symlink(entry.path()).string();
    files.insert(std::move(name));
  }
  return files;
}

std::string InstalledTree::LibraryFolder() {
  return KELVANE_LIBDIR;
}

ProcessResult RunInShell(const InstalledTree& tree, const std::string& line) {
  return Run({"env", "PKG_CONFIG_PATH=" + (tree / InstalledTree::LibraryFolder()) + "/pkgconfig",
              "CC=" + kCCompiler, std::string("CFLAGS=").append(KELVANE_LINKED_FLAGS),
              "LD_LIBRARY_PATH=" + (tree / InstalledTree::LibraryFolder()), "sh", "-c", line});
}

ProcessResult RunCMake(const std::vector<std::string>& arguments) {
  return Run(Joined({KELVANE_CMAKE_COMMAND}, arguments));
}

ProcessResult ConfigureProject(const InstalledTree& tree, const std::string& source,
                               const std::string& binary) {
  return RunCMake({"-S", source, "-B", binary, "-G", "Ninja", "-DCMAKE_PREFIX_PATH=" + (tree / ""),
                   "-DCMAKE_C_COMPILER=" + kCCompiler, "-DCMAKE_CXX_COMPILER=" + kCppCompiler,
                   std::string("-DCMAKE_CXX_FLAGS=").append(KELVANE_LINKED_FLAGS)});
}

std::string LibraryVersion() {
  return KELVANE_LIBRARY_VERSION;
}

std::string LibraryABI() {
  return KELVANE_LIBRARY_ABI;
}

std::string BuildType() {
  return KELVANE_BUILD_TYPE;
}

bool HasAppKit() {
  return KELVANE_HAS_APPKIT != 0;
}

}  // namespace kelvane::test
