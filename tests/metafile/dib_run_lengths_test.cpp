#include <gtest/gtest.h>

#include "metafile/dib.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using Numbers = std::vector<unsigned char>;

constexpr std::uint32_t kRle8 = 1;
constexpr std::uint32_t kRle4 = 2;

Bytes HeaderOf(std::uint32_t compression, std::int32_t width, std::int32_t height) {
  return Bytes().BitmapHeader({.width = width,
                               .height = height,
                               .bitCount = compression == kRle8 ? 8U : 4U,
                               .compression = compression});
}

/// The numbers of a bitmap's pixels as a picture, rows from the top; a dot where no code sets one.
std::string PictureOf(const Dib& dib, const PixelRectangle& part) {
  const IndexedPixels pixels = DecodeIndexes(dib, part);
  std::string picture;
  for (std::size_t i = 0; i < pixels.indexes.size(); ++i) {
    if (i != 0 && i % part.width == 0) picture += '/';
    const bool isSet = pixels.isSet.empty() || pixels.isSet[i] != 0;
    picture += isSet ? "0123456789ABCDEF"[pixels.indexes[i] & 0x0F] : '.';
  }
  return picture;
}

std::string PictureOf(std::uint32_t compression, std::int32_t width, std::int32_t height,
                      const Bytes& codes) {
  const Bytes header = HeaderOf(compression, width, height);
  const auto dib = Dib::Read({header.Data(), codes.Data()});
  return dib ? PictureOf(*dib, {0, 0, dib->Width(), dib->Height()}) : "none";
}

TEST(RunLengths, RepeatAByte) {
  EXPECT_EQ(PictureOf(kRle8, 5, 1, Bytes().Each({3, 7, 2, 1, 0, 1})), "77711");
}

TEST(RunLengths, OfFourBitsRepeatTwoNumbersInTurn) {
  EXPECT_EQ(PictureOf(kRle4, 7, 1, Bytes().Each({5, 0x1A, 2, 0xF0, 0, 1})), "1A1A1F0");
}

TEST(RunLengths, LeadFromTheLowestRowUp) {
  EXPECT_EQ(PictureOf(kRle8, 2, 2, Bytes().Each({2, 1, 0, 0, 2, 2, 0, 1})), "22/11");
}

// Three bytes and one that fills up the word; five numbers take three bytes as well.
TEST(RunLengths, HaveLiteralsThatFillWords) {
  EXPECT_EQ(PictureOf(kRle8, 5, 1, Bytes().Each({0, 3, 1, 2, 3, 99, 2, 4})), "12344");
  EXPECT_EQ(PictureOf(kRle8, 5, 1, Bytes().Each({0, 4, 1, 2, 3, 4, 1, 5})), "12345");
  EXPECT_EQ(PictureOf(kRle4, 6, 1, Bytes().Each({0, 5, 0x12, 0x34, 0x56, 0x99, 1, 0x70})),
            "123457");
  EXPECT_EQ(PictureOf(kRle4, 8, 1, Bytes().Each({0, 7, 0x12, 0x34, 0x56, 0x78, 1, 0x90})),
            "12345679");
}

TEST(RunLengths, MoveToTheRightAndUp) {
  EXPECT_EQ(PictureOf(kRle8, 4, 3, Bytes().Each({1, 1, 0, 2, 1, 2, 2, 5, 0, 1})), "..55/..../1...");
}

TEST(RunLengths, MoveBeyondTheBitmapAndEnd) {
  EXPECT_EQ(PictureOf(kRle8, 2, 2, Bytes().Each({1, 1, 0, 2, 9, 0, 1, 3, 0, 0, 1, 2})), "2./1.");
  EXPECT_EQ(PictureOf(kRle8, 2, 2, Bytes().Each({1, 1, 0, 2, 0, 9, 1, 3})), "../1.");
}

TEST(RunLengths, EndTheirRowEarly) {
  EXPECT_EQ(PictureOf(kRle8, 3, 2, Bytes().Each({1, 4, 0, 0, 3, 5, 0, 1})), "555/4..");
}

TEST(RunLengths, AreCutAtTheEndOfTheirRow) {
  EXPECT_EQ(PictureOf(kRle8, 2, 2, Bytes().Each({255, 4, 1, 9, 0, 0, 0, 3, 1, 2, 3, 0})), "12/44");
}

TEST(RunLengths, StopAboveTheHighestRow) {
  EXPECT_EQ(PictureOf(kRle8, 1, 1, Bytes().Each({1, 4, 0, 0, 1, 9})), "4");
}

TEST(RunLengths, StopAtTheEndOfTheBitmap) {
  EXPECT_EQ(PictureOf(kRle8, 2, 1, Bytes().Each({1, 4, 0, 1, 1, 9})), "4.");
}

