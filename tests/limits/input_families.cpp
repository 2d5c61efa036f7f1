#include "limits/input_families.h"

#include "limits/brush_families.h"
#include "limits/clip_families.h"
#include "limits/emfplus_families.h"
#include "limits/family_parts.h"
#include "limits/picture_families.h"
#include "limits/wmf_families.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr std::uint32_t kEmrExtSelectClipRgn = 75;

Points ScatteredPoints(std::size_t count) {
  Points points;
  for (std::size_t i = 0; i < count; ++i)
    points.push_back({Scattered(i), Scattered(3 * i + 1)});
  return points;
}

// Records.

File Saves(std::size_t size) {
  return Repeated(size, 8, [](Metafile& metafile, std::size_t) { metafile.SaveDC(); });
}

File Attributes(std::size_t size) {
  return Repeated(size, 12,
                  [](Metafile& metafile, std::size_t i) { metafile.SetTextColor(Number(i)); });
}

File Comments(std::size_t size) {
  return Repeated(size, 12, [](Metafile& metafile, std::size_t) {
    metafile.Record(EMR_GDICOMMENT, Bytes().U32(0));
  });
}

File Lines(std::size_t size) {
  return Repeated(size, 36, [](Metafile& metafile, std::size_t i) {
    metafile.Polyline({{Scattered(i), 1}, {3, Scattered(i + 1)}});
  });
}

File Ellipses(std::size_t size) {
  return Repeated(size, 24, [](Metafile& metafile, std::size_t i) {
    metafile.Ellipse({Scattered(i), 1, Scattered(i + 1), 100});
  });
}

File Pens(std::size_t size) {
  return Repeated(size, 28 + 12 + 36, [](Metafile& metafile, std::size_t i) {
    metafile.CreatePen(Number(i), Signed(i % 7), Number(i)).SelectObject(Number(i));
    metafile.Polyline({{Scattered(i), 1}, {3, Scattered(i + 1)}});
  });
}

File UnevenStrokes(std::size_t size) {
  return Repeated(size, 36 + 36, [](Metafile& metafile, std::size_t i) {
    metafile.ModifyWorldTransform({1, 0.25F, 0, 1.5F, 0, static_cast<float>(i % 64)},
                                  kSetTransform);
    metafile.Polyline({{Scattered(i), 1}, {3, Scattered(i + 1)}});
  });
}

// Each clip lies inside the one before, and none is given back.
File NestedClips(std::size_t size) {
  return Repeated(size, 8 + 8 + 24 + 8 + 12 + 24, [](Metafile& metafile, std::size_t i) {
    metafile.SaveDC().BeginPath().Rectangle({0, 0, 1000, Scattered(i)}).EndPath();
    metafile.SelectClipPath(kRegionAnd).Rectangle({1, 2, 3, 4});
  });
}

// Clips of one rectangle within another, with a mark under each.
File CutClips(std::size_t size) {
  return Repeated(size, 24 + 24, [](Metafile& metafile, std::size_t i) {
    metafile.Record(EMR_INTERSECTCLIPRECT, Bytes().Rectangle(0, Signed(i % 500), 1000, 1000));
    metafile.Rectangle({1, 2, 3, 4});
  });
}

File AClipOfRectangles(std::size_t size) {
  const std::size_t count = size / 16;
  Bytes region = Bytes().U32(Number(32 + 16 * count)).U32(kRegionCopy);
  region.U32(32).U32(1).U32(Number(count)).U32(Number(16 * count)).Rectangle(0, 0, 1024, 1024);
  for (std::size_t i = 0; i < count; ++i) {
    const std::int32_t left = Signed(i % 500 * 2);
    const std::int32_t top = Signed(i / 500 * 2);
    region.Rectangle(left, top, left + 1, top + 1);
  }
  return Metafile()
      .Bounds(0, 0, 1024, 1024)
      .Record(kEmrExtSelectClipRgn, region)
      .Rectangle({0, 0, 1000, 1000})
      .Build();
}

