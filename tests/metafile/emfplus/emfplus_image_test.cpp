#include "metafile/emfplus/emfplus_image.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"
#include "emfplus_objects.h"
#include "metafile/emfplus/emfplus_image_attributes.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t k8Indexed = 0x00030803;
constexpr std::uint32_t k24Rgb = 0x00021808;

std::vector<unsigned char> Copy(std::span<const unsigned char> bytes) {
  return {bytes.begin(), bytes.end()};
}

struct BitmapHead {
  std::int32_t width;
  std::int32_t height;
  std::int32_t stride;
  std::uint32_t format;
};

Bytes Bitmap(const BitmapHead& head) {
  return Bytes()
      .U32(kVersion)
      .U32(1)
      .I32(head.width)
      .I32(head.height)
      .I32(head.stride)
      .U32(head.format)
      .U32(0);
}

/// @return what it holds; it views the bytes.
std::optional<EmfPlusImage> ReadImage(const Bytes& bytes) {
  ByteView view(bytes.Data());
  return ReadEmfPlusImage(view);
}

TEST(EmfPlusImage, MayBePixels) {
  const Bytes bytes = Bitmap({1, 2, 4, k24Rgb}).Each({1, 2, 3, 0, 4, 5, 6});
  ReadWhole(ReadEmfPlusImage, bytes);
  const auto image = ReadImage(bytes);
  ASSERT_TRUE(image);
  const auto& pixels = std::get<EmfPlusPixels>(*image);
  EXPECT_EQ(pixels.width, 1U);
  EXPECT_EQ(pixels.height, 2U);
  EXPECT_EQ(pixels.stride, 4U);
  EXPECT_EQ(pixels.format, EmfPlusPixelFormat::k24Rgb);
  EXPECT_EQ(Copy(pixels.rows), (std::vector<unsigned char>{1, 2, 3, 0, 4, 5, 6}));
}

TEST(EmfPlusImage, HasAPaletteWhenPixelsAreIndexes) {
  const Bytes bytes = Bitmap({1, 1, 4, k8Indexed}).U32(0).U32(1).U32(0x80FF0000).Each({0});
  const auto image = ReadImage(bytes);
  ASSERT_TRUE(image);
  const auto& pixels = std::get<EmfPlusPixels>(*image);
  EXPECT_EQ(pixels.palette, (std::vector<Argb>{{0, 0, 255, 128}}));
  EXPECT_EQ(Copy(pixels.rows), (std::vector<unsigned char>{0}));
}

TEST(EmfPlusImage, IsNoneWhenItsPixelsMakeNoSense) {
  const BitmapHead rows[] = {
      {0, 1, 4, k24Rgb},
      {1, 0, 4, k24Rgb},
      {1, -1, 4, k24Rgb},
      {-1, 1, 4, k24Rgb},
      {1, 1, -4, k24Rgb},
      {1, 1, 0, k24Rgb},
      {2, 1, 5, k24Rgb},  // rows overlap
      {1, 3, 4, k24Rgb},  // there are two
      {1, 1, 4, 0},       // of whole files
      {1, 1, 4, 0x00021809},
      {0x7FFFFFFF, 1, 0x7FFFFFFF, k24Rgb},
      {0x7FFFFFFF, 0x7FFFFFFF, 0x7FFFFFFF, 0x00030101},
  };
  for (const BitmapHead& row : rows) {
    EXPECT_FALSE(ReadImage(Bitmap(row).Zeros(8)))
        << row.width << ' ' << row.height << ' ' << row.stride << ' ' << row.format;
  }
  EXPECT_FALSE(ReadImage(Bitmap({1, 1, 4, k8Indexed}).U32(0).U32(0xFFFFFFFF).Zeros(64)));
}

TEST(EmfPlusImage, MayBeAFile) {
  const Bytes bytes = Bytes().U32(kVersion).U32(1).Zeros(16).U32(1).Each({7, 8, 9});
  const auto image = ReadImage(bytes);
  ASSERT_TRUE(image);
  EXPECT_EQ(Copy(std::get<EmfPlusImageFile>(*image).bytes), (std::vector<unsigned char>{7, 8, 9}));
  EXPECT_FALSE(ReadImage(Bytes().U32(kVersion).U32(1).Zeros(16).U32(1)));
}

Bytes Metafile(std::uint32_t type, std::uint32_t size) {
  return Bytes().U32(kVersion).U32(2).U32(type).U32(size);
}

TEST(EmfPlusImage, MayBeAMetafile) {
  const Bytes bytes = Metafile(3, 3).Each({7, 8, 9});
  ReadWhole(ReadEmfPlusImage, bytes);
  const auto image = ReadImage(bytes);
  ASSERT_TRUE(image);
  const auto& metafile = std::get<EmfPlusMetafile>(*image);
  EXPECT_EQ(metafile.type, EmfPlusMetafileType::kEmf);
  EXPECT_EQ(Copy(metafile.bytes), (std::vector<unsigned char>{7, 8, 9}));
  EXPECT_TRUE(metafile.placeableHeader.empty());
}

TEST(EmfPlusImage, MayHaveAHeaderOfItsOwnBeforeAMetafileWithOrWithoutFilling) {
  for (const std::size_t filling : {0U, 2U}) {
    const Bytes bytes = Metafile(2, 3).Each({0xD7, 0xCD}).Zeros(20 + filling).Each({1, 0, 9});
    const auto image = ReadImage(bytes);
    ASSERT_TRUE(image);
    const auto& metafile = std::get<EmfPlusMetafile>(*image);
    EXPECT_EQ(metafile.placeableHeader.size(), 22U);
    EXPECT_EQ(metafile.placeableHeader[0], 0xD7);
    EXPECT_EQ(Copy(metafile.bytes), (std::vector<unsigned char>{1, 0, 9}));
  }
}

TEST(EmfPlusImage, IsNoneOfAnotherTypeOrVersion) {
  for (const Bytes& bytes :
       {Bytes().U32(kVersion).U32(0).Zeros(64), Bytes().U32(kVersion).U32(3).Zeros(64),
        Bytes().U32(0).U32(2).U32(3).U32(0),
        Bytes().U32(kVersion).U32(1).Zeros(16).U32(2).Zeros(64), Metafile(3, 0xFFFFFFFF)}) {
    EXPECT_FALSE(ReadImage(bytes));
  }
}

TEST(EmfPlusImageAttributes, SayWhatLiesBeyondTheEdges) {
  const auto attributes =
      ReadWhole(ReadEmfPlusImageAttributes,
                Bytes().U32(kVersion).U32(0).I32(3).U32(0x80FF0000).I32(0).U32(0));
  EXPECT_EQ(attributes, (EmfPlusImageAttributes{EmfPlusWrapMode::kTileFlipXY, {0, 0, 255, 128}}));
}

}  // namespace
}  // namespace kelvane::test
