#include <cstdint>
#include <filesystem>
#include <map>
#include <regex>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "classic/document/record_factory.h"
#include "classic/document/skipped_records.h"
#include "support/files.h"
#include "support/paths.h"

namespace kelvane {
namespace {

const std::string kRoot = test::SourcePath("") + "/";

TEST(Readme, ShowsTheExampleThatIsCompiled) {
  const std::string example = test::ReadFile(kRoot + "tests/frontends/readme_example.c");
  EXPECT_NE(test::ReadFile(kRoot + "README.md").find("```c\n" + example + "```\n"),
            std::string::npos);
}

TEST(Readme, NamesASampleThatIsThere) {
  EXPECT_NE(test::ReadFile(kRoot + "README.md").find("./dev convert samples/shapes.emf"),
            std::string::npos);
  EXPECT_FALSE(test::ReadFile(kRoot + "samples/shapes.emf").empty());
}

TEST(Readme, LeadsToPagesThatAreThere) {
  const std::string readme = test::ReadFile(kRoot + "README.md");
  const std::regex link("\\]\\(([^)]+)\\)");
  int links = 0;
  for (std::sregex_iterator match(readme.begin(), readme.end(), link), end; match != end; ++match) {
    EXPECT_TRUE(std::filesystem::exists(kRoot + (*match)[1].str())) << (*match)[1];
    ++links;
  }
  EXPECT_GT(links, 5);
}

TEST(Readme, ShowsTheCommandsOfACallerThatIsBuilt) {
  const std::string project = test::ReadFile(kRoot + "tests/consumer/cpp/CMakeLists.txt");
  for (const std::string command : {"find_package(kelvane REQUIRED)\n",
                                    "target_link_libraries(program PRIVATE kelvane::kelvane)\n"}) {
    EXPECT_NE(test::ReadFile(kRoot + "README.md").find("    " + command), std::string::npos);
    EXPECT_NE(project.find("\n" + command), std::string::npos);
  }
}

/// What docs/records.md says of each type.
std::map<std::uint32_t, std::string> DescribedRecords() {
  std::map<std::uint32_t, std::string> described;
  std::istringstream table(test::ReadFile(kRoot + "docs/records.md"));
  for (std::string line; std::getline(table, line);) {
    std::istringstream row(line);
    std::string bar;
    std::uint32_t type = 0;
    if (row >> bar >> type && bar == "|") described[type] = line.substr(line.find(" | ", 8) + 3);
  }
  return described;
}

TEST(RecordsPage, SaysOfExactlyTheUnknownTypesThatTheyAreSkipped) {
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

TEST(RecordsPage, HasEveryTypeOfTheFormat) {
  const auto described = DescribedRecords();
  for (std::uint32_t type = 1; type <= 122; ++type) {
    const bool isUnassigned = type == 69 || type == 107 || type == 117;
    EXPECT_EQ(described.contains(type), !isUnassigned) << "type " << type;
  }
}

}  // namespace
}  // namespace kelvane
