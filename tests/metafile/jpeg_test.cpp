#include <algorithm>
#include <cstdio>  // jpeglib.h wants it before itself
#include <cstdlib>

#include <gtest/gtest.h>
#include <jpeglib.h>

#include "metafile/dib.h"
#include "metafile/jpeg_header.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using Pixels = std::vector<unsigned char>;

constexpr std::uint32_t kJpeg = 4;
constexpr std::size_t kBlock = 16;  // pixels a side, that are coded together

struct JpegKind {
  int components = 3;
  bool isProgressive = false;
};

/// A JPEG file of blocks of one colour each, three in a row, best quality.
std::vector<unsigned char> JpegOf(const std::vector<DibColor>& blocks, const JpegKind& kind = {}) {
  jpeg_compress_struct compress{};
  jpeg_error_mgr errors{};
  compress.err = jpeg_std_error(&errors);
  jpeg_create_compress(&compress);
  unsigned char* stored = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&compress, &stored, &size);
  compress.image_width = 3 * kBlock;
  compress.image_height = static_cast<JDIMENSION>(blocks.size() / 3 * kBlock);
  compress.input_components = kind.components;
  compress.in_color_space = kind.components == 3 ? JCS_RGB : JCS_GRAYSCALE;
  jpeg_set_defaults(&compress);
  jpeg_set_quality(&compress, 100, TRUE);
  if (kind.isProgressive) jpeg_simple_progression(&compress);
  jpeg_start_compress(&compress, TRUE);
  while (compress.next_scanline < compress.image_height) {
    Pixels row;
    for (std::size_t x = 0; x < compress.image_width; ++x) {
      const DibColor& color = blocks[compress.next_scanline / kBlock * 3 + x / kBlock];
      row.insert(row.end(), color.begin(), color.begin() + kind.components);
    }
    unsigned char* start = row.data();
    jpeg_write_scanlines(&compress, &start, 1);
  }
  jpeg_finish_compress(&compress);
  jpeg_destroy_compress(&compress);
  std::vector<unsigned char> file(stored, stored + size);
  std::free(stored);  // NOLINT(cppcoreguidelines-no-malloc): the library's own
  return file;
}

const std::vector<DibColor> kSixColors = {{255, 0, 0}, {0, 255, 0},  {0, 0, 255},
                                          {200, 9, 9}, {9, 200, 90}, {70, 70, 70}};

/// @param file  borrowed.
std::optional<Dib> Read(std::vector<unsigned char>&& file) = delete;
std::optional<Dib> Read(const std::vector<unsigned char>& file) {
  static const Bytes header = Bytes().BitmapHeader({.bitCount = 0, .compression = kJpeg});
  return Dib::Read({header.Data(), file});
}

/// @return whether the pixel of a part is that colour, as near as coding leaves it.
testing::AssertionResult IsNear(const std::optional<Pixels>& rgb, std::size_t pixel,
                                const DibColor& color) {
  if (!rgb) return testing::AssertionFailure() << "nothing was decoded";
  for (std::size_t i = 0; i < 3; ++i) {
    if (std::abs((*rgb)[3 * pixel + i] - color[i]) > 3) {
      return testing::AssertionFailure() << "channel " << i << " is " << int{(*rgb)[3 * pixel + i]}
                                         << ", not " << int{color[i]};
    }
  }
  return testing::AssertionSuccess();
}

void ExpectSixColors(const std::vector<unsigned char>& file) {
  const auto dib = Read(file);
  ASSERT_TRUE(dib);
  const auto rgb = DecodeRgb(*dib, {0, 0, dib->Width(), dib->Height()});
  for (std::size_t i = 0; i < 6; ++i) {
    const std::size_t x = i % 3 * kBlock + 5;
    const std::size_t y = i / 3 * kBlock + 7;
    EXPECT_TRUE(IsNear(rgb, y * 3 * kBlock + x, kSixColors[i])) << i;
  }
}

