#include "support/tiff.h"

#include <array>
#include <initializer_list>

#include <gtest/gtest.h>

#include "metafile/tiff_decoder.h"

namespace kelvane {
namespace {

using Pixels = std::vector<unsigned char>;
using test::TiffFields;
using test::TiffFile;

constexpr std::uint32_t kPackBits = 32773;
constexpr std::uint32_t kWebp = 50001;

/// @return a picture of 3 by 2 pixels, of which the red tells which is which in the file.
Pixels Numbered(std::uint32_t orientation) {
  return TiffFile({.width = 3, .height = 2, .orientation = orientation},
                  {1, 0, 0, 2, 0, 0, 3, 0, 0, 4, 0, 0, 5, 0, 0, 6, 0, 0});
}

/// @return the numbers of pixels, row by row.
Pixels NumbersOf(const Pixels& file) {
  Pixels numbers;
  const Pixels rgba = DecodeTiffWithAlpha(file).value_or(Pixels());
  for (std::size_t i = 0; i < rgba.size(); i += 4)
    numbers.push_back(rgba[i]);
  return numbers;
}

TEST(Tiff, HasColorsAndNoTransparency) {
  const Pixels file = TiffFile({.width = 2}, {1, 2, 3, 4, 5, 6});
  const auto header = ReadTiffHeader(file);
  ASSERT_TRUE(header);
  EXPECT_EQ(header->width, 2U);
  EXPECT_EQ(header->height, 1U);
  EXPECT_EQ(DecodeTiffWithAlpha(file), (Pixels{1, 2, 3, 255, 4, 5, 6, 255}));
}

TEST(Tiff, KeepsItsAlphaApart) {
  EXPECT_EQ(DecodeTiffWithAlpha(TiffFile({.width = 2, .samples = 4}, {255, 0, 0, 51, 9, 9, 9, 0})),
            (Pixels{255, 0, 0, 51, 0, 0, 0, 0}));
}

TEST(Tiff, MayBePackedInRuns) {
  constexpr unsigned char kTwice = 0xFF;
  const Pixels runs = {2, 1, 2, 3, kTwice, 7, 0, 8};
  EXPECT_EQ(DecodeTiffWithAlpha(TiffFile({.width = 2, .compression = kPackBits}, runs)),
            (Pixels{1, 2, 3, 255, 7, 7, 8, 255}));
}

TEST(Tiff, IsSeenFromTheCornerItNames) {
  EXPECT_EQ(NumbersOf(Numbered(1)), (Pixels{1, 2, 3, 4, 5, 6}));
  EXPECT_EQ(NumbersOf(Numbered(2)), (Pixels{3, 2, 1, 6, 5, 4}));
  EXPECT_EQ(NumbersOf(Numbered(3)), (Pixels{6, 5, 4, 3, 2, 1}));
  EXPECT_EQ(NumbersOf(Numbered(4)), (Pixels{4, 5, 6, 1, 2, 3}));
}

TEST(Tiff, MayHaveColumnsForRows) {
  for (const std::uint32_t orientation : {5U, 6U, 7U, 8U}) {
    const auto header = ReadTiffHeader(Numbered(orientation));
    ASSERT_TRUE(header) << orientation;
    EXPECT_EQ(header->width, 2U) << orientation;
    EXPECT_EQ(header->height, 3U) << orientation;
  }
  EXPECT_EQ(NumbersOf(Numbered(5)), (Pixels{1, 4, 2, 5, 3, 6}));
  EXPECT_EQ(NumbersOf(Numbered(6)), (Pixels{4, 1, 5, 2, 6, 3}));
  EXPECT_EQ(NumbersOf(Numbered(7)), (Pixels{6, 3, 5, 2, 4, 1}));
  EXPECT_EQ(NumbersOf(Numbered(8)), (Pixels{3, 6, 2, 5, 1, 4}));
}

TEST(Tiff, SaysWhatDecodingGoesThrough) {
  const auto bytesOf = [](const TiffFields& fields, const Pixels& pixels) {
    return ReadTiffHeader(TiffFile(fields, pixels)).value_or(TiffHeader()).bytesToDecode;
  };
  EXPECT_EQ(bytesOf({.width = 2}, Pixels(6)), 12U);
  EXPECT_EQ(bytesOf({.tileSide = 1U << 12}, {1, 2, 3}), (3U << 24) + 3);
}

TEST(Tiff, IsNoneWithoutASize) {
  EXPECT_FALSE(ReadTiffHeader(TiffFile({.width = 0}, {1, 2, 3})));
  EXPECT_FALSE(ReadTiffHeader(TiffFile({.height = 0}, {1, 2, 3})));
  EXPECT_FALSE(ReadTiffHeader(TiffFile({.tileSide = 0xFFFFFFF0}, {1, 2, 3})));
}

TEST(Tiff, IsNoneCompressedAsWindowsDoesNot) {
  EXPECT_FALSE(ReadTiffHeader(TiffFile({.compression = kWebp}, {1, 2, 3})));
}

TEST(Tiff, IsNoneWhenItIsCutOff) {
  const Pixels whole = TiffFile({.width = 2}, {1, 2, 3, 4, 5, 6});
  constexpr std::size_t kFields = 10 + 10 * 12;
  for (std::size_t size = 0; size < kFields; ++size)
    EXPECT_FALSE(DecodeTiffWithAlpha(std::span(whole).first(size))) << size;
}

// Pictures are small here: whoever decodes has found reasonable what the header says.
TEST(Tiff, IsReadPastItsDamage) {
  const Pixels whole = TiffFile({.width = 2, .compression = kPackBits}, {5, 1, 2, 3, 4, 5, 6});
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (const unsigned bit : {0x01U, 0x02U, 0x10U, 0x80U}) {
      Pixels damaged = whole;
      damaged[i] = static_cast<unsigned char>(damaged[i] ^ bit);
      const auto header = ReadTiffHeader(damaged);
      if (!header || header->bytesToDecode > 1U << 20 || header->width > 1000 ||
          header->height > 1000) {
        continue;
      }
      const auto rgba = DecodeTiffWithAlpha(damaged);
      if (!rgba) continue;
      EXPECT_EQ(rgba->size(), 4U * header->width * header->height) << i;
    }
  }
}

}  // namespace
}  // namespace kelvane
