// What docs/records.md says of each record, held against the players.

#include <cstdint>
#include <map>
#include <sstream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "metafile/emf/emf_record_type.h"
#include "metafile/emfplus/emfplus_record_type.h"
#include "metafile/wmf/wmf_record_type.h"
#include "players/emf/emf_handler.h"
#include "players/emfplus/emfplus_handler.h"
#include "players/wmf/wmf_handler.h"
#include "support/files.h"
#include "support/paths.h"

namespace kelvane {
namespace {

struct Row {
  std::string name;
  std::string outcome;
};

using Table = std::map<std::uint32_t, Row>;

/// The rows below a heading, by the number that each begins with.
Table TableOf(const std::string& heading) {
  std::istringstream page(test::ReadFile(test::SourcePath("docs/records.md")));
  Table table;
  bool isBelow = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) isBelow = line == "## " + heading;
    if (!isBelow || !line.starts_with("| ") || !(line[2] >= '0' && line[2] <= '9')) continue;
    std::istringstream cells(line.substr(2));
    std::string number;
    Row row;
    std::getline(cells, number, '|');
    std::getline(cells, row.name, '|');
    std::getline(cells, row.outcome, '|');
    const auto trimmed = [](const std::string& cell) { return cell.substr(1, cell.size() - 2); };
    const auto type = static_cast<std::uint32_t>(std::stoul(number, nullptr, 0));
    EXPECT_TRUE(table.try_emplace(type, Row{trimmed(row.name), trimmed(row.outcome)}).second)
        << "two rows of " << type;
  }
  return table;
}

bool HasNoMark(const Row& row) {
  return row.outcome.starts_with("No mark");
}
bool IsLeftOut(const Row& row) {
  return row.outcome.starts_with("Left out");
}

/// @param nameOf  gives the name of a number, with the prefix; empty for one that is none.
template <class NameOf>
void ExpectEveryName(const Table& table, std::string_view prefix, std::uint32_t end,
                     NameOf nameOf) {
  std::size_t names = 0;
  for (std::uint32_t type = 0; type < end; ++type) {
    const std::string_view name = nameOf(type);
    if (name.empty()) continue;
    ++names;
    const auto row = table.find(type);
    ASSERT_NE(row, table.end()) << name;
    EXPECT_EQ(std::string(prefix) + row->second.name, name);
  }
  EXPECT_EQ(table.size(), names);
}

TEST(RecordsPage, HasEveryRecordOfEachFormat) {
  ExpectEveryName(TableOf("EMF"), "EMR_", 256, [](std::uint32_t type) { return RecordName(type); });
  ExpectEveryName(TableOf("EMF+"), "EmfPlus", 0x5000,
                  [](std::uint32_t type) { return EmfPlusRecordName(type); });
  ExpectEveryName(TableOf("WMF"), "META_", 0x10000, [](std::uint32_t type) {
    return WmfRecordName(static_cast<std::uint16_t>(type));
  });
}

/// @return whether a row of a table of handlers is of the type.
template <class Handlers>
bool Has(const Handlers& handlers, std::uint32_t type) {
  for (const auto& handler : handlers)
    if (handler.type == type) return true;
  return false;
}

TEST(RecordsPage, SaysOfExactlyTheUnplayedRecordsOfEmfThatNothingComesOfThem) {
  for (const auto& [type, row] : TableOf("EMF")) {
    ASSERT_NE(FindEmfHandler(type), nullptr) << row.name;
    const bool isUnplayed = Has(EmfUnplayedHandlers(), type) || type == EMR_EXTFLOODFILL;
    EXPECT_EQ(HasNoMark(row) || IsLeftOut(row), isUnplayed) << row.name;
  }
}

TEST(RecordsPage, SaysOfExactlyTheUnplayedRecordsOfEmfPlusThatNothingComesOfThem) {
  for (const auto& [type, row] : TableOf("EMF+")) {
    EXPECT_EQ(IsLeftOut(row), FindEmfPlusHandler(type) == nullptr) << row.name;
    EXPECT_EQ(HasNoMark(row), FindEmfPlusHandler(type) == kPassEmfPlusOver) << row.name;
  }
}

TEST(RecordsPage, SaysOfExactlyTheUnplayedRecordsOfWmfThatNothingComesOfThem) {
  for (const auto& [type, row] : TableOf("WMF")) {
    ASSERT_NE(FindWmfHandler(static_cast<std::uint16_t>(type)), nullptr) << row.name;
    const bool isUnplayed =
        Has(WmfUnplayedHandlers(), type) || type == META_FLOODFILL || type == META_EXTFLOODFILL;
    EXPECT_EQ(HasNoMark(row) || IsLeftOut(row), isUnplayed) << row.name;
  }
}

}  // namespace
}  // namespace kelvane
