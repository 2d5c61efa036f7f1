#include "hostile/hostile_files.h"

namespace kelvane::test {
namespace {

constexpr const char* kDrawn = "rgb under 10 0 0 10 0 -10\n";

/// The bitmap and a line.
std::vector<unsigned char> Drawn(const Bytes& bitmap) {
  Metafile metafile;
  return AddLine(metafile.StretchDibits({0, 0, 10, 10}, bitmap)).Build();
}

std::vector<unsigned char> OfFields(const BitmapFields& fields) {
  return Drawn(Bytes().BitmapHeader(fields).Zeros(64));
}

std::string Image(const char* size) {
  return std::string("image ") + size + " " + kDrawn + kLineTrace;
}

/// Nine mebibytes of pixels, of which none is there: two of them pass what so small a file may
/// decode to.
std::vector<unsigned char> TwoLargeOnes() {
  const BitmapFields fields = {.width = 3072, .height = 1024};
  Metafile metafile;
  metafile.StretchDibits({0, 0, 10, 10}, Bytes().BitmapHeader(fields).Zeros(4));
  metafile.StretchDibits({0, 0, 10, 10}, Bytes().BitmapHeader(fields).Zeros(4));
  return AddLine(metafile).Build();
}

}  // namespace

std::vector<HostileFile> FilesOfBadBitmaps() {
  return {
      // Without pixels, and not drawn.
      {"bitmap_of_negative_width", OfFields({.width = -1}), 0, kLineTrace},
      {"bitmap_of_the_least_width", OfFields({.width = kLeast}), 0, kLineTrace},
      {"bitmap_of_the_least_height", OfFields({.width = 4, .height = kLeast}), 0, kLineTrace},
      {"bitmap_of_no_width", OfFields({.width = 0}), 0, kLineTrace},
      {"bitmap_of_no_height", OfFields({.height = 0}), 0, kLineTrace},
      {"bitmap_of_most_width_and_height", OfFields({.width = kMost, .height = kMost}), 0,
       kLineTrace},
      {"bitmap_of_2_to_the_32_bytes", OfFields({.width = 1, .height = 0x40000001}), 0, kLineTrace},
      {"bitmap_row_that_wraps", OfFields({.width = 0x15555556, .height = 1}), 0, kLineTrace},
      {"bitmap_past_what_may_be_decoded", OfFields({.width = 4000, .height = 4000}), 0, kLineTrace},
      {"bitmaps_past_what_may_be_decoded_together", TwoLargeOnes(), 0, Image("3072 1024")},
      {"bitmap_of_no_depth", OfFields({.bitCount = 0}), 0, kLineTrace},
      {"bitmap_of_any_depth", OfFields({.bitCount = 0xFFFF}), 0, kLineTrace},
      {"bitmap_of_unknown_compression", OfFields({.compression = 0xFFFFFFFF}), 0, kLineTrace},

      // Bytes that are missing are 0, indexes past the table black.
      {"bitmap_cut_short",
       Metafile()
           .StretchDibits({0, 0, 10, 10},
                          Bytes().BitmapHeader({.width = 2, .height = -2}).Each({3, 2, 1, 6, 5}))
           .BuildWithoutEnd(),
       0,
       std::string("image 2 2 ") + kDrawn,
       {1, 2, 3, 0, 5, 6, 0, 0, 0, 0, 0, 0}},
      {"bitmap_index_past_the_table",
       Drawn(Bytes()
                 .BitmapHeader({.width = 4, .bitCount = 8, .colorsUsed = 2})
                 .Color(1, 2, 3)
                 .Color(4, 5, 6)
                 .Each({1, 2, 255, 0})),
       0,
       Image("4 1"),
       {4, 5, 6, 0, 0, 0, 0, 0, 0, 1, 2, 3}},
  };
}

}  // namespace kelvane::test
