#include "hostile/hostile_files.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kUnknownType = 77;  // playback skips it

/// A line, a record that states the size, and another line.
std::vector<unsigned char> BetweenLines(std::uint32_t type, std::uint32_t size, const Bytes& body) {
  Metafile metafile;
  AddLine(metafile).RecordOfSize(type, size, body);
  return AddLine(metafile).Build();
}

/// Records of 28 bytes, each of which claims `count` points.
std::vector<unsigned char> Overlapping(int records, std::uint32_t count) {
  Metafile metafile;
  for (int i = 0; i < records; ++i)
    metafile.RecordOfSize(EMR_POLYLINE16, 28, Bytes().Zeros(16).U32(count));
  return metafile.Build();
}

/// A line, a font that states the size, and another line. @param before  lines in front of it all.
std::vector<unsigned char> FontBetweenLines(std::uint32_t size, int before = 0) {
  Metafile metafile;
  for (int i = 0; i < before; ++i)
    metafile.MoveTo(i, i);
  AddLine(metafile).RecordOfSize(EMR_EXTCREATEFONTINDIRECTW, size, Bytes().U32(1).Zeros(320));
  return AddLine(metafile).Build();
}

/// A line, and the first bytes of a polyline's type and size.
std::vector<unsigned char> EndingInType(std::size_t bytes) {
  Metafile metafile;
  AddLine(metafile);
  return CutShort(AddLine(metafile).BuildWithoutEnd(), 36 - bytes);
}

std::vector<unsigned char> EndingInLineTo(std::size_t bytes) {
  return CutShort(Metafile().MoveTo(1, 2).LineTo(3, 4).BuildWithoutEnd(), 8 - bytes);
}

}  // namespace

std::vector<HostileFile> FilesThatLeadAstray() {
  const Bytes line = Bytes().Zeros(16).U32(2).Point(1, 2).Point(3, 4);
  const std::string twice = std::string(kLineTrace) + kLineTrace;
  std::vector<HostileFile> files = {
      // Records that do not lead on: the parse ends with them.
      {"size_0_of_a_skipped_record", BetweenLines(kUnknownType, 0, Bytes().Zeros(8)), 0,
       kLineTrace},
      {"size_4_of_a_skipped_record", BetweenLines(kUnknownType, 4, Bytes().Zeros(8)), 0,
       kLineTrace},
      {"size_3_of_a_skipped_record", BetweenLines(kUnknownType, 3, Bytes().Zeros(8)), 0,
       kLineTrace},
      {"size_0_of_a_drawn_record", BetweenLines(EMR_POLYLINE16, 0, line), 0, twice},
      {"size_4_of_a_drawn_record", BetweenLines(EMR_POLYLINE16, 4, line), 0, twice},
      {"size_that_wraps_to_the_file_before", BetweenLines(EMR_POLYLINE16, 0xFFFFFF9C, line), 0,
       twice},
      {"size_of_a_font_that_wraps_to_the_file_before", FontBetweenLines(0xFFFFFF9C), 0, kLineTrace},
      {"size_of_a_font_that_wraps_to_the_start", FontBetweenLines(0U - 144), 0, kLineTrace},
      {"size_of_a_font_that_wraps_past_the_start", FontBetweenLines(0xFFFFF000), 0, kLineTrace},
      {"size_of_a_font_far_down_that_wraps", FontBetweenLines(0xFFFFF000, 1000), 0, kLineTrace},
      {"size_of_a_font_that_is_the_least", FontBetweenLines(0x80000000), 0, kLineTrace},
      {"size_of_a_font_that_is_nearly_the_least", FontBetweenLines(0x8000014C), 0, kLineTrace},
      {"size_of_a_font_that_is_the_most", FontBetweenLines(0x7FFFFFFF), -1},

      // Records on top of each other.
      {"overlapping_without_end", Overlapping(8000, 0x10000000), -1},
      {"overlapping_fonts",
       [] {
         Metafile metafile;
         for (int i = 0; i < 100000; ++i)
           metafile.RecordOfSize(EMR_EXTCREATEFONTINDIRECTW, 8);
         return metafile.Build();
       }(),
       -1},

      // Ends.
      {"header_size_past_the_end", WithField(Metafile().Build(), kHeaderSizeAt, 0x7FFFFFFF), -1},
      {"header_size_at_the_end", WithField(Metafile().Build(), kHeaderSizeAt, kHeaderSize + 21),
       -1},
      {"header_size_negative", WithField(Metafile().Build(), kHeaderSizeAt, 0xFFFFFFF0), -1},
      {"skipped_record_past_the_end",
       CutShort(Metafile().Record(kUnknownType, Bytes().Zeros(60)).BuildWithoutEnd(), 20), -1},
      {"skipped_record_of_four_gigabytes", BetweenLines(kUnknownType, 0xFFFFFFFC, {}), 0,
       kLineTrace},
      {"drawn_record_cut_short",
       CutShort(Metafile().Polyline({{1, 2}, {3, 4}, {5, 6}}).BuildWithoutEnd(), 4), 0, kLineTrace},
      {"type_cut_short", EndingInType(3), 0, kLineTrace},
      {"type_at_the_very_end", EndingInType(4), 0, kLineTrace},
      {"size_cut_short_to_1_byte", EndingInType(5), 0, kLineTrace},
      {"size_cut_short_to_2_bytes", EndingInType(6), 0, kLineTrace},
      {"size_cut_short_to_3_bytes", EndingInType(7), 0, kLineTrace},
      {"size_at_the_very_end", EndingInType(8), 0, kLineTrace},
      {"point_cut_short_inside_x", EndingInLineTo(1), 0, "move 1 -2\nline 3 0\nstroke\n"},
      {"point_cut_short_before_y", EndingInLineTo(4), 0, "move 1 -2\nline 3 0\nstroke\n"},
      {"point_cut_short_inside_y", EndingInLineTo(5), 0, "move 1 -2\nline 3 -4\nstroke\n"},
      {"font_cut_short", CutShort(FontBetweenLines(332), 20 + 36 + 100), 0, kLineTrace},
      {"font_cut_short_behind_its_fields", CutShort(FontBetweenLines(400), 20 + 36), 0, kLineTrace},
      {"records_behind_the_end",
       [] {
         Metafile metafile;
         return AddLine(metafile.RecordOfSize(EMR_EOF, 20, Bytes().Zeros(12))).Build();
       }(),
       0, ""},
      {"no_header", Bytes().U32(EMR_POLYBEZIER).U32(8).Data(), -1},
      {"header_alone", Metafile().BuildWithoutEnd(), 0, ""},
      {"half_a_header", CutShort(Metafile().BuildWithoutEnd(), 60), -1},

      // Without its own fields, skipped by its size.
      {"poly_draw",
       [] {
         Metafile metafile;
         return AddLine(metafile.Record(EMR_POLYDRAW, Bytes().U32(0xFFFFFFFF).Zeros(40))).Build();
       }(),
       0, kLineTrace},
  };
  return files;
}

}  // namespace kelvane::test
