#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Names = std::set<std::string>;

/// The word before the first parenthesis of every line that declares an exported function.
Names DeclaredInTheHeader() {
  std::istringstream lines(ReadFile(KELVANE_SOURCE_DIR "/include/kelvane/kelvane.h"));
  Names names;
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("KELVANE_EXPORT ", 0) != 0) continue;
    const std::string start = line.substr(0, line.find('('));
    names.insert(start.substr(start.find_last_of(" *") + 1));
  }
  return names;
}

// Names with two underscores in front belong to compilers, whose sanitizers and coverage export
// some.
Names ExportedByTheLibrary() {
  std::istringstream lines(
      Run({"nm", "-D", "--defined-only", "--format=posix", KELVANE_LIBRARY}).output);
  Names names;
  for (std::string line; std::getline(lines, line);) {
    if (line.rfind("__", 0) != 0) names.insert(line.substr(0, line.find(' ')));
  }
  return names;
}

TEST(ExportedSymbols, AreTheFunctionsOfTheHeaderAndNothingElse) {
  EXPECT_EQ(ExportedByTheLibrary(), DeclaredInTheHeader());
}

}  // namespace
}  // namespace kelvane::test