// Dashes of a unit, of which a million make a point, along the whole page.
File ShortDashes(std::size_t size) {
  constexpr std::uint32_t kOwnDashes = 0x10207;  // geometric, flat, in a style of its own
  return Repeated(size, 60 + 12 + 24 + 36, [](Metafile& metafile, std::size_t i) {
    const Bytes pen = Bytes().U32(kOwnDashes).U32(Number(i)).U32(0).U32(0).U32(0).U32(2);
    metafile.Record(EMR_EXTCREATEPEN, Bytes().U32(1).Zeros(16).Append(pen.Data()).U32(1).U32(1));
    metafile.SelectObject(1).ModifyWorldTransform({1e-6F, 0, 0, 1e-6F, 0, 0}, kSetTransform);
    metafile.Polyline({{0, Signed(i)}, {1000000000, Signed(i)}}, true);
  });
}

// Points.

File ManyPoints(std::size_t size) {
  return Metafile().Bounds(0, 0, 1024, 1024).Polyline(ScatteredPoints(size / 4)).Build();
}

// A figure whose lines cross all others.
File ManyCrossings(std::size_t size) {
  return Metafile().Bounds(0, 0, 1024, 1024).Polygon(ScatteredPoints(size / 4)).Build();
}

File ManyCurves(std::size_t size) {
  return Metafile().Bounds(0, 0, 1024, 1024).Polybezier(ScatteredPoints(size / 4)).Build();
}

File ManyFigures(std::size_t size) {
  const std::vector<Points> figures(size / 12, Points{{1, 2}, {3, 4}});
  return Metafile().Bounds(0, 0, 1024, 1024).PolyPolygon(figures).Build();
}

File AnOpenPath(std::size_t size) {
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024).BeginPath().MoveTo(0, 0);
  for (std::size_t i = 0; i * 16 < size; ++i)
    metafile.LineTo(Scattered(i), Scattered(2 * i));
  return metafile.Build();
}

// Text.

File LinesOfText(std::size_t size) {
  const std::u16string line(u"The quick brown fox jumps over the lazy dog, twice 0123456789.  ");
  const std::vector<std::uint32_t> spacing(line.size(), 6);
  return Repeated(size, 76 + 6 * line.size(), [&](Metafile& metafile, std::size_t i) {
    metafile.TextOut({Scattered(i), Scattered(i + 1)}, line, spacing);
  });
}

File SingleUnits(std::size_t size) {
  return Repeated(size, 80, [](Metafile& metafile, std::size_t i) {
    metafile.TextOut({Scattered(i), Scattered(i + 1)}, std::u16string(1, u'a'));
  });
}

/// One line of text in one record; `escapement` 0 draws its units one by one.
File LineOfText(std::u16string_view text, std::int32_t escapement) {
  Metafile metafile;
  metafile.Bounds(0, 0, 1024, 1024).CreateFont(1, {.escapement = escapement}).SelectObject(1);
  return metafile.TextOut({1, 2}, text).Build();
}

File OneLine(std::size_t size) {
  return LineOfText(std::u16string(size / 2, u'x'), 0);
}

File OneTurnedLine(std::size_t size) {
  return LineOfText(std::u16string(size / 2, u'x'), 300);
}

/// All of the basic plane in turn, which no one face has.
std::u16string DifferentUnits(std::size_t count) {
  std::u16string text;
  for (std::size_t i = 0; i < count; ++i)
    text += static_cast<char16_t>(0x20 + i % 0xD000);
  return text;
}

File DifferentCharacters(std::size_t size) {
  return LineOfText(DifferentUnits(size / 2), 0);
}

File DifferentCharactersTurned(std::size_t size) {
  return LineOfText(DifferentUnits(size / 2), 300);
}

File PairsOfUnits(std::size_t size) {
  std::u16string text;
  for (std::size_t i = 0; i * 4 < size; ++i) {
    text += static_cast<char16_t>(0xD800 + i / 0x400 % 0x400);
    text += static_cast<char16_t>(0xDC00 + i % 0x400);
  }
  return LineOfText(text, 300);
}

File MarksOnMarks(std::size_t size) {
  return LineOfText(std::u16string(size / 2, u'\u0301'), 300);
}

