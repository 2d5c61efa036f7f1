#pragma once

#include <set>
#include <string>
#include <vector>

#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {

/// What this build installs, in a folder of its own: for a prefix that is neither the one the build
/// was configured for nor the place where the files are in the end. Removed at the end.
class InstalledTree {
 public:
  /// Throws std::runtime_error when it cannot be installed.
  InstalledTree();

  /// The path of a file or folder in it.
  /// @param name  from the prefix.
  [[nodiscard]] std::string operator/(std::string_view name) const;

  /// The files in it, from the prefix; a link with where it leads, as in "a -> b".
  [[nodiscard]] std::set<std::string> Files() const;

  /// The folder of libraries, from the prefix: "lib", or what the build was configured for.
  [[nodiscard]] static std::string LibraryFolder();

 private:
  TemporaryFolder folder_;
};

/// Runs a line of the shell with pkg-config finding the tree's package first, CC set to this
/// build's C compiler, and CFLAGS to what a program needs to load the library that it made.
ProcessResult RunInShell(const InstalledTree& tree, const std::string& line);

/// Runs this build's CMake.
/// @param arguments  its own.
ProcessResult RunCMake(const std::vector<std::string>& arguments);

/// Configures a project with this build's compilers, the tree being the first place to look for
/// packages.
/// @param source, binary  its folders.
ProcessResult ConfigureProject(const InstalledTree& tree, const std::string& source,
                               const std::string& binary);

/// The version and the ABI of the library, and the kind of the build, such as "debug".
std::string LibraryVersion();
std::string LibraryABI();
std::string BuildType();

/// Whether the build has the AppKit part, which is installed with it.
bool HasAppKit();

}  // namespace kelvane::test
