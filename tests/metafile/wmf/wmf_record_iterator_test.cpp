#include "metafile/wmf/wmf_record_iterator.h"

#include <vector>

#include <gtest/gtest.h>

#include "metafile/wmf/wmf_record_type.h"
#include "support/bytes.h"

namespace kelvane::test {
namespace {

/// The types of the records, and what ended them where.
struct WmfWalk {
  explicit WmfWalk(const Bytes& file) {
    WmfRecordIterator records(file.Data(), 0);
    while (const auto record = records.Next())
      types.push_back(record->type);
    end = records.End();
    offset = records.Offset();
  }

  std::vector<std::uint16_t> types;
  std::optional<WmfEnd> end;
  std::size_t offset = 0;
};

using WmfTypes = std::vector<std::uint16_t>;

/// A record of four words.
Bytes OneWmfRecord() {
  return Bytes().U32(4).U16(META_SETMAPMODE).U16(8);
}

void ExpectTheEndBehindOneWmfRecord(const Bytes& rest, WmfEnd end) {
  const WmfWalk walk(OneWmfRecord().Append(rest.Data()));
  EXPECT_EQ(walk.types, WmfTypes{META_SETMAPMODE});
  EXPECT_EQ(walk.end, end);
  EXPECT_EQ(walk.offset, 8U);
}

TEST(WmfRecordIterator, GivesEachRecordWithItsDataNext) {
  const Bytes file = Bytes().Zeros(2).Append(OneWmfRecord().Data()).U32(3).U16(0x7777);
  WmfRecordIterator records(file.Data(), 2);
  auto first = records.Next();
  ASSERT_TRUE(first);
  EXPECT_EQ(first->type, META_SETMAPMODE);
  EXPECT_EQ(first->offset, 2U);
  EXPECT_EQ(first->bytes.Bytes().size(), 8U);
  EXPECT_EQ(first->bytes.Read<std::uint16_t>(), 8U);
  EXPECT_EQ(first->bytes.Remaining(), 0U);

  const auto second = records.Next();
  ASSERT_TRUE(second);
  EXPECT_EQ(second->type, 0x7777);
  EXPECT_EQ(second->offset, 10U);
  EXPECT_EQ(second->bytes.Remaining(), 0U);
  EXPECT_EQ(records.End(), std::nullopt);
}

TEST(WmfRecordIterator, EndsBehindTheEndRecord) {
  const WmfWalk walk(OneWmfRecord().U32(3).U16(META_EOF).Append(OneWmfRecord().Data()));
  EXPECT_EQ(walk.types, (WmfTypes{META_SETMAPMODE, META_EOF}));
  EXPECT_EQ(walk.end, WmfEnd::kEndRecord);
  EXPECT_EQ(walk.offset, 14U);
}

TEST(WmfRecordIterator, GivesNothingOnceItHasEnded) {
  WmfRecordIterator records({}, 0);
  EXPECT_FALSE(records.Next());
  EXPECT_FALSE(records.Next());
  EXPECT_EQ(records.End(), WmfEnd::kFileEnds);
}

TEST(WmfRecordIterator, EndsWithTheFile) {
  ExpectTheEndBehindOneWmfRecord(Bytes(), WmfEnd::kFileEnds);
}

TEST(WmfRecordIterator, EndsWhereSizeAndTypeAreNotWhole) {
  for (std::size_t size = 1; size < 6; ++size)
    ExpectTheEndBehindOneWmfRecord(Bytes().Zeros(size), WmfEnd::kFileEndsInHead);
}

TEST(WmfRecordIterator, EndsWhereASizeIsTooSmall) {
  for (const std::uint32_t words : {0U, 1U, 2U})
    ExpectTheEndBehindOneWmfRecord(Bytes().U32(words).U16(META_SAVEDC), WmfEnd::kSizeTooSmall);
}

TEST(WmfRecordIterator, EndsWhereASizeReachesPastTheFile) {
  for (const std::uint32_t words : {4U, 0x80000003U, 0xFFFFFFFFU}) {
    const Bytes record = Bytes().U32(words).U16(META_SAVEDC);
    ExpectTheEndBehindOneWmfRecord(record, WmfEnd::kSizePastEnd);
    ExpectTheEndBehindOneWmfRecord(Bytes(record).U8(0), WmfEnd::kSizePastEnd);
  }
}

TEST(WmfRecordIterator, SaysWhyItEndedUnlessAllIsWell) {
  EXPECT_EQ(Description(WmfEnd::kEndRecord), "");
  for (const WmfEnd end :
       {WmfEnd::kFileEnds, WmfEnd::kFileEndsInHead, WmfEnd::kSizeTooSmall, WmfEnd::kSizePastEnd})
    EXPECT_NE(Description(end), "");
}

}  // namespace
}  // namespace kelvane::test
