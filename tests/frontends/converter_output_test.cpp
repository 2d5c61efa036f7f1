#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/converter.h"
#include "support/files.h"
#include "support/metafile.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

using Names = std::vector<std::string>;

class ConverterOutput : public testing::Test {
 protected:
  void SetUp() override { WriteFile(folder_ / "a.emf", FileOfALine()); }

  TemporaryFolder folder_;
};

TEST_F(ConverterOutput, ReplacesAnOlderDocument) {
  WriteFile(folder_ / "a.pdf", std::string(100'000, 'x'));
  EXPECT_EQ(RunConverter({folder_ / "a.emf"}).status, 0);
  EXPECT_EQ(ReadFile(folder_ / "a.pdf").substr(0, 5), "%PDF-");
  EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
}

TEST_F(ConverterOutput, KeepsAnOlderDocumentWhenTheMetafileIsBad) {
  WriteFile(folder_ / "a.emf", "no metafile");
  WriteFile(folder_ / "a.pdf", "older");
  EXPECT_EQ(RunConverter({folder_ / "a.emf"}).status, kFailed);
  EXPECT_EQ(ReadFile(folder_ / "a.pdf"), "older");
}

TEST_F(ConverterOutput, KeepsAnOlderDocumentWhenThePageHasNoArea) {
  WriteFile(folder_ / "a.emf", Metafile().Bounds(0, 5, 9, 5).Build());
  WriteFile(folder_ / "a.pdf", "older");
  EXPECT_EQ(RunConverter({folder_ / "a.emf"}).status, kFailed);
  EXPECT_EQ(ReadFile(folder_ / "a.pdf"), "older");
}

TEST_F(ConverterOutput, KeepsAnOlderDocumentWhenTheNewOneCannotBeWritten) {
  WriteFile(folder_ / "a.pdf", "older");
  const ProcessResult result = RunConverterAfter("ulimit -f 0", folder_ / "a.emf");
  EXPECT_EQ(result.output, kFailure);
  EXPECT_EQ(result.status, kFailed);
  EXPECT_EQ(ReadFile(folder_ / "a.pdf"), "older");
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "a.pdf"}));
}

TEST_F(ConverterOutput, FailsWhenAFolderHasTheDocumentsName) {
  std::filesystem::create_directory(folder_ / "a.pdf");
  const ProcessResult result = RunConverter({folder_ / "a.emf"});
  EXPECT_EQ(result.output, kFailure);
  EXPECT_EQ(result.status, kFailed);
  EXPECT_EQ(NamesIn(folder_), (Names{"a.emf", "a.pdf"}));
}

TEST_F(ConverterOutput, ReplacesALinkAndLeavesItsTargetAlone) {
  WriteFile(folder_ / "target", "older");
  std::filesystem::create_symlink(folder_ / "target", folder_ / "a.pdf");
  EXPECT_EQ(RunConverter({folder_ / "a.emf"}).status, 0);
  EXPECT_EQ(ReadFile(folder_ / "target"), "older");
  EXPECT_FALSE(std::filesystem::is_symlink(folder_ / "a.pdf"));
}

struct Mask {
  const char* umask;
  mode_t mode;
};

class ConverterUmask : public testing::TestWithParam<Mask> {};

TEST_P(ConverterUmask, SetsThePermissionsOfTheDocument) {
  const TemporaryFolder folder;
  WriteFile(folder / "a.emf", FileOfALine());
  RunConverterAfter(std::string("umask ") + GetParam().umask, folder / "a.emf");
  struct stat status {};
  ASSERT_EQ(stat((folder / "a.pdf").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777U, GetParam().mode);
}

INSTANTIATE_TEST_SUITE_P(, ConverterUmask,
                         testing::Values(Mask{"000", 0666}, Mask{"022", 0644}, Mask{"027", 0640},
                                         Mask{"077", 0600}),
                         [](const auto& row) { return std::string("Of") + row.param.umask; });

/// What permissions forbid, tried by somebody whom they bind.
class ConverterPermissions : public ConverterOutput {
 protected:
  void SetUp() override {
    ConverterOutput::SetUp();
    SetFolderMode(0777);
    if (RunConverterWithoutPrivileges({folder_ / "a.emf"}).status != 0) {
      GTEST_SKIP() << "without privileges the tool cannot be run here at all";
    }
    std::filesystem::remove(folder_ / "a.pdf");
  }
  void TearDown() override { SetFolderMode(0700); }

  void SetFolderMode(mode_t mode) { ASSERT_EQ(chmod(folder_.Path().c_str(), mode), 0); }
};

TEST_F(ConverterPermissions, FailsInAFolderThatCannotBeWrittenTo) {
  SetFolderMode(0555);
  const ProcessResult result = RunConverterWithoutPrivileges({folder_ / "a.emf"});
  EXPECT_EQ(result.output, kFailure);
  EXPECT_EQ(result.status, kFailed);
  EXPECT_EQ(NamesIn(folder_), Names{"a.emf"});
}

TEST_F(ConverterPermissions, KeepsAnOlderDocumentInAFolderThatCannotBeWrittenTo) {
  WriteFile(folder_ / "a.pdf", "older");
  SetFolderMode(0555);
  EXPECT_EQ(RunConverterWithoutPrivileges({folder_ / "a.emf"}).status, kFailed);
  EXPECT_EQ(ReadFile(folder_ / "a.pdf"), "older");
}

TEST_F(ConverterPermissions, FailsForAMetafileThatCannotBeRead) {
  ASSERT_EQ(chmod((folder_ / "a.emf").c_str(), 0), 0);
  const ProcessResult result = RunConverterWithoutPrivileges({folder_ / "a.emf"});
  EXPECT_EQ(result.output, kFailure);
  EXPECT_EQ(result.status, kFailed);
}

}  // namespace
}  // namespace kelvane::test
