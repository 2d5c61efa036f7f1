// Where kelvane puts documents, and what it leaves alone.

#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/pdf.h"

namespace kelvane::test {
namespace {

using FileNames = std::vector<std::string>;
namespace fs = std::filesystem;

class KelvaneOutput : public KelvaneTool {
 protected:
  void SetUp() override { Write("a.emf", FileOfALine()); }

  void MakeFolder(const std::string& name) const { fs::create_directory(folder_ / name); }
  [[nodiscard]] bool IsDocument(const std::string& name) const {
    return Read(name).substr(0, 5) == "%PDF-";
  }
};

TEST_F(KelvaneOutput, IsBesideTheInputWithTheEndingOfItsFormat) {
  EXPECT_EQ(Run({"a.emf"}).status, 0);
  EXPECT_EQ(Names(), (FileNames{"a.emf", "a.pdf"}));
  EXPECT_EQ(ComplaintsAbout(folder_ / "a.pdf"), "");
}

TEST_F(KelvaneOutput, IsNotSpokenOfWhenAllIsWell) {
  const ToolResult result = Run({"a.emf"});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors, "");
}

TEST_F(KelvaneOutput, HasTheNameThatIsGiven) {
  EXPECT_EQ(Run({"a.emf", "-o", "figure"}).status, 0);
  EXPECT_EQ(Names(), (FileNames{"a.emf", "figure"}));
  EXPECT_TRUE(IsDocument("figure"));
}

TEST_F(KelvaneOutput, GoesToStandardOutput) {
  const ToolResult result = Run({"-o", "-", "a.emf"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Pdf(result.output).PageCount(), 1U);
  EXPECT_EQ(Names(), (FileNames{"a.emf"}));
}

TEST_F(KelvaneOutput, GoesToAFolderThatIsMadeWhenItIsNotThere) {
  EXPECT_EQ(Run({"-d", "out/deep", "a.emf"}).status, 0);
  EXPECT_EQ(Names(), (FileNames{"a.emf", "out"}));
  EXPECT_TRUE(IsDocument("out/deep/a.pdf"));
}

TEST_F(KelvaneOutput, NeedsAFolderThatCanBeMade) {
  const ToolResult result = Run({"-d", "a.emf/out", "a.emf"});
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.errors, "kelvane: a.emf/out: Not a directory\n");
}

struct InputName {
  const char* test;
  const char* input;
  const char* output;
};

class KelvaneOutputName : public KelvaneTool, public testing::WithParamInterface<InputName> {};

TEST_P(KelvaneOutputName, HasTheEndingInPlaceOfTheInputs) {
  Write(GetParam().input, FileOfALine());
  EXPECT_EQ(Run({"-d", "out", GetParam().input}).status, 0);
  EXPECT_TRUE(fs::exists(folder_.Path() / "out" / GetParam().output));
}

INSTANTIATE_TEST_SUITE_P(
    , KelvaneOutputName,
    testing::Values(InputName{"LowerCase", "picture.emf", "picture.pdf"},
                    InputName{"UpperCase", "PICTURE.EMF", "PICTURE.pdf"},
                    InputName{"TwoEndings", "plan.v2.emf", "plan.v2.pdf"},
                    InputName{"NoEnding", "picture", "picture.pdf"},
                    InputName{"HiddenFile", ".emf", ".emf.pdf"},
                    InputName{"Blanks", "my old plan .emf", "my old plan .pdf"},
                    InputName{"Umlaut", "Gr\u00F6\u00DFe.emf", "Gr\u00F6\u00DFe.pdf"},
                    InputName{"BytesThatAreNoUtf8", "caf\xE9.emf", "caf\xE9.pdf"}),
    [](const auto& row) { return row.param.test; });

// Files that meet.

struct Meeting {
  const char* test;
  FileNames words;
  const char* message;
};

class KelvaneMeeting : public KelvaneTool, public testing::WithParamInterface<Meeting> {};

TEST_P(KelvaneMeeting, IsRefusedBeforeAnythingIsWritten) {
  fs::create_directory(folder_ / "in");
  for (const char* const name : {"a.emf", "a.wmf", "a.pdf", "b.emf", "in/a.emf"})
    Write(name, FileOfALine());
  const FileNames before = Names();
  const ToolResult result = Run(GetParam().words);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.errors, std::string("kelvane: ") + GetParam().message + "\n");
  EXPECT_EQ(Names(), before);
}

