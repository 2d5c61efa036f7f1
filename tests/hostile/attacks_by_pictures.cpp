#include "base/deflater.h"
#include "hostile/attacks.h"
#include "hostile/hostile_emfplus.h"
#include "hostile/hostile_files.h"
#include "support/blits.h"
#include "support/containers.h"
#include "support/png.h"
#include "support/tiff.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr std::uint32_t kRunLengths = 1;
constexpr std::uint32_t kJpegInside = 4;
constexpr std::uint32_t kPngInside = 5;

constexpr const char* kFarTooLarge = "its bitmap is far larger than its data";
constexpr const char* kNoPicture = "its bitmap cannot be read";

File Drawn(const BitmapFields& fields, const Bytes& pixels, std::uint32_t type = kStretchDibits) {
  const At all = {fields.width, fields.height};
  Metafile harm;
  AddBlit(harm, type, {.sourceSize = all, .bitmap = {Bytes().BitmapHeader(fields), pixels}});
  return Followed(harm);
}

std::vector<Attack> Geometry() {
  return {
      {"a_bitmap_whose_size_wraps",
       [] {
         return Drawn({.width = 0x10001, .height = 0x10001, .bitCount = 32}, Bytes().Zeros(64));
       },
       kNoPicture},
      {"a_bitmap_of_minus_2_to_the_31_rows",
       [] { return Drawn({.width = 4, .height = kLeast}, Bytes().Zeros(64)); }, kNoPicture},
      {"a_bitmap_of_rows_that_are_not_there",
       [] { return Drawn({.width = 4, .height = -30000}, Bytes().Zeros(64)); }, kNoPicture},
      {"a_bitmap_of_far_more_than_its_runs",
       [] {
         return Drawn({.width = 32767,
                       .height = 32767,
                       .bitCount = 8,
                       .compression = kRunLengths,
                       .colorsUsed = 1},
                      Bytes().U32(0).Each({255, 0, 0, 1}));
       },
       kFarTooLarge},
      {"runs_that_step_out_of_the_bitmap",
       [] {
         Bytes runs = Bytes().U32(0);
         for (int i = 0; i < 1000; ++i)
           runs.Each({0, 2, 255, 255, 255, 0});
         return Drawn(
             {.width = 8, .height = 8, .bitCount = 8, .compression = kRunLengths, .colorsUsed = 1},
             runs);
       }},
      {"a_windows_bitmap_whose_size_wraps",
       [] {
         const Bytes blit =
             Bytes().U32(kSrcCopy).U16(0).I16(9).I16(9).I16(0).I16(0).I16(50).I16(50);
         return Followed(HundredUnits().Record(
             0x0F43,
             Bytes(blit).I16(0).I16(0).BitmapHeader({.width = 0x8001, .height = 0x20001}).U32(0)));
       },
       kNoPicture},
      {"pixels_of_emfplus_that_are_not_there",
       [] {
         const Bytes image = Bytes().U32(1).U32(50000).U32(50000).U32(200000).U32(0x26200A).U32(0);
         return Followed(Joined({Object(kPlusImage, 1, Bytes(image).Zeros(64)), DrawImage(1)}));
       },
       kUnreadable},
  };
}

File JpegOf(std::uint32_t side) {
  const auto high = side >> 8;
  Bytes file =
      Bytes().Each({0xFF, 0xD8, 0xFF, 0xC0, 0, 17, 8, high, side & 0xFF, high, side & 0xFF});
  file.Each(
      {3, 1, 0x11, 0, 2, 0x11, 0, 3, 0x11, 0, 0xFF, 0xDA, 0, 12, 3, 1, 0, 2, 0, 3, 0, 0, 63, 0});
  return file.Zeros(16).Each({0xFF, 0xD9}).Data();
}

File GifOf(std::uint32_t side) {
  Bytes file = Bytes().Each({'G', 'I', 'F', '8', '9', 'a'}).U16(side).U16(side).Each({0x80, 0, 0});
  file.Zeros(6).U8(0x2C).Zeros(4).U16(side).U16(side).U8(0);
  return file.Each({2, 2, 0x4C, 1, 0, 0x3B}).Data();
}

/// So many bytes of zeros, deflated.
File Deflated(std::size_t bytes) {
  const DeflatedBytes packed = Deflater().Deflate(File(bytes));
  return {packed.View().begin(), packed.View().end()};
}

File TiffBomb() {
  constexpr std::uint32_t kDeflate = 8;
  return TiffFile({.width = 5000, .height = 5000, .compression = kDeflate},
                  Deflated(std::size_t{75} << 20));
}

/// A picture that is as large as it says, and a thousand times its file.
File PngBomb() {
  return PngFile({5000, 5000}, File(std::size_t{15001} * 5000));
}

/// A BMP file.
File BmpOf(const BitmapFields& fields, const File& pixels) {
  const auto size = static_cast<std::uint32_t>(54 + pixels.size());
  Bytes file = Bytes().Each({'B', 'M'}).U32(size).U32(0).U32(54).BitmapHeader(fields);
  return file.Append(pixels).Data();
}

File DrawnImageOf(const File& image) {
  return Followed(Joined({Object(kPlusImage, 1, ImageOf(image, 0)), DrawImage(1)}));
}

