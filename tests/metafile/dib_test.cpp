#include "metafile/dib.h"

#include <gtest/gtest.h>

#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using Channels = std::vector<unsigned char>;

constexpr std::uint32_t kBitFields = 3;

std::optional<Dib> Read(const Bytes& header, const Bytes& pixels) {
  return Dib::Read({header.Data(), pixels.Data()});
}

PixelRectangle Whole(const Dib& dib) {
  return {0, 0, dib.Width(), dib.Height()};
}

Channels Decoded(const Bytes& header, const Bytes& pixels) {
  const auto dib = Read(header, pixels);
  if (!dib) return {};
  return DecodeRgb(*dib, Whole(*dib)).value_or(Channels());
}

TEST(Dib, HasOneBitAPixelFromTheHighestOn) {
  const Bytes header =
      Bytes().BitmapHeader({.width = 9, .height = 1, .bitCount = 1}).Color(1, 2, 3).Color(9, 8, 7);
  EXPECT_EQ(
      Decoded(header, Bytes().Each({0x82, 0x80, 0, 0})),
      (Channels{9, 8, 7, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3, 9, 8, 7, 1, 2, 3, 9, 8, 7}));
}

TEST(Dib, HasFourBitsAPixelTheHigherHalfFirst) {
  Bytes header = Bytes().BitmapHeader({.width = 3, .height = 1, .bitCount = 4});
  for (unsigned i = 0; i < 16; ++i)
    header.Color(i, 0, 0);
  EXPECT_EQ(Decoded(header, Bytes().Each({0x1F, 0x70, 0, 0})),
            (Channels{1, 0, 0, 15, 0, 0, 7, 0, 0}));
}

TEST(Dib, HasAByteAPixel) {
  Bytes header = Bytes().BitmapHeader({.width = 2, .height = 1, .bitCount = 8});
  for (unsigned i = 0; i < 256; ++i)
    header.Color(0, i, 0);
  EXPECT_EQ(Decoded(header, Bytes().Each({255, 2, 0, 0})), (Channels{0, 255, 0, 0, 2, 0}));
}

// 5 bits each: red 31, green 1, blue 0.
TEST(Dib, HasFiveBitsAChannelOfSixteen) {
  const Bytes header = Bytes().BitmapHeader({.width = 2, .height = 1, .bitCount = 16});
  EXPECT_EQ(Decoded(header, Bytes().U16(0x7C20).U16(0x801F)), (Channels{255, 8, 0, 0, 0, 255}));
}

// 3 of 31 is nearer to 25 of 255, and 24 to 197.
TEST(Dib, RepeatsTheBitsOfAChannelAsWindowsDoes) {
  const Bytes header = Bytes().BitmapHeader({.width = 2, .height = 1, .bitCount = 16});
  EXPECT_EQ(Decoded(header, Bytes().U16(3).U16(24)), (Channels{0, 0, 24, 0, 0, 198}));
}

TEST(Dib, HasTheMasksBehindItsHeader) {
  const Bytes header =
      Bytes()
          .BitmapHeader({.width = 2, .height = 1, .bitCount = 16, .compression = kBitFields})
          .U32(0xF800)
          .U32(0x07E0)
          .U32(0x001F);
  EXPECT_EQ(Decoded(header, Bytes().U16(0xF800).U16(0x07E0)), (Channels{255, 0, 0, 0, 255, 0}));
}

TEST(Dib, HasTheMasksWithinALongHeader) {
  Bytes header = Bytes().U32(108).I32(1).I32(1).U16(1).U16(32).U32(kBitFields).Zeros(20);
  header.U32(0x000000FF).U32(0x0000FF00).U32(0x00FF0000).Zeros(108 - 52);
  EXPECT_EQ(Decoded(header, Bytes().Each({1, 2, 3, 4})), (Channels{1, 2, 3}));
}

TEST(Dib, HasItsColorsBehindALongHeader) {
  Bytes header = Bytes().U32(108).I32(1).I32(1).U16(1).U16(1).U32(0).Zeros(108 - 20);
  header.Color(1, 2, 3).Color(4, 5, 6);
  EXPECT_EQ(Decoded(header, Bytes().Each({0x80, 0, 0, 0})), (Channels{4, 5, 6}));
}

TEST(Dib, IsBlackInAChannelWithoutAMask) {
  const Bytes header =
      Bytes()
          .BitmapHeader({.width = 1, .height = 1, .bitCount = 32, .compression = kBitFields})
          .U32(0xFF)
          .U32(0)
          .U32(0x80000000);
  EXPECT_EQ(Decoded(header, Bytes().U32(0xFFFFFFFF)), (Channels{255, 0, 255}));
}

TEST(Dib, StoresBlueFirstInThreeBytes) {
  const Bytes header = Bytes().BitmapHeader({.width = 1, .height = 1, .bitCount = 24});
  EXPECT_EQ(Decoded(header, Bytes().Each({1, 2, 3, 0})), (Channels{3, 2, 1}));
}

TEST(Dib, PassesOverTheFourthByteOfAPixel) {
  const Bytes header = Bytes().BitmapHeader({.width = 2, .height = 1, .bitCount = 32});
  EXPECT_EQ(Decoded(header, Bytes().Each({1, 2, 3, 4, 5, 6, 7, 8})), (Channels{3, 2, 1, 7, 6, 5}));
}

