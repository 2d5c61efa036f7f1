#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/install.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Command = std::vector<std::string>;

/// A compiler with a language standard, and a file that includes the header and nothing else.
struct Dialect {
  const char* name;
  const char* compiler;
  const char* standard;
  std::string source;
};

/// The folder of the headers that the compiler brings itself.
std::string OwnHeaders(const std::string& compiler) {
  const std::string line = Run({compiler, "-print-file-name=include"}).output;
  return line.substr(0, line.find('\n'));
}

// No other folder of headers is looked at: it needs none but the compiler's own, and another copy
// cannot be taken for it.
ProcessResult Compile(const Dialect& dialect, const std::string& includeFolder) {
  return Run({dialect.compiler, dialect.standard, "-Wall", "-Wextra", "-Wpedantic", "-Wconversion",
              "-Wshadow", "-Werror", "-fsyntax-only", "-nostdinc", "-isystem",
              OwnHeaders(dialect.compiler), "-I", includeFolder, dialect.source});
}

bool IsThere(const std::string& compiler) {
  return Run({compiler, "--version"}).status == 0;
}

class PublicHeader : public testing::TestWithParam<Dialect> {
 protected:
  void SetUp() override {
    if (!IsThere(GetParam().compiler)) GTEST_SKIP() << "there is no " << GetParam().compiler;
  }
};

TEST_P(PublicHeader, CompilesAloneAndWithoutWarnings) {
  const ProcessResult result = Compile(GetParam(), SourcePath("include"));
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.status, 0);
}

TEST_P(PublicHeader, CompilesWhereItIsInstalled) {
  const ProcessResult result = Compile(GetParam(), InstalledTree() / "include");
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.status, 0);
}

const std::string kInC = SourcePath("tests/install/header_alone.c");
const std::string kInCpp = SourcePath("tests/install/header_alone.cpp");

INSTANTIATE_TEST_SUITE_P(, PublicHeader,
                         testing::Values(Dialect{"GccC99", "gcc", "-std=c99", kInC},
                                         Dialect{"GccCpp17", "g++", "-std=c++17", kInCpp},
                                         Dialect{"ClangC99", "clang", "-std=c99", kInC},
                                         Dialect{"ClangCpp17", "clang++", "-std=c++17", kInCpp}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace kelvane::test
