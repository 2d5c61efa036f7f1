#include <gif_lib.h>
#include <gtest/gtest.h>

#include "metafile/gif_decoder.h"

namespace kelvane {
namespace {

using Pixels = std::vector<unsigned char>;

constexpr std::array<GifColorType, 4> kColors = {{{9, 0, 0}, {0, 8, 0}, {0, 0, 7}, {6, 6, 6}}};

struct GifKind {
  int screenWidth = 2;
  int screenHeight = 2;
  int left = 0;
  int top = 0;
  int transparent = NO_TRANSPARENT_COLOR;
  bool isInterlaced = false;
  bool hasColors = true;
};

int AppendGifBytes(GifFileType* gif, const GifByteType* bytes, int count) {
  auto* file = static_cast<Pixels*>(gif->UserData);
  file->insert(file->end(), bytes, bytes + count);
  return count;
}

/// @param rows  numbers of colours, in the order in which the file has them.
Pixels GifOf(const GifKind& kind, const std::vector<Pixels>& rows) {
  Pixels file;
  GifFileType* gif = EGifOpen(&file, AppendGifBytes, nullptr);
  EGifSetGifVersion(gif, true);
  ColorMapObject* colors =
      kind.hasColors ? GifMakeMapObject(static_cast<int>(kColors.size()), kColors.data()) : nullptr;
  EGifPutScreenDesc(gif, kind.screenWidth, kind.screenHeight, 8, 0, colors);
  if (kind.transparent != NO_TRANSPARENT_COLOR) {
    const std::array<GifByteType, 4> control = {1, 0, 0,
                                                static_cast<GifByteType>(kind.transparent)};
    EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, 4, control.data());
  }
  EGifPutImageDesc(gif, kind.left, kind.top, static_cast<int>(rows[0].size()),
                   static_cast<int>(rows.size()), kind.isInterlaced, nullptr);
  for (Pixels row : rows)
    EGifPutLine(gif, row.data(), static_cast<int>(row.size()));
  EGifCloseFile(gif, nullptr);
  GifFreeMapObject(colors);
  return file;
}

constexpr std::array<unsigned char, 4> kNothing = {};
constexpr std::array<unsigned char, 4> kRed = {9, 0, 0, 255};
constexpr std::array<unsigned char, 4> kGreen = {0, 8, 0, 255};
constexpr std::array<unsigned char, 4> kBlue = {0, 0, 7, 255};
constexpr std::array<unsigned char, 4> kGray = {6, 6, 6, 255};

Pixels Each(std::initializer_list<std::array<unsigned char, 4>> pixels) {
  Pixels bytes;
  for (const auto& pixel : pixels)
    bytes.insert(bytes.end(), pixel.begin(), pixel.end());
  return bytes;
}

TEST(Gif, HasTheColorsOfItsTable) {
  EXPECT_EQ(DecodeGifWithAlpha(GifOf({}, {{0, 1}, {2, 3}})), Each({kRed, kGreen, kBlue, kGray}));
}

TEST(Gif, IsTransparentInOneColor) {
  EXPECT_EQ(DecodeGifWithAlpha(GifOf({.transparent = 1}, {{0, 1}, {2, 1}})),
            Each({kRed, kNothing, kBlue, kNothing}));
}

TEST(Gif, IsTransparentWhereItsFrameIsNot) {
  EXPECT_EQ(DecodeGifWithAlpha(GifOf({.left = 1, .top = 1}, {{2}})),
            Each({kNothing, kNothing, kNothing, kBlue}));
}

// Some writers leave the screen empty, others change the frame alone.
TEST(Gif, IsAsLargeAsAFrameThatLeavesItsScreen) {
  const Pixels file = GifOf({.screenWidth = 0, .screenHeight = 0, .left = 1}, {{2}});
  const auto header = ReadGifHeader(file);
  ASSERT_TRUE(header);
  EXPECT_EQ(header->width, 2U);
  EXPECT_EQ(header->height, 1U);
  EXPECT_EQ(DecodeGifWithAlpha(file), Each({kNothing, kBlue}));
}

TEST(Gif, MayBeInterlaced) {
  const std::vector<Pixels> stored = {{0}, {1}, {2}, {3}, {0}};  // rows 0, 4, 2, 1, 3
  EXPECT_EQ(DecodeGifWithAlpha(GifOf({.screenWidth = 1, .isInterlaced = true}, stored)),
            Each({kRed, kGray, kBlue, kRed, kGreen}));
}

TEST(Gif, GivesItsFirstFrameOfMany) {
  Pixels file = GifOf({}, {{0, 1}, {2, 3}});
  const Pixels more = GifOf({}, {{3, 3}, {3, 3}});
  constexpr std::ptrdiff_t kFrame = 13 + 3 * 4;  // behind the screen and its colours
  file.pop_back();                               // the end
  for (int i = 0; i < 10000; ++i)
    file.insert(file.end(), more.begin() + kFrame, more.end() - 1);
  EXPECT_EQ(DecodeGifWithAlpha(file), Each({kRed, kGreen, kBlue, kGray}));
}

TEST(Gif, KeepsTheRowsBeforeItEnds) {
  constexpr int kSide = 200;
  std::vector<Pixels> rows(kSide, Pixels(kSide));
  std::uint32_t noise = 1;
  for (Pixels& row : rows) {
    for (unsigned char& number : row)
      number = static_cast<unsigned char>((noise = noise * 1664525 + 1013904223) >> 30);
  }
  Pixels file = GifOf({.screenWidth = kSide, .screenHeight = kSide}, rows);
  file.resize(file.size() / 2);
  const auto rgba = DecodeGifWithAlpha(file);
  ASSERT_TRUE(rgba);
  for (std::size_t x = 0; x < kSide; ++x)
    EXPECT_EQ((*rgba)[4 * x], kColors[rows[0][x]].Red);
  EXPECT_EQ(rgba->back(), 0);
}

TEST(Gif, IsNothingWithoutAPicture) {
  const Pixels whole = GifOf({.transparent = 1}, {{0, 1}, {2, 3}});
  constexpr std::size_t kFirstCode = 13 + 3 * 4 + 8 + 10 + 2;
  for (std::size_t size = 0; size <= kFirstCode; ++size)
    EXPECT_FALSE(DecodeGifWithAlpha(std::span(whole).first(size))) << size;
  for (std::size_t size = 0; size < kFirstCode - 2; ++size)
    EXPECT_FALSE(ReadGifHeader(std::span(whole).first(size))) << size;
}

TEST(Gif, IsNothingWithoutColorsOrASize) {
  EXPECT_FALSE(ReadGifHeader(GifOf({.hasColors = false}, {{0, 1}})));
  for (const std::size_t side : {5U, 7U}) {
    Pixels file = GifOf({}, {{0, 1}, {2, 3}});
    file[13 + 3 * 4 + side] = 0;  // of the frame
    EXPECT_FALSE(ReadGifHeader(file)) << side;
  }
}

TEST(Gif, IsReadPastItsDamage) {
  const Pixels whole = GifOf({.transparent = 1}, {{0, 1}, {2, 3}});
  for (std::size_t i = 0; i < whole.size(); ++i) {
    for (const unsigned bit : {0x01U, 0x04U, 0x40U, 0x80U}) {
      Pixels damaged = whole;
      damaged[i] = static_cast<unsigned char>(damaged[i] ^ bit);
      const auto header = ReadGifHeader(damaged);
      if (!header || header->width > 1000 || header->height > 1000) continue;
      const auto rgba = DecodeGifWithAlpha(damaged);
      if (!rgba) continue;
      EXPECT_EQ(rgba->size(), 4U * header->width * header->height) << i;
    }
  }
}

}  // namespace
}  // namespace kelvane
