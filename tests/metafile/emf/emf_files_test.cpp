// Every scene, and every metafile found beside the project, its records decoded.

#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "metafile/emf/emf_record_iterator.h"
#include "metafile/emf/emf_record_type.h"
#include "support/emf_decoders.h"
#include "support/files.h"
#include "support/paths.h"

namespace kelvane::test {
namespace {

namespace fs = std::filesystem;

std::vector<fs::path> MetafilesIn(const std::string& folder) {
  std::vector<fs::path> files;
  std::error_code absent;
  for (const auto& entry : fs::recursive_directory_iterator(SourcePath(folder), absent)) {
    if (entry.path().extension() == ".emf") files.push_back(entry.path());
  }
  return files;
}

/// What became of the records of some files.
struct Tally {
  std::size_t files = 0;
  std::size_t records = 0;
  std::map<std::string, int> shortOnes;  // by file and name of the record
  std::map<std::string, EmfEnd> ends;    // by file, of those that end otherwise than meant

  void Add(const fs::path& path) {
    const std::string file = ReadFile(path);
    EmfRecordIterator iterator({reinterpret_cast<const unsigned char*>(file.data()), file.size()});
    const std::string name = path.filename().string();
    while (auto record = iterator.Next()) {
      DecodeEmfRecord(record->type, record->bytes);
      if (record->bytes.IsShort()) ++shortOnes[name + " " + std::string(RecordName(record->type))];
      ++records;
    }
    if (iterator.End() != EmfEnd::kEndRecord) ends.emplace(name, iterator.End().value());
    ++files;
  }
};

Tally TallyOf(const std::string& folder) {
  Tally tally;
  for (const fs::path& path : MetafilesIn(folder))
    tally.Add(path);
  return tally;
}

/// A comment in it is longer than its record says, so the next size is none.
constexpr std::string_view kBreaksOff = "poi-61294.emf";

/// A folder whose files are sound, but for that one.
class SoundFiles : public testing::TestWithParam<const char*> {};

TEST_P(SoundFiles, AreReadToTheirEndWithNoRecordShort) {
  const Tally tally = TallyOf(GetParam());
  if (tally.files == 0) GTEST_SKIP() << "no metafiles in " << GetParam();
  EXPECT_GT(tally.records, tally.files);
  for (const auto& [record, count] : tally.shortOnes)
    ADD_FAILURE() << count << " short: " << record;
  for (const auto& [file, end] : tally.ends) {
    if (file == kBreaksOff && end == EmfEnd::kSizePastEnd) continue;
    ADD_FAILURE() << file << ": " << Description(end);
  }
}

INSTANTIATE_TEST_SUITE_P(EmfFiles, SoundFiles,
                         testing::Values("../shared/corpus/real", "../shared/corpus/office",
                                         "tests/scenes"),
                         [](const auto& folder) { return fs::path(folder.param).stem().string(); });

TEST(DamagedFiles, AreReadAsFarAsTheyGo) {
  const Tally tally = TallyOf("../shared/corpus/damaged");
  if (tally.files == 0) GTEST_SKIP() << "no metafiles in corpus/damaged";
  EXPECT_GT(tally.ends.size(), 0U);
  EXPECT_LT(tally.ends.size(), tally.files);
}

}  // namespace
}  // namespace kelvane::test
