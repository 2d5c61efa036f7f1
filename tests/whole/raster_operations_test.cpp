// Pixels can do what other outputs only come near to: every raster operation, bit by bit.

#include <cstdint>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "frontends/picture_conversion.h"
#include "frontends/picture_report.h"
#include "support/bitmap.h"
#include "support/blits.h"

namespace kelvane::test {
namespace {

using testing::HasSubstr;
using testing::Not;

constexpr std::uint32_t kSetRop2 = 20;
constexpr std::uint32_t kNullPen = 0x80000008;
constexpr std::uint32_t kXorPen = 7;
constexpr Raster::Color kPaint = {0xC3, 0x5A, 0x0F};
constexpr Raster::Color kSource = {0x3C, 0x99, 0xF1};
constexpr Raster::Color kThere = {0x69, 0xA7, 0x12};
constexpr int kCell = 8;  // device units
constexpr int kColumns = 16;

std::uint32_t ColorRef(const Raster::Color& color) {
  return static_cast<std::uint32_t>(color[0] | color[1] << 8 | color[2] << 16);
}

/// By the definition of ternary operations: three bits lead to a bit of the code.
Raster::Color Combined(std::uint32_t code) {
  Raster::Color result = {};
  for (std::size_t channel = 0; channel < result.size(); ++channel) {
    for (int bit = 0; bit < 8; ++bit) {
      const int operands = (kPaint[channel] >> bit & 1) << 2 | (kSource[channel] >> bit & 1) << 1 |
                           (kThere[channel] >> bit & 1);
      result[channel] |= static_cast<int>(code >> operands & 1) << bit;
    }
  }
  return result;
}

/// And of binary ones, from R2_BLACK on.
Raster::Color CombinedByPen(std::uint32_t code) {
  Raster::Color result = {};
  for (std::size_t channel = 0; channel < result.size(); ++channel) {
    for (int bit = 0; bit < 8; ++bit) {
      const int operands = (kPaint[channel] >> bit & 1) << 1 | (kThere[channel] >> bit & 1);
      result[channel] |= static_cast<int>(code >> operands & 1) << bit;
    }
  }
  return result;
}

/// Two pixels of the same colour, 24 bits each.
BitmapParts BitmapOfSource() {
  Bytes pixels;
  for (int i = 0; i < 2; ++i) {
    for (const std::size_t channel : {2U, 1U, 0U})
      pixels.U8(static_cast<std::uint32_t>(kSource[channel]));
  }
  return {Bytes().U32(40).U32(2).U32(1).U16(1).U16(24).U32(0).U32(0).U32(0).U32(0).U32(0).U32(0),
          pixels.U16(0)};
}

At CellAt(std::uint32_t index) {
  return {static_cast<std::int32_t>(index % kColumns) * kCell,
          static_cast<std::int32_t>(index / kColumns) * kCell};
}

/// Fills cells with kThere, and gets ready to draw with kPaint.
Metafile Cells(std::uint32_t count) {
  Metafile metafile;
  const auto rows = static_cast<std::int32_t>((count + kColumns - 1) / kColumns);
  metafile.Bounds(0, 0, kColumns * kCell, rows * kCell);
  metafile.CreateBrush(1, ColorRef(kThere)).CreateBrush(2, ColorRef(kPaint));
  metafile.SelectObject(kNullPen).SelectObject(1);
  for (std::uint32_t i = 0; i < count; ++i)
    metafile.BitBlt(CellAt(i), {kCell, kCell});
  return std::move(metafile.SelectObject(2));
}

PictureConversion Converted(const std::vector<unsigned char>& file, std::string_view format) {
  ConversionOptions options;
  options.format = format;
  options.page = PageChoice::kBounds;
  options.dotsPerInch = 72;  // a pixel a device unit
  return ConvertPicture(file, options);
}

Raster PictureOf(const std::vector<unsigned char>& file) {
  const PictureConversion made = Converted(file, "png");
  const auto& bytes = made.document->bytes;
  return RasterOfPng({bytes.begin(), bytes.end()});
}

Raster::Color MiddleOf(const Raster& picture, std::uint32_t cell) {
  const At at = CellAt(cell);
  return picture.At(at.x + kCell / 2, at.y + kCell / 2);
}

TEST(RasterOperationsInPixels, CombineBitsInAll256Ways) {
  constexpr std::uint32_t kOperations = 256;
  Metafile metafile = Cells(kOperations);
  for (std::uint32_t code = 0; code < kOperations; ++code) {
    AddBlit(metafile, kStretchDibits,
            {.destination = CellAt(code),
             .size = {kCell, kCell},
             .sourceSize = {2, 1},
             .operation = code << 16,
             .bitmap = BitmapOfSource()});
  }
  const Raster picture = PictureOf(metafile.Build());
  for (std::uint32_t code = 0; code < kOperations; ++code) {
    EXPECT_EQ(MiddleOf(picture, code), Combined(code)) << code;
  }
}

TEST(RasterOperationsInPixels, CombineShapesInAllSixteenWays) {
  constexpr std::uint32_t kOperations = 16;
  Metafile metafile = Cells(kOperations);
  for (std::uint32_t i = 0; i < kOperations; ++i) {
    const At at = CellAt(i);
    metafile.Record(kSetRop2, Bytes().U32(1 + i));
    metafile.Rectangle({at.x, at.y, at.x + kCell, at.y + kCell});
  }
  const Raster picture = PictureOf(metafile.Build());
  for (std::uint32_t i = 0; i < kOperations; ++i) {
    EXPECT_EQ(MiddleOf(picture, i), CombinedByPen(i)) << i;
  }
}

/// XOR in a colour of many bits, on an image of colours that nobody keeps in mind.
std::vector<unsigned char> ExclusiveOr() {
  Metafile metafile = Cells(1);
  AddBlit(metafile, kStretchDibits,
          {.destination = {0, 0},
           .size = {kCell, kCell},
           .sourceSize = {2, 1},
           .bitmap = BitmapOfSource()});
  metafile.Record(kSetRop2, Bytes().U32(kXorPen)).Rectangle({0, 0, kCell, kCell});
  return metafile.Build();
}

TEST(AReport, TellsOfRasterOperationsWhereTheOutputOnlyComesNear) {
  for (const char* const format : {"pdf", "svg"}) {
    EXPECT_THAT(ReportAsJson(Converted(ExclusiveOr(), format)), HasSubstr("EMR_RECTANGLE"))
        << format;
  }
  EXPECT_THAT(ReportAsJson(Converted(ExclusiveOr(), "png")), Not(HasSubstr("EMR_RECTANGLE")));
}

}  // namespace
}  // namespace kelvane::test
