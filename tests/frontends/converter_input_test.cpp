#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/metafile.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

/// What is at the path given to the tool. None of it can be converted.
struct BadInput {
  const char* name;
  void (*make)(const std::string& path);
  std::string message;  // comes before the one on failure
};

class ConverterBadInput : public testing::TestWithParam<BadInput> {};

TEST_P(ConverterBadInput, FailsPromptlyAndWritesNothing) {
  const TemporaryFolder folder;
  GetParam().make(folder / "a.emf");
  const auto before = NamesIn(folder);

  const ProcessResult result = RunConverter({folder / "a.emf"});

  EXPECT_EQ(result.output, GetParam().message + std::string(kFailure));
  EXPECT_EQ(result.status, kFailed);
  EXPECT_LT(result.processorSeconds, 0.5 * kSlowdown);
  EXPECT_EQ(NamesIn(folder), before);
}

namespace fs = std::filesystem;
using Path = const std::string&;

constexpr const char* kTypeZero =
    "Error! Found type 0 while parsing the header but the type must be 1\n";

INSTANTIATE_TEST_SUITE_P(
    , ConverterBadInput,
    testing::Values(
        BadInput{"Missing", [](Path) {}, ""},
        BadInput{"Folder", [](Path path) { fs::create_directory(path); }, ""},
        BadInput{"LinkToItself", [](Path path) { fs::create_symlink(path, path); }, ""},
        BadInput{"Pipe", [](Path path) { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); }, ""},
        BadInput{"EndlessZeros", [](Path path) { fs::create_symlink("/dev/zero", path); }, ""},
        BadInput{"EndlessRandom", [](Path path) { fs::create_symlink("/dev/urandom", path); }, ""},
        BadInput{"NullDevice", [](Path path) { fs::create_symlink("/dev/null", path); }, kTypeZero},
        BadInput{"EmptyFile", [](Path path) { WriteFile(path, ""); }, kTypeZero},
        BadInput{"OneByte", [](Path path) { WriteFile(path, "\1"); }, ""},
        BadInput{"Text", [](Path path) { WriteFile(path, "AAAA, not a metafile"); },
                 "Error! Found type 1094795585 while parsing the header but the type must be 1\n"},
        BadInput{"SparseFileOfThreeGibibytes",
                 [](Path path) {
                   WriteFile(path, Metafile().Build());
                   fs::resize_file(path, 3ULL << 30);
                 },
                 ""},
        BadInput{"PageWithoutArea",
                 [](Path path) { WriteFile(path, Metafile().Bounds(0, 5, 9, 5).Build()); }, ""},
        BadInput{"RecordPastTheEnd",
                 [](Path path) {
                   constexpr std::uint32_t kUnknownType = 77;
                   WriteFile(path, Metafile().RecordOfSize(kUnknownType, 100).BuildWithoutEnd());
                 },
                 ""}),
    [](const auto& row) { return row.param.name; });

TEST(Converter, FailsForAnEmptyPath) {
  EXPECT_EQ(RunConverter({""}).output, kFailure);
}

TEST(Converter, FailsForAPathThroughAFile) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", Metafile().Build());
  EXPECT_EQ(RunConverter({folder / "a.emf/b.emf"}).output, kFailure);
}

}  // namespace
}  // namespace kelvane::test