TEST(Dib, StoresItsLowestRowFirst) {
  const Bytes header = Bytes().BitmapHeader({.width = 1, .height = 2, .bitCount = 24});
  EXPECT_EQ(Decoded(header, Bytes().Each({1, 1, 1, 0, 2, 2, 2, 0})), (Channels{2, 2, 2, 1, 1, 1}));
}

TEST(Dib, StoresItsHighestRowFirstWithAHeightBelowZero) {
  const Bytes header = Bytes().BitmapHeader({.width = 1, .height = -2, .bitCount = 24});
  EXPECT_EQ(Decoded(header, Bytes().Each({1, 1, 1, 0, 2, 2, 2, 0})), (Channels{1, 1, 1, 2, 2, 2}));
}

TEST(Dib, HasThreeBytesAColorBehindAnOldHeader) {
  const Bytes header = Bytes().U32(12).U16(2).U16(1).U16(1).U16(1).Each({1, 2, 3}).Each({4, 5, 6});
  EXPECT_EQ(Decoded(header, Bytes().Each({0x40, 0, 0, 0})), (Channels{3, 2, 1, 6, 5, 4}));
}

TEST(Dib, IsBlackBeyondItsColors) {
  const Bytes header = Bytes()
                           .BitmapHeader({.width = 2, .height = 1, .bitCount = 8, .colorsUsed = 1})
                           .Color(9, 9, 9)
                           .Color(7, 7, 7);
  EXPECT_EQ(Decoded(header, Bytes().Each({0, 1, 0, 0})), (Channels{9, 9, 9, 0, 0, 0}));
}

TEST(Dib, NumbersTheColorsOfAPalette) {
  const Bytes header = Bytes().BitmapHeader({.width = 3, .height = 1, .bitCount = 1}).U16(1).U16(7);
  const Bytes pixels = Bytes().Each({0x40, 0, 0, 0});
  const std::vector<DibColor> palette = {{1, 2, 3}, {4, 5, 6}};
  const auto dib = Dib::Read({header.Data(), pixels.Data(), DIB_PAL_COLORS}, palette);
  ASSERT_TRUE(dib);
  EXPECT_EQ(DecodeRgb(*dib, Whole(*dib)), (Channels{4, 5, 6, 1, 2, 3, 4, 5, 6}));
}

TEST(Dib, HasPixelsThatNumberTheColorsOfAPalette) {
  const Bytes header = Bytes().BitmapHeader({.width = 3, .height = 1, .bitCount = 4});
  const Bytes pixels = Bytes().Each({0x10, 0xF0, 0, 0});
  const std::vector<DibColor> palette = {{1, 2, 3}, {4, 5, 6}};
  const auto dib = Dib::Read({header.Data(), pixels.Data(), DIB_PAL_INDICES}, palette);
  ASSERT_TRUE(dib);
  EXPECT_EQ(DecodeRgb(*dib, Whole(*dib)), (Channels{4, 5, 6, 1, 2, 3, 1, 2, 3}));
}

TEST(Dib, IsNoneWithoutAllOfItsPixels) {
  const Bytes header = Bytes().BitmapHeader({.width = 1, .height = 2, .bitCount = 24});
  EXPECT_TRUE(Read(header, Bytes().Zeros(7)));  // the last row has nothing to fill it up
  EXPECT_FALSE(Read(header, Bytes().Zeros(6)));
  const Bytes huge = Bytes().BitmapHeader({.width = 0x7FFFFFFF, .height = 0x7FFFFFFF});
  EXPECT_FALSE(Read(huge, Bytes().Zeros(64)));
}

TEST(Dib, IsNoneWithoutAWholeHeader) {
  const Bytes header = Bytes().BitmapHeader({.width = 1, .height = 1, .bitCount = 24});
  const Bytes pixels = Bytes().Zeros(64);
  for (std::size_t size = 0; size < 40; ++size)
    EXPECT_FALSE(Dib::Read({std::span(header.Data()).first(size), pixels.Data()})) << size;
}

TEST(Dib, IsNoneWithoutASize) {
  const Bytes pixels = Bytes().Zeros(64);
  for (const auto& [width, height] : {std::pair(0, 1), std::pair(-1, 1), std::pair(1, 0)}) {
    const Bytes header = Bytes().BitmapHeader({.width = width, .height = height});
    EXPECT_FALSE(Read(header, pixels)) << width << ' ' << height;
  }
}

TEST(Dib, IsNoneInADepthOrCompressionThatIsNotKnown) {
  const Bytes pixels = Bytes().Zeros(64);
  for (const std::uint32_t depth : {0U, 2U, 3U, 15U, 31U, 64U}) {
    const Bytes header = Bytes().BitmapHeader({.bitCount = depth});
    EXPECT_FALSE(Read(header, pixels)) << depth;
  }
  for (const std::uint32_t compression : {2U, 4U, 5U, 11U, 12U}) {
    const Bytes header = Bytes().BitmapHeader({.bitCount = 8, .compression = compression});
    EXPECT_FALSE(Read(header, pixels)) << compression;
  }
}

}  // namespace
}  // namespace kelvane
