// Bitmaps and gradients that were made to do harm, through the whole tool: a page comes of what
// follows them whatever they say.

#include <limits>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "hostile/hostile_files.h"
#include "support/blits.h"
#include "support/png.h"
#include "whole/hostile_page.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kRunLength8 = 1;
constexpr std::uint32_t kRunLength4 = 2;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kJpeg = 4;
constexpr std::uint32_t kPng = 5;

constexpr std::uint32_t kSrcAnd = 0x008800C6;
constexpr std::uint32_t kSrcPaint = 0x00EE0086;
constexpr std::uint32_t kSrcInvert = 0x00660046;
constexpr std::uint32_t kMaskedCopy = 0xAACC0020;
constexpr std::uint32_t kPerPixelAlpha = 0x01FF0000;

constexpr std::uint32_t kBlits[] = {kBitBlt,         kStretchBlt,       kMaskBlt,
                                    kPlgBlt,         kStretchDibits,    kAlphaBlend,
                                    kTransparentBlt, kSetDibitsToDevice};

struct HostileBitmap {
  std::string name;
  Metafile metafile;
};

void PrintTo(const HostileBitmap& bitmap, std::ostream* out) {
  *out << bitmap.name;
}

BitmapParts BitmapOf(const BitmapFields& fields, std::size_t bytes = 64) {
  return {Bytes().BitmapHeader(fields), Bytes().Zeros(bytes)};
}

/// A bitmap of 8 bits with colours of its own.
BitmapParts Indexed(BitmapFields fields, const Bytes& pixels, std::size_t colors = 256) {
  fields.bitCount = 8;
  return {Bytes().BitmapHeader(fields).Zeros(4 * colors), pixels};
}

/// The operation that makes most of a blit's bitmaps.
std::uint32_t OperationOf(std::uint32_t type) {
  if (type == kMaskBlt) return kMaskedCopy;
  return type == kAlphaBlend ? kPerPixelAlpha : kSrcCopy;
}

Metafile Drawn(const Blit& blit, std::uint32_t type = kStretchDibits) {
  Metafile metafile;
  return AddBlit(metafile, type, blit);
}

/// The same by every record that has a bitmap.
Metafile DrawnByAll(Blit blit) {
  Metafile metafile;
  for (const std::uint32_t type : kBlits) {
    blit.operation = OperationOf(type);
    AddBlit(metafile, type, blit);
  }
  return metafile;
}

Metafile WithFields(const BitmapFields& fields) {
  return DrawnByAll({.bitmap = BitmapOf(fields)});
}

std::vector<HostileBitmap> BitmapsOfBadHeaders() {
  return {
      {"no_width", WithFields({.width = 0})},
      {"no_height", WithFields({.height = 0})},
      {"a_negative_width", WithFields({.width = -1})},
      {"the_least_width", WithFields({.width = kLeast})},
      {"the_least_height", WithFields({.height = kLeast})},
      {"the_greatest_width", WithFields({.width = kMost})},
      {"the_greatest_height", WithFields({.height = kMost})},
      {"the_greatest_width_and_height", WithFields({.width = kMost, .height = kMost})},
      {"as_many_bytes_as_wrap", WithFields({.width = 1, .height = 0x40000001})},
      {"a_row_that_wraps", WithFields({.width = 0x15555556})},
      {"a_row_that_wraps_in_bits", WithFields({.width = 0x20000000, .bitCount = 32})},
      {"no_depth", WithFields({.bitCount = 0})},
      {"any_depth", WithFields({.bitCount = 0xFFFF})},
      {"an_unknown_compression", WithFields({.compression = 0xFFFFFFFF})},
      {"colors_promised", WithFields({.bitCount = 8, .colorsUsed = 0xFFFFFFFF})},
      {"fields_of_no_bits", WithFields({.bitCount = 16, .compression = kBitFields})},
      {"a_header_of_a_byte", DrawnByAll({.bitmap = {Bytes().U8(40), Bytes().Zeros(4)}})},
      {"a_header_cut_short", DrawnByAll({.bitmap = {Bytes().U32(40).I32(4), Bytes().Zeros(4)}})},
      {"a_header_that_claims_all",
       DrawnByAll({.bitmap = {Bytes().U32(0xFFFFFFFF).Zeros(36), Bytes().Zeros(4)}})},
      {"pixels_that_are_not_there", DrawnByAll({.bitmap = BitmapOf({.width = 9, .height = 9}, 0)})},
      {"a_color_table_too_short",
       DrawnByAll({.bitmap = Indexed({.width = 4}, Bytes().Each({0, 1, 2, 255}), 1)})},
      {"palette_indexes_of_nothing",
       DrawnByAll({.bitmap = Indexed({.width = 4}, Bytes().Each({0, 1, 2, 255})), .usage = 1})},
      {"an_unknown_usage",
       DrawnByAll(
           {.bitmap = Indexed({.width = 4}, Bytes().Each({0, 1, 2, 255})), .usage = 0xFFFFFFFF})},
  };
}

