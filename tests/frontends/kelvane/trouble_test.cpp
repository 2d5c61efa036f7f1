// What happens around kelvane while it works: signals, closed streams, files that change.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/pdf.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using Entries = std::vector<std::string>;

class KelvaneTrouble : public KelvaneTool {
 protected:
  void SetUp() override { Write("a.emf", FileOfALine()); }
};

struct ClosedStreams {
  const char* test;
  const char* redirections;
};

class KelvaneStreams : public KelvaneTool, public testing::WithParamInterface<ClosedStreams> {};

TEST_P(KelvaneStreams, LeaveStatusAndDocumentAlone) {
  Write("a.emf", FileThatLacks(1));  // of which there is something to say
  Write("bad.emf", {'n', 'o'});
  const std::string document = Run({"-o", "-", "a.emf"}).output;
  const ToolSetting setting = {.redirections = GetParam().redirections};
  EXPECT_EQ(Run({"a.emf"}, setting).status, 0);
  EXPECT_TRUE(Read("a.pdf") == document);
  EXPECT_EQ(Run({"bad.emf"}, setting).status, 2);
  EXPECT_EQ(Names(), (Entries{"a.emf", "a.pdf", "bad.emf"}));
}

INSTANTIATE_TEST_SUITE_P(, KelvaneStreams,
                         testing::Values(ClosedStreams{"InputClosed", "<&-"},
                                         ClosedStreams{"OutputClosed", ">&-"},
                                         ClosedStreams{"ErrorsClosed", "2>&-"},
                                         ClosedStreams{"AllClosed", "<&- >&- 2>&-"},
                                         ClosedStreams{"AllFull", ">/dev/full 2>/dev/full"}),
                         [](const auto& row) { return row.param.test; });

TEST_F(KelvaneTrouble, IsTheEndWhenStandardOutputIsClosed) {
  EXPECT_EQ(Run({"-o", "-", "a.emf"}, {.redirections = ">&-"}).status, 4);
  EXPECT_EQ(Run({"--report", "-", "a.emf"}, {.redirections = ">&-"}).status, 4);
}

TEST_F(KelvaneTrouble, LeavesWholeDocumentsOrNoneWhenInterrupted) {
  Metafile metafile;
  for (int i = 0; i < 100'000; ++i)
    metafile.Polyline({{i % 100, i % 89}, {i % 83, i % 97}});
  Write("large.emf", metafile.Build());
  ASSERT_EQ(Run({"large.emf"}).status, 0);
  const std::string document = Read("large.pdf");
  for (const char* const seconds : {"0.01", "0.03", "0.06", "0.1"}) {
    WriteFile(folder_ / "large.pdf", "older");
    test::Run({"env", "-C", folder_.Path(), "timeout", "-s", "KILL", seconds, KelvanePath(),
               "large.emf"});
    const std::string left = Read("large.pdf");
    EXPECT_TRUE(left == "older" || left == document) << seconds;
  }
}

TEST_F(KelvaneTrouble, EndsQuietlyWhenNobodyReadsTheDumpAnyMore) {
  const ToolResult result = Run({"dump", "a.emf"}, {.redirections = "| head -c 1"});
  EXPECT_EQ(result.output, "0");
  EXPECT_EQ(result.errors, "");
}

}  // namespace
}  // namespace kelvane::test
