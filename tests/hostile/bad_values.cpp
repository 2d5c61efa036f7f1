#include <limits>

#include "hostile/hostile_files.h"

namespace kelvane::test {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::vector<unsigned char> ThenALine(Metafile& metafile) {
  return AddLine(metafile).Build();
}

/// The line, mapped from a window of one unit to a viewport.
std::vector<unsigned char> ThroughAViewport(std::int32_t cx, std::int32_t cy) {
  Metafile metafile;
  metafile.SetMapMode(kMapAnisotropic).SetWindowExt(1, 1).SetViewportExt(cx, cy);
  return ThenALine(metafile);
}

/// A line under a transform, and one under the state before it, which alone leads back from a
/// transform that is not finite.
std::vector<unsigned char> Under(const XForm& transform) {
  Metafile metafile;
  metafile.SaveDC().ModifyWorldTransform(transform, kSetTransform).Polyline({{5, 6}, {7, 8}});
  return ThenALine(metafile.RestoreDC());
}

std::vector<unsigned char> Nested(int depth, Metafile& (*open)(Metafile&)) {
  Metafile metafile;
  for (int i = 0; i < depth; ++i)
    open(metafile);
  return ThenALine(metafile);
}

/// Clips inside each other, `depth` of them, and a line.
std::vector<unsigned char> NestedClips(int depth) {
  Metafile metafile;
  for (int i = 0; i < depth; ++i)
    metafile.SaveDC().BeginPath().Rectangle({0, 0, 50, 50}).EndPath().SelectClipPath(kRegionAnd);
  return ThenALine(metafile);
}

std::string NestedClipsTrace(int depth) {
  std::string opened;
  std::string closed;
  for (int i = 0; i < depth; ++i) {
    opened += "save\nrect 0 -50 50 50\nclip\n";
    closed += "restore\n";
  }
  return opened + kLineTrace + closed;
}

}  // namespace