BitmapParts RunLength(const BitmapFields& size, const Bytes& runs) {
  return Indexed({.width = size.width, .height = size.height, .compression = kRunLength8}, runs);
}

/// A whole picture from next to nothing.
BitmapParts LargeRunLength() {
  return RunLength({.width = 30000, .height = 30000}, Bytes().Each({255, 1, 255, 2, 0, 1}));
}

Metafile RepeatedRunLength() {
  const BitmapParts bitmap =
      RunLength({.width = 2000, .height = 2000}, Bytes().Each({255, 1, 0, 0, 255, 2, 0, 1}));
  Metafile metafile;
  for (int i = 0; i < 10000; ++i)
    AddBlit(metafile, kStretchDibits, {.sourceSize = {2000, 2000}, .bitmap = bitmap});
  return metafile;
}

std::vector<HostileBitmap> BitmapsOfBadPixels() {
  const BitmapFields small = {.width = 9, .height = 9};
  return {
      {"runs_past_the_row", DrawnByAll({.bitmap = RunLength(small, Bytes().Each({255, 1}))})},
      {"runs_past_the_picture",
       DrawnByAll({.bitmap = RunLength(small, Bytes().Each({0, 2, 255, 255, 255, 1}))})},
      {"runs_that_end_in_a_step",
       DrawnByAll({.bitmap = RunLength(small, Bytes().Each({0, 2, 3}))})},
      {"runs_that_end_in_a_literal",
       DrawnByAll({.bitmap = RunLength(small, Bytes().Each({0, 200, 1}))})},
      {"runs_of_no_bytes", DrawnByAll({.bitmap = RunLength(small, Bytes())})},
      {"runs_of_the_other_depth",
       DrawnByAll({.bitmap = Indexed({.width = 9, .compression = kRunLength4}, Bytes().U32(0))})},
      {"a_large_picture_of_ten_bytes",
       DrawnByAll({.sourceSize = {30000, 30000}, .bitmap = LargeRunLength()})},
      {"a_corner_of_a_large_picture", DrawnByAll({.bitmap = LargeRunLength()})},
  };
}

/// A whole file as the pixels of a bitmap.
BitmapParts FileAsBitmap(const std::vector<unsigned char>& file, std::uint32_t compression,
                         std::int32_t side) {
  const BitmapFields fields = {
      .width = side, .height = side, .bitCount = 0, .compression = compression};
  return {Bytes().BitmapHeader(fields), Bytes().Append(file)};
}

Metafile DrawnPng(const std::vector<unsigned char>& file, std::int32_t side) {
  return Drawn({.sourceSize = {side, side}, .bitmap = FileAsBitmap(file, kPng, side)});
}

/// A picture of one bit a pixel, which is some thousand times as long as its file.
Metafile ADensePng() {
  constexpr std::uint32_t kSide = 30000;
  const std::vector<unsigned char> rows(std::size_t{kSide / 8 + 1} * kSide);
  return DrawnPng(PngFile({kSide, kSide, 1, 0}, rows), kSide);
}

