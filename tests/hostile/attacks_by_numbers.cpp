#include <limits>

#include "hostile/attacks.h"
#include "hostile/hostile_emfplus.h"
#include "hostile/hostile_files.h"

namespace kelvane::test {
namespace {

using File = std::vector<unsigned char>;

constexpr std::uint32_t kSelectClipRegion = 75;
constexpr std::uint32_t kWiden = 66;
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kEndless = std::numeric_limits<float>::infinity();

constexpr const char* kSaysNoSize = "a record claims less than";

Metafile NoClip(Metafile harm) {
  return harm.Record(kSelectClipRegion, Bytes().U32(0).U32(kRegionCopy));
}

// Floats, wherever a record has them.

File NumbersOf(float bad) {
  Metafile harm;
  const XForm all = {bad, bad, bad, bad, bad, bad};
  for (const XForm& world : {all, XForm{1, 0, 0, 1, bad, bad}, XForm{bad, 0, 0, 1, 0, 0}}) {
    harm.SetWorldTransform(world).ModifyWorldTransform(world, kMultiplyLeft);
    harm.AngleArc({20, 20}, 9, bad, bad).ArcTo({1, 1, 30, 30}, {1, 1}, {9, 9});
    harm.Record(EMR_SETMITERLIMIT, Bytes().F32(bad)).Polygon({{1, 1}, {30, 2}, {3, 40}});
    harm.Record(
        EMR_EXTTEXTOUTW,
        Bytes().Zeros(16).U32(1).F32(bad).F32(bad).PointL(1, 2).U32(2).U32(kTextAt).Zeros(24).Utf16(
            u"ab"));
    harm.BeginPath().Ellipse({1, 1, 30, 30}).EndPath().SelectClipPath(kRegionAnd);
  }
  return Followed(NoClip(harm));
}

File NumbersOfEmfPlus(float bad) {
  PlusRecords harm;
  harm.Record(0x4030, 2, Bytes().F32(bad)).Append(FillSquare(1));
  for (const std::uint32_t type : {0x402AU, 0x402CU})
    harm.Record(type, 0, Bytes().F32(bad).F32(bad).F32(bad).F32(bad).F32(bad).F32(bad));
  harm.Record(0x402D, 0, Bytes().F32(bad).F32(bad)).Record(0x402E, 0, Bytes().F32(bad).F32(bad));
  harm.Record(0x402F, 0, Bytes().F32(bad)).Object(kPlusPen, 2, DashedPen(bad, {bad, bad}));
  harm.Append(DrawLine(2)).Record(0x402B, 0).Record(0x4030, 2, Bytes().F32(1));
  return Followed(harm.Append(DrawLine(2)));
}

// Pages.

File OnPage(std::int32_t right, std::uint32_t frameRight) {
  return WithField(
      WithField(Followed(Metafile().Bounds(0, 0, right, right)), kFrameAt + 8, frameRight),
      kFrameAt + 12, frameRight);
}

std::vector<Attack> Numbers() {
  return {
      {"no_numbers", [] { return NumbersOf(kNoNumber); }},
      {"infinities", [] { return NumbersOf(kEndless); }},
      {"the_greatest_numbers", [] { return NumbersOf(std::numeric_limits<float>::max()); }},
      {"the_least_numbers", [] { return NumbersOf(std::numeric_limits<float>::denorm_min()); }},
      {"no_numbers_in_emfplus", [] { return NumbersOfEmfPlus(kNoNumber); }},
      {"infinities_in_emfplus", [] { return NumbersOfEmfPlus(kEndless); }},
      {"the_greatest_numbers_in_emfplus",
       [] { return NumbersOfEmfPlus(std::numeric_limits<float>::max()); }},
      {"a_page_of_a_billion_units", [] { return OnPage(1000000000, 0); }, "", Outcome::kTooLarge},
      {"a_page_of_all_numbers", [] { return OnPage(kMost, kMost); }, "", Outcome::kTooLarge},
      {"a_page_of_no_size_and_marks_far_away",
       [] {
         Metafile harm;
         harm.Polyline({{kLeast, kLeast}, {kMost, kMost}}, true);
         return WithField(WithField(Followed(harm.Bounds(0, 0, 0, 0)), kFrameAt + 8, 0),
                          kFrameAt + 12, 0);
       },
       "", Outcome::kTooLarge},
  };
}

// What grows.

/// Combs that lie across each other, again and again.
Metafile CrossedRegions() {
  Metafile harm;
  for (int round = 0; round < 4; ++round) {
    Bytes region = Bytes().U32(32).U32(1).U32(1000).U32(16000).Rectangle(0, 0, 1000, 1000);
    for (int i = 0; i < 1000; ++i) {
      if (round % 2 == 0) region.Rectangle(2 * i, 0, 2 * i + 1, 2000);
      if (round % 2 != 0) region.Rectangle(0, 2 * i, 2000, 2 * i + 1);
    }
    constexpr std::uint32_t kXor = 3;
    harm.Record(kSelectClipRegion,
                Bytes().U32(16032).U32(round == 0 ? kRegionCopy : kXor).Append(region.Data()));
    harm.Rectangle({1, 1, 50, 50});
  }
  return NoClip(harm);
}

/// An outline of an outline of an outline.
Metafile WidenedPaths() {
  Metafile harm;
  harm.CreatePen(1, 9, 0).SelectObject(1).BeginPath().Polybezier(
      {{1, 1}, {90, 2}, {3, 80}, {90, 90}});
  harm.EndPath();
  for (int i = 0; i < 1000; ++i)
    harm.Record(kWiden);
  return harm.StrokePath();
}

/// The outline of a line that crosses itself as often as it can.
Metafile WidenedTangle() {
  Points points;
  for (int i = 0; i < 10000; ++i)
    points.push_back({i * 7919 % 97, i * 104729 % 101});
  Metafile harm;
  harm.CreatePen(1, 2, 0).SelectObject(1).BeginPath().Polyline(points).EndPath();
  return harm.Record(kWiden).StrokePath();
}

/// Clips of curves, each against all before it, with a mark under each.
Metafile ClippedPaths() {
  Metafile harm;
  for (int i = 0; i < 3000; ++i) {
    harm.BeginPath().Ellipse({i % 7, i % 11, 90, 90}).EndPath();
    harm.SelectClipPath(3).Rectangle({1, 1, 50, 50});
  }
  return NoClip(harm);
}

std::vector<Attack> Growth() {
  return {
      {"regions_that_cross_in_a_grid", [] { return Followed(CrossedRegions()); }},
      {"outlines_of_outlines", [] { return Followed(WidenedPaths()); },
       "its path is too complex to be widened"},
      {"the_outline_of_a_tangle", [] { return Followed(WidenedTangle()); },
       "its path is too complex to be widened"},
      {"clips_of_curves_against_each_other", [] { return Followed(ClippedPaths()); }, kHardClip},
      {"dashes_finer_than_anything",
       [] {
         constexpr std::uint32_t kOwnDashes = 0x10207;
         Bytes pen = Bytes().U32(1).Zeros(16).U32(kOwnDashes).U32(1).U32(0).U32(0).U32(0).U32(2);
         Metafile harm;
         harm.Record(EMR_EXTCREATEPEN, pen.U32(1).U32(1)).SelectObject(1);
         harm.Polyline({{kLeast, 20}, {kMost, 20}}, true);
         return Followed(harm.Polyline({{kLeast, kLeast}, {kMost, kMost}}, true));
       }},
      {"dashes_of_emfplus_finer_than_anything",
       [] {
         return Followed(Joined({Object(kPlusPen, 1, DashedPen(1e-3F, {1e-30F, 1e-30F})),
                                 Repeated(DrawLine(1, {-32000, 10}, {32000, 20}), 1000)}));
       }},
      {"a_gradient_far_beyond_the_page",
       [] {
         Bytes body = Bytes().Rectangle(0, 0, -1, -1).U32(3).U32(1).U32(2);
         for (const At at : {At{kLeast, kLeast}, At{kMost, kLeast}, At{0, kMost}})
           body.PointL(at.x, at.y).U16(0xFF00).U16(0).U16(0).U16(0);
         return Followed(Metafile().Record(118, body.U32(0).U32(1).U32(2)));
       }},
  };
}

// Loops and depth.

Metafile Many(std::uint32_t type, const Bytes& body, int times) {
  Metafile harm;
  for (int i = 0; i < times; ++i)
    harm.Record(type, body);
  return harm;
}

/// The public comments that open a group.
Bytes GroupBeginning() {
  return Bytes().U32(32).U32(0x43494447).U32(2).Rectangle(0, 0, 50, 50).U32(0).U32(0);
}

/// Comments of EMF+, one in the other.
PlusRecords CommentsWithin(int depth) {
  constexpr std::uint32_t kComment = 0x4003;
  PlusRecords records;
  for (int i = 0; i < depth; ++i)
    records = PlusRecords().Record(kComment, 0, Bytes().Append(FileOf(records)));
  return records;
}

std::vector<Attack> Loops() {
  constexpr int kMany = 100000;
  return {
      {"a_record_of_no_size",
       [] {
         return Metafile().Rectangle({1, 1, 9, 9}).RecordOfSize(EMR_RECTANGLE, 0).Build();
       },
       kSaysNoSize, Outcome::kCut},
      {"a_windows_record_of_no_size",
       [] {
         return HundredUnits().Record(0x041B, {9, 9, 1, 1}).RecordOfSize(0x041B, 0).Build();
       },
       kSaysNoSize, Outcome::kCut},
      {"records_of_emfplus_of_no_size",
       [] {
         Bytes data = Bytes().U32(0x2B464D45);
         for (int i = 0; i < 1000; ++i)
           data.U16(0x400A).U16(0).U32(0).U32(0);
         const Bytes comment =
             Bytes().U32(static_cast<std::uint32_t>(data.Size())).Append(data.Data());
         return Followed(Metafile().Record(EMR_GDICOMMENT, comment));
       }},
      {"groups_without_end",
       [] { return Followed(Many(EMR_GDICOMMENT, GroupBeginning(), kMany)); }},
      {"saved_states_without_end", [] { return Followed(Many(EMR_SAVEDC, {}, kMany)); }},
      {"paths_begun_without_end",
       [] {
         Metafile harm = Many(EMR_BEGINPATH, {}, kMany);
         return Followed(harm.EndPath());
       }},
      {"comments_within_comments", [] { return Followed(CommentsWithin(200)); }},
      {"containers_of_emfplus_without_end",
       [] {
         PlusRecords harm;
         for (std::uint32_t i = 0; i < kMany; ++i)
           harm.Record(0x4028, 0, Bytes().U32(i));
         return Followed(harm);
       }},
  };
}

}  // namespace

std::vector<Attack> AttacksByNumbers() {
  std::vector<Attack> all;
  for (const auto& group : {Numbers(), Growth(), Loops()})
    all.insert(all.end(), group.begin(), group.end());
  return all;
}

}  // namespace kelvane::test
