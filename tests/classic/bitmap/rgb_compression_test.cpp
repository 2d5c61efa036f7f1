#include "classic/bitmap/rgb_compression.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "classic/bitmap/dib.h"
#include "support/bytes.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::ReadStructure;
using testing::ElementsAre;
using testing::ElementsAreArray;

// Two rows of two pixels, as stored: blue, green, red, and two bytes of padding.
Bytes& TwoRows(Bytes& bytes) {
  return bytes.Each({3, 2, 1, 6, 5, 4, 0xEE, 0xEE}).Each({9, 8, 7, 12, 11, 10, 0xEE, 0xEE});
}

TEST(RGBCompression, PutsTheLastStoredRowOnTop) {
  Bytes bytes = Bytes().BitmapHeader({.width = 2, .height = 2});
  const DIB dib = ReadStructure<DIB>(TwoRows(bytes));
  EXPECT_THAT(dib.data, ElementsAre(7, 8, 9, 10, 11, 12, 0, 0, 1, 2, 3, 4, 5, 6, 0, 0));
}

TEST(RGBCompression, LeavesRowsStoredTopFirstInTheirOrder) {
  Bytes bytes = Bytes().BitmapHeader({.width = 2, .height = -2});
  const DIB dib = ReadStructure<DIB>(TwoRows(bytes));
  EXPECT_THAT(dib.data, ElementsAre(1, 2, 3, 4, 5, 6, 0, 0, 7, 8, 9, 10, 11, 12, 0, 0));
}

TEST(RGBCompression, KeepsTheMiddleRowOfAnOddNumberInPlace) {
  const DIB dib = ReadStructure<DIB>(Bytes()
                                         .BitmapHeader({.width = 1, .height = 3, .bitCount = 32})
                                         .Each({3, 2, 1, 0})
                                         .Each({6, 5, 4, 0})
                                         .Each({9, 8, 7, 0}));
  EXPECT_THAT(dib.data, ElementsAre(7, 8, 9, 0, 4, 5, 6, 0, 1, 2, 3, 0));
}

struct Color16 {
  std::uint32_t stored;
  std::vector<unsigned char> decoded;
};

class RGBCompression16 : public testing::TestWithParam<Color16> {};

TEST_P(RGBCompression16, IsFiveBitsAChannelWithTheLowBitsZero) {
  const DIB dib =
      ReadStructure<DIB>(Bytes().BitmapHeader({.bitCount = 16}).U16(GetParam().stored).U16(0));
  EXPECT_THAT(dib.data, ElementsAreArray(GetParam().decoded));
}

TEST_P(RGBCompression16, DoesNotFollowTheMasks) {
  const DIB dib = ReadStructure<DIB>(Bytes()
                                         .BitmapHeader({.bitCount = 16, .compression = 3})
                                         .U32(0xF800)
                                         .U32(0x07E0)
                                         .U32(0x001F)
                                         .U16(GetParam().stored)
                                         .U16(0));
  EXPECT_THAT(dib.data, ElementsAreArray(GetParam().decoded));
}

INSTANTIATE_TEST_SUITE_P(
    Colors, RGBCompression16,
    testing::Values(Color16{0x001F, {0, 0, 248, 0}}, Color16{0x03E0, {0, 248, 0, 0}},
                    Color16{0x7C00, {248, 0, 0, 0}}, Color16{0x7FFF, {248, 248, 248, 0}},
                    Color16{0x8000, {0, 0, 0, 0}}, Color16{0x0421, {8, 8, 8, 0}}));

TEST(RGBCompression, DropsTheFourthByteOf32Bits) {
  const DIB dib = ReadStructure<DIB>(
      Bytes().BitmapHeader({.width = 2, .bitCount = 32}).U32(0xAA010203).U32(0x55040506));
  EXPECT_THAT(dib.data, ElementsAre(1, 2, 3, 4, 5, 6, 0, 0));
}

TEST(RGBCompression, Reads32BitsAsBlueGreenRedWhateverTheMasks) {
  const DIB dib = ReadStructure<DIB>(Bytes()
                                         .BitmapHeader({.bitCount = 32, .compression = 3})
                                         .U32(0x000000FF)
                                         .U32(0x0000FF00)
                                         .U32(0x00FF0000)
                                         .U32(0x00010203));
  EXPECT_THAT(dib.data, ElementsAre(1, 2, 3, 0));
}