std::vector<HostileBitmap> BitmapsOfBadFiles() {
  const std::vector<unsigned char> png =
      PngFile({4, 4}, std::vector<unsigned char>(std::size_t{4} * 13));
  const std::vector<unsigned char> noRows = PngFile({30000, 30000}, {});
  const std::vector<unsigned char> jpegStart = {0xFF, 0xD8, 0xFF, 0xC0, 0, 17, 8, 0, 4};
  return {
      {"a_png_cut_short", DrawnPng(CutShort(png, 20), 4)},
      {"a_png_of_a_signature", DrawnPng({png.begin(), png.begin() + 8}, 4)},
      {"a_png_of_another_size", DrawnPng(png, 4000)},
      {"a_png_without_its_rows", DrawnPng(noRows, 30000)},
      {"a_png_without_its_rows_that_says_little", DrawnPng(noRows, 4)},
      {"a_png_that_is_none", DrawnPng({1, 2, 3, 4}, 4)},
      {"a_jpeg_cut_short", Drawn({.bitmap = FileAsBitmap(jpegStart, kJpeg, 4)})},
      {"a_jpeg_of_nothing", Drawn({.bitmap = FileAsBitmap({}, kJpeg, 4)})},
      {"a_jpeg_of_markers",
       Drawn({.bitmap = FileAsBitmap(std::vector<unsigned char>(4096, 0xFF), kJpeg, 4)})},
  };
}

const BitmapParts kPixel = BitmapOf({}, 4);

/// The pixel under a transform of the destination.
Metafile UnderWorld(const XForm& world) {
  Metafile metafile;
  metafile.SetWorldTransform(world);
  for (const std::uint32_t type : kBlits)
    AddBlit(metafile, type, {.operation = OperationOf(type), .bitmap = kPixel});
  return metafile;
}

std::vector<HostileBitmap> BitmapsInBadPlaces() {
  constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
  const BitmapParts four = BitmapOf({.width = 4, .height = 4});
  return {
      {"a_source_outside", DrawnByAll({.source = {9, 9}, .sourceSize = {4, 4}, .bitmap = four})},
      {"a_source_before", DrawnByAll({.source = {-9, -9}, .sourceSize = {4, 4}, .bitmap = four})},
      {"a_source_that_wraps",
       DrawnByAll({.source = {kMost, kMost}, .sourceSize = {kMost, kMost}, .bitmap = four})},
      {"a_source_of_extremes",
       DrawnByAll({.source = {kLeast, kLeast}, .sourceSize = {kMost, kLeast}, .bitmap = four})},
      {"a_source_of_nothing", DrawnByAll({.sourceSize = {0, 0}, .bitmap = four})},
      {"a_source_far_larger", DrawnByAll({.sourceSize = {kMost, kMost}, .bitmap = four})},
      {"a_destination_of_nothing", DrawnByAll({.size = {0, 0}, .bitmap = four})},
      {"the_greatest_destination", DrawnByAll({.size = {kMost, kMost}, .bitmap = four})},
      {"the_least_destination", DrawnByAll({.size = {kLeast, kLeast}, .bitmap = four})},
      {"a_destination_that_wraps",
       DrawnByAll({.destination = {kMost, kMost}, .size = {kMost, kMost}, .bitmap = four})},
      {"scans_promised",
       Drawn({.bitmap = four, .startScan = 0xFFFFFFFF, .scans = 0xFFFFFFFF}, kSetDibitsToDevice)},
      {"a_world_without_area", UnderWorld({0, 0, 0, 0, 0, 0})},
      {"a_world_of_a_line", UnderWorld({1, 1, 1, 1, 0, 0})},
      {"a_world_too_large", UnderWorld({3e38F, 0, 0, 3e38F, 0, 0})},
      {"a_world_too_small", UnderWorld({1e-38F, 0, 0, 1e-38F, 0, 0})},
      {"a_world_of_no_numbers",
       UnderWorld({kNoNumber, kNoNumber, kNoNumber, kNoNumber, kNoNumber, kNoNumber})},
      {"a_source_transform_of_no_numbers",
       DrawnByAll({.bitmap = four, .transform = {kNoNumber, 0, 0, kNoNumber, 0, 0}})},
      {"a_source_transform_without_area",
       DrawnByAll({.bitmap = four, .transform = {0, 0, 0, 0, 0, 0}})},
      {"a_source_transform_too_large",
       DrawnByAll({.bitmap = four, .transform = {3e38F, 0, 0, 3e38F, 0, 0}})},
  };
}

