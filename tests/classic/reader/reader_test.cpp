#include "classic/reader/reader.h"

#include <array>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using testing::ElementsAre;

/// A reader over bytes that it keeps.
class ReaderOver {
 public:
  explicit ReaderOver(const Bytes& bytes)
      : data_(bytes.Data()), reader_(data_.data(), static_cast<std::int32_t>(data_.size())) {}

  Reader* operator->() { return &reader_; }
  Reader& operator*() { return reader_; }

 private:
  std::vector<unsigned char> data_;
  Reader reader_;
};

TEST(BufferReader, OfOneByteIsAtItsEndBeforeAnyRead) {
  const unsigned char byte = 0x5A;
  BufferReader reader(&byte, 1);
  unsigned char value = 0x11;

  EXPECT_TRUE(reader.isEnd());
  reader.GetBytes(&value, 1);
  EXPECT_EQ(value, 0x11);
  EXPECT_EQ(reader.getPosition(), 0);
}

TEST(BufferReader, WithoutBytesReadsNothing) {
  BufferReader reader(nullptr, 0);
  std::uint32_t value = 7;
  reader.GetBytes(reinterpret_cast<unsigned char*>(&value), 4);
  EXPECT_EQ(value, 7U);
  EXPECT_FALSE(reader.isEnd());
}

TEST(BufferReader, NeverReadsTheLastByte) {
  ReaderOver reader(Bytes().U8(1).U8(2));
  std::uint8_t first = 0;
  std::uint8_t second = 0;
  reader->readAll(first, second);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 0);
  EXPECT_TRUE(reader->isEnd());
}

TEST(BufferReader, FillsTheLeastSignificantEndWhenTheDataEndsEarly) {
  ReaderOver reader(Bytes().U8(1).U8(2).U8(3).U8(4));
  std::uint32_t value = 0xAABBCCDD;
  reader->read(value);
  EXPECT_EQ(value, 0xAA030201U);
}

TEST(BufferReader, ReadsNothingOutsideTheBlock) {
  ReaderOver reader(Bytes().U32(1).U32(2));
  for (const std::int64_t position : {8, 9, 1000, -1, -4}) {
    std::uint32_t value = 9;
    reader->setToPosition(position);
    reader->read(value);
    EXPECT_EQ(value, 9U) << "from " << position;
    EXPECT_FALSE(reader->isEnd()) << "at " << position;
    EXPECT_EQ(reader->Remaining(), 0U);
  }
}

TEST(BufferReader, IsBigEndianOnNoHost) {
  EXPECT_FALSE(isBigEndian());
}
TEST(Reader, LendsTheNextBytesAndMovesPastThem) {
  ReaderOver reader(Bytes().U8(1).U8(2).U8(3).U8(0));
  EXPECT_THAT(reader->TakeBytes(2), ElementsAre(1, 2));
  EXPECT_EQ(reader->getPosition(), 2);
}

TEST(Reader, LendsNoMoreBytesThanCanBeRead) {
  ReaderOver reader(Bytes().U8(1).U8(2).U8(3));
  EXPECT_THAT(reader->TakeBytes(0xFFFFFFFF), ElementsAre(1, 2));
  EXPECT_TRUE(reader->isEnd());
}

TEST(Reader, LendsNothingFromOutsideTheBlock) {
  ReaderOver reader(Bytes().U32(1));
  reader->setToPosition(1000);
  EXPECT_TRUE(reader->TakeBytes(1).empty());
  EXPECT_EQ(reader->getPosition(), 1000);
}

TEST(Reader, SharesOneBudgetAmongAllThatIsDecoded) {
  constexpr std::uint64_t kBudget = 8 * 10 + 16 * 1024 * 1024;
  ReaderOver reader(Bytes().Zeros(10));
  EXPECT_FALSE(reader->ClaimDecodedBytes(kBudget + 1));
  EXPECT_TRUE(reader->ClaimDecodedBytes(kBudget - 4));
  EXPECT_FALSE(reader->ClaimDecodedBytes(5));
  EXPECT_TRUE(reader->ClaimDecodedBytes(4));
  EXPECT_FALSE(reader->ClaimDecodedBytes(1));
}

TEST(Reader, DecodesLittleEndian) {
  ReaderOver reader(Bytes().U8(1).U8(2).U8(3).U8(4).U8(0xFF).U8(0xFF).U16(5).U8(0));
  std::uint32_t value = 0;
  Point16 point;
  reader->readAll(value, point);
  EXPECT_EQ(value, 0x04030201U);
  EXPECT_EQ(point.x, -1);
  EXPECT_EQ(point.y, 5);
}

