// Every way to store a bitmap, drawn by records that show it whole, upright and mirrored, and
// looked at pixel by pixel on the page.

#include <array>
#include <cstdlib>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "frontends/picture_conversion.h"
#include "support/blits.h"
#include "support/png.h"
#include "support/raster.h"

namespace kelvane::test {
namespace {

constexpr std::int32_t kWidth = 5;
constexpr std::int32_t kHeight = 3;
constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;

constexpr std::int32_t kMiddle = 132;  // 16 of 31, 32 of 63

using Color = Raster::Color;

/// Fifteen colours.
Color ColorOf(std::size_t number) {
  constexpr std::array<int, 3> kChannels = {0, kMiddle, 255};
  return {kChannels[number % 3], kChannels[number / 3 % 3], kChannels[number / 9]};
}

std::uint32_t Channel(const Color& color, std::size_t channel, std::uint32_t most) {
  return (static_cast<std::uint32_t>(color[channel]) * most + 127) / 255;
}

/// A pixel as a number. @param number  of its colour.
using PixelValue = std::function<std::uint32_t(std::size_t number)>;

/// Red, green and blue in so many bits each, blue in the lowest.
std::uint32_t Packed(std::size_t number, std::uint32_t red, std::uint32_t green,
                     std::uint32_t blue) {
  const Color color = ColorOf(number);
  const auto part = [&](std::size_t channel, std::uint32_t bits) {
    return Channel(color, channel, (1U << bits) - 1);
  };
  return part(0, red) << (green + blue) | part(1, green) << blue | part(2, blue);
}

/// A picture as it is stored.
struct StoredPicture {
  std::string name;
  BitmapParts bitmap;
  std::int32_t width = kWidth;
  std::int32_t height = kHeight;
  std::vector<Color> pixels = {};  // top row first
  int tolerance = 0;
  bool isFile = false;  // which only records of device-independent bitmaps take
};

void PrintTo(const StoredPicture& picture, std::ostream* out) {
  *out << picture.name;
}

std::vector<Color> ColorsInOrder() {
  std::vector<Color> colors;
  for (std::size_t i = 0; i < kPixels; ++i)
    colors.push_back(ColorOf(i));
  return colors;
}

Bytes RowOf(std::size_t row, std::uint32_t bitCount, const PixelValue& value) {
  Bytes bytes;
  std::uint32_t bits = 0;
  std::uint32_t held = 0;
  for (std::size_t x = 0; x < kWidth; ++x) {
    const std::uint32_t pixel = value(row * kWidth + x);
    if (bitCount >= 8) {
      for (std::uint32_t shift = 0; shift < bitCount; shift += 8)
        bytes.U8(pixel >> shift & 0xFF);
      continue;
    }
    bits = bits << bitCount | pixel;
    held += bitCount;
    if (held == 8 || x + 1 == kWidth) bytes.U8(bits << (8 - held) & 0xFF);
    if (held == 8) bits = held = 0;
  }
  return bytes.Zeros((4 - bytes.Size() % 4) % 4);
}

Bytes RowsOf(bool isTopDown, std::uint32_t bitCount, const PixelValue& value) {
  Bytes rows;
  for (std::size_t i = 0; i < kHeight; ++i)
    rows.Append(RowOf(isTopDown ? i : kHeight - 1 - i, bitCount, value).Data());
  return rows;
}

Bytes Table() {
  Bytes table;
  for (const Color& color : ColorsInOrder())
    table.U8(Channel(color, 2, 255)).U8(Channel(color, 1, 255)).U8(Channel(color, 0, 255)).U8(0);
  return table;
}

Bytes HeaderOf(bool isTopDown, std::uint32_t bitCount, std::uint32_t compression = 0,
               std::uint32_t colors = 0) {
  return Bytes().BitmapHeader({.width = kWidth,
                               .height = isTopDown ? -kHeight : kHeight,
                               .bitCount = bitCount,
                               .compression = compression,
                               .colorsUsed = colors});
}

std::uint32_t Number(std::size_t number) {
  return static_cast<std::uint32_t>(number);
}

StoredPicture TwoColors(bool isTopDown) {
  constexpr std::uint32_t kBits = 0b10110'01001'11100;
  const PixelValue bit = [](std::size_t i) { return kBits >> (kPixels - 1 - i) & 1; };
  Bytes header = HeaderOf(isTopDown, 1).Color(200, 10, 10).Color(10, 10, 200);
  StoredPicture picture = {"1_bit", {header, RowsOf(isTopDown, 1, bit)}};
  for (std::size_t i = 0; i < kPixels; ++i)
    picture.pixels.push_back(bit(i) == 0 ? Color{200, 10, 10} : Color{10, 10, 200});
  return picture;
}

StoredPicture Indexed(bool isTopDown, std::uint32_t bitCount) {
  const Bytes header = HeaderOf(isTopDown, bitCount, 0, kPixels).Append(Table().Data());
  return {std::to_string(bitCount) + "_bits", {header, RowsOf(isTopDown, bitCount, Number)}};
}

StoredPicture Direct(bool isTopDown, std::uint32_t bitCount) {
  const PixelValue value = [&](std::size_t i) {
    return bitCount == 16 ? Packed(i, 5, 5, 5) : Packed(i, 8, 8, 8);
  };
  StoredPicture picture = {std::to_string(bitCount) + "_bits",
                           {HeaderOf(isTopDown, bitCount), RowsOf(isTopDown, bitCount, value)}};
  picture.tolerance = bitCount == 16 ? 1 : 0;
  return picture;
}

StoredPicture Fields565(bool isTopDown) {
  const Bytes header = HeaderOf(isTopDown, 16, 3).U32(0xF800).U32(0x07E0).U32(0x001F);
  const PixelValue value = [](std::size_t i) { return Packed(i, 5, 6, 5); };
  StoredPicture picture = {"fields_565", {header, RowsOf(isTopDown, 16, value)}};
  picture.tolerance = 2;
  return picture;
}

/// Red in the lowest byte, unlike 32 bits without fields.
StoredPicture FieldsFromRed(bool isTopDown) {
  const Bytes header = HeaderOf(isTopDown, 32, 3).U32(0xFF).U32(0xFF00).U32(0xFF0000);
  const PixelValue value = [](std::size_t i) {
    const Color color = ColorOf(i);
    return Channel(color, 2, 255) << 16 | Channel(color, 1, 255) << 8 | Channel(color, 0, 255);
  };
  return {"fields_from_red", {header, RowsOf(isTopDown, 32, value)}};
}

StoredPicture CoreHeader() {
  const Bytes header = Bytes().U32(12).U16(kWidth).U16(kHeight).U16(1).U16(24);
  const PixelValue value = [](std::size_t i) { return Packed(i, 8, 8, 8); };
  return {"core_header", {header, RowsOf(false, 24, value)}};
}

/// Runs of a pixel each, a step of a row between.
StoredPicture Runs8() {
  Bytes runs;
  for (std::uint32_t row = kHeight; row > 0; --row) {
    for (std::uint32_t x = 0; x < kWidth; ++x)
      runs.U8(1).U8((row - 1) * kWidth + x);
    runs.Each({0, row > 1 ? 0U : 1U});
  }
  return {"runs_of_8_bits", {HeaderOf(false, 8, 1, kPixels).Append(Table().Data()), runs}};
}

/// Literal pixels, each row filled up to a whole word.
StoredPicture Runs4() {
  Bytes runs;
  for (std::uint32_t row = kHeight; row > 0; --row) {
    const std::uint32_t i = (row - 1) * kWidth;
    runs.Each({0, kWidth, i << 4 | (i + 1), (i + 2) << 4 | (i + 3), (i + 4) << 4, 0});
    runs.Each({0, row > 1 ? 0U : 1U});
  }
  return {"runs_of_4_bits", {HeaderOf(false, 4, 2, kPixels).Append(Table().Data()), runs}};
}

StoredPicture AsPng() {
  std::vector<unsigned char> rows;
  for (std::size_t i = 0; i < kPixels; ++i) {
    if (i % kWidth == 0) rows.push_back(0);  // the filter
    for (const int channel : ColorOf(i))
      rows.push_back(static_cast<unsigned char>(channel));
  }
  StoredPicture picture = {"png", {HeaderOf(false, 0, 5), {}}};
  picture.bitmap.pixels.Append(PngFile({kWidth, kHeight}, rows));
  picture.isFile = true;
  return picture;
}

/// Four squares of 8 pixels a side, each of one colour.
StoredPicture AsJpeg() {
  constexpr std::int32_t kSide = 16;
  StoredPicture picture = {
      "jpeg",
      {Bytes().BitmapHeader({.width = kSide, .height = kSide, .bitCount = 0, .compression = 4}),
       Bytes().Each(
           {0xFF, 0xD8, 0xFF, 0xE0, 0x00, 0x10, 0x4A, 0x46, 0x49, 0x46, 0x00, 0x01, 0x01, 0x00,
            0x00, 0x01, 0x00, 0x01, 0x00, 0x00, 0xFF, 0xDB, 0x00, 0x43, 0x00, 0x02, 0x01, 0x01,
            0x01, 0x01, 0x01, 0x02, 0x01, 0x01, 0x01, 0x02, 0x02, 0x02, 0x02, 0x02, 0x04, 0x03,
            0x02, 0x02, 0x02, 0x02, 0x05, 0x04, 0x04, 0x03, 0x04, 0x06, 0x05, 0x06, 0x06, 0x06,
            0x05, 0x06, 0x06, 0x06, 0x07, 0x09, 0x08, 0x06, 0x07, 0x09, 0x07, 0x06, 0x06, 0x08,
            0x0B, 0x08, 0x09, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x06, 0x08, 0x0B, 0x0C, 0x0B, 0x0A,
            0x0C, 0x09, 0x0A, 0x0A, 0x0A, 0xFF, 0xDB, 0x00, 0x43, 0x01, 0x02, 0x02, 0x02, 0x02,
            0x02, 0x02, 0x05, 0x03, 0x03, 0x05, 0x0A, 0x07, 0x06, 0x07, 0x0A, 0x0A, 0x0A, 0x0A,
            0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A,
            0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A,
            0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A, 0x0A,
            0x0A, 0x0A, 0x0A, 0x0A, 0xFF, 0xC0, 0x00, 0x11, 0x08, 0x00, 0x10, 0x00, 0x10, 0x03,
            0x01, 0x11, 0x00, 0x02, 0x11, 0x01, 0x03, 0x11, 0x01, 0xFF, 0xC4, 0x00, 0x16, 0x00,
            0x01, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
            0x00, 0x00, 0x08, 0x09, 0x0A, 0xFF, 0xC4, 0x00, 0x14, 0x10, 0x01, 0x00, 0x00, 0x00,
            0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0xFF,
            0xC4, 0x00, 0x17, 0x01, 0x01, 0x01, 0x01, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
            0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x07, 0x0A, 0x08, 0x09, 0xFF, 0xC4, 0x00, 0x14,
            0x11, 0x01, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x00,
            0x00, 0x00, 0x00, 0x00, 0xFF, 0xDA, 0x00, 0x0C, 0x03, 0x01, 0x00, 0x02, 0x11, 0x03,
            0x11, 0x00, 0x3F, 0x00, 0x2F, 0x84, 0xDD, 0x40, 0x2E, 0x02, 0xE9, 0xB3, 0x4C, 0xF5,
            0x0A, 0x36, 0xC3, 0x48, 0x09, 0x7F, 0x34, 0x3F, 0xFF, 0xD9})},
      kSide,
      kSide};
  for (std::int32_t i = 0; i < kSide * kSide; ++i) {
    const bool isRight = i % kSide >= kSide / 2;
    const bool isLow = i / kSide >= kSide / 2;
    picture.pixels.push_back(isLow ? (isRight ? Color{220, 220, 60} : Color{40, 40, 200})
                                   : (isRight ? Color{40, 200, 40} : Color{200, 40, 40}));
  }
  picture.tolerance = 2;
  picture.isFile = true;
  return picture;
}

std::vector<StoredPicture> StoredPictures() {
  std::vector<StoredPicture> pictures;
  for (const bool isTopDown : {false, true}) {
    for (StoredPicture& picture :
         std::vector{TwoColors(isTopDown), Indexed(isTopDown, 4), Indexed(isTopDown, 8),
                     Direct(isTopDown, 16), Direct(isTopDown, 24), Direct(isTopDown, 32),
                     Fields565(isTopDown), FieldsFromRed(isTopDown)}) {
      if (isTopDown) picture.name += "_from_the_top";
      pictures.push_back(std::move(picture));
    }
  }
  for (StoredPicture& picture : std::vector{CoreHeader(), Runs8(), Runs4(), AsPng(), AsJpeg()})
    pictures.push_back(std::move(picture));
  for (StoredPicture& picture : pictures) {
    if (picture.pixels.empty()) picture.pixels = ColorsInOrder();
  }
  return pictures;
}

/// How a picture is drawn, a place of its own for each way.
struct DrawnBitmap {
  std::uint32_t type;
  bool isMirroredX = false;
  bool isMirroredY = false;
};

constexpr DrawnBitmap kDrawings[] = {{kStretchDibits},
                                     {kStretchDibits, true},
                                     {kStretchDibits, false, true},
                                     {kStretchDibits, true, true},
                                     {kSetDibitsToDevice},
                                     {kBitBlt},
                                     {kStretchBlt},
                                     {kStretchBlt, true},
                                     {kStretchBlt, false, true},
                                     {kStretchBlt, true, true}};

constexpr bool TakesFiles(std::uint32_t type) {
  return type == kStretchDibits || type == kSetDibitsToDevice;
}

At PlaceOf(std::size_t drawing) {
  constexpr std::int32_t kSpace = 20;
  const auto i = static_cast<std::int32_t>(drawing);
  return {i % 5 * kSpace, i / 5 * kSpace};
}

Metafile Drawn(const StoredPicture& picture) {
  const At size = {picture.width, picture.height};
  Metafile metafile;
  for (std::size_t i = 0; i < std::size(kDrawings); ++i) {
    const DrawnBitmap& drawing = kDrawings[i];
    if (picture.isFile && !TakesFiles(drawing.type)) continue;
    Blit blit = {.destination = PlaceOf(i), .size = size, .sourceSize = size};
    if (drawing.isMirroredX) blit.destination.x += size.x;
    if (drawing.isMirroredX) blit.size.x = -size.x;
    if (drawing.isMirroredY) blit.destination.y += size.y;
    if (drawing.isMirroredY) blit.size.y = -size.y;
    blit.bitmap = picture.bitmap;
    blit.scans = static_cast<std::uint32_t>(size.y);
    AddBlit(metafile, drawing.type, blit);
  }
  return metafile;
}

std::string PageOf(const Metafile& metafile) {
  ConversionOptions options;
  options.page = PageChoice::kBounds;
  const PictureConversion made = ConvertPicture(metafile.Build(), options);
  const auto& bytes = made.document->bytes;
  return {bytes.begin(), bytes.end()};
}

bool IsNear(const Color& color, const Color& other, int tolerance) {
  for (std::size_t i = 0; i < color.size(); ++i) {
    if (std::abs(color[i] - other[i]) > tolerance) return false;
  }
  return true;
}

class AStoredPicture : public testing::TestWithParam<StoredPicture> {};

TEST_P(AStoredPicture, IsOnThePagePixelByPixel) {
  constexpr int kScale = 8;
  const StoredPicture& picture = GetParam();
  const Raster page(PageOf(Drawn(picture)), kScale);
  const auto at = [&](std::size_t drawing, std::int32_t x, std::int32_t y) {
    const At place = PlaceOf(drawing);
    return page.At((place.x + x) * kScale + kScale / 2, (place.y + y) * kScale + kScale / 2);
  };
  for (std::size_t i = 0; i < std::size(kDrawings); ++i) {
    const DrawnBitmap& drawing = kDrawings[i];
    if (picture.isFile && !TakesFiles(drawing.type)) continue;
    for (std::int32_t y = 0; y < picture.height; ++y) {
      for (std::int32_t x = 0; x < picture.width; ++x) {
        const std::int32_t column = drawing.isMirroredX ? picture.width - 1 - x : x;
        const std::int32_t row = drawing.isMirroredY ? picture.height - 1 - y : y;
        const std::int32_t pixel = row * picture.width + column;
        const Color& wanted = picture.pixels[static_cast<std::size_t>(pixel)];
        EXPECT_TRUE(IsNear(at(i, x, y), wanted, picture.tolerance))
            << "drawing " << i << ", column " << x << ", row " << y << ": "
            << testing::PrintToString(at(i, x, y)) << ", not " << testing::PrintToString(wanted);
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(, AStoredPicture, testing::ValuesIn(StoredPictures()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
