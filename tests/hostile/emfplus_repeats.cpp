#include "hostile/hostile_emfplus.h"

namespace kelvane::test {
namespace {

Bytes RectangleNode(float x, float y, float width, float height) {
  return Bytes().U32(0x10000000).F32(x).F32(y).F32(width).F32(height);
}

/// A kite across the page.
Bytes Kite() {
  return Bytes().U32(4).U32(0).F32(50).F32(0).F32(90).F32(50).F32(50).F32(90).F32(0).F32(50).Each(
      {0, 1, 1, 0x81});
}

/// So many pixels of so many bits, of which next to nothing is there.
Bytes Bitmap(std::uint32_t width, std::uint32_t height, std::uint32_t stride,
             std::uint32_t format) {
  return Bytes().U32(1).U32(width).U32(height).U32(stride).U32(format).U32(0).Zeros(64);
}

// Regions and clips.

/// So many nodes that join two, all to the left or all to the right.
Bytes DeepRegion(std::uint32_t mode, bool isLeft, int depth) {
  Bytes region = Bytes().U32(static_cast<std::uint32_t>(2 * depth));
  const auto leaf = [](int i) {
    return RectangleNode(static_cast<float>(i % 97), static_cast<float>(i % 89), 7, 5);
  };
  for (int i = 0; i < depth; ++i) {
    region.U32(mode);
    if (!isLeft) region.Append(leaf(i).Data());
  }
  for (int i = 0; i < (isLeft ? depth + 1 : 1); ++i)
    region.Append(leaf(i).Data());
  return region;
}

PlusRecords DeepRegions(bool isLeft) {
  PlusRecords records;
  for (std::uint32_t mode = 1; mode <= 5; ++mode) {
    records.Object(kPlusRegion, mode, DeepRegion(mode, isLeft, 10000));
    records.Record(0x4013, kPlusColor | mode, Bytes().U32(kBlue)).Record(0x4034, mode);
  }
  return records;
}

/// Strips of a page, in one direction.
Bytes Comb(int strips, bool isUpright) {
  Bytes region = Bytes().U32(static_cast<std::uint32_t>(2 * strips - 2));
  for (int i = 1; i < strips; ++i)
    region.U32(2);
  for (int i = 0; i < strips; ++i) {
    const float at = 90.0F * static_cast<float>(i) / static_cast<float>(strips);
    region.Append(
        (isUpright ? RectangleNode(at, 0, 0.05F, 90) : RectangleNode(0, at, 90, 0.05F)).Data());
  }
  return region;
}

/// Clips that cross in a grid.
PlusRecords CrossedCombs() {
  constexpr std::uint32_t kXor = 0x300;
  PlusRecords records;
  records.Object(kPlusRegion, 1, Comb(600, true)).Object(kPlusRegion, 2, Comb(600, false));
  return records.Record(0x4034, 1).Record(0x4034, kXor | 2).Record(0x4034, kXor | 1);
}

/// A clip on top of another, everywhere a little to the side. @param mode  that joins them.
PlusRecords ClipsOnClips(std::uint32_t mode) {
  PlusRecords step;
  step.Record(0x402D, 0, Bytes().F32(0.01F).F32(0.02F)).Record(0x4033, mode << 8 | 1);
  return Joined({Object(kPlusPath, 1, Kite()), Repeated(step, 20000),
                 PlusRecords().FillRectangle(kBlue, {0, 0}, {99, 99})});
}

std::vector<HostileEmfPlus> BadClips() {
  return {
      {"regions_deep_on_the_left", [] { return DeepRegions(true); }, kHardRegion},
      {"regions_deep_on_the_right", [] { return DeepRegions(false); }, kHardRegion},
      {"a_region_that_only_joins",
       [] {
         return Object(kPlusRegion, 1,
                       DeepRegion(2, true, 0).Append(std::vector<unsigned char>(400000, 2)));
       },
       ""},
      {"regions_that_cross", CrossedCombs, ""},
      {"clips_within_clips", [] { return ClipsOnClips(1); }},
      {"clips_beside_clips", [] { return ClipsOnClips(2); }},
      {"clips_against_clips", [] { return ClipsOnClips(3); }, kHardClip},
      {"clips_out_of_clips", [] { return ClipsOnClips(4); }},
      {"clips_without_clips", [] { return ClipsOnClips(5); }, kHardClip},
  };
}

// What a few bytes ask for again and again.

PlusRecords RepeatedBoundary() {
  constexpr int kPoints = 30000;
  Bytes brush = Bytes().U32(3).U32(0).U32(4).U32(kBlue).F32(50).F32(50).U32(1).U32(kBlue);
  brush.U32(kPoints);
  for (int i = 0; i < kPoints; ++i)
    brush.F32(static_cast<float>(i % 90)).F32(static_cast<float>(i % 89));
  return Joined({Object(kPlusBrush, 1, brush), Repeated(FillSquare(1), 6000)});
}

PlusRecords RepeatedDashes() {
  const PlusRecords pen = Object(kPlusPen, 1, DashedPen(30, {0.05F, 0.05F}));
  return Joined({pen, Repeated(DrawLine(1, {-32000, 10}, {32000, 20}), 3000)});
}

PlusRecords RepeatedTabs() {
  constexpr std::uint32_t kTabs = 100000;
  Bytes format = Bytes().Zeros(48).U32(kTabs).U32(0);
  for (std::uint32_t i = 0; i < kTabs; ++i)
    format.F32(1);
  PlusRecords records;
  records.Object(kPlusFont, 1, Bytes().F32(9).U32(0).U32(0).U32(0).U32(2).Utf16(u"ab"));
  records.Object(kPlusFormat, 2, format);
  const Bytes text = Bytes().U32(kBlue).U32(2).U32(4).Zeros(16).Utf16(u"a\tb\t");
  return Joined({records, Repeated(PlusRecords().Record(0x401C, kPlusColor | 1, text), 10000)});
}

PlusRecords RepeatedPath() {
  constexpr int kPoints = 20000;
  Bytes path = Bytes().U32(kPoints).U32(kPlusSmall);
  for (int i = 0; i < kPoints; ++i)
    path.Point(i % 90, i % 89);
  const std::vector<unsigned char> lines(kPoints, 1);
  const PlusRecords fill = PlusRecords().Record(0x4014, kPlusColor | 1, Bytes().U32(kBlue));
  return Joined({Object(kPlusPath, 1, path.Append(lines)), Repeated(fill, 10000)});
}

std::vector<HostileEmfPlus> BadRepeats() {
  return {
      {"a_boundary_used_again_and_again", RepeatedBoundary, kHardBrush},
      {"dashes_drawn_again_and_again", RepeatedDashes, kHardPath},
      {"tab_stops_used_again_and_again", RepeatedTabs, kTooOften},
      {"a_path_drawn_again_and_again", RepeatedPath, kTooOften},
  };
}

// Images.

PlusRecords DrawnImage(const Bytes& image) {
  return Joined({Object(kPlusImage, 1, image), DrawImage(1)});
}

PlusRecords HugeBitmaps() {
  constexpr std::uint32_t kFormats[] = {0x30101, 0x30402,  0x30803,  0x101004, 0x21005,
                                        0x21006, 0x61007,  0x21808,  0x22009,  0x26200A,
                                        0xE200B, 0x10300C, 0x34400D, 0x1C400E, 0};
  PlusRecords records;
  for (const std::uint32_t format : kFormats) {
    for (const std::uint32_t size : {1U, 0x8000U, 0x40000001U, 0x7FFFFFFFU, 0x80000000U, kAll}) {
      for (const std::uint32_t stride : {0U, 4U, 0x7FFFFFFFU, kAll}) {
        records.Append(DrawnImage(Bitmap(size, size, stride, format)));
        records.Append(DrawnImage(Bitmap(size, 1, stride, format)));
      }
    }
  }
  return records;
}

/// A metafile within itself, so to say.
PlusRecords DeepMetafiles(int depth) {
  PlusRecords records = PlusRecords().FillRectangle(kBlue, {0, 0}, {9, 9});
  for (int i = 0; i < depth; ++i)
    records = DrawnImage(ImageOf(FileOf(records), kEmfImage));
  return records;
}

/// One that draws the one within it twice.
PlusRecords BranchingMetafiles() {
  PlusRecords records = PlusRecords().FillRectangle(kBlue, {0, 0}, {9, 9});
  for (int i = 0; i < 8; ++i)
    records = Joined({DrawnImage(ImageOf(FileOf(records), kEmfImage)), Repeated(DrawImage(1), 15)});
  return records;
}

PlusRecords RepeatedMetafile(const PlusRecords& records, int times = 20000) {
  return Joined(
      {Object(kPlusImage, 1, ImageOf(FileOf(records), kEmfImage)), Repeated(DrawImage(1), times)});
}

PlusRecords RepeatedJpeg() {
  std::vector<unsigned char> markers(300000, 0xFF);
  markers[1] = 0xD8;
  return Object(kPlusImage, 1, ImageOf(markers, 0)).Append(Repeated(DrawImage(1), 6000));
}

std::vector<HostileEmfPlus> BadImages() {
  return {
      {"bitmaps_of_any_size", HugeBitmaps, kUnreadable},
      {"metafiles_within_metafiles", [] { return DeepMetafiles(1000); }, kTooDeep},
      {"metafiles_that_branch", BranchingMetafiles, kTooMuchWithin},
      {"a_metafile_drawn_again_and_again", [] { return RepeatedMetafile(FillSquare(1)); },
       kNoObject},
      {"a_metafile_of_clips_drawn_again_and_again", [] { return RepeatedMetafile(CrossedCombs()); },
       kHardClip},
      {"a_metafile_of_dashes_drawn_again_and_again",
       [] {
         return RepeatedMetafile(Joined({Object(kPlusPen, 1, DashedPen(30, {0.05F, 0.05F})),
                                         Repeated(DrawLine(1, {-32000, 10}, {32000, 20}), 30)}),
                                 5000);
       },
       kHardPath},
      {"a_metafile_of_no_bytes", [] { return DrawnImage(ImageOf({}, kEmfImage)); }, kNoMetafile},
      {"a_metafile_of_no_kind", [] { return DrawnImage(ImageOf(FileOf(FillSquare(1)), 77)); },
       kNoObject},
      {"a_jpeg_of_markers", RepeatedJpeg, kNoBitmap},
  };
}

}  // namespace

std::vector<HostileEmfPlus> EmfPlusThatAsksForMuch() {
  std::vector<HostileEmfPlus> all;
  for (const auto& group : {BadClips(), BadRepeats(), BadImages()}) {
    all.insert(all.end(), group.begin(), group.end());
  }
  return all;
}

}  // namespace kelvane::test