std::vector<Attack> ImageFiles() {
  constexpr std::int32_t kSide = 60000;
  const BitmapFields inside = {.width = 4, .height = 4, .bitCount = 0};
  return {
      {"a_png_that_promises_too_much",
       [] {
         return DrawnImageOf(PngFile({kSide, kSide}, File(100)));
       },
       kFarTooLarge},
      {"a_jpeg_that_promises_too_much", [] { return DrawnImageOf(JpegOf(kSide)); }},
      {"a_gif_that_promises_too_much", [] { return DrawnImageOf(GifOf(kSide)); }, kFarTooLarge},
      {"a_tiff_that_promises_too_much",
       [] { return DrawnImageOf(TiffFile({.width = kSide, .height = kSide}, File(100))); },
       kFarTooLarge},
      {"a_tiff_of_tiles_that_promises_too_much",
       [] {
         return DrawnImageOf(
             TiffFile({.width = 16, .height = 16, .tileSide = 0x7FFFFFF0}, File(100)));
       },
       kNoPicture},
      {"a_png_that_expands", [] { return DrawnImageOf(PngBomb()); }, kFarTooLarge},
      {"a_tiff_that_expands", [] { return DrawnImageOf(TiffBomb()); }, kFarTooLarge},
      {"a_png_in_a_bitmap_that_promises_too_much",
       [] {
         return Drawn({.width = kSide, .height = kSide, .bitCount = 0, .compression = kPngInside},
                      Bytes().Append(PngFile({kSide, kSide}, File(100))));
       },
       kFarTooLarge},
      {"a_jpeg_in_a_bitmap_that_promises_too_much",
       [] {
         return Drawn({.width = kSide, .height = kSide, .bitCount = 0, .compression = kJpegInside},
                      Bytes().Append(JpegOf(kSide)));
       }},
      {"a_jpeg_in_a_bitmap_that_is_mixed_with_the_page",
       [] {
         Metafile harm;
         AddBlit(
             harm, kStretchDibits,
             {.sourceSize = {kSide, kSide},
              .operation = 0x008800C6,
              .bitmap = {
                  Bytes().BitmapHeader(
                      {.width = kSide, .height = kSide, .bitCount = 0, .compression = kJpegInside}),
                  Bytes().Append(JpegOf(kSide))}});
         return Followed(harm);
       },
       kFarTooLarge},
      {"a_bmp_in_a_bmp",
       [=] {
         const File inner = BmpOf(inside, BmpOf(inside, File(64)));
         BitmapFields fields = inside;
         fields.compression = kPngInside;
         return DrawnImageOf(BmpOf(fields, inner));
       },
       kNoPicture},
      {"a_png_in_a_bmp_that_promises_too_much",
       [=] {
         BitmapFields fields = inside;
         fields.compression = kPngInside;
         return DrawnImageOf(BmpOf(fields, PngFile({kSide, kSide}, File(100))));
       },
       kFarTooLarge},
  };
}

/// A texture in which the image is a metafile that is painted with such a texture.
PlusRecords TexturesWithin(int depth) {
  PlusRecords records = FillSquare(1);
  for (int i = 0; i < depth; ++i) {
    const Bytes image = ImageOf(FileOf(records), kEmfImage);
    const Bytes brush = Bytes().U32(2).U32(0).U32(0).U32(kPlusVersion).Append(image.Data());
    records = Joined({Object(kPlusBrush, 1, brush), FillSquare(1)});
  }
  return records;
}

PlusRecords MetafilesWithin(int depth) {
  PlusRecords records = FillSquare(1);
  for (int i = 0; i < depth; ++i)
    records = Joined({Object(kPlusImage, 1, ImageOf(FileOf(records), kEmfImage)), DrawImage(1)});
  return records;
}

File Packed(File file, int times) {
  for (int i = 0; i < times; ++i)
    file = Gzipped(file);
  return file;
}

/// Two pictures of one bit a pixel that take turns.
PlusRecords LargeImagesInTurns() {
  constexpr std::uint32_t kSide = 4096;
  const File rows(std::size_t{kSide / 8 + 1} * kSide);
  const Bytes image = ImageOf(PngFile({kSide, kSide, 1, 0}, rows), 0);
  return Joined({Object(kPlusImage, 1, image), Object(kPlusImage, 2, image),
                 Repeated(Joined({DrawImage(1), DrawImage(2)}), 1000)});
}

std::vector<Attack> Within() {
  return {
      {"textures_within_textures", [] { return Followed(TexturesWithin(50)); }},
      {"metafiles_within_one_another", [] { return Followed(MetafilesWithin(50)); }, kTooDeep},
      {"large_images_in_turns", [] { return Followed(LargeImagesInTurns()); }},
      {"a_compressed_file_that_expands", [] { return Packed(File(std::size_t{20} << 20), 1); },
       "it expands to more than 64 times its size", Outcome::kNoPicture},
      {"a_compressed_file_in_a_compressed_file", [] { return Packed(Followed(Metafile()), 2); },
       "it is no metafile", Outcome::kNoPicture},
      {"a_compressed_file_of_comments_that_expands",
       [] {
         Metafile harm;
         harm.Record(EMR_GDICOMMENT, Bytes().U32(1 << 20).Zeros(1 << 20));
         return Packed(Followed(harm), 1);
       },
       "it expands to more than 64 times its size", Outcome::kNoPicture},
  };
}

}  // namespace

std::vector<Attack> AttacksByPictures() {
  std::vector<Attack> all;
  for (const auto& group : {Geometry(), ImageFiles(), Within()})
    all.insert(all.end(), group.begin(), group.end());
  return all;
}

}  // namespace kelvane::test
