#include "hostile/attacks.h"
#include "hostile/hostile_emfplus.h"
#include "hostile/hostile_files.h"
#include "support/blits.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr std::uint32_t kExtSelectClipRgn = 75;
constexpr std::uint32_t kFillRgn = 71;
constexpr std::uint32_t kCreatePalette = 49;
constexpr std::uint32_t kPolyTextOut = 97;

constexpr const char* kEndsEarly = "it is too short for its fields";
constexpr const char* kTooFewRectangles = "its region has fewer rectangles than it counts";

/// A record, and the square.
File Of(std::uint32_t type, const Bytes& body) {
  return Followed(Metafile().Record(type, body));
}

/// The body of a poly record of many points promised and three there.
Bytes PointsPromised(std::uint32_t count) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(count);
  return body.Point(1, 1).Point(30, 2).Point(3, 40);
}

Bytes FiguresPromised(std::uint32_t figures, std::uint32_t points,
                      const std::vector<std::uint32_t>& counts) {
  Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(figures).U32(points);
  for (const std::uint32_t count : counts)
    body.U32(count);
  return body.Point(1, 1).Point(30, 2).Point(3, 40);
}

Bytes RegionPromised(std::uint32_t count) {
  Bytes region = Bytes().U32(32).U32(1).U32(count).U32(16).Rectangle(0, 0, 50, 50);
  return region.Rectangle(0, 0, 20, 20);
}

File ClipPromised(std::uint32_t count) {
  return Followed(Metafile()
                      .Record(kExtSelectClipRgn,
                              Bytes().U32(48).U32(kRegionCopy).Append(RegionPromised(count).Data()))
                      .Rectangle({1, 1, 50, 50})
                      .Record(kExtSelectClipRgn, Bytes().U32(0).U32(kRegionCopy)));
}

std::vector<Attack> Counts() {
  const Bytes fill = Bytes().Rectangle(0, 0, 50, 50).U32(48).U32(kStockBlackBrush);
  return {
      {"points_whose_size_wraps", [] { return Of(EMR_POLYGON16, PointsPromised(0x40000001)); },
       kEndsEarly},
      {"wide_points_whose_size_wraps", [] { return Of(EMR_POLYGON, PointsPromised(0x20000001)); },
       kEndsEarly},
      {"points_and_types_whose_size_wraps",
       [] { return Of(EMR_POLYDRAW16, PointsPromised(0x33333334)); }, kEndsEarly},
      {"figures_whose_size_wraps",
       [] { return Of(EMR_POLYPOLYGON16, FiguresPromised(0x40000001, 3, {3})); }, kEndsEarly},
      {"figures_whose_points_wrap",
       [] {
         return Of(EMR_POLYPOLYGON16, FiguresPromised(3, 3, {0xFFFFFFFF, 2, 2}));
       },
       "it has fewer points than its figures count"},
      {"windows_figures_of_more_points_than_there_are",
       [] {
         const Bytes counts = Bytes().U16(4).U16(0xFFFF).U16(0xFFFF).U16(0xFFFF).U16(3);
         return Followed(HundredUnits().Record(0x0538, Bytes(counts).Point(1, 1).Point(9, 9)));
       },
       kEndsEarly},
      {"a_region_whose_size_wraps", [] { return ClipPromised(0x10000001); }, kTooFewRectangles},
      {"a_painted_region_whose_size_wraps",
       [=] { return Of(kFillRgn, Bytes(fill).Append(RegionPromised(0x10000001).Data())); },
       kTooFewRectangles},
      {"a_palette_of_more_than_it_has",
       [] { return Of(kCreatePalette, Bytes().U32(1).U16(0x300).U16(0xFFFF).U32(0)); }, kEndsEarly},
      {"texts_whose_size_wraps",
       [] {
         return Of(kPolyTextOut, Bytes().Zeros(16).U32(1).F32(1).F32(1).U32(0x0CCCCCCD).Zeros(80));
       }},
      {"rectangles_of_emfplus_whose_size_wraps",
       [] {
         return Followed(PlusRecords().Record(
             0x400A, kPlusColor, Bytes().U32(kBlue).U32(0x10000001).F32(1).F32(1).F32(9).F32(9)));
       },
       kTooShort},
      {"points_of_emfplus_whose_size_wraps",
       [] {
         return Followed(
             Joined({Object(kPlusPath, 1, Bytes().U32(0x20000001).U32(0).Zeros(40)),
                     PlusRecords().Record(0x4014, kPlusColor | 1, Bytes().U32(kBlue))}));
       },
       kUnreadable},
  };
}