BitmapParts Mask(std::int32_t width, std::int32_t height, std::size_t bytes) {
  Bytes header = Bytes().BitmapHeader({.width = width, .height = height, .bitCount = 1});
  return {header.Color(0, 0, 0).Color(255, 255, 255), Bytes().Zeros(bytes)};
}

/// Masks that wait for the image that they are to hide.
Metafile UnfinishedPairs(std::uint32_t first) {
  Metafile metafile;
  for (int i = 0; i < 10000; ++i) {
    AddBlit(metafile, kStretchBlt,
            {.destination = {i % 90, i / 90 % 90}, .operation = first, .bitmap = Mask(1, 1, 4)});
  }
  return metafile;
}

Metafile ManyPixels() {
  Metafile metafile;
  for (std::int32_t i = 0; i < 100000; ++i) {
    const auto color = static_cast<std::uint32_t>(i);
    AddBlit(metafile, kStretchDibits,
            {.destination = {i % 100, i / 100 % 100},
             .size = {1, 1},
             .bitmap = {Bytes().BitmapHeader({}), Bytes().U32(color * 2654435761U)}});
  }
  return metafile;
}

std::vector<HostileBitmap> BitmapsWithMasks() {
  const BitmapParts four = BitmapOf({.width = 4, .height = 4});
  const auto masked = [&](const BitmapParts& mask, At at) {
    return DrawnByAll({.sourceSize = {4, 4}, .bitmap = four, .maskSource = at, .mask = mask});
  };
  return {
      {"a_mask_of_another_size", masked(Mask(1, 1, 4), {0, 0})},
      {"a_mask_far_larger", masked(Mask(20000, 20000, 64), {0, 0})},
      {"a_mask_elsewhere", masked(Mask(4, 4, 16), {kMost, kLeast})},
      {"a_mask_of_another_depth", masked(four, {0, 0})},
      {"a_mask_without_an_image", DrawnByAll({.sourceSize = {4, 4}, .mask = Mask(4, 4, 16)})},
  };
}

// Gradients.

enum Mode : std::uint32_t { kAcross, kDown, kTriangles };

/// Vertices, each of another colour than the one before it.
Bytes Vertices(const Points& points) {
  Bytes vertices;
  std::uint32_t red = 0;
  for (const At& at : points)
    vertices.PointL(at.x, at.y).U16(red ^= 0xFF00).U16(0xFFFF).U16(0).U16(0);
  return vertices;
}

Metafile Gradient(Mode mode, std::uint32_t count, const Points& points,
                  const std::vector<std::uint32_t>& indexes) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(static_cast<std::uint32_t>(points.size()));
  body.U32(count).U32(mode).Append(Vertices(points).Data());
  for (const std::uint32_t index : indexes)
    body.U32(index);
  Metafile metafile;
  return metafile.Record(kGradientFill, body);
}

Metafile GradientUnderWorld(const XForm& world) {
  Metafile metafile;
  metafile.SetWorldTransform(world);
  for (const Mode mode : {kAcross, kDown, kTriangles}) {
    Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(3).U32(1).U32(mode);
    body.Append(Vertices({{1, 2}, {kMost, 2}, {1, kLeast}}).Data()).U32(0).U32(2).U32(1);
    metafile.Record(kGradientFill, body);
  }
  return metafile;
}

Metafile ManyTriangles() {
  constexpr std::uint32_t kTriangleCount = 50'000;
  std::vector<std::uint32_t> indexes;
  for (std::uint32_t i = 0; i < kTriangleCount; ++i) {
    for (const std::uint32_t index : {i % 4, (i + 1) % 4, (i + 2) % 4})
      indexes.push_back(index);
  }
  return Gradient(kTriangles, kTriangleCount, {{0, 0}, {90, 0}, {90, 90}, {0, 90}}, indexes);
}

Metafile ManyRectangles() {
  Points points;
  std::vector<std::uint32_t> indexes;
  for (std::int32_t i = 0; i < 20000; ++i) {
    points.push_back({i % 100, i / 200 + i % 2});
    indexes.push_back(static_cast<std::uint32_t>(i));
  }
  return Gradient(kAcross, 10000, points, indexes);
}

