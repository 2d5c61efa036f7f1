#include "metafile/bmp_file.h"

#include <gtest/gtest.h>

#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using Pixels = std::vector<unsigned char>;

/// A file of one pixel that is 3, 2, 1. @param pixels  where they are said to begin.
Bytes FileWithPixelsAt(std::uint32_t pixels) {
  return Bytes().Each({'B', 'M'}).U32(0).U32(0).U32(pixels).BitmapHeader({}).Each({1, 2, 3, 0});
}

TEST(BmpFile, HasABitmapBehindItsHeader) {
  const Bytes file = FileWithPixelsAt(54);
  const auto bytes = ReadBmpFile(file.Data());
  ASSERT_TRUE(bytes);
  const auto dib = Dib::Read(*bytes);
  ASSERT_TRUE(dib);
  EXPECT_EQ(DecodeRgb(*dib, {0, 0, 1, 1}), (Pixels{3, 2, 1}));
}

TEST(BmpFile, BeginsWithItsTwoLetters) {
  Pixels file = FileWithPixelsAt(54).Data();
  file[1] = 'A';
  EXPECT_FALSE(ReadBmpFile(file));
}

TEST(BmpFile, HasItsPixelsWhereThereAreBytes) {
  const auto isThere = [](std::uint32_t pixels) {
    return ReadBmpFile(FileWithPixelsAt(pixels).Data()).has_value();
  };
  EXPECT_TRUE(isThere(58));
  EXPECT_FALSE(isThere(59));
  EXPECT_FALSE(isThere(0xFFFFFFFF));
  EXPECT_FALSE(isThere(13));
  EXPECT_FALSE(isThere(0));
}

TEST(BmpFile, IsNoneWhenItsHeaderIsCutOff) {
  const Pixels file = FileWithPixelsAt(14).Data();
  for (std::size_t size = 0; size < 14; ++size)
    EXPECT_FALSE(ReadBmpFile(std::span(file).first(size))) << size;
}

}  // namespace
}  // namespace kelvane
