#include "classic/bitmap/bitmap_info_header.h"

#include <limits>

#include <gtest/gtest.h>

#include "support/bytes.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::ReadStructure;

TEST(BitMapInfoHeader, ReadsItsFieldsInFileOrder) {
  const auto header = ReadStructure<BitMapInfoHeader>(
      Bytes().U32(40).I32(2).I32(3).U16(4).U16(24).U32(6).U32(7).I32(-8).I32(-9).U32(10).U32(11));
  EXPECT_EQ(header.biSize, 40U);
  EXPECT_EQ(header.biWidth, 2);
  EXPECT_EQ(header.biHeight, 3);
  EXPECT_EQ(header.biPlanes, 4);
  EXPECT_EQ(header.biBitCount, 24);
  EXPECT_EQ(header.biCompression, 6U);
  EXPECT_EQ(header.biSizeImage, 7U);
  EXPECT_EQ(header.biXPelsPerMeter, -8);
  EXPECT_EQ(header.biYPelsPerMeter, -9);
  EXPECT_EQ(header.biClrUsed, 10U);
  EXPECT_EQ(header.biClrImportant, 11U);
  EXPECT_FALSE(header.topDown);
}

TEST(BitMapInfoHeader, TakesANegativeHeightForRowsStoredTopFirst) {
  const auto header = ReadStructure<BitMapInfoHeader>(Bytes().BitmapHeader({.height = -3}));
  EXPECT_EQ(header.biHeight, 3);
  EXPECT_TRUE(header.topDown);
}

TEST(BitMapInfoHeader, KeepsTheHeightThatHasNoAbsoluteValue) {
  constexpr auto kLowest = std::numeric_limits<std::int32_t>::min();
  EXPECT_EQ(ReadStructure<BitMapInfoHeader>(Bytes().BitmapHeader({.height = kLowest})).biHeight,
            kLowest);
}

struct ColorCount {
  std::uint32_t bitCount;
  std::uint32_t stored;
  std::uint32_t expected;
};

class BitMapInfoHeaderColors : public testing::TestWithParam<ColorCount> {};

TEST_P(BitMapInfoHeaderColors, AreTheFullTableWhereOneIsNeededAndNoCountIsStored) {
  const auto header = ReadStructure<BitMapInfoHeader>(
      Bytes().BitmapHeader({.bitCount = GetParam().bitCount, .colorsUsed = GetParam().stored}));
  EXPECT_EQ(header.biClrUsed, GetParam().expected);
}

INSTANTIATE_TEST_SUITE_P(ByDepth, BitMapInfoHeaderColors,
                         testing::Values(ColorCount{1, 0, 2}, ColorCount{4, 0, 16},
                                         ColorCount{8, 0, 256}, ColorCount{8, 5, 5},
                                         ColorCount{15, 0, 32768}, ColorCount{16, 0, 0},
                                         ColorCount{24, 0, 0}, ColorCount{32, 7, 7}));

TEST(BitMapInfoHeader, CountsTheFullTableAsImportant) {
  EXPECT_EQ(ReadStructure<BitMapInfoHeader>(Bytes().BitmapHeader({.bitCount = 4})).biClrImportant,
            16U);
}

}  // namespace
}  // namespace kelvane
