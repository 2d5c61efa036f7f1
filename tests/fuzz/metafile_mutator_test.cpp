#include "metafile_mutator.h"

#include <algorithm>
#include <set>

#include <gtest/gtest.h>

#include "classic/document/skipped_records.h"
#include "samples.h"
#include "support/playback.h"

namespace kelvane::fuzz {
namespace {

using enum test::EmrType;

constexpr std::size_t kPlenty = 1 << 20;

// Stands for the fuzzer's own changes to bytes.
std::size_t Invert(unsigned char* bytes, std::size_t size, std::size_t capacity) {
  for (std::size_t i = 0; i < size; ++i)
    bytes[i] = static_cast<unsigned char>(~bytes[i]);
  return std::min(size + 3, capacity);
}

MetafileMutator Mutator(std::uint32_t seed) {
  return {seed, Invert};
}

ByteVector Lines() {
  return test::Metafile().Polyline({{1, 2}, {3, 4}}).MoveTo(5, 6).LineTo(7, 8).Build();
}

std::vector<ByteVector> SampleFiles() {
  std::vector<ByteVector> files;
  for (const auto& sample : samples::AllSamples())
    files.push_back(sample.metafile.Build());
  return files;
}

TEST(Frames, AreThoseOfTheRecords) {
  const Frames frames = TakeApart(Lines());
  EXPECT_EQ(frames.header.size(), test::kHeaderSize);
  ASSERT_EQ(frames.records.size(), 4U);
  EXPECT_EQ(frames.records[1], test::Bytes().U32(EMR_MOVETOEX).U32(16).I32(5).I32(6).Data());
  EXPECT_EQ(FieldAt(frames.records[3], 0), EMR_EOF);
  EXPECT_TRUE(frames.rest.empty());
}

TEST(Frames, LeaveWhatFollowsTheEndToTheRest) {
  ByteVector file = Lines();
  file.insert(file.end(), {1, 2, 3});
  EXPECT_EQ(TakeApart(file).rest, (ByteVector{1, 2, 3}));
}

TEST(Frames, MakeTheFileAgainWhereverItIsCut) {
  const ByteVector whole = Lines();
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const ByteVector file(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
    ASSERT_EQ(PutTogether(TakeApart(file), kPlenty), file) << size;
  }
}

TEST(Frames, MakeTheFileAgainWhateverSizesARecordStates) {
  for (const std::uint32_t size : {0U, 4U, 7U, 9U, 1000U, 0x80000000U, 0xFFFFFFFFU}) {
    const ByteVector file =
        test::Metafile().MoveTo(1, 2).RecordOfSize(EMR_LINETO, size).MoveTo(3, 4).Build();
    EXPECT_EQ(PutTogether(TakeApart(file), kPlenty), file) << size;
  }
}

TEST(Frames, AreLeftOutFromTheBackUntilTheFileFits) {
  const ByteVector file = Lines();
  const Frames kept = TakeApart(PutTogether(TakeApart(file), file.size() - 1));
  ASSERT_EQ(kept.records.size(), 3U);
  EXPECT_EQ(FieldAt(kept.records[1], 0), EMR_MOVETOEX);  // the LineTo is gone, the end is not
  EXPECT_EQ(FieldAt(kept.records[2], 0), EMR_EOF);
}

TEST(IsFramed, IsTrueOfEverySample) {
  for (const ByteVector& file : SampleFiles())
    EXPECT_TRUE(IsFramed(file));
}

TEST(IsFramed, IsFalseOfARecordThatMisstatesItsSize) {
  EXPECT_FALSE(IsFramed(test::Metafile().RecordOfSize(EMR_LINETO, 1000).Build()));
  EXPECT_FALSE(IsFramed(test::Metafile().RecordOfSize(EMR_LINETO, 4).Build()));
}

TEST(IsFramed, IsFalseWithoutAnEnd) {
  EXPECT_FALSE(IsFramed(test::Metafile().MoveTo(1, 2).BuildWithoutEnd()));
}

TEST(RecordLibrary, HoldsFramedRecordsOfEveryKindThatIsPlayedBack) {
  std::set<std::uint32_t> types;
  for (const ByteVector& record : RecordLibrary()) {
    EXPECT_EQ(FieldAt(record, 4), record.size());
    types.insert(FieldAt(record, 0));
  }
  // Records that change nothing, and those without a body that could be changed.
  const std::set<std::uint32_t> leftOut = {
      EMR_SETBRUSHORGEX,     EMR_SETPIXELV,       EMR_SETBKMODE,     EMR_SETROP2,
      EMR_SETSTRETCHBLTMODE, EMR_SETMETARGN,      EMR_SELECTPALETTE, EMR_POLYDRAW,
      EMR_POLYDRAW16,        EMR_CREATEMONOBRUSH, EMR_SETICMMODE};
  for (std::uint32_t type = 1; type < 130; ++type) {
    if (type == EMR_EOF) continue;
    test::ParsedMetafile parsed(test::Metafile().Record(type).Build());
    const bool isKnown = dynamic_cast<UnrecognizedRecord*>(&*parsed->records.at(0)) == nullptr;
    if (isKnown && !leftOut.contains(type)) {
      EXPECT_TRUE(types.contains(type)) << type;
    }
  }
}

// The rest misstates a size on purpose.
TEST(MetafileMutator, LeavesNineInTenFramed) {
  const std::vector<ByteVector> files = SampleFiles();
  int framed = 0;
  constexpr int kRuns = 3000;
  for (int seed = 0; seed < kRuns; ++seed) {
    const ByteVector& file = files[static_cast<std::size_t>(seed) % files.size()];
    framed += IsFramed(Mutator(static_cast<std::uint32_t>(seed)).Mutate(file, kPlenty)) ? 1 : 0;
  }
  EXPECT_GT(framed, kRuns * 9 / 10);
  EXPECT_LT(framed, kRuns);
}

TEST(MetafileMutator, ChangesNearlyEveryFile) {
  int changed = 0;
  for (std::uint32_t seed = 0; seed < 1000; ++seed)
    changed += Mutator(seed).Mutate(Lines(), kPlenty) != Lines() ? 1 : 0;
  EXPECT_GT(changed, 950);
}

TEST(MetafileMutator, StaysWithinItsRoom) {
  for (std::uint32_t seed = 0; seed < 2000; ++seed) {
    const std::size_t room = seed % 300;
    EXPECT_LE(Mutator(seed).Mutate(Lines(), room).size(), room);
    EXPECT_LE(Mutator(seed).Cross(Lines(), Lines(), room).size(), room);
  }
}

TEST(MetafileMutator, TakesAnyBytes) {
  for (std::uint32_t seed = 0; seed < 2000; ++seed) {
    ByteVector bytes(seed % 200, static_cast<unsigned char>(seed));
    EXPECT_NO_FATAL_FAILURE(Mutator(seed).Mutate(bytes, kPlenty));
    EXPECT_NO_FATAL_FAILURE(Mutator(seed).Cross(bytes, Lines(), kPlenty));
  }
}

TEST(MetafileMutator, DoesTheSameForTheSameSeed) {
  EXPECT_EQ(Mutator(7).Mutate(Lines(), kPlenty), Mutator(7).Mutate(Lines(), kPlenty));
}

TEST(MetafileMutator, PutsInEveryRecordOfItsLibrary) {
  std::set<ByteVector> seen;
  for (std::uint32_t seed = 0; seed < 10000; ++seed) {
    for (ByteVector& record : TakeApart(Mutator(seed).Mutate(Lines(), kPlenty)).records)
      seen.insert(std::move(record));
  }
  for (const ByteVector& record : RecordLibrary())
    EXPECT_TRUE(seen.contains(record)) << FieldAt(record, 0);
}

TEST(MetafileMutator, CrossesInTheOtherFilesRecordsAndStaysFramed) {
  const ByteVector other = test::Metafile().Ellipse({1, 2, 3, 4}).Build();
  int crossed = 0;
  for (std::uint32_t seed = 0; seed < 100; ++seed) {
    const ByteVector child = Mutator(seed).Cross(Lines(), other, kPlenty);
    EXPECT_TRUE(IsFramed(child));
    crossed += std::ranges::any_of(
                   TakeApart(child).records,
                   [](const ByteVector& record) { return FieldAt(record, 0) == EMR_ELLIPSE; })
                   ? 1
                   : 0;
  }
  EXPECT_GT(crossed, 50);
}

}  // namespace
}  // namespace kelvane::fuzz