TEST(Jpeg, SaysItsOwnSizeAndComponents) {
  const auto file = JpegOf(kSixColors);
  const auto color = Read(file);
  ASSERT_TRUE(color);
  EXPECT_EQ(color->Kind(), Dib::Content::kJpeg);
  EXPECT_EQ(color->Width(), 48U);
  EXPECT_EQ(color->Height(), 32U);
  EXPECT_EQ(color->Components(), 3U);
  const auto gray = JpegOf(kSixColors, {.components = 1});
  EXPECT_EQ(Read(gray)->Components(), 1U);
}

TEST(Jpeg, IsHandedOnWhole) {
  const auto file = JpegOf(kSixColors);
  const auto dib = Read(file);
  EXPECT_EQ(dib->File().data(), file.data());
  EXPECT_EQ(dib->File().size(), file.size());
}

TEST(Jpeg, IsDecodedToColors) {
  ExpectSixColors(JpegOf(kSixColors));
  ExpectSixColors(JpegOf(kSixColors, {.isProgressive = true}));
}

TEST(Jpeg, OfOneComponentIsGray) {
  const auto file = JpegOf({{10}, {100}, {200}}, {.components = 1});
  const auto dib = Read(file);
  ASSERT_TRUE(dib);
  const auto rgb = DecodeRgb(*dib, {0, 0, 48, 1});
  EXPECT_TRUE(IsNear(rgb, 5, {10, 10, 10}));
  EXPECT_TRUE(IsNear(rgb, 40, {200, 200, 200}));
}

TEST(Jpeg, GivesAPartOfItself) {
  const auto file = JpegOf(kSixColors);
  const auto dib = Read(file);
  const auto whole = DecodeRgb(*dib, {0, 0, 48, 32});
  const auto part = DecodeRgb(*dib, {14, 13, 5, 6});
  ASSERT_TRUE(whole && part);
  ASSERT_EQ(part->size(), 3U * 5 * 6);
  for (std::size_t y = 0; y < 6; ++y) {
    const auto row = part->begin() + static_cast<std::ptrdiff_t>(3 * 5 * y);
    const auto expected = whole->begin() + static_cast<std::ptrdiff_t>(3 * (48 * (13 + y) + 14));
    EXPECT_TRUE(std::equal(row, row + 15, expected)) << y;
  }
}

TEST(Jpeg, KeepsWhatComesBeforeItEnds) {
  auto file = JpegOf(std::vector<DibColor>(3 * 64, {200, 9, 9}));
  file.resize(file.size() / 2);
  const auto dib = Read(file);
  ASSERT_TRUE(dib);
  EXPECT_TRUE(IsNear(DecodeRgb(*dib, {0, 0, 48, 16}), 0, {200, 9, 9}));
}

TEST(Jpeg, IsNothingWithoutAPicture) {
  const auto whole = JpegOf(kSixColors);
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const std::vector<unsigned char> file(whole.begin(),
                                          whole.begin() + static_cast<std::ptrdiff_t>(size));
    const auto dib = Read(file);
    if (dib) DecodeRgb(*dib, {0, 0, 48, 32});  // whatever comes of it
    EXPECT_TRUE(dib || size < 200) << size;
    EXPECT_FALSE(dib && size < 20) << size;
  }
  auto noTables = whole;
  noTables.resize(20);  // up to the end of its first segment
  const Bytes frame = Bytes().Append(noTables).Each(
      {0xFF, 0xC0, 0, 11, 8, 0, 16, 0, 16, 1, 1, 0x11, 0, 0xFF, 0xD9});
  const auto dib = Read(frame.Data());
  ASSERT_TRUE(dib);
  EXPECT_FALSE(DecodeRgb(*dib, {0, 0, 16, 16}));
}

