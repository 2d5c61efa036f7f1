#include <gtest/gtest.h>
#include <png.h>

#include "metafile/dib.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;
using Pixels = std::vector<unsigned char>;

constexpr std::uint32_t kPng = 5;

struct PngKind {
  std::uint32_t width = 1;
  int colors = PNG_COLOR_TYPE_RGB;
  int depth = 8;
  int interlace = PNG_INTERLACE_NONE;
  std::vector<png_color> palette{};
  bool isFirstTransparent = false;  // of the palette
};

void AppendBytes(png_structp png, png_bytep bytes, png_size_t count) {
  auto* file = static_cast<std::vector<unsigned char>*>(png_get_io_ptr(png));
  file->insert(file->end(), bytes, bytes + count);
}

/// @param rows  as the file has them.
std::vector<unsigned char> PngOf(const PngKind& kind, std::vector<Pixels> rows) {
  std::vector<unsigned char> file;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png_create_info_struct(png);
  png_set_write_fn(png, &file, AppendBytes, nullptr);
  png_set_IHDR(png, info, kind.width, static_cast<png_uint_32>(rows.size()), kind.depth,
               kind.colors, kind.interlace, PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  if (!kind.palette.empty()) {
    png_set_PLTE(png, info, kind.palette.data(), static_cast<int>(kind.palette.size()));
  }
  const png_byte alpha = 0;
  if (kind.isFirstTransparent) png_set_tRNS(png, info, &alpha, 1, nullptr);
  std::vector<unsigned char*> starts;
  for (Pixels& row : rows)
    starts.push_back(row.data());
  png_write_info(png, info);
  png_write_image(png, starts.data());
  png_write_end(png, info);
  png_destroy_write_struct(&png, &info);
  return file;
}

/// @param file  borrowed.
std::optional<Dib> Read(std::vector<unsigned char>&& file) = delete;
std::optional<Dib> Read(const std::vector<unsigned char>& file) {
  static const Bytes header = Bytes().BitmapHeader({.bitCount = 0, .compression = kPng});
  return Dib::Read({header.Data(), file});
}

/// @return nothing, too, for what is larger than any picture here.
std::optional<Pixels> Decoded(const std::vector<unsigned char>& file) {
  const auto dib = Read(file);
  if (!dib || dib->Width() > 200 || dib->Height() > 200) return std::nullopt;
  return DecodeRgb(*dib, {0, 0, dib->Width(), dib->Height()});
}

/// Rows of colours that tell where they are: column, row and 7.
std::vector<Pixels> RowsOf(std::size_t width, std::size_t height) {
  std::vector<Pixels> rows(height);
  for (std::size_t y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < width; ++x)
      rows[y].insert(rows[y].end(),
                     {static_cast<std::uint8_t>(x), static_cast<std::uint8_t>(y), 7});
  }
  return rows;
}

TEST(Png, SaysItsOwnSize) {
  const auto file = PngOf({.width = 2}, RowsOf(2, 3));
  const auto dib = Read(file);
  ASSERT_TRUE(dib);
  EXPECT_EQ(dib->Kind(), Dib::Content::kPng);
  EXPECT_EQ(dib->Width(), 2U);
  EXPECT_EQ(dib->Height(), 3U);
  EXPECT_EQ(dib->File().data(), file.data());
}

TEST(Png, IsDecodedToColors) {
  EXPECT_EQ(Decoded(PngOf({.width = 2}, {{1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}})),
            (Pixels{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}));
}

TEST(Png, HasGrayOfOneToSixteenBits) {
  const auto gray = [](int depth, Pixels row) {
    return Decoded(PngOf({.width = 2, .colors = PNG_COLOR_TYPE_GRAY, .depth = depth}, {row}));
  };
  EXPECT_EQ(gray(1, {0x40}), (Pixels{0, 0, 0, 255, 255, 255}));
  EXPECT_EQ(gray(2, {0x60}), (Pixels{85, 85, 85, 170, 170, 170}));
  EXPECT_EQ(gray(4, {0x2F}), (Pixels{34, 34, 34, 255, 255, 255}));
  EXPECT_EQ(gray(8, {3, 4}), (Pixels{3, 3, 3, 4, 4, 4}));
  EXPECT_EQ(gray(16, {3, 3, 4, 4}), (Pixels{3, 3, 3, 4, 4, 4}));
}