TEST(Reader, ReadsFieldsInFileOrder) {
  ReaderOver reader(
      Bytes().I32(1).I32(-2).I32(3).I32(4).I32(5).I32(6).Rectangle(7, 8, -9, 10).U8(0));
  Point point;
  PointL pointL;
  SIZEL size;
  RectangleL rectangle;
  reader->readAll(point, pointL, size, rectangle);
  EXPECT_EQ(point.x, 1);
  EXPECT_EQ(point.y, -2);
  EXPECT_EQ(pointL.x, 3);
  EXPECT_EQ(pointL.y, 4);
  EXPECT_EQ(size.cx, 5);
  EXPECT_EQ(size.cy, 6);
  EXPECT_EQ(rectangle.left, 7);
  EXPECT_EQ(rectangle.top, 8);
  EXPECT_EQ(rectangle.right, -9);
  EXPECT_EQ(rectangle.bottom, 10);
}

TEST(Reader, ReadsATransformAsSixFloats) {
  ReaderOver reader(Bytes().F32(1.5F).F32(2).F32(-3).F32(4).F32(5).F32(6.25F).U8(0));
  XForm transform;
  reader->read(transform);
  EXPECT_EQ(transform.eM11, 1.5F);
  EXPECT_EQ(transform.eM12, 2);
  EXPECT_EQ(transform.eM21, -3);
  EXPECT_EQ(transform.eM22, 4);
  EXPECT_EQ(transform.eDx, 5);
  EXPECT_EQ(transform.eDy, 6.25F);
}

TEST(Reader, ReadsAStringIntoTheCallersMemory) {
  ReaderOver reader(Bytes().Utf16(u"ab").U8(0));
  std::array<std::uint16_t, 3> units = {0, 0, 0x7777};
  WcharString text{units.data(), 2};
  reader->read(text);
  EXPECT_EQ(units, (std::array<std::uint16_t, 3>{'a', 'b', 0x7777}));
}

TEST(Reader, ConsumesNothingForAStringWithoutLength) {
  for (const std::int32_t length : {0, -1}) {
    ReaderOver reader(Bytes().U32(0x01020304).U8(0));
    WcharString text{nullptr, length};
    reader->read(text);
    EXPECT_EQ(reader->getPosition(), 0);
  }
}

TEST(Reader, KeepsTheWholeElementsOfAListThatEndsEarly) {
  ReaderOver reader(Bytes().Point(1, 2).Point(3, 4).U8(9).U8(0));
  std::vector<Point16> points;
  reader->readList(points, 0x40000000);
  ASSERT_EQ(points.size(), 2U);
  EXPECT_EQ(points[1].x, 3);
}

TEST(Reader, IsAtItsEndAfterAListThatEndsInsideAnElement) {
  for (std::size_t left = 1; left < sizeof(PointL); ++left) {
    ReaderOver reader(Bytes().PointL(1, 2).Zeros(left).U8(0));
    std::vector<PointL> points;
    reader->readList(points, 2);
    EXPECT_EQ(points.size(), 1U);
    EXPECT_TRUE(reader->isEnd()) << left;
  }
}

TEST(Reader, LeavesWhatFollowsAListThatIsWhole) {
  ReaderOver reader(Bytes().PointL(1, 2).Zeros(5).U8(0));
  std::vector<PointL> points;
  reader->readList(points, 1);
  EXPECT_EQ(reader->getPosition(), 8);
}

/// What a check that expects `expected` bytes says after `consumed` were read.
struct Check {
  bool exact;
  std::int32_t difference;
};

Check CheckAfter(std::uint32_t consumed, std::uint32_t expected) {
  ReaderOver reader(Bytes().Zeros(32));
  reader->StartChecking();
  reader->setToPosition(consumed);
  const bool exact = reader->FinishChecking(expected);
  EXPECT_EQ(reader->getPosition(), consumed) << "the position stays";
  return {exact, reader->GetSizeDifference()};
}

TEST(ReaderChecks, TellWhetherExactlyTheExpectedBytesWereRead) {
  EXPECT_TRUE(CheckAfter(8, 8).exact);
  EXPECT_EQ(CheckAfter(8, 8).difference, 0);
  EXPECT_FALSE(CheckAfter(12, 8).exact);
  EXPECT_EQ(static_cast<std::uint32_t>(CheckAfter(12, 8).difference), 0xFFFFFFFCU);
  EXPECT_FALSE(CheckAfter(5, 8).exact);
  EXPECT_EQ(CheckAfter(5, 8).difference, 3);
}

TEST(ReaderChecks, Nest) {
  ReaderOver reader(Bytes().Zeros(32));
  reader->StartChecking();
  reader->setToPosition(4);
  reader->StartChecking();
  reader->setToPosition(10);
  EXPECT_TRUE(reader->FinishChecking(6));
  reader->setToPosition(12);
  EXPECT_TRUE(reader->FinishChecking(12));
}

}  // namespace
}  // namespace kelvane
