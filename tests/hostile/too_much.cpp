#include "hostile/hostile_files.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kHuge = 0x7FFFFFFF;
constexpr std::uint32_t kWrapping = 0x40000000;  // times 4 it is 0 in 32 bits

/// The body of a poly record of 16-bit points.
Bytes Poly(std::uint32_t count, const Points& points) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(count);
  for (const At& point : points)
    body.Point(point.x, point.y);
  return body;
}

Bytes WidePoly(std::uint32_t count, const Points& points) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(count);
  for (const At& point : points)
    body.PointL(point.x, point.y);
  return body;
}

/// A text record's body of `count` units promised, those of `text` there.
Bytes Text(std::uint32_t count, std::uint32_t offset, std::uint32_t spacingOffset,
           std::u16string_view text) {
  return TextFields(count, offset, spacingOffset).Utf16(text);
}

std::vector<unsigned char> Ending(std::uint32_t type, const Bytes& body) {
  return Metafile().Record(type, body).BuildWithoutEnd();
}

std::vector<unsigned char> BeforeALine(std::uint32_t type, const Bytes& body) {
  Metafile metafile;
  metafile.Record(type, body);
  return AddLine(metafile).Build();
}

}  // namespace

std::vector<HostileFile> FilesThatPromiseTooMuch() {
  return {
      // Elements that are not there: those that are, are kept.
      {"points16", Ending(EMR_POLYLINE16, Poly(kWrapping, {{1, 2}, {3, 4}})), 0, kLineTrace},
      {"points32", Ending(EMR_POLYLINE, WidePoly(0x20000000, {{1, 2}, {3, 4}})), 0, kLineTrace},
      {"half_a_point_at_the_end",
       Metafile()
           .RecordOfSize(EMR_POLYLINE16, 64, Poly(9, {{1, 2}, {3, 4}}).U16(5).U8(6))
           .BuildWithoutEnd(),
       0, kLineTrace},
      {"bezier_groups",
       Ending(EMR_POLYBEZIER16, Poly(kHuge, {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}})), 0,
       "move 0 0\ncurve 1 -1 2 -2 3 -3\nstroke\n"},
      {"figures",
       Ending(EMR_POLYPOLYLINE16, Poly(kWrapping, {}).U32(2).U32(2).Point(1, 2).Point(3, 4)), 0,
       ""},
      {"points_of_figures",
       Ending(EMR_POLYPOLYLINE16, Poly(1, {}).U32(2).U32(kWrapping).Point(1, 2).Point(3, 4)), 0,
       kLineTrace},
      {"text_units",
       WithFont().Record(EMR_EXTTEXTOUTW, Text(kHuge, kTextAt, 0, u"ab")).BuildWithoutEnd(), 0,
       TextTrace('a', 10) + TextTrace('b', 10)},
      {"text_spacing",
       WithFont()
           .Record(EMR_EXTTEXTOUTW, Text(4, kTextAt, kTextAt + 8, u"abcd").U32(7))
           .BuildWithoutEnd(),
       0, TextTrace('a', 10) + TextTrace('b', 17) + TextTrace('c', 17) + TextTrace('d', 17)},
      {"palette",
       Ending(EMR_STRETCHDIBITS, Bytes()
                                     .Rectangle(0, 0, 10, 10)
                                     .Zeros(56)
                                     .BitmapHeader({.bitCount = 8, .colorsUsed = kWrapping})
                                     .Color(1, 2, 3)),
       0,
       "image 1 1 rgb under 10 0 0 10 0 -10\n",
       {0, 0, 0}},
      {"comment", BeforeALine(EMR_GDICOMMENT, Bytes().U32(0xFFFFFFFF).U32(1)), 0, kLineTrace},
      {"brush_bytes",
       BeforeALine(EMR_CREATEDIBPATTERNBRUSHPT,
                   Bytes().U32(1).U32(0).U32(32).U32(kHuge).U32(72).U32(kHuge).Zeros(8)),
       0, kLineTrace},
      {"blt_bits", BeforeALine(EMR_BITBLT, Bytes().Rectangle(0, 0, 1, 1).Zeros(72).U32(kHuge)), 0,
       kLineTrace},
      {"pen_styles",
       BeforeALine(EMR_EXTCREATEPEN, Bytes().U32(1).Zeros(16).U32(0).U32(1).Zeros(12).U32(kHuge)),
       0, kLineTrace},

      // More than the record holds, and the file does: reading goes on, and comes back.
      {"points_of_the_next_record", BeforeALine(EMR_POLYLINE16, Poly(3, {{7, 7}})), 0,
       "move 7 -7\nline 87 0\nline 36 0\nstroke\n" + std::string(kLineTrace)},

      // Offsets: none is followed.
      {"text_offset", WithFont().Record(EMR_EXTTEXTOUTW, Text(1, 0xFFFFFFF0, 0, u"a")).Build(), 0,
       TextTrace('a', 10)},
      {"spacing_offset",
       WithFont()
           .Record(EMR_EXTTEXTOUTW, Text(2, kTextAt, 0xFFFFFFF0, u"ab").U32(5).U32(6))
           .Build(),
       0, TextTrace('a', 10) + TextTrace('b', 15)},
      {"bitmap_offsets",
       Ending(EMR_STRETCHDIBITS, Bytes()
                                     .Rectangle(0, 0, 10, 10)
                                     .Zeros(24)
                                     .U32(0xFFFFFFF0)
                                     .U32(kHuge)
                                     .U32(0x80000000)
                                     .U32(kHuge)
                                     .Zeros(16)
                                     .BitmapHeader({})
                                     .Each({3, 2, 1, 0})),
       0,
       "image 1 1 rgb under 10 0 0 10 0 -10\n",
       {1, 2, 3}},

      // The header. Its sizes make no room.
      {"header_counts",
       WithField(WithField(WithField(Metafile().Build(), kFileSizeAt, 0xFFFFFFFF), kRecordCountAt,
                           0xFFFFFFFF),
                 kPaletteLengthAt, 0xFFFFFFFF),
       0, ""},
      {"header_description_of_the_whole_file",
       WithField(Metafile().Build(), kDescriptionLengthAt, 0xFFFFFFFF), 0, ""},
      {"header_description_before_its_offset",
       WithField(Metafile().Build(), kDescriptionOffsetAt, kHeaderSize + 1), -1},
      {"header_description_far_behind",
       WithField(Metafile().Build(), kDescriptionOffsetAt, 0xFFFFFFFF), -1},
  };
}

}  // namespace kelvane::test
