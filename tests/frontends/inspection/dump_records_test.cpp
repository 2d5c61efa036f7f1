// The fields of every type of record, as its layout has them.

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dumped.h"
#include "frontends/inspection/record_printers.h"
#include "record_samples.h"

namespace kelvane::test {
namespace {

Samples AllSamples() {
  return Joined({DrawingSamples(), StateSamples()});
}

/// A record alone, as the first of a file.
std::vector<unsigned char> FileOf(EmfRecordType type, const Bytes& body) {
  const auto size = static_cast<std::uint32_t>(8 + body.Size());
  return Bytes().U32(type).U32(size).Append(body.Data()).Data();
}

TEST(DumpedRecord, HasTheFieldsOfItsType) {
  for (const Sample& sample : AllSamples()) {
    for (const EmfRecordType type : sample.types) {
      const auto file = FileOf(type, sample.body);
      EXPECT_EQ(Dumped(file).front(), "0 " + std::string(RecordName(type)) +
                                          " Size=" + std::to_string(file.size()) + sample.fields);
    }
  }
}

TEST(DumpedRecord, SaysWhenItHasNoneOfItsFields) {
  for (const Sample& sample : AllSamples()) {
    if (sample.body.Size() == 0) continue;
    for (const EmfRecordType type : sample.types)
      EXPECT_NE(Dumped(FileOf(type, {})).front().find(" Damaged="), std::string::npos)
          << RecordName(type);
  }
}

TEST(DumpedRecord, IsShownAboveWhateverItsType) {
  std::set<std::uint32_t> shown;
  for (const Sample& sample : AllSamples())
    shown.insert(sample.types.begin(), sample.types.end());
  for (std::uint32_t type = 0; type < kEmfRecordTypes; ++type) {
    const bool isRecord = !RecordName(type).empty();
    EXPECT_EQ(shown.contains(type), isRecord) << type;
    EXPECT_EQ(FindPrinter(type) != nullptr, isRecord) << type;
  }
  EXPECT_EQ(FindPrinter(kEmfRecordTypes), nullptr);
}

}  // namespace
}  // namespace kelvane::test