std::vector<HostileBitmap> BadGradients() {
  const Points corners = {{0, 0}, {9, 0}, {9, 9}};
  constexpr std::uint32_t kNone = 0xFFFFFFFF;
  constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
  return {
      {"gradients_promised", Gradient(kAcross, kNone, corners, {0, 1})},
      {"triangles_promised", Gradient(kTriangles, kNone, corners, {0, 1, 2})},
      {"triangles_that_wrap", Gradient(kTriangles, 0x55555556, corners, {0, 1, 2})},
      {"a_gradient_without_vertices", Gradient(kDown, 1, {}, {0, 1})},
      {"a_gradient_of_vertices_that_are_not_there", Gradient(kDown, 1, corners, {3, kNone})},
      {"triangles_of_vertices_that_are_not_there",
       Gradient(kTriangles, 2, corners, {0, 1, 3, kNone, 0x10000000, 0})},
      {"a_gradient_of_an_unknown_mode", Gradient(Mode{kNone}, 1, corners, {0, 1, 2})},
      {"a_gradient_of_a_point", Gradient(kAcross, 1, corners, {0, 0})},
      {"a_gradient_of_extremes", Gradient(kAcross, 1, {{kLeast, kLeast}, {kMost, kMost}}, {0, 1})},
      {"a_triangle_of_extremes",
       Gradient(kTriangles, 1, {{kLeast, kLeast}, {kMost, kLeast}, {0, kMost}}, {0, 1, 2})},
      {"a_gradient_in_a_world_without_area", GradientUnderWorld({0, 0, 0, 0, 0, 0})},
      {"a_gradient_in_a_world_of_a_line", GradientUnderWorld({1, 1, 1, 1, 0, 0})},
      {"a_gradient_in_a_world_too_large", GradientUnderWorld({3e38F, 0, 0, 3e38F, 0, 0})},
      {"a_gradient_in_a_world_too_small", GradientUnderWorld({1e-38F, 0, 0, 1e-38F, 0, 0})},
      {"a_gradient_in_a_world_of_no_numbers",
       GradientUnderWorld({kNoNumber, 0, 0, kNoNumber, 0, 0})},
  };
}

std::vector<HostileBitmap> HostileBitmaps() {
  std::vector<HostileBitmap> bitmaps;
  for (auto* const each : {BitmapsOfBadHeaders, BitmapsOfBadPixels, BitmapsOfBadFiles,
                           BitmapsInBadPlaces, BitmapsWithMasks, BadGradients}) {
    for (HostileBitmap& bitmap : each())
      bitmaps.push_back(std::move(bitmap));
  }
  return bitmaps;
}

/// What takes long to make, and is made where it is needed.
struct LargeHostileFile {
  std::string name;
  Metafile (*make)();
};

void PrintTo(const LargeHostileFile& file, std::ostream* out) {
  *out << file.name;
}

const LargeHostileFile kLargeFiles[] = {
    {"a_dense_png", ADensePng},
    {"large_pictures_of_ten_bytes_each", RepeatedRunLength},
    {"masks_by_and_without_an_image", [] { return UnfinishedPairs(kSrcAnd); }},
    {"masks_by_or_without_an_image", [] { return UnfinishedPairs(kSrcPaint); }},
    {"masks_by_exclusive_or_without_an_image", [] { return UnfinishedPairs(kSrcInvert); }},
    {"very_many_pixels", ManyPixels},
    {"very_many_triangles", ManyTriangles},
    {"very_many_gradients", ManyRectangles},
};

class AHostileBitmap : public HostilePage, public testing::WithParamInterface<HostileBitmap> {};

TEST_P(AHostileBitmap, LeavesAPageOfWhatFollowsIt) {
  ExpectAPageOfWhatFollows(GetParam().metafile);
}

class ALargeHostileFile : public HostilePage,
                          public testing::WithParamInterface<LargeHostileFile> {};

TEST_P(ALargeHostileFile, LeavesAPageOfWhatFollowsIt) {
  ExpectAPageOfWhatFollows(GetParam().make());
}

INSTANTIATE_TEST_SUITE_P(, ALargeHostileFile, testing::ValuesIn(kLargeFiles),
                         [](const auto& row) { return row.param.name; });
INSTANTIATE_TEST_SUITE_P(, AHostileBitmap, testing::ValuesIn(HostileBitmaps()),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace kelvane::test
