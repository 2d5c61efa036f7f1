#include "platform/svg/svg_png.h"

#include <gtest/gtest.h>

#include "metafile/png_decoder.h"
#include "platform/svg/svg_enlarging.h"

namespace kelvane {
namespace {

using Bytes = std::vector<unsigned char>;

/// The colours and alphas of a picture, read back by another library.
Bytes Decoded(const PngPicture& picture) {
  Deflater deflater;
  const std::string file = PngFile(picture, deflater);
  const auto pixels =
      DecodePngWithAlpha({reinterpret_cast<const unsigned char*>(file.data()), file.size()},
                         {0, 0, picture.width, picture.height});
  return pixels.value_or(Bytes());
}

TEST(PngFile, HoldsGrey) {
  const Bytes rows = {10, 200};
  EXPECT_EQ(Decoded({.width = 1, .height = 2, .rows = rows}),
            (Bytes{10, 10, 10, 255, 200, 200, 200, 255}));
}

TEST(PngFile, HoldsColours) {
  const Bytes rows = {1, 2, 3, 4, 5, 6};
  EXPECT_EQ(Decoded({.width = 2, .height = 1, .color = PngColor::kRgb, .rows = rows}),
            (Bytes{1, 2, 3, 255, 4, 5, 6, 255}));
}

TEST(PngFile, HoldsAlpha) {
  const Bytes rows = {1, 2, 3, 4, 5, 6, 7, 0};
  EXPECT_EQ(Decoded({.width = 2, .height = 1, .color = PngColor::kRgba, .rows = rows}), rows);
}

TEST(PngFile, HoldsNumbersOfColoursAndWhichAreNotSeen) {
  const Bytes rows = {0x40};  // 01 00
  EXPECT_EQ(Decoded({.width = 2,
                     .height = 1,
                     .color = PngColor::kIndexed,
                     .bits = 2,
                     .rows = rows,
                     .colors = {9, 8, 7, 1, 2, 3},
                     .alphas = {0}}),
            (Bytes{1, 2, 3, 255, 9, 8, 7, 0}));
}

TEST(SvgEnlarging, RepeatsPixelsOfSmallPictures) {
  const Bytes rows = {0x80};  // 1 0
  PngPicture picture = {
      .width = 2, .height = 1, .color = PngColor::kIndexed, .bits = 1, .rows = rows};
  Bytes larger;
  SvgEnlarging enlarging;
  enlarging.Enlarge(picture, larger);
  EXPECT_EQ(picture.width, 362U);  // 2^16 pixels at most
  EXPECT_EQ(picture.height, 181U);
  EXPECT_EQ(picture.bits, 8U);
  ASSERT_EQ(picture.rows.size(), 362U * 181);
  EXPECT_EQ(picture.rows[180], 1);
  EXPECT_EQ(picture.rows[181], 0);
  EXPECT_EQ(picture.rows.back(), 0);
}

TEST(SvgEnlarging, LeavesLargePicturesAlone) {
  const Bytes rows(300 * 300);
  PngPicture picture = {.width = 300, .height = 300, .rows = rows};
  Bytes larger;
  SvgEnlarging().Enlarge(picture, larger);
  EXPECT_EQ(picture.width, 300U);
  EXPECT_TRUE(larger.empty());
}

TEST(SvgEnlarging, EndsWhenADocumentHasGainedEnough) {
  const Bytes rows(1);
  SvgEnlarging enlarging;
  std::size_t enlarged = 0;
  for (int i = 0; i < 100; ++i) {
    PngPicture picture = {.width = 1, .height = 1, .rows = rows};
    Bytes larger;
    enlarging.Enlarge(picture, larger);
    if (picture.width > 1) ++enlarged;
  }
  EXPECT_EQ(enlarged, 32U);  // times 256 * 256 pixels come to 2^21
}

}  // namespace
}  // namespace kelvane