INSTANTIATE_TEST_SUITE_P(
    , KelvaneMeeting,
    testing::Values(
        Meeting{"TwoEndings", {"a.emf", "a.wmf"}, "a.emf and a.wmf would both become a.pdf"},
        Meeting{"TwoFolders",
                {"-d", "out", "b.emf", "in/a.emf", "a.emf"},
                "in/a.emf and a.emf would both become out/a.pdf"},
        Meeting{"TwoPaths", {"a.emf", "./in/../a.emf"}, "./in/../a.emf is given twice"},
        Meeting{"AnInput", {"a.pdf"}, "a.pdf would replace an input"},
        Meeting{"AnotherInput", {"a.emf", "a.pdf"}, "a.emf and a.pdf would both become a.pdf"},
        Meeting{"OutputAndInput", {"-o", "a.emf", "a.emf"}, "a.emf would replace an input"},
        Meeting{"ReportAndInput", {"--report", "a.emf", "a.emf"}, "the report would replace a.emf"},
        Meeting{"ReportAndOutput",
                {"--report", "in/../b.pdf", "b.emf"},
                "the report would replace in/../b.pdf"}),
    [](const auto& row) { return row.param.test; });

// What was there before.

TEST_F(KelvaneOutput, ReplacesAnOlderDocument) {
  WriteFile(folder_ / "a.pdf", "older");
  EXPECT_EQ(Run({"a.emf"}).status, 0);
  EXPECT_TRUE(IsDocument("a.pdf"));
}

TEST_F(KelvaneOutput, LeavesAnOlderDocumentWhenTheInputIsBad) {
  WriteFile(folder_ / "a.emf", "no metafile");
  WriteFile(folder_ / "a.pdf", "older");
  EXPECT_EQ(Run({"a.emf"}).status, 2);
  EXPECT_EQ(Read("a.pdf"), "older");
}

TEST_F(KelvaneOutput, LeavesAnOlderDocumentWhenTheNewOneDoesNotFit) {
  WriteFile(folder_ / "a.pdf", "older");
  EXPECT_EQ(Run({"a.emf"}, {.before = "ulimit -f 0"}).status, 4);
  EXPECT_EQ(Read("a.pdf"), "older");
  EXPECT_EQ(Names(), (FileNames{"a.emf", "a.pdf"}));
}

TEST_F(KelvaneOutput, SaysWhyItCannotBeWritten) {
  MakeFolder("a.pdf");
  const ToolResult result = Run({"a.emf"});
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.errors, "kelvane: a.emf: cannot write a.pdf: Is a directory\n");
  EXPECT_EQ(Names(), (FileNames{"a.emf", "a.pdf"}));
}

TEST_F(KelvaneOutput, SaysWhyStandardOutputCannotBeWritten) {
  const ToolResult result = Run({"-o", "-", "a.emf"}, {.redirections = ">/dev/full"});
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.errors,
            "kelvane: a.emf: cannot write standard output: No space left on device\n");
}

// A file in its place would be the end of it.
TEST_F(KelvaneOutput, GoesIntoAPipeRatherThanInItsPlace) {
  const ToolResult result =
      Run({"-o", "pipe", "a.emf"}, {.before = "mkfifo pipe; cat pipe > read.pdf & sleep 0.1"});
  EXPECT_EQ(result.status, 0);
  EXPECT_TRUE(fs::is_fifo(folder_ / "pipe"));
}

TEST_F(KelvaneOutput, LeavesADeviceInItsPlace) {
  EXPECT_EQ(Run({"-o", "/dev/full", "a.emf"}).status, 4);
  EXPECT_TRUE(fs::is_character_file("/dev/full"));
}

}  // namespace
}  // namespace kelvane::test