std::vector<HostileFile> FilesOfBadValues() {
  return {
      // Extents and scales.
      {"window_without_extent",
       [] {
         Metafile metafile;
         return ThenALine(
             metafile.SetMapMode(kMapAnisotropic).SetWindowExt(0, 0).SetViewportExt(5, 5));
       }(),
       0, kLineTrace},
      {"viewport_that_saturates", ThroughAViewport(kMost, kMost), 0,
       "move 2147483648 -2147483648\nline 2147483648 -2147483648\nstroke\n"},
      {"viewport_that_saturates_below", ThroughAViewport(kLeast, 1), 0,
       "move -2147483648 -2\nline -2147483648 -4\nstroke\n"},
      {"scale_by_a_zero_denominator",
       [] {
         Metafile metafile;
         metafile.SetMapMode(kMapAnisotropic).SetWindowExt(1, 1).SetViewportExt(2, 2);
         return ThenALine(
             metafile.Record(EMR_SCALEVIEWPORTEXTEX, Bytes().I32(5).I32(0).I32(7).I32(0)));
       }(),
       0, "move 2 -4\nline 6 -8\nstroke\n"},
      {"scale_that_saturates",
       [] {
         Metafile metafile;
         metafile.SetMapMode(kMapAnisotropic).SetWindowExt(1, 1).SetViewportExt(2, 1);
         return ThenALine(
             metafile.Record(EMR_SCALEVIEWPORTEXTEX, Bytes().I32(kMost).I32(1).I32(1).I32(1)));
       }(),
       0, "move 2147483648 -2\nline 2147483648 -4\nstroke\n"},
      {"page_without_area", Metafile().Bounds(0, 5, 9, 5).Build(), -1},
      {"page_of_the_extremes", Metafile().Bounds(kLeast, kLeast, kMost, kMost).Build(), 0, ""},
      {"points_at_the_extremes",
       Metafile().Polyline({{kLeast, kLeast}, {kMost, kMost}}, true).Build(), 0,
       "move -2147483648 -2147483648\nline 2147483648 -2147483648\nstroke\n"},

      // What is not a number leaves its marks out, and nothing else.
      {"transform_of_nan", Under({kNaN, 0, 0, 1, 0, 0}), 0, kLineTrace},
      {"transform_of_infinity", Under({1, 0, 0, 1, kInfinity, 0}), 0, kLineTrace},
      {"arc_of_nan",
       [] {
         Metafile metafile;
         return ThenALine(metafile.AngleArc({5, 5}, 3, kNaN, kInfinity));
       }(),
       0, "move 1 -2\nline 3 -4\nstroke\n"},
      {"miter_limit_of_the_bits_of_nan",
       [] {
         Metafile metafile;
         return ThenALine(metafile.Record(EMR_SETMITERLIMIT, Bytes().F32(kNaN)));
       }(),
       0, std::string("miter-limit 2143289344\n") + kLineTrace},
      {"text_at_an_angle_that_saturates",
       WithFont().CreateFont(2, {.escapement = kMost}).SelectObject(2).Build(), 0, ""},
      {"text_of_the_largest_size",
       WithFont().CreateFont(2, {.height = kLeast}).SelectObject(2).TextOut({1, 2}, u"a").Build(),
       0, ""},
      {"text_beyond_16_bits", WithFont().TextOut({100000, 200000}, u"a").Build(), 0,
       "text \"a\" LiberationSans 10 under 1 0 0 1 100000 -200000\n"},
      {"text_at_the_extremes", WithFont().TextOut({kMost, kLeast}, u"a").Build(), 0,
       "text \"a\" LiberationSans 10 under 1 0 0 1 2147483648 -2147483648\n"},
      {"text_of_8_bits_past_its_bytes",
       WithFont().TextOutA({1, 2}, std::string("\0ab", 3), {5, 6, 7}).Build(), 0,
       "text \"a\" LiberationSans 10 under 1 0 0 1 1 -2\n"},
      {"text_of_lone_surrogates",
       WithFont().TextOut({1, 2}, std::u16string(3, char16_t{0xD800})).Build(), 0, ""},

      // Handles.
      {"object_that_was_never_made",
       [] {
         Metafile metafile;
         return ThenALine(metafile.SelectObject(0xFFFFFFFF).DeleteObject(0x7FFFFFFF));
       }(),
       0, kLineTrace},
      {"object_of_the_largest_index",
       [] {
         Metafile metafile;
         metafile.CreatePen(0xFFFFFFFF, 1, 0).SelectObject(0xFFFFFFFF).DeleteObject(0xFFFFFFFF);
         return ThenALine(metafile.SelectObject(0xFFFFFFFF));
       }(),
       0, kLineTrace},
      {"font_used_after_it_was_deleted",
       WithFont().DeleteObject(1).CreatePen(1, 2, 0).TextOut({1, 2}, u"a").Build(), 0,
       "text \"a\" LiberationSans 10 under 1 0 0 1 1 -2\n"},

      // States.
      {"restore_without_save",
       [] {
         Metafile metafile;
         return ThenALine(metafile.RestoreDC(kLeast).RestoreDC(-1).RestoreDC(kMost));
       }(),
       0, kLineTrace},
      {"saves_without_end",
       Nested(100000, [](Metafile& metafile) -> Metafile& { return metafile.SaveDC(); }), 0,
       kLineTrace},
      {"paths_without_end",
       Nested(100000, [](Metafile& metafile) -> Metafile& { return metafile.BeginPath(); }), 0,
       kLineTrace},
      {"clips_inside_clips", NestedClips(2000), 0, NestedClipsTrace(2000)},
      {"path_ended_without_a_beginning",
       [] {
         Metafile metafile;
         return ThenALine(metafile.EndPath().CloseFigure().FillPath().SelectClipPath(kRegionAnd));
       }(),
       0, kLineTrace},
  };
}

}  // namespace kelvane::test