TEST(Png, HasSixteenBitsAChannelRounded) {
  EXPECT_EQ(Decoded(PngOf({.depth = 16}, {{0x12, 0x12, 0x00, 0xFF, 0xFF, 0xFF}})),
            (Pixels{0x12, 1, 255}));
}

TEST(Png, HasAPaletteWhoseTransparencyIsPassedOver) {
  EXPECT_EQ(Decoded(PngOf({.width = 2,
                           .colors = PNG_COLOR_TYPE_PALETTE,
                           .depth = 4,
                           .palette = {{1, 2, 3}, {4, 5, 6}},
                           .isFirstTransparent = true},
                          {{0x01}})),
            (Pixels{1, 2, 3, 4, 5, 6}));
}

TEST(Png, PassesOverItsAlpha) {
  EXPECT_EQ(Decoded(PngOf({.colors = PNG_COLOR_TYPE_RGBA}, {{1, 2, 3, 0}})), (Pixels{1, 2, 3}));
  EXPECT_EQ(Decoded(PngOf({.colors = PNG_COLOR_TYPE_GRAY_ALPHA}, {{9, 128}})), (Pixels{9, 9, 9}));
}

TEST(Png, MayBeInterlaced) {
  const PngKind plain = {.width = 19};
  const PngKind interlaced = {.width = 19, .interlace = PNG_INTERLACE_ADAM7};
  const auto expected = Decoded(PngOf(plain, RowsOf(19, 17)));
  ASSERT_TRUE(expected);
  EXPECT_EQ(Decoded(PngOf(interlaced, RowsOf(19, 17))), expected);
}

TEST(Png, GivesAPartOfItself) {
  for (const int interlace : {PNG_INTERLACE_NONE, PNG_INTERLACE_ADAM7}) {
    const auto file = PngOf({.width = 9, .interlace = interlace}, RowsOf(9, 8));
    const auto dib = Read(file);
    ASSERT_TRUE(dib);
    EXPECT_EQ(DecodeRgb(*dib, {5, 2, 2, 2}), (Pixels{5, 2, 7, 6, 2, 7, 5, 3, 7, 6, 3, 7}));
    EXPECT_EQ(DecodeRgb(*dib, {8, 7, 1, 1}), (Pixels{8, 7, 7}));
  }
}

TEST(Png, KeepsTheRowsBeforeItEnds) {
  std::vector<Pixels> rows(200, Pixels(3 * 200));
  std::uint32_t noise = 1;
  for (Pixels& row : rows) {
    for (unsigned char& byte : row)
      byte = static_cast<unsigned char>((noise = noise * 1664525 + 1013904223) >> 24);
  }
  auto file = PngOf({.width = 200}, rows);
  file.resize(file.size() / 2);
  const auto decoded = Decoded(file);
  ASSERT_TRUE(decoded);
  EXPECT_TRUE(std::equal(rows[0].begin(), rows[0].end(), decoded->begin()));
  EXPECT_EQ(decoded->back(), 0);
}

TEST(Png, IsNothingWithoutAPicture) {
  const auto whole = PngOf({.width = 2}, RowsOf(2, 2));
  for (std::size_t size = 0; size < 40; ++size)
    EXPECT_FALSE(Decoded({whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size)}))
        << size;
  for (std::size_t i = 0; i < 40; ++i) {
    auto damaged = whole;
    damaged[i] ^= 0x40;
    EXPECT_FALSE(Decoded(damaged)) << i;
  }
}

TEST(Png, SaysNoSizeThatIsNone) {
  const auto header = [](std::uint32_t width, std::uint32_t height) {
    Bytes file = Bytes().Each({0x89, 'P', 'N', 'G', 13, 10, 26, 10, 0, 0, 0, 13});
    file.Each({'I', 'H', 'D', 'R', width >> 24, width >> 16, width >> 8, width});
    file.Each({height >> 24, height >> 16, height >> 8, height, 8, 2, 0, 0, 0});
    return Read(file.Data()).has_value();
  };
  EXPECT_TRUE(header(0x7FFFFFFF, 0x7FFFFFFF));  // nothing is decoded yet
  EXPECT_FALSE(header(0, 1));
  EXPECT_FALSE(header(1, 0));
  EXPECT_FALSE(header(0x80000000, 1));
  EXPECT_FALSE(header(1, 0x80000000));
}

}  // namespace
}  // namespace kelvane