Metafile TextAt(std::uint32_t stringOffset, std::uint32_t spacingOffset) {
  return WithFont().Record(EMR_EXTTEXTOUTW,
                           TextFields(2, stringOffset, spacingOffset).Utf16(u"ab"));
}

/// A blit whose bitmap lies where these say.
Bytes BitmapAt(std::uint32_t header, std::uint32_t headerSize, std::uint32_t pixels,
               std::uint32_t pixelsSize) {
  Bytes body = Bytes().Rectangle(0, 0, 9, 9).PointL(0, 0).PointL(0, 0).PointL(9, 9);
  body.U32(header).U32(headerSize).U32(pixels).U32(pixelsSize).U32(0).U32(kSrcCopy);
  return body.PointL(9, 9).BitmapHeader({}).U32(0);
}

/// Another form of the picture in a comment, which lies where these say.
Bytes FormAt(std::uint32_t size, std::uint32_t offset) {
  constexpr std::uint32_t kPublic = 0x43494447;
  constexpr std::uint32_t kManyForms = 0x40000004;
  constexpr std::uint32_t kEmf = 0x464D4520;
  Bytes form = Bytes().U32(kPublic).U32(kManyForms).Rectangle(0, 0, 50, 50).U32(1);
  form.U32(kEmf).U32(1).U32(size).U32(offset).Zeros(16);
  return Bytes().U32(static_cast<std::uint32_t>(form.Size())).Append(form.Data());
}

std::vector<Attack> Offsets() {
  return {
      {"text_before_its_record", [] { return Followed(TextAt(0, 0)); }},
      {"text_beyond_the_file", [] { return Followed(TextAt(0x7FFFFFFE, 0)); }, kEndsEarly},
      {"text_that_wraps_around", [] { return Followed(TextAt(0xFFFFFFFE, 0)); }, kEndsEarly},
      {"advances_beyond_the_file", [] { return Followed(TextAt(kTextAt, 0xFFFFFFFC)); }},
      {"a_bitmap_beyond_the_file",
       [] { return Of(EMR_STRETCHDIBITS, BitmapAt(0xFFFFFFF0, 40, 120, 4)); }, kEndsEarly},
      {"pixels_beyond_the_file",
       [] { return Of(EMR_STRETCHDIBITS, BitmapAt(80, 40, 0x7FFFFFFF, 0x7FFFFFFF)); }, kEndsEarly},
      {"a_header_and_pixels_that_wrap_around",
       [] { return Of(EMR_STRETCHDIBITS, BitmapAt(80, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF)); }},
      {"a_brush_beyond_the_file",
       [] {
         return Followed(
             Metafile()
                 .Record(
                     EMR_CREATEDIBPATTERNBRUSHPT,
                     Bytes().U32(1).U32(0).U32(0xFFFFFFF8).U32(40).U32(0xFFFFFFF0).U32(0xFFFFFFFF))
                 .SelectObject(1)
                 .Rectangle({1, 1, 50, 50}));
       },
       kEndsEarly},
      {"dashes_beyond_the_pen",
       [] {
         Bytes pen = Bytes().U32(1).U32(0xFFFFFFF0).U32(40).U32(0xFFFFFFF0).U32(40);
         pen.U32(0x10207).U32(3).U32(0).U32(0).U32(0).U32(0xFFFFFFFF).U32(1);
         return Of(EMR_EXTCREATEPEN, pen);
       },
       kEndsEarly},
      {"another_form_beyond_its_comment",
       [] { return Of(EMR_GDICOMMENT, FormAt(0xFFFFFFFF, 0xFFFFFFF0)); }},
      {"a_description_beyond_the_file",
       [] {
         return WithField(WithField(Followed(Metafile()), kDescriptionOffsetAt, 0xFFFFFFF0),
                          kDescriptionLengthAt, 0x7FFFFFFF);
       }},
      {"an_object_of_emfplus_larger_than_its_record",
       [] {
         return Followed(
             Joined({Object(kPlusImage, 1, Bytes().U32(2).U32(kEmfImage).U32(0xFFFFFFF0).Zeros(8)),
                     DrawImage(1)}));
       },
       kUnreadable},
      {"a_comment_larger_than_its_record",
       [] { return Of(EMR_GDICOMMENT, Bytes().U32(0xFFFFFFFF).U32(0x2B464D45).Zeros(12)); }},
  };
}

