#include "metafile/emf/emf_record_iterator.h"

#include <vector>

#include <gtest/gtest.h>

#include "metafile/emf/emf_record_type.h"
#include "support/bytes.h"

namespace kelvane::test {
namespace {

/// The types of the records, and what ended them where.
struct Walk {
  explicit Walk(const Bytes& file) {
    EmfRecordIterator records(file.Data());
    while (const auto record = records.Next())
      types.push_back(record->type);
    end = records.End();
    offset = records.Offset();
  }

  std::vector<std::uint32_t> types;
  std::optional<EmfEnd> end;
  std::size_t offset = 0;
};

using Types = std::vector<std::uint32_t>;

/// A record of twelve bytes.
Bytes OneRecord() {
  return Bytes().U32(EMR_SETMAPMODE).U32(12).U32(8);
}

void ExpectTheEndBehindOneRecord(const Bytes& rest, EmfEnd end) {
  const Walk walk(OneRecord().Append(rest.Data()));
  EXPECT_EQ(walk.types, Types{EMR_SETMAPMODE});
  EXPECT_EQ(walk.end, end);
  EXPECT_EQ(walk.offset, 12U);
}

TEST(EmfRecordIterator, GivesEachRecordWithItsDataNext) {
  const Bytes file = OneRecord().U32(200).U32(8).U32(EMR_EOF).U32(8);
  EmfRecordIterator records(file.Data());
  auto first = records.Next();
  ASSERT_TRUE(first);
  EXPECT_EQ(first->type, EMR_SETMAPMODE);
  EXPECT_EQ(first->offset, 0U);
  EXPECT_EQ(first->bytes.Bytes().size(), 12U);
  EXPECT_EQ(first->bytes.Read<std::uint32_t>(), 8U);
  EXPECT_EQ(first->bytes.Remaining(), 0U);

  const auto second = records.Next();
  ASSERT_TRUE(second);
  EXPECT_EQ(second->type, 200U);
  EXPECT_EQ(second->offset, 12U);
  EXPECT_EQ(second->bytes.Remaining(), 0U);
  EXPECT_EQ(records.End(), std::nullopt);
}

TEST(EmfRecordIterator, EndsBehindTheEndRecord) {
  const Walk walk(OneRecord().U32(EMR_EOF).U32(8).Append(OneRecord().Data()));
  EXPECT_EQ(walk.types, (Types{EMR_SETMAPMODE, EMR_EOF}));
  EXPECT_EQ(walk.end, EmfEnd::kEndRecord);
  EXPECT_EQ(walk.offset, 20U);
}

TEST(EmfRecordIterator, GivesNothingOnceItHasEnded) {
  const Bytes file;
  EmfRecordIterator records(file.Data());
  EXPECT_FALSE(records.Next());
  EXPECT_FALSE(records.Next());
  EXPECT_EQ(records.End(), EmfEnd::kFileEnds);
}

TEST(EmfRecordIterator, EndsWithTheFile) {
  ExpectTheEndBehindOneRecord(Bytes(), EmfEnd::kFileEnds);
}

TEST(EmfRecordIterator, EndsWhereTypeAndSizeAreNotWhole) {
  for (std::size_t size = 1; size < 8; ++size)
    ExpectTheEndBehindOneRecord(Bytes().Zeros(size), EmfEnd::kFileEndsInHead);
}

TEST(EmfRecordIterator, EndsWhereASizeIsTooSmall) {
  for (const std::uint32_t size : {0U, 4U, 7U})
    ExpectTheEndBehindOneRecord(Bytes().U32(EMR_SAVEDC).U32(size), EmfEnd::kSizeTooSmall);
}

TEST(EmfRecordIterator, EndsWhereASizeReachesPastTheFile) {
  for (const std::uint32_t size : {12U, 13U, 0xFFFFFFFCU, 0xFFFFFFFFU})
    ExpectTheEndBehindOneRecord(Bytes().U32(EMR_SAVEDC).U32(size), EmfEnd::kSizePastEnd);
}

TEST(EmfRecordIterator, EndsWhereASizeIsNoMultipleOfFour) {
  ExpectTheEndBehindOneRecord(Bytes().U32(EMR_SAVEDC).U32(10).Zeros(8), EmfEnd::kSizeNotWholeWords);
}

TEST(EmfRecordIterator, SaysWhyItEndedUnlessAllIsWell) {
  EXPECT_EQ(Description(EmfEnd::kEndRecord), "");
  for (const EmfEnd end : {EmfEnd::kFileEnds, EmfEnd::kFileEndsInHead, EmfEnd::kSizeTooSmall,
                           EmfEnd::kSizePastEnd, EmfEnd::kSizeNotWholeWords})
    EXPECT_NE(Description(end), "");
}

}  // namespace
}  // namespace kelvane::test
