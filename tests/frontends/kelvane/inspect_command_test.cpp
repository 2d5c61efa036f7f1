#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class KelvaneInspection : public KelvaneTool {
 protected:
  void SetUp() override { Write("a.emf", FileOfALine()); }
};

TEST_F(KelvaneInspection, TellsWhatAFileSaysOfItself) {
  const ToolResult result = Run({"info", "a.emf"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.errors, "");
  EXPECT_THAT(result.output, StartsWith("a.emf\n"));
  EXPECT_THAT(result.output, HasSubstr("1 EMR_POLYLINE16\n"));
}

TEST_F(KelvaneInspection, PrintsEveryRecordOnALine) {
  const ToolResult result = Run({"dump", "a.emf"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, StartsWith("0 EMR_HEADER "));
  EXPECT_THAT(result.output, HasSubstr("\n108 EMR_POLYLINE16 "));
  EXPECT_THAT(result.output, HasSubstr(" EMR_EOF "));
  EXPECT_THAT(result.output, EndsWith("\n"));
}

TEST_F(KelvaneInspection, ReadsStandardInput) {
  EXPECT_THAT(Run({"info", "-"}, {.redirections = "<a.emf"}).output,
              StartsWith("standard input\n"));
  EXPECT_EQ(Run({"dump", "-"}, {.redirections = "<a.emf"}).output, Run({"dump", "a.emf"}).output);
}

TEST_F(KelvaneInspection, WritesNoFile) {
  EXPECT_EQ(Run({"info", "a.emf"}).status, 0);
  EXPECT_EQ(Run({"dump", "a.emf"}).status, 0);
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.emf"}));
}

TEST_F(KelvaneInspection, SaysWhyAFileCannotBeInspected) {
  WriteFile(folder_ / "bad.emf", "no metafile");
  for (const char* const word : {"info", "dump"}) {
    ToolResult result = Run({word, "bad.emf"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(result.errors, "kelvane: bad.emf: it is no metafile (EMF or WMF)\n");

    result = Run({word, "gone.emf"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.errors, "kelvane: gone.emf: cannot be read: No such file or directory\n");
  }
}

TEST_F(KelvaneInspection, SaysThatOutputCannotBeWritten) {
  for (const char* const word : {"info", "dump"}) {
    const ToolResult result = Run({word, "a.emf"}, {.redirections = ">/dev/full"});
    EXPECT_EQ(result.status, 4);
    EXPECT_EQ(result.errors, "kelvane: cannot write standard output\n");
  }
}

TEST_F(KelvaneInspection, NeedsOneFile) {
  EXPECT_EQ(Run({"info"}).status, 1);
  EXPECT_EQ(Run({"info"}).errors, "kelvane: FILE is required\n");
  EXPECT_EQ(Run({"dump", "a.emf", "a.emf"}).status, 1);
}

TEST_F(KelvaneInspection, TellsItsUsage) {
  EXPECT_THAT(Run({"info", "--help"}).output, HasSubstr("Usage: kelvane info [OPTIONS] FILE"));
  EXPECT_THAT(Run({"dump", "--help"}).output, HasSubstr("Usage: kelvane dump [OPTIONS] FILE"));
}

TEST_F(KelvaneInspection, LeavesAFileOfThatNameToBeConverted) {
  Write("info", FileOfALine());
  EXPECT_EQ(Run({"./info"}).status, 0);
  EXPECT_EQ(Read("info.pdf").substr(0, 5), "%PDF-");
}

}  // namespace
}  // namespace kelvane::test