// A scan of some bytes may go over a picture of any size, so a file of nothing else would take
// any time.
TEST(Jpeg, HasAHundredScansAtMost) {
  const auto file = JpegOf(kSixColors, {.isProgressive = true});
  const std::vector<unsigned char> startOfScan = {0xFF, 0xDA};
  const auto last = std::find_end(file.begin(), file.end(), startOfScan.begin(), startOfScan.end());
  const std::vector<unsigned char> scan(last, file.end() - 2);
  const auto withMore = [&](int scans) {
    Bytes more = Bytes().Append({file.begin(), file.end() - 2});
    for (int i = 0; i < scans; ++i)
      more.Append(scan);
    return more.Each({0xFF, 0xD9}).Data();
  };
  ExpectSixColors(withMore(20));
  const auto tooMany = withMore(120);
  const auto dib = Read(tooMany);
  ASSERT_TRUE(dib);
  EXPECT_FALSE(DecodeRgb(*dib, {0, 0, 48, 32}));
}

struct Frame {
  std::uint32_t marker = 0xC0;
  std::uint32_t precision = 8;
  std::uint32_t height = 3;
  std::uint32_t width = 0x102;
  std::uint32_t components = 1;
};

Bytes FileOf(const Frame& frame) {
  return Bytes()
      .Each({0xFF, 0xD8, 0xFF, frame.marker, 0, 11, frame.precision})
      .Each({frame.height >> 8, frame.height, frame.width >> 8, frame.width, frame.components});
}

bool IsJpeg(const Frame& frame) {
  return ReadJpegHeader(FileOf(frame).Data()).has_value();
}

TEST(JpegHeader, HasASizeAndComponents) {
  const auto header = ReadJpegHeader(FileOf({}).Data());
  ASSERT_TRUE(header);
  EXPECT_EQ(header->width, 0x102U);
  EXPECT_EQ(header->height, 3U);
  EXPECT_EQ(header->components, 1U);
}

TEST(JpegHeader, IsOfABaselineExtendedOrProgressiveFrame) {
  for (std::uint32_t marker = 0xC0; marker <= 0xCF; ++marker)
    EXPECT_EQ(IsJpeg({.marker = marker}), marker <= 0xC2) << marker;
}

TEST(JpegHeader, HasEightBitsAndOneOrThreeComponents) {
  EXPECT_FALSE(IsJpeg({.precision = 12}));
  for (const std::uint32_t components : {0U, 1U, 2U, 3U, 4U, 255U})
    EXPECT_EQ(IsJpeg({.components = components}), components == 1 || components == 3) << components;
}

TEST(JpegHeader, IsNoneWithoutASize) {
  EXPECT_FALSE(IsJpeg({.height = 0}));
  EXPECT_FALSE(IsJpeg({.width = 0}));
}

TEST(JpegHeader, ComesBehindSegmentsAndWhatFillsUp) {
  const std::vector<unsigned char> frame = FileOf({}).Data();
  const std::vector<unsigned char> behindTheStart(frame.begin() + 2, frame.end());
  const auto with = [&](std::initializer_list<std::uint32_t> before) {
    const Bytes file = Bytes().Each({0xFF, 0xD8}).Each(before).Append(behindTheStart);
    return ReadJpegHeader(file.Data()).has_value();
  };
  EXPECT_TRUE(with({}));
  EXPECT_TRUE(with({0xFF, 0xFF}));
  EXPECT_TRUE(with({0xFF, 0xE0, 0, 2}));
  EXPECT_TRUE(with({0xFF, 0xC4, 0, 3, 0xFF}));
  EXPECT_TRUE(with({0xFF, 0x01, 0xFF, 0xD0}));
  EXPECT_FALSE(with({0xFF, 0xE0, 0, 1}));  // shorter than its length
  EXPECT_FALSE(with({0xFF, 0xDA, 0, 2}));  // a scan
  EXPECT_FALSE(with({0xFF, 0xD9}));        // the end
  EXPECT_FALSE(with({0x00}));
}

TEST(JpegHeader, IsNoneWhenBytesAreMissing) {
  const std::vector<unsigned char> file = FileOf({}).Data();
  for (std::size_t size = 0; size < file.size(); ++size)
    EXPECT_FALSE(ReadJpegHeader(std::span(file).first(size))) << size;
}

}  // namespace
}  // namespace kelvane
