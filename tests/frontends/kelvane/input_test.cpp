// What kelvane reads, and what it says of what it cannot read.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/pdf.h"
#include "support/slowdown.h"

namespace kelvane::test {
namespace {

using EntryNames = std::vector<std::string>;
namespace fs = std::filesystem;

class KelvaneInput : public KelvaneTool {
 protected:
  void SetUp() override { Write("a.emf", FileOfALine()); }
};

TEST_F(KelvaneInput, IsLeftAlone) {
  const std::string before = Read("a.emf");
  EXPECT_EQ(Run({"a.emf"}).status, 0);
  EXPECT_EQ(Read("a.emf"), before);
}

TEST_F(KelvaneInput, MayComeFromStandardInput) {
  const ToolResult result = Run({"-o", "-", "-"}, {.redirections = "<a.emf"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Pdf(result.output).PageCount(), 1U);
}

TEST_F(KelvaneInput, MayBePiped) {
  const std::string whole = Run({"-o", "-", "a.emf"}).output;
  // In two pieces with a pause between them, so that one read does not get all.
  const std::string pipe =
      "mkfifo pipe; { head -c 50 a.emf; sleep 0.1; tail -c +51 a.emf; } >pipe &";
  EXPECT_EQ(Run({"-o", "-", "pipe"}, {.before = pipe + " sleep 0.05"}).output, whole);
  EXPECT_EQ(Run({"-o", "-", "-"}, {.redirections = "< a.emf"}).output, whole);
}

// A metafile that is larger than what is read at once.
TEST_F(KelvaneInput, MayBePipedAtLength) {
  Metafile metafile;
  for (int i = 0; i < 20'000; ++i)
    metafile.Polyline({{i, i}, {i + 1, i}});
  Write("large.emf", metafile.Build());
  const std::string whole = Run({"-o", "-", "large.emf"}).output;
  EXPECT_TRUE(Run({"-o", "-", "/dev/stdin"}, {.redirections = "<large.emf"}).output == whole);
  const std::string pipe = "mkfifo pipe; cat large.emf >pipe & sleep 0.05";
  EXPECT_TRUE(Run({"-o", "-", "-"}, {.before = pipe, .redirections = "<pipe"}).output == whole);
}

TEST_F(KelvaneInput, IsReadWithStandardStreamsClosed) {
  EXPECT_EQ(Run({"a.emf"}, {.redirections = "<&- >&-"}).status, 0);
  EXPECT_EQ(Names(), (EntryNames{"a.emf", "a.pdf"}));
  EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
}

/// What is at the path a.emf. None of it can be converted.
struct BadFile {
  const char* test;
  void (*make)(const std::string& path);
  const char* message;
};

class KelvaneBadInput : public KelvaneTool, public testing::WithParamInterface<BadFile> {};

TEST_P(KelvaneBadInput, IsRefusedPromptlyInWords) {
  GetParam().make(folder_ / "a.emf");
  const EntryNames before = Names();
  const ToolResult result = Run({"a.emf"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, std::string("kelvane: a.emf: ") + GetParam().message + "\n");
  EXPECT_LT(result.processorSeconds, 0.5 * kSlowdown);
  EXPECT_EQ(Names(), before);
}

using Path = const std::string&;

constexpr const char* kDevice = "cannot be read: it is a device";

INSTANTIATE_TEST_SUITE_P(
    , KelvaneBadInput,
    testing::Values(
        BadFile{"Missing", [](Path) {}, "cannot be read: No such file or directory"},
        BadFile{"Folder", [](Path path) { fs::create_directory(path); },
                "cannot be read: Is a directory"},
        BadFile{"LinkToItself", [](Path path) { fs::create_symlink(path, path); },
                "cannot be read: Too many levels of symbolic links"},
        BadFile{"PipeThatNobodyWritesTo",
                [](Path path) { ASSERT_EQ(mkfifo(path.c_str(), 0600), 0); }, "it is empty"},
        BadFile{"EndlessZeros", [](Path path) { fs::create_symlink("/dev/zero", path); }, kDevice},
        BadFile{"NullDevice", [](Path path) { fs::create_symlink("/dev/null", path); }, kDevice},
        BadFile{"EmptyFile", [](Path path) { WriteFile(path, ""); }, "it is empty"},
        BadFile{"Text", [](Path path) { WriteFile(path, "AAAA, not a metafile"); },
                "it is no metafile"},
        BadFile{"Emz",
                [](Path path) {
                  WriteFile(path, Bytes().Each({0x1F, 0x8B, 8}).Zeros(30).Data());
                },
                "its compressed data are damaged"},
        BadFile{"SparseFileOfThreeGibibytes",
                [](Path path) {
                  WriteFile(path, FileOfALine());
                  fs::resize_file(path, 3ULL << 30);
                },
                "cannot be read: it has 2 GiB or more"}),
    [](const auto& row) { return row.param.test; });

TEST_F(KelvaneInput, IsRefusedWhenItIsADeviceThatNeverEnds) {
  const ToolResult result = Run({"-o", "a.pdf", "-"}, {.redirections = "</dev/zero"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.errors, "kelvane: standard input: cannot be read: it is a device\n");
  EXPECT_LT(result.processorSeconds, 0.5 * kSlowdown);
}

TEST_F(KelvaneInput, MayLackItsEnd) {
  Write("a.emf", Metafile().Polyline({{10, 20}, {30, 40}}).BuildWithoutEnd());
  EXPECT_EQ(Run({"a.emf"}).status, 0);
  EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
}

}  // namespace
}  // namespace kelvane::test