TEST(RunLengths, MayEndAnywhere) {
  const std::vector<unsigned char> codes =
      Bytes().Each({2, 6, 0, 3, 1, 2, 3, 0, 0, 0, 0, 2, 1, 0, 1, 8}).Data();
  const Bytes header = HeaderOf(kRle8, 5, 2);
  const struct {
    std::size_t size;
    const char* picture;
  } rows[] = {
      {0, "...../....."},  {1, "...../....."},  {2, "...../66..."},  {3, "...../66..."},
      {4, "...../66..."},  {5, "...../661.."},  {6, "...../6612."},  {7, "...../66123"},
      {8, "...../66123"},  {9, "...../66123"},  {12, "...../66123"}, {13, "...../66123"},
      {15, "...../66123"}, {16, ".8.../66123"},
  };
  for (const auto& [size, picture] : rows) {
    const auto dib = Dib::Read({header.Data(), std::span(codes).first(size)});
    ASSERT_TRUE(dib) << size;
    EXPECT_EQ(PictureOf(*dib, {0, 0, 5, 2}), picture) << size;
  }
}

TEST(RunLengths, GiveAPartOfThePicture) {
  const Bytes header = HeaderOf(kRle8, 4, 4);
  const Bytes codes = Bytes()
                          .Each({4, 1, 0, 0, 0, 4, 2, 3, 4, 5, 0, 0})
                          .Each({1, 6, 0, 2, 1, 0, 2, 7, 0, 0, 4, 8, 0, 1});
  const auto dib = Dib::Read({header.Data(), codes.Data()});
  ASSERT_TRUE(dib);
  EXPECT_EQ(PictureOf(*dib, {0, 0, 4, 4}), "8888/6.77/2345/1111");
  EXPECT_EQ(PictureOf(*dib, {1, 1, 2, 2}), ".7/34");
  EXPECT_EQ(PictureOf(*dib, {3, 2, 1, 2}), "5/1");
}

TEST(RunLengths, SayWhichPixelsAreSetOnlyWhenSomeAreNot) {
  const Bytes header = HeaderOf(kRle8, 2, 1);
  const Bytes whole = Bytes().Each({2, 0});
  const auto dib = Dib::Read({header.Data(), whole.Data()});
  EXPECT_TRUE(DecodeIndexes(*dib, {0, 0, 2, 1}).isSet.empty());
  const Bytes half = Bytes().Each({1, 0});
  const auto gap = Dib::Read({header.Data(), half.Data()});
  EXPECT_EQ(DecodeIndexes(*gap, {0, 0, 2, 1}).isSet, (Numbers{1, 0}));
}

TEST(RunLengths, ShowColorZeroWhereNothingIsSet) {
  const Bytes header = HeaderOf(kRle8, 2, 1).Color(1, 2, 3).Color(4, 5, 6);
  const Bytes codes = Bytes().Each({1, 1});
  const auto dib = Dib::Read({header.Data(), codes.Data()});
  EXPECT_EQ(DecodeRgb(*dib, {0, 0, 2, 1}), (Numbers{4, 5, 6, 1, 2, 3}));
}

TEST(RunLengths, AreNeverOfRowsStoredTopFirst) {
  EXPECT_EQ(PictureOf(kRle8, 1, -1, Bytes().Each({1, 1})), "none");
  EXPECT_EQ(PictureOf(kRle4, 1, -1, Bytes().Each({1, 1})), "none");
}

TEST(RunLengths, AreOfFourOrEightBitsAsTheySay) {
  const Bytes codes = Bytes().Each({1, 1});
  for (const std::uint32_t bitCount : {1U, 4U, 8U, 16U, 24U, 32U}) {
    const Bytes eight = Bytes().BitmapHeader({.bitCount = bitCount, .compression = kRle8});
    EXPECT_EQ(Dib::Read({eight.Data(), codes.Data()}).has_value(), bitCount == 8) << bitCount;
    const Bytes four = Bytes().BitmapHeader({.bitCount = bitCount, .compression = kRle4});
    EXPECT_EQ(Dib::Read({four.Data(), codes.Data()}).has_value(), bitCount == 4) << bitCount;
  }
}

// Two codes in a bitmap of 2^62 pixels: only the part takes memory.
TEST(RunLengths, MayPromiseAnySize) {
  const Bytes header = HeaderOf(kRle8, 0x7FFFFFFF, 0x7FFFFFFF);
  const Bytes codes = Bytes().Each({2, 5, 0, 2, 255, 255, 1, 6});
  const auto dib = Dib::Read({header.Data(), codes.Data()});
  ASSERT_TRUE(dib);
  EXPECT_TRUE(dib->IsCompressed());
  EXPECT_EQ(PictureOf(*dib, {0, 0x7FFFFFFE, 3, 1}), "55.");
  EXPECT_EQ(PictureOf(*dib, {256, 0x7FFFFFFE - 255, 3, 1}), ".6.");
  EXPECT_EQ(PictureOf(*dib, {0x7FFFFFFD, 0, 2, 1}), "..");
}

}  // namespace
}  // namespace kelvane