TEST(RGBCompression, LooksUp8BitsInTheTable) {
  const DIB dib = ReadStructure<DIB>(Bytes()
                                         .BitmapHeader({.width = 2, .bitCount = 8, .colorsUsed = 2})
                                         .Color(1, 2, 3)
                                         .Color(4, 5, 6)
                                         .Each({1, 0, 0xEE, 0xEE}));
  EXPECT_THAT(dib.data, ElementsAre(4, 5, 6, 1, 2, 3, 0, 0));
}

TEST(RGBCompression, Finds8BitPixelsBehind256ColorsWhenNoCountIsStored) {
  Bytes bytes = Bytes().BitmapHeader({.bitCount = 8});
  for (std::uint32_t i = 0; i < 256; ++i)
    bytes.Color(i, 0, 255 - i);
  const DIB dib = ReadStructure<DIB>(bytes.Each({200, 0, 0, 0}));
  EXPECT_THAT(dib.data, ElementsAre(200, 0, 55, 0));
}

Bytes FourBits(std::int32_t width, std::int32_t height) {
  return Bytes()
      .BitmapHeader({.width = width, .height = height, .bitCount = 4, .colorsUsed = 3})
      .Color(90, 91, 10)
      .Color(92, 93, 20)
      .Color(94, 95, 30);
}

TEST(RGBCompression, TakesTheBlueOf4BitColorsHighNibbleFirst) {
  const DIB dib = ReadStructure<DIB>(FourBits(4, 1).Each({0x01, 0x20, 0, 0}));
  EXPECT_THAT(dib.data, ElementsAre(10, 20, 30, 10));
}

TEST(RGBCompression, LeavesOutTheLastOfAnOddNumberOf4BitPixels) {
  const DIB dib =
      ReadStructure<DIB>(FourBits(3, -2).Each({0x12, 0x11, 0, 0}).Each({0x20, 0x11, 0, 0}));
  EXPECT_THAT(dib.data, ElementsAre(20, 30, 0, 0, 30, 10, 0, 0));
}

TEST(RGBCompression, TakesRowsOf4BitPixelsForAsLongAsTheirWholeBytes) {
  const DIB dib =
      ReadStructure<DIB>(FourBits(9, -2).Each({0x00, 0x00, 0x00, 0x00, 0x11, 0x11, 0x22, 0x22}));
  EXPECT_THAT(dib.data, ElementsAre(10, 10, 10, 10, 10, 10, 10, 10, 0, 0, 0, 0,  //
                                    20, 20, 20, 20, 30, 30, 30, 30, 0, 0, 0, 0));
}

TEST(RGBCompression, DecodesIndexesBeyondTheTableAsBlack) {
  EXPECT_THAT(ReadStructure<DIB>(FourBits(4, 1).Each({0x03, 0xF1, 0, 0})).data,
              ElementsAre(10, 0, 0, 20));
  EXPECT_THAT(ReadStructure<DIB>(Bytes()
                                     .BitmapHeader({.width = 2, .bitCount = 8, .colorsUsed = 1})
                                     .Color(1, 2, 3)
                                     .Each({1, 0, 0, 0}))
                  .data,
              ElementsAre(0, 0, 0, 1, 2, 3, 0, 0));
}

TEST(RGBCompression, LeavesThePixelsZeroThatTheDataDoesNotSupply) {
  const DIB dib = ReadStructure<DIB>(
      Bytes()
          .BitmapHeader({.width = 2, .height = 2, .bitCount = 8, .colorsUsed = 1})
          .Color(1, 2, 3)
          .Each({0, 0, 0xEE, 0xEE, 0}));
  EXPECT_THAT(dib.data, ElementsAre(1, 2, 3, 0, 0, 0, 0, 0, 1, 2, 3, 1, 2, 3, 0, 0));
}

struct CutShort {
  std::uint32_t bitCount;
  std::vector<unsigned char> decoded;
};

class RGBCompressionCutShort : public testing::TestWithParam<CutShort> {};

TEST_P(RGBCompressionCutShort, KeepsTheBytesOfAPixelThatAreThere) {
  const DIB dib =
      ReadStructure<DIB>(Bytes().BitmapHeader({.bitCount = GetParam().bitCount}).U8(0x1F));
  EXPECT_THAT(dib.data, ElementsAreArray(GetParam().decoded));
}

INSTANTIATE_TEST_SUITE_P(ByDepth, RGBCompressionCutShort,
                         testing::Values(CutShort{16, {0, 0, 248, 0}}, CutShort{24, {0, 0, 31, 0}},
                                         CutShort{32, {0, 0, 31, 0}}));

}  // namespace
}  // namespace kelvane