File RightToLeft(std::size_t size) {
  std::u16string text;
  for (std::size_t i = 0; i * 2 < size; ++i)
    text += i % 3 == 0 ? u'(' : static_cast<char16_t>(u'\u05D0' + i % 27);
  return LineOfText(text, 300);
}

File NarrowText(std::size_t size) {
  Metafile metafile;
  metafile.CreateFont(1, {}).SelectObject(1);
  return metafile.TextOutA({1, 2}, std::string(size, 'a')).Build();
}

File FontNames(std::size_t size) {
  return Repeated(size, 332 + 12 + 80, [](Metafile& metafile, std::size_t i) {
    const std::string digits = std::to_string(i);
    const FontAttributes font = {.face = std::u16string(digits.begin(), digits.end())};
    metafile.CreateFont(1, font).SelectObject(1).TextOut({1, 2}, u"a");
  });
}

// A font of its own for each text, all of one face.
File FontSizes(std::size_t size) {
  return Repeated(size, 332 + 12 + 80, [](Metafile& metafile, std::size_t i) {
    const FontAttributes font = {.height = -1 - Signed(i % 1000), .escapement = Signed(i / 1000)};
    metafile.CreateFont(1, font).SelectObject(1).TextOut({1, 2}, u"a");
  });
}

// Bitmaps.

File WholeBitmaps(std::size_t size) {
  return Repeated(size, 120 + 12288, [](Metafile& metafile, std::size_t i) {
    const std::int32_t left = Signed(i % 512);
    metafile.StretchDibits({left, 0, left + 64, 64}, Bitmap(64, 64, 12288));
  });
}

File SmallBitmaps(std::size_t size) {
  return Repeated(size, 120 + 4, [](Metafile& metafile, std::size_t i) {
    const auto color = Number(i);
    metafile.StretchDibits({1, 2, 3, 4}, Bytes().BitmapHeader({}).U32(color));
  });
}

// All that may be decoded, from next to nothing.
File ATruncatedBitmap(std::size_t size) {
  const std::int32_t rows = Signed((8 * size + (std::size_t{16} << 20)) / 3072);
  return Metafile().StretchDibits({0, 0, 9, 9}, Bitmap(1024, rows, size)).Build();
}

File TruncatedBitmaps(std::size_t size) {
  return Repeated(size, 124, [](Metafile& metafile, std::size_t i) {
    metafile.StretchDibits({1, 2, 3, 4},
                           Bytes().BitmapHeader({.width = 16, .height = 16}).U32(Number(i)));
  });
}

// Records that do not keep to their own bytes.

File OverlappingPoints(std::size_t size) {
  return Repeated(size, 28, [](Metafile& metafile, std::size_t) {
    metafile.RecordOfSize(EMR_POLYLINE16, 28, Bytes().Zeros(16).U32(0x10000000));
  });
}

// As much as one parse may read, in points of four bytes.
File BarelyOverlappingPoints(std::size_t size) {
  return Repeated(size, 28, [](Metafile& metafile, std::size_t) {
    metafile.RecordOfSize(EMR_POLYLINE16, 28, Bytes().Zeros(16).U32(44));
  });
}

// Each record is read from the ones behind it, and kept.
template <std::uint32_t kType>
File Overlapping(std::size_t size) {
  return Repeated(size, 8,
                  [](Metafile& metafile, std::size_t) { metafile.RecordOfSize(kType, 8); });
}

// A small bitmap every 36 bytes, each another one: its header lies in the records behind it, whose
// words are fields of several headers at once, and so do its colours and its eight pixels.
File OverlappingSmallBitmaps(std::size_t size) {
  constexpr std::uint32_t kDepth = 24 << 16 | 1;
  return Repeated(size, 36, [](Metafile& metafile, std::size_t i) {
    const Bytes words = Bytes().U32(40).U32(8).U32(1).U32(kDepth).U32(0).U32(Number(i)).U32(0);
    metafile.RecordOfSize(EMR_STRETCHDIBITS, 36, words);
  });
}

}  // namespace

