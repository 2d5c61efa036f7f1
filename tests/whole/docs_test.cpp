#include <cstdint>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "classic/document/record_factory.h"
#include "classic/document/skipped_records.h"
#include "support/files.h"
#include "support/paths.h"

namespace kelvane {
namespace {

namespace fs = std::filesystem;

const std::string kRoot = test::SourcePath("") + "/";

TEST(ClassicPage, ShowsTheExampleThatIsCompiled) {
  const std::string example = test::ReadFile(kRoot + "tests/frontends/classic_example.c");
  EXPECT_NE(test::ReadFile(kRoot + "docs/classic.md").find("```c\n" + example + "```\n"),
            std::string::npos);
}

TEST(Readme, NamesASampleThatIsThere) {
  EXPECT_NE(test::ReadFile(kRoot + "README.md").find("./dev convert samples/report.emf"),
            std::string::npos);
  EXPECT_FALSE(test::ReadFile(kRoot + "samples/report.emf").empty());
}

/// All that the first group of a pattern matches in a text.
std::multiset<std::string> Matches(const std::string& text, const std::regex& pattern) {
  const std::sregex_token_iterator first(text.begin(), text.end(), pattern, 1);
  return {first, std::sregex_token_iterator()};
}

/// The links of a page whose file is not there.
std::vector<std::string> DeadLinks(const fs::path& page) {
  static const std::regex kLink(R"(\]\(([^)#]+)[^)]*\))");
  std::vector<std::string> dead;
  for (const std::string& link : Matches(test::ReadFile(page), kLink)) {
    if (!fs::exists(page.parent_path() / link)) dead.push_back(link);
  }
  return dead;
}

TEST(Pages, LinkOnlyToFilesThatAreThere) {
  std::vector<fs::path> pages = {kRoot + "README.md", kRoot + "CONTRIBUTING.md"};
  for (const auto& entry : fs::directory_iterator(kRoot + "docs")) {
    if (entry.path().extension() == ".md") pages.push_back(entry.path());
  }
  for (const fs::path& page : pages)
    EXPECT_THAT(DeadLinks(page), testing::IsEmpty()) << page;
}

TEST(Readme, LinksToEveryPageOfTheDocumentsThatStandsOnItsOwn) {
  const std::string readme = test::ReadFile(kRoot + "README.md");
  for (const auto& entry : fs::directory_iterator(kRoot + "docs")) {
    const std::string name = entry.path().filename().string();
    if (!name.ends_with(".md")) continue;
    if (name == "performance-tried.md" || name == "classic-records.md")
      continue;  // parts of others
    EXPECT_NE(readme.find("](docs/" + name + ")"), std::string::npos) << name;
  }
}

TEST(ArchitecturePage, NamesFoldersOfSourcesThatAreThere) {
  const std::string page = test::ReadFile(kRoot + "docs/architecture.md");
  const auto folders = Matches(page, std::regex("\n\\| `([^`]+)` \\|"));
  EXPECT_GT(folders.size(), 15U);
  std::set<std::string> existing;
  for (const auto& entry : fs::recursive_directory_iterator(kRoot + "src")) {
    const bool isSource = entry.path().extension() == ".cpp" || entry.path().extension() == ".mm";
    if (isSource) existing.insert(fs::relative(entry.path().parent_path(), kRoot + "src").string());
  }
  for (const std::string& folder : existing)
    EXPECT_EQ(folders.count(folder), 1U) << folder;
  for (const std::string& folder : folders) {
    EXPECT_TRUE(fs::is_directory(kRoot + "src/" + folder)) << folder;
    EXPECT_EQ(folders.count(folder), 1U) << folder;
  }
}

/// What docs/classic-records.md says of each type.
std::map<std::uint32_t, std::string> DescribedRecords() {
  std::map<std::uint32_t, std::string> described;
  std::istringstream table(test::ReadFile(kRoot + "docs/classic-records.md"));
  for (std::string line; std::getline(table, line);) {
    std::istringstream row(line);
    std::string bar;
    std::uint32_t type = 0;
    if (row >> bar >> type && bar == "|") described[type] = line.substr(line.find(" | ", 8) + 3);
  }
  return described;
}

TEST(ClassicRecordsPage, SaysOfExactlyTheUnknownTypesThatTheyAreSkipped) {
  constexpr std::uint32_t kHeader = 1;  // neither ever gets to the factory
  constexpr std::uint32_t kEnd = 14;
  const auto described = DescribedRecords();
  RecordArena arena;
  for (std::uint32_t type = 0; type <= 130; ++type) {
    if (type == kHeader || type == kEnd) continue;
    const OwnedRecord record = MakeRecord(type, arena);
    const bool isUnknown = dynamic_cast<UnrecognizedRecord*>(record.get()) != nullptr;
    const auto row = described.find(type);
    const bool isSkipped = row == described.end() || row->second == "Skipped. |";
    EXPECT_EQ(isSkipped, isUnknown) << "type " << type;
  }
}

TEST(ClassicRecordsPage, HasEveryTypeOfTheFormat) {
  const auto described = DescribedRecords();
  for (std::uint32_t type = 1; type <= 122; ++type) {
    const bool isUnassigned = type == 69 || type == 107 || type == 117;
    EXPECT_EQ(described.contains(type), !isUnassigned) << "type " << type;
  }
}

}  // namespace
}  // namespace kelvane
