#include "classic/bitmap/dib.h"

#include <limits>
#include <numeric>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "classic/reader/reader.h"
#include "support/bytes.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::BitmapFields;
using test::Bytes;
using test::ReadStructure;
using testing::SizeIs;

struct DepthChange {
  std::uint32_t stored;
  std::uint16_t decoded;
};

class DIBDepth : public testing::TestWithParam<DepthChange> {};

TEST_P(DIBDepth, IsThatOfTheDecodedPixels) {
  const DIB dib = ReadStructure<DIB>(
      Bytes().BitmapHeader({.width = 2, .bitCount = GetParam().stored, .colorsUsed = 1}).Zeros(12));
  EXPECT_EQ(dib.header.biBitCount, GetParam().decoded);
}

INSTANTIATE_TEST_SUITE_P(All, DIBDepth,
                         testing::Values(DepthChange{4, 8}, DepthChange{8, 24}, DepthChange{16, 24},
                                         DepthChange{24, 24}, DepthChange{32, 24}));

TEST(DIB, HasTheSizeOfItsDecodedPixels) {
  const Bytes bytes = Bytes().BitmapHeader({.width = 3, .height = 2}).Zeros(24);
  DIB dib;
  dib.size = 7;
  EXPECT_EQ(ReadStructure<DIB>(bytes, dib).size, 24U);
}

TEST(DIB, KeepsTheSizeThatItsOwnerSetWhenItIsNotDecoded) {
  const Bytes bytes = Bytes().BitmapHeader({.bitCount = 1}).Zeros(64);
  DIB dib;
  dib.size = 7;
  EXPECT_EQ(ReadStructure<DIB>(bytes, dib).size, 7U);
}

TEST(DIB, OfNoRowsHasTheDecodedDepthButNoPixels) {
  const DIB dib = ReadStructure<DIB>(Bytes().BitmapHeader({.height = 0, .bitCount = 32}).Zeros(8));
  EXPECT_THAT(dib.data, SizeIs(0));
  EXPECT_EQ(dib.header.biBitCount, 24);
}

TEST(DIB, OfNoColumnsHasNoPixelsHoweverManyRowsItClaims) {
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  EXPECT_THAT(ReadStructure<DIB>(Bytes().BitmapHeader({.width = 0, .height = kMost}).Zeros(8)).data,
              SizeIs(0));
}

constexpr std::int32_t kTallest = std::numeric_limits<std::int32_t>::min();

class UndecodedDIB : public testing::TestWithParam<BitmapFields> {};

TEST_P(UndecodedDIB, HasNoPixelsAndKeepsItsStoredDepth) {
  const DIB dib = ReadStructure<DIB>(Bytes().BitmapHeader(GetParam()).Zeros(64));
  EXPECT_THAT(dib.data, SizeIs(0));
  EXPECT_EQ(dib.header.biBitCount, GetParam().bitCount);
}

INSTANTIATE_TEST_SUITE_P(OfUndecodedDepth, UndecodedDIB,
                         testing::Values(BitmapFields{.bitCount = 0}, BitmapFields{.bitCount = 1},
                                         BitmapFields{.bitCount = 2}, BitmapFields{.bitCount = 12},
                                         BitmapFields{.bitCount = 48},
                                         BitmapFields{.bitCount = 1, .compression = 3}));

INSTANTIATE_TEST_SUITE_P(OfUndecodedCompression, UndecodedDIB,
                         testing::Values(BitmapFields{.bitCount = 8, .compression = 1},
                                         BitmapFields{.bitCount = 4, .compression = 2},
                                         BitmapFields{.bitCount = 24, .compression = 4},
                                         BitmapFields{.bitCount = 24, .compression = 5},
                                         BitmapFields{.bitCount = 24, .compression = 0xFFFFFFFF}));

INSTANTIATE_TEST_SUITE_P(
    OfImpossibleSize, UndecodedDIB,
    testing::Values(BitmapFields{.width = -1}, BitmapFields{.width = kTallest, .bitCount = 4},
                    BitmapFields{.width = 0x7FFFFFFF, .height = 0x7FFFFFFF},
                    BitmapFields{.width = 0x7FFFFFFF, .height = kTallest, .bitCount = 32},
                    // 2^32 bytes and a few more, which at 32 bits would be few
                    BitmapFields{.width = 1, .height = 0x40000001},
                    BitmapFields{.width = 0x40000004, .height = 4, .bitCount = 4},
                    // far more than so few bytes may decode to
                    BitmapFields{.width = 4000, .height = 4000}));

TEST(DIB, IsKeptWithTheMissingBytesZero) {
  const DIB dib = ReadStructure<DIB>(Bytes().BitmapHeader({.width = 1000, .height = 1000}));
  EXPECT_THAT(dib.data, SizeIs(3000000));
  EXPECT_EQ(std::accumulate(dib.data.begin(), dib.data.end(), 0), 0);
}

TEST(DIB, SharesWhatMayBeDecodedWithTheOthersOfItsParse) {
  const BitmapFields nineMebibytes = {.width = 3072, .height = 1024};
  const Bytes bytes = Bytes().BitmapHeader(nineMebibytes).Zeros(1);
  Reader reader(bytes.Data().data(), static_cast<std::int32_t>(bytes.Size()));
  const auto readAgain = [&reader] {
    reader.setToPosition(0);
    DIB dib;
    dib.read(reader);
    return dib;
  };
  EXPECT_THAT(readAgain().data, SizeIs(9 << 20));
  EXPECT_THAT(readAgain().data, SizeIs(0));
}

/// How far a bitmap with 100 bytes behind its header is read.
std::int64_t BytesReadAfterHeader(const BitmapFields& fields) {
  const Bytes bytes = Bytes().BitmapHeader(fields).Zeros(100);
  Reader reader(bytes.Data().data(), static_cast<std::int32_t>(bytes.Size()));
  DIB dib;
  dib.read(reader);
  return reader.getPosition() - 40;
}

TEST(DIB, ReadsItsPixelsWithTheirPadding) {
  EXPECT_EQ(BytesReadAfterHeader({.width = 3, .height = 2, .bitCount = 24}), 2 * 12);
  EXPECT_EQ(BytesReadAfterHeader({.width = 3, .height = 2, .bitCount = 16}), 2 * 8);
  EXPECT_EQ(BytesReadAfterHeader({.width = 9, .height = 2, .bitCount = 4, .colorsUsed = 3}),
            3 * 4 + 2 * 4);
}

TEST(DIB, ReadsMasksBetweenItsTableAndItsPixels) {
  EXPECT_EQ(BytesReadAfterHeader({.bitCount = 16, .compression = 3, .colorsUsed = 2}), 8 + 12 + 4);
}

TEST(DIB, LeavesPixelsUnreadThatItDoesNotDecode) {
  EXPECT_EQ(BytesReadAfterHeader({.width = 8, .height = 8, .bitCount = 1}), 2 * 4);
  EXPECT_EQ(BytesReadAfterHeader({.width = 8, .bitCount = 8, .compression = 1, .colorsUsed = 5}),
            5 * 4);
  EXPECT_EQ(BytesReadAfterHeader({.width = -8}), 0);
}

}  // namespace
}  // namespace kelvane
