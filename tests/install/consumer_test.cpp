#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/files.h"
#include "support/install.h"
#include "support/library.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

const std::string kSample = SourcePath("samples/shapes.emf");
const std::string kReport = SourcePath("samples/report.emf");

std::string DocumentOfTheSample() {
  const std::string bytes = ReadFile(kSample);
  return ConvertInMemory({bytes.begin(), bytes.end()}).output;
}

/// The line of the README that begins with `start`.
std::string ReadmeLine(const std::string& start) {
  const std::string readme = ReadFile(SourcePath("README.md"));
  const std::size_t begin = readme.find("\n    " + start) + 1;
  return readme.substr(begin, readme.find('\n', begin) - begin);
}

TEST(ConsumerInC, ConvertsWhenBuiltAsTheReadmeSays) {
  const InstalledTree tree;
  const TemporaryFolder folder;
  WriteFile(folder / "program.c", ReadFile(SourcePath("tests/consumer/c/program.c")));
  const ProcessResult built = RunInShell(
      tree, "set -e; cd " + folder.Path().string() +
                "; cc() { $CC $CFLAGS -std=c99 -Wall -Wextra -Wpedantic -Werror \"$@\"; }\n" +
                ReadmeLine("cc "));
  ASSERT_EQ(built.status, 0) << built.output;
  EXPECT_EQ(RunInShell(tree, folder / "program" + (" " + kSample)).output, DocumentOfTheSample());
}

/// The README's program in C.
std::string ReadmeProgram() {
  const std::string readme = ReadFile(SourcePath("README.md"));
  const std::string opening = "\n```c\n";
  const std::size_t begin = readme.find(opening) + opening.size();
  return readme.substr(begin, readme.find("\n```\n", begin) + 1 - begin);
}

TEST(ConsumerInC, MakesWhatTheReadmeSays) {
  const InstalledTree tree;
  const TemporaryFolder folder;
  WriteFile(folder / "program.c", ReadmeProgram());
  const ProcessResult made = RunInShell(
      tree, "set -e; cd " + folder.Path().string() +
                "; cc() { $CC $CFLAGS -std=c99 -Wall -Wextra -Wpedantic -Werror \"$@\"; }\n" +
                ReadmeLine("cc ") + "\n./program < " + kReport + " > a.svg 2> a.json");
  ASSERT_EQ(made.status, 0) << made.output;
  EXPECT_TRUE(ReadFile(folder / "a.svg").ends_with("</svg>\n"));
  EXPECT_NE(ReadFile(folder / "a.json").find("\"left_out\":[]"), std::string::npos);
}

TEST(ConsumerInC, LearnsTheVersionFromPkgConfig) {
  EXPECT_EQ(RunInShell(InstalledTree(), "pkg-config --modversion kelvane").output,
            LibraryVersion() + "\n");
}

TEST(ConsumerInCpp, ConvertsThroughTheCMakePackage) {
  const InstalledTree tree;
  const TemporaryFolder folder;
  const ProcessResult configured =
      ConfigureProject(tree, SourcePath("tests/consumer/cpp"), folder / "build");
  ASSERT_EQ(configured.status, 0) << configured.output;
  const ProcessResult built = RunCMake({"--build", folder / "build"});
  ASSERT_EQ(built.status, 0) << built.output;
  EXPECT_EQ(test::Run({folder / "build/program", kSample}).output, DocumentOfTheSample());
}

/// A project that asks for a version.
std::string Asking(const std::string& version) {
  return "cmake_minimum_required(VERSION 3.16)\nproject(asking NONE)\nfind_package(kelvane " +
         version + " REQUIRED)\n";
}

TEST(ConsumerInCpp, GetsTheVersionThatItAsksFor) {
  const TemporaryFolder folder;
  WriteFile(folder / "CMakeLists.txt", Asking(LibraryVersion()));
  EXPECT_EQ(ConfigureProject(InstalledTree(), folder / "", folder / "build").status, 0);
}

TEST(ConsumerInCpp, IsToldOfAVersionThatIsNotThere) {
  const TemporaryFolder folder;
  WriteFile(folder / "CMakeLists.txt", Asking("99.1"));
  const ProcessResult result = ConfigureProject(InstalledTree(), folder / "", folder / "build");
  EXPECT_NE(result.status, 0);
  EXPECT_NE(result.output.find("version: " + LibraryVersion()), std::string::npos);
}

// A project that takes our source in gets our targets, and its own installation stays its own.
TEST(ConsumerOfTheSource, InstallsNothingOfOurs) {
  const TemporaryFolder folder;
  WriteFile(folder / "CMakeLists.txt",
            "cmake_minimum_required(VERSION 3.25)\nproject(outer LANGUAGES C CXX)\n"
            "add_subdirectory(" +
                SourcePath("") +
                " kelvane)\n"
                "get_target_property(type kelvane::kelvane TYPE)\n"
                "install(CODE \"message(STATUS installing)\")\n");
  const ProcessResult configured = ConfigureProject(InstalledTree(), folder / "", folder / "build");
  ASSERT_EQ(configured.status, 0) << configured.output;
  const ProcessResult installed =
      RunCMake({"--install", folder / "build", "--prefix", folder / "installed"});
  EXPECT_EQ(installed.status, 0) << installed.output;
  EXPECT_EQ(NamesIn(folder), (std::vector<std::string>{"CMakeLists.txt", "build"}));
}

}  // namespace
}  // namespace kelvane::test
