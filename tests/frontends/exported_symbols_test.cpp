#include <regex>
#include <set>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Names = std::set<std::string>;

/// The text without comments and lines for the preprocessor.
std::string Declarations(const std::string& header) {
  static const std::regex comment(R"(/\*[^*]*\*+([^/*][^*]*\*+)*/)");
  static const std::regex directive(R"((^|\n)#[^\n]*)");
  return std::regex_replace(std::regex_replace(header, comment, ""), directive, "$1");
}

/// The word before the parenthesis of every function that the header declares, whether or not it
/// says there that the function is exported.
Names DeclaredInTheHeader() {
  static const std::regex function(R"((\w+)\()");
  const std::string text = Declarations(ReadFile(SourcePath("include/kelvane/kelvane.h")));
  return {std::sregex_token_iterator(text.begin(), text.end(), function, 1), {}};
}

/// What the linker lets programs see, functions or not, weak or not.
Names ExportedByTheLibrary() {
  std::istringstream lines(
      Run({"nm", "-D", "--defined-only", "--format=posix", LibraryPath()}).output);
  Names names;
  for (std::string line; std::getline(lines, line);) {
    // What a sanitizer adds, types of functions among it.
    const bool belongsToTheCompiler =
        KELVANE_INSTRUMENTED && (line.starts_with("__") || line.starts_with("_ZT"));
    if (!belongsToTheCompiler) names.insert(line.substr(0, line.find(' ')));
  }
  return names;
}

TEST(ExportedSymbols, AreTheFunctionsOfTheHeaderAndNothingElse) {
  EXPECT_EQ(DeclaredInTheHeader().count("KELVANE"), 1U);
  EXPECT_EQ(ExportedByTheLibrary(), DeclaredInTheHeader());
}

}  // namespace
}  // namespace kelvane::test