const std::vector<InputFamily>& InputFamilies() {
  static const std::vector<InputFamily> kFamilies = {
      {"saves", true, Saves},
      {"attributes", true, Attributes},
      {"comments", true, Comments},
      {"lines", true, Lines},
      {"ellipses", true, Ellipses},
      {"pens", true, Pens},
      {"uneven_strokes", true, UnevenStrokes},
      {"nested_clips", true, NestedClips},
      {"cut_clips", true, CutClips},
      {"a_clip_of_rectangles", true, AClipOfRectangles},
      {"short_dashes", true, ShortDashes},
      {"brush_origins", false, BrushOrigins},
      {"hatched_brushes", true, HatchedBrushes, true},
      {"many_points", true, ManyPoints},
      {"many_crossings", true, ManyCrossings},
      {"many_curves", true, ManyCurves},
      {"many_figures", true, ManyFigures},
      {"an_open_path", true, AnOpenPath},
      {"lines_of_text", true, LinesOfText},
      {"single_units", true, SingleUnits},
      {"one_line", true, OneLine},
      {"one_turned_line", true, OneTurnedLine},
      {"different_characters", true, DifferentCharacters},
      {"different_characters_turned", true, DifferentCharactersTurned},
      {"pairs_of_units", true, PairsOfUnits},
      {"marks_on_marks", true, MarksOnMarks},
      {"right_to_left", true, RightToLeft},
      {"narrow_text", true, NarrowText},
      {"font_names", true, FontNames},
      {"font_sizes", true, FontSizes},
      {"whole_bitmaps", false, WholeBitmaps},
      {"small_bitmaps", false, SmallBitmaps},
      {"a_truncated_bitmap", false, ATruncatedBitmap},
      {"truncated_bitmaps", false, TruncatedBitmaps},
      {"small_blits", false, SmallBlits},
      {"strips", false, Strips},
      {"masked_images", false, MaskedImages},
      {"gradient_rectangles", true, GradientRectangles},
      {"a_mesh", true, AMesh},
      {"plus_figures", true, PlusFigures},
      {"plus_arrows", true, PlusArrows},
      {"plus_long_arrow", true, PlusLongArrow},
      {"plus_clips", true, PlusClips},
      {"plus_containers", true, PlusContainers},
      {"plus_region", true, PlusRegion},
      {"plus_path_gradient", true, PlusPathGradient},
      {"plus_string", true, PlusString},
      {"plus_strings", true, PlusStrings},
      {"plus_short_dashes", true, PlusShortDashes},
      {"plus_metafiles", true, PlusMetafiles},
      {"plus_hatches", true, PlusHatches, true},
      {"plus_gradients", true, PlusGradients, true},
      {"plus_textures", false, PlusTextures, true},
      {"plus_fonts", true, PlusFonts},
      {"offset_clips", true, OffsetClips},
      {"xor_clips", true, XorClips},
      {"a_clip_of_a_path", true, AClipOfAPath},
      {"widened_paths", true, WidenedPaths},
      {"a_widened_path", true, AWidenedPath},
      {"wmf_polygons", true, WmfPolygons},
      {"wmf_texts", true, WmfTexts},
      {"wmf_fonts", true, WmfFonts},
      {"wmf_regions", true, WmfRegions},
      {"wmf_clips", true, WmfClips},
      {"wmf_bitmaps", false, WmfBitmaps},
      {"printed_pages", true, PrintedPages},
      {"other_forms", true, OtherForms},
      {"overlapping_points", false, OverlappingPoints},
      {"barely_overlapping_points", false, BarelyOverlappingPoints},
      {"overlapping_texts", false, Overlapping<EMR_EXTTEXTOUTW>},
      {"overlapping_fonts", false, Overlapping<EMR_EXTCREATEFONTINDIRECTW>},
      {"overlapping_bitmaps", false, Overlapping<EMR_STRETCHDIBITS>},
      {"overlapping_small_bitmaps", false, OverlappingSmallBitmaps},
  };
  return kFamilies;
}

}  // namespace kelvane::test
