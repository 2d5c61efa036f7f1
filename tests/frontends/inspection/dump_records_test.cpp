// The fields of every type of record, as its layout has them.

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dumped.h"
#include "frontends/inspection/record_printers.h"
#include "metafile/emf/emf_header.h"
#include "record_samples.h"

namespace kelvane::test {
namespace {

Samples AllSamples() {
  return Joined({DrawingSamples(), StateSamples()});
}

/// @return the line of a record behind the header of a file, without its offset.
std::string LineOf(EmfRecordType type, const Bytes& body) {
  constexpr std::uint32_t kHeaderSize = 88;
  Bytes file;
  file.U32(EMR_HEADER).U32(kHeaderSize).Append(std::vector<unsigned char>(32));
  file.U32(kEmfSignature).Append(std::vector<unsigned char>(kHeaderSize - 44));
  file.U32(type).U32(static_cast<std::uint32_t>(8 + body.Size())).Append(body.Data());
  const std::string line = Dumped(file.Data()).at(1);
  return line.substr(line.find(' ') + 1);
}

TEST(DumpedRecord, HasTheFieldsOfItsType) {
  for (const Sample& sample : AllSamples()) {
    for (const EmfRecordType type : sample.types) {
      const std::string size = std::to_string(8 + sample.body.Size());
      EXPECT_EQ(LineOf(type, sample.body),
                std::string(RecordName(type)) + " Size=" + size + sample.fields);
    }
  }
}

TEST(DumpedRecord, SaysWhenItHasNoneOfItsFields) {
  for (const Sample& sample : AllSamples()) {
    if (sample.body.Size() == 0) continue;
    for (const EmfRecordType type : sample.types)
      EXPECT_NE(LineOf(type, {}).find(" Damaged="), std::string::npos) << RecordName(type);
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
