#include "classic/playable/record.h"

#include <gtest/gtest.h>

#include "classic/document/skipped_records.h"
#include "classic/reader/reader.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;

/// A record whose class reads a given number of bytes.
class GreedyRecord final : public Record {
 public:
  explicit GreedyRecord(std::uint32_t bytes) : bytes_(bytes) {}
  void drawToPDF(AbstractContext& /*context*/) const override {}
  void read(Reader& reader) override {
    std::vector<std::uint8_t> taken;
    reader.readList(taken, bytes_);
  }

 private:
  std::uint32_t bytes_;
};

/// Reads a record whose type field ended at 4 in a block of 64 bytes.
/// @return where the reader then stands.
std::int64_t PositionAfter(Record& record, std::uint32_t declaredSize) {
  Bytes block = Bytes().U32(99).U32(declaredSize).Zeros(56);
  Reader reader(block.Data().data(), static_cast<std::int32_t>(block.Size()));
  reader.setToPosition(4);
  record.ReadItem(reader);
  EXPECT_EQ(record.size, declaredSize);
  return reader.getPosition();
}

TEST(Record, ReadExactlyLeavesTheReaderAtItsEnd) {
  GreedyRecord record(8);
  EXPECT_EQ(PositionAfter(record, 16), 16);
}

TEST(Record, ReadShortIsSkippedToItsDeclaredEnd) {
  GreedyRecord record(4);
  EXPECT_EQ(PositionAfter(record, 24), 24);
}

TEST(Record, ReadTooFarIsWoundBackToItsDeclaredEnd) {
  GreedyRecord record(40);
  EXPECT_EQ(PositionAfter(record, 12), 12);
}

TEST(Record, WhoseEndIsOutsideTheBlockLeavesTheReaderWhereItIs) {
  for (const std::uint32_t size : {64U, 65U, 1000U, 0x7FFFFFFFU}) {
    GreedyRecord record(4);
    EXPECT_EQ(PositionAfter(record, size), 12) << size;
  }
}

TEST(Record, IsNeverWoundBackToTheStartOfTheBlock) {
  // The type field stands at the block's first byte here, so a declared size of 0 leads to position
  // 0.
  GreedyRecord record(4);
  EXPECT_EQ(PositionAfter(record, 0), 12);
}

TEST(UnrecognizedRecord, IsSkippedByItsDeclaredSize) {
  UnrecognizedRecord record(77);
  EXPECT_EQ(PositionAfter(record, 40), 40);
}

TEST(UnrecognizedRecord, LargerThanTheBlockReadsNothing) {
  UnrecognizedRecord record(77);
  EXPECT_EQ(PositionAfter(record, 65), 8);
}

TEST(UnrecognizedRecord, OfTheBlocksOwnSizeIsSkippedPastTheEnd) {
  Bytes block = Bytes().U32(0).U32(99).U32(16).U32(0);
  Reader reader(block.Data().data(), static_cast<std::int32_t>(block.Size()));
  reader.setToPosition(8);
  UnrecognizedRecord record(99);
  record.ReadItem(reader);
  EXPECT_EQ(reader.getPosition(), 20);
}

TEST(RecognizedButIgnoredRecord, IsSkippedByTheFraming) {
  RecognizedButIgnoredRecord record("EMR_SETMETARGN");
  EXPECT_EQ(PositionAfter(record, 8), 8);
  EXPECT_EQ(PositionAfter(record, 20), 20);
}

}  // namespace
}  // namespace kelvane
