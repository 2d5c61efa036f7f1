// Many files at once, what is told of them, and the report.

#include <filesystem>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/kelvane_tool.h"
#include "support/metafile.h"
#include "support/paths.h"
#include "support/process.h"

namespace kelvane::test {
namespace {

using testing::HasSubstr;
using testing::Not;
using Json = nlohmann::ordered_json;
using Listing = std::vector<std::string>;
namespace fs = std::filesystem;

/// The objects of a report, a line each.
std::vector<Json> ObjectsIn(const std::string& report) {
  std::vector<Json> objects;
  for (std::size_t at = 0; at < report.size();) {
    const std::size_t end = report.find('\n', at);
    objects.push_back(Json::parse(report.substr(at, end - at)));
    at = end + 1;
  }
  return objects;
}

class KelvaneBatch : public KelvaneTool {
 protected:
  void SetUp() override {
    Write("a.emf", FileOfALine());
    Write("bad.emf", {'n', 'o'});
    Write("c.emf", FileThatLacks(2));
  }
};

TEST_F(KelvaneBatch, GoesOnAfterABadFileAndHasItsStatus) {
  const ToolResult result = Run({"a.emf", "bad.emf", "gone.emf", "c.emf"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(Names(), (Listing{"a.emf", "a.pdf", "bad.emf", "c.emf", "c.pdf"}));
}

TEST_F(KelvaneBatch, HasALineForEachBadFileAndOneOfTotals) {
  const ToolResult result = Run({"a.emf", "bad.emf", "gone.emf", "c.emf"});
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.errors,
            "kelvane: bad.emf: it is no metafile\n"
            "kelvane: gone.emf: cannot be read: No such file or directory\n"
            "4 files: 2 converted, 1 of them incomplete, 2 failed\n");
}

TEST_F(KelvaneBatch, HasTheHighestStatusOfItsFiles) {
  EXPECT_EQ(Run({"--strict", "bad.emf", "c.emf", "a.emf"}).status, 3);
  fs::remove(folder_ / "a.pdf");
  fs::create_directory(folder_ / "a.pdf");
  EXPECT_EQ(Run({"--strict", "bad.emf", "c.emf", "a.emf"}).status, 4);
}

TEST_F(KelvaneBatch, TellsOfAllInTheSameOrderHoweverManyAreConvertedAtOnce) {
  Listing words = {"--report", "-", "-d", "out"};
  for (std::size_t i = 0; i < 30; ++i) {
    const std::string name = std::to_string(i) + ".emf";
    Write(name, i % 3 == 0 ? std::vector<unsigned char>{'n', 'o'} : FileThatLacks(i % 3 - 1));
    words.push_back(name);
  }
  const auto toldBy = [&](const char* jobs) {
    Listing all = words;
    all.insert(all.begin(), {"-j", jobs});
    const ToolResult result = Run(all);
    std::string told = result.errors + std::to_string(result.status);
    for (const Json& object : ObjectsIn(result.output))
      told += "\n" + object["file"].get<std::string>() + object["status"].dump();
    return told;
  };
  const std::string alone = toldBy("1");
  EXPECT_THAT(alone, HasSubstr("30 files: 20 converted, 10 of them incomplete, 10 failed\n2\n"));
  EXPECT_EQ(toldBy("4"), alone);
  EXPECT_EQ(toldBy("256"), alone);
}

TEST_F(KelvaneBatch, MakesTheSameDocumentsHoweverManyAreConvertedAtOnce) {
  EXPECT_EQ(Run({"-d", "one", "a.emf", "c.emf"}).status, 0);
  EXPECT_EQ(Run({"-d", "two", "-j", "2", "a.emf", "c.emf"}).status, 0);
  EXPECT_EQ(Read("one/a.pdf"), Read("two/a.pdf"));
  EXPECT_EQ(Read("one/c.pdf"), Read("two/c.pdf"));
}

// Progress.

/// What appears on a terminal, standard error being one.
std::string OnATerminal(const TemporaryFolder& folder, const std::string& words) {
  return test::Run({"env", "-C", folder.Path(), "timeout", "10", "script", "-qec",
                    KelvanePath() + " " + words, "/dev/null"})
      .output;
}

TEST_F(KelvaneBatch, ShowsProgressOnATerminalAndWipesItAway) {
  const std::string shown = OnATerminal(folder_, "a.emf c.emf");
  EXPECT_THAT(shown, HasSubstr("\r[###############...............] 1 of 2"));
  EXPECT_THAT(shown, HasSubstr("\r[##############################] 2 of 2\r\033[K2 files: 2 "
                               "converted, 1 of them incomplete\r\n"));
}

TEST_F(KelvaneBatch, ShowsNoProgressOfOneFile) {
  EXPECT_EQ(OnATerminal(folder_, "a.emf"), "");
}

TEST_F(KelvaneBatch, ShowsNoProgressWhereThereIsNoTerminal) {
  EXPECT_THAT(Run({"a.emf", "c.emf"}).errors, Not(HasSubstr(" of 2")));
}

// What is left out.

TEST_F(KelvaneBatch, TellsOfRecordsLeftOutOfOneFileUnlessTheReportDoes) {
  EXPECT_EQ(Run({"c.emf"}).errors,
            "kelvane: c.emf: 2 records left out of the picture; --report FILE tells which\n");
  EXPECT_EQ(Run({"c.emf"}).status, 0);
  EXPECT_EQ(Run({"--report", "r", "c.emf"}).errors, "");
}

TEST_F(KelvaneBatch, FailsUnderStrictAndHasTheDocument) {
  const ToolResult result = Run({"--strict", "c.emf"});
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.errors, "kelvane: c.emf: 2 records left out of the picture\n");
  EXPECT_EQ(Read("c.pdf").substr(0, 5), "%PDF-");
}

TEST_F(KelvaneBatch, IsWellUnderStrictWhenNothingIsLeftOut) {
  EXPECT_EQ(Run({"--strict", "a.emf"}).status, 0);
}

// The report.

TEST_F(KelvaneBatch, ReportsAnObjectALineInTheOrderOfTheFiles) {
  EXPECT_EQ(Run({"--report", "r.jsonl", "c.emf", "bad.emf", "a.emf"}).status, 2);
  const auto objects = ObjectsIn(Read("r.jsonl"));
  ASSERT_EQ(objects.size(), 3U);
  EXPECT_EQ(objects[0]["file"], "c.emf");
  EXPECT_EQ(objects[1]["file"], "bad.emf");
  EXPECT_EQ(objects[2]["file"], "a.emf");
}

TEST_F(KelvaneBatch, ReportsWhatCameOfAFile) {
  const Json object = ObjectsIn(Run({"--report", "-", "--page", "bounds", "c.emf"}).output).at(0);
  EXPECT_EQ(object["status"], 0);
  EXPECT_EQ(object["document"], "c.pdf");
  EXPECT_EQ(object["format"], "pdf");
  EXPECT_EQ(object["page"], (Json{{"width", 100}, {"height", 100}}));
  EXPECT_EQ(object["records"], 5);
  EXPECT_EQ(object["left_out"][0]["type"], kUnknownRecord);
  EXPECT_EQ(object["left_out"][0]["count"], 2);
  EXPECT_EQ(object["bytes"], FileThatLacks(2).size());
  EXPECT_FALSE(object.contains("message"));
}

TEST_F(KelvaneBatch, ReportsWhyAFileHasNoDocument) {
  const auto objects = ObjectsIn(Run({"--report", "-", "bad.emf", "gone.emf"}).output);
  ASSERT_EQ(objects.size(), 2U);
  EXPECT_EQ(objects[0]["message"], "it is no metafile");
  EXPECT_EQ(objects[1].dump(), R"({"file":"gone.emf","status":2,)"
                               R"("message":"cannot be read: No such file or directory"})");
}

TEST_F(KelvaneBatch, ReportsADocumentThatCannotBeWritten) {
  fs::create_directory(folder_ / "a.pdf");
  const Json object = ObjectsIn(Run({"--report", "-", "a.emf"}).output).at(0);
  EXPECT_EQ(object["status"], 4);
  EXPECT_EQ(object["message"], "cannot write a.pdf: Is a directory");
  EXPECT_FALSE(object.contains("document"));
}

TEST_F(KelvaneBatch, ReportsNamesThatAreNoUtf8) {
  Write("caf\xE9.emf", FileOfALine());
  EXPECT_EQ(ObjectsIn(Run({"--report", "-", "caf\xE9.emf"}).output).at(0)["file"], "caf\uFFFD.emf");
}

TEST_F(KelvaneBatch, LeavesAnOlderReportWhenTheNewOneDoesNotFit) {
  WriteFile(folder_ / "r", "older");
  EXPECT_EQ(Run({"--report", "r", "a.emf"}, {.before = "ulimit -f 0"}).status, 4);
  EXPECT_EQ(Read("r"), "older");
}

TEST_F(KelvaneBatch, SaysWhyTheReportCannotBeWritten) {
  ToolResult result = Run({"--report", "gone/r", "a.emf"});
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.errors, "kelvane: cannot write gone/r: No such file or directory\n");
  EXPECT_FALSE(fs::exists(folder_ / "a.pdf"));

  result = Run({"--report", "-", "a.emf"}, {.redirections = ">/dev/full"});
  EXPECT_EQ(result.status, 4);
  EXPECT_EQ(result.errors, "kelvane: cannot write standard output: No space left on device\n");
  EXPECT_TRUE(fs::exists(folder_ / "a.pdf"));
}

}  // namespace
}  // namespace kelvane::test