std::vector<Attack> Handles() {
  return {
      {"handles_that_there_are_not",
       [] {
         Metafile harm;
         for (const std::uint32_t handle :
              {0U, 8U, 0x7FFFFFFFU, 0x80000005U, 0x800000FFU, 0xFFFFFFFFU})
           harm.SelectObject(handle).DeleteObject(handle);
         return Followed(harm);
       }},
      {"objects_made_where_there_is_no_room",
       [] {
         Metafile harm;
         for (const std::uint32_t handle : {0U, 0x10000U, 0x7FFFFFFFU, 0x80000004U, 0xFFFFFFFFU})
           harm.CreatePen(handle, 9, 0).SelectObject(handle);
         return Followed(harm);
       }},
      {"a_brush_used_once_it_is_deleted",
       [] {
         return Followed(Metafile()
                             .CreateBrush(1, 0)
                             .SelectObject(1)
                             .DeleteObject(1)
                             .CreateFont(1, {})
                             .Rectangle({1, 1, 50, 50}));
       }},
      {"windows_handles_that_there_are_not",
       [] {
         WindowsMetafile harm = HundredUnits();
         for (const int handle : {0, 1, 16, 32767, 65535})
           harm.Record(0x012D, {handle}).Record(0x01F0, {handle}).Record(0x012C, {handle});
         return Followed(harm);
       }},
      {"slots_of_emfplus_that_there_are_not",
       [] {
         PlusRecords harm;
         for (const std::uint32_t slot : {63U, 64U, 127U, 255U})
           harm.Object(kPlusBrush, slot, SolidBrush()).Append(FillSquare(slot));
         for (const std::uint32_t slot : {64U, 0x7FFFFFFFU, kAll})
           harm.Append(FillSquare(slot));
         return Followed(harm);
       },
       kNoObject},
      {"an_object_of_emfplus_that_never_ends",
       [] {
         PlusRecords piece;
         piece.Record(0x4008, kPlusMore | kPlusImage << 8 | 1, Bytes().U32(kAll).Zeros(4096));
         return Followed(Joined({Repeated(piece, 1000), DrawImage(1)}));
       },
       kNoObject},
      {"an_object_of_emfplus_longer_than_it_said",
       [] {
         PlusRecords piece;
         piece.Record(0x4008, kPlusMore | kPlusImage << 8 | 1, Bytes().U32(16).Zeros(4096));
         return Followed(Joined({Repeated(piece, 10), DrawImage(1)}));
       },
       kNoPieces},
  };
}

}  // namespace

std::vector<Attack> AttacksByCounts() {
  std::vector<Attack> all;
  for (const auto& group : {Counts(), Offsets(), Handles()})
    all.insert(all.end(), group.begin(), group.end());
  return all;
}

}  // namespace kelvane::test
