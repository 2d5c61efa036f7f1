#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "metafile/wmf/wmf_record_type.h"
#include "players/traced_metafile.h"
#include "support/metafile.h"
#include "support/plus_records.h"
#include "support/windows_metafile.h"

namespace kelvane::test {
namespace {

using testing::HasSubstr;
using testing::Not;

// Kinds of metafiles in images.
constexpr std::uint32_t kWmf = 1;
constexpr std::uint32_t kPlaceableWmf = 2;
constexpr std::uint32_t kEmf = 3;

constexpr std::size_t kPlaceableSize = 22;

Bytes MetafileImage(std::uint32_t kind, const std::vector<unsigned char>& file) {
  constexpr std::uint32_t kMetafile = 2;
  return Bytes().U32(kMetafile).U32(kind).U32(static_cast<std::uint32_t>(file.size())).Append(file);
}

/// An image whose first header stands apart, with two bytes behind it that fill it up.
Bytes PlaceableImage(const std::vector<unsigned char>& file) {
  constexpr std::uint32_t kMetafile = 2;
  const auto records = file.begin() + kPlaceableSize;
  Bytes image;
  image.U32(kMetafile).U32(kPlaceableWmf).U32(static_cast<std::uint32_t>(file.end() - records));
  return image.Append({file.begin(), records}).U16(0).Append({records, file.end()});
}

/// A file of EMF+ that draws an image onto a square of 40 at (10, 20).
PlusRecords Drawing(const Bytes& image, std::uint32_t headerFlags = 0) {
  constexpr std::uint32_t kDrawImage = 0x401A;
  constexpr std::uint32_t kNoAttributes = 0xFFFFFFFF;
  constexpr std::uint32_t kPixels = 2;
  Bytes place = Bytes().U32(kNoAttributes).U32(kPixels).F32(0).F32(0).F32(9).F32(9);
  place.Point(10, 20).Point(40, 40);
  PlusRecords records;
  records.Header(headerFlags).Object(kPlusImage, 1, image);
  return records.Record(kDrawImage, kPlusSmall | 1, place);
}

std::vector<unsigned char> FileOf(const PlusRecords& records) {
  Metafile metafile;
  return records.AddTo(metafile).Build();
}

/// A line across a square of so many units. Records have y first.
WindowsMetafile& AddDiagonal(WindowsMetafile& metafile, std::int32_t side) {
  return metafile.Record(META_MOVETO, {0, 0}).Record(META_LINETO, {side, side});
}

WindowsMetafile DiagonalOfWindow() {
  WindowsMetafile metafile;
  metafile.Record(META_SETWINDOWEXT, {96, 96});
  return AddDiagonal(metafile, 96);
}

constexpr const char* kDiagonal = "move 10 20\nline 50 60\n";

TEST(MetafileImages, MayBeWindowsMetafiles) {
  const PlayedMetafile played =
      Played(FileOf(Drawing(MetafileImage(kWmf, DiagonalOfWindow().Build()))));
  EXPECT_THAT(played.trace, HasSubstr(kDiagonal));
  EXPECT_EQ(played.report, "");
}

TEST(MetafileImages, MayHaveThePlaceableHeaderApart) {
  WindowsMetafile metafile;
  metafile.Placeable(-100, 0, 100, 200, 1440);
  metafile.Record(META_MOVETO, {0, -100}).Record(META_LINETO, {200, 100});
  const PlayedMetafile played = Played(FileOf(Drawing(PlaceableImage(metafile.Build()))));
  EXPECT_THAT(played.trace, HasSubstr(kDiagonal));
  EXPECT_EQ(played.report, "");
}

TEST(MetafileImages, DoNotKeepTheOtherHalfFromBeingPlayed) {
  const Bytes image = MetafileImage(kWmf, DiagonalOfWindow().Build());
  EXPECT_THAT(Played(FileOf(Drawing(image, kPlusDual))).trace, HasSubstr(kDiagonal));
}

// Turned and sheared ones.

/// A file of EMF+ that draws an image onto three corners.
PlayedMetafile PlayedOnto(At upperLeft, At upperRight, At lowerLeft,
                          const Bytes& image = MetafileImage(kWmf, DiagonalOfWindow().Build())) {
  constexpr std::uint32_t kDrawImagePoints = 0x401B;
  constexpr std::uint32_t kNoAttributes = 0xFFFFFFFF;
  constexpr std::uint32_t kPixels = 2;
  constexpr std::uint32_t kCorners = 3;
  Bytes place = Bytes().U32(kNoAttributes).U32(kPixels).F32(0).F32(0).F32(9).F32(9).U32(kCorners);
  for (const At corner : {upperLeft, upperRight, lowerLeft})
    place.Point(corner.x, corner.y);
  PlusRecords records;
  records.Header().Object(kPlusImage, 1, image);
  return Played(FileOf(records.Record(kDrawImagePoints, kPlusSmall | 1, place)));
}

TEST(MetafileImages, MayBeTurned) {
  const PlayedMetafile played = PlayedOnto({50, 20}, {50, 60}, {10, 20});
  EXPECT_THAT(played.trace, HasSubstr("move 50 20\nline 10 60\n"));
  EXPECT_EQ(played.report, "");
}

TEST(MetafileImages, MayBeSheared) {
  EXPECT_THAT(PlayedOnto({10, 20}, {50, 50}, {10, 60}).trace,
              HasSubstr("move 10 20\nline 50 90\n"));
}

TEST(MetafileImages, MayBeMirrored) {
  EXPECT_THAT(PlayedOnto({50, 20}, {10, 20}, {50, 60}).trace,
              HasSubstr("move 50 20\nline 10 60\n"));
}

// Surfaces take patterns as they lie on the page.
TEST(MetafileImages, TurnTheirPatternsToo) {
  constexpr std::uint32_t kHatched = 2;
  constexpr std::uint32_t kHorizontal = 0;
  Metafile metafile;
  metafile.Record(EMR_CREATEBRUSHINDIRECT, Bytes().U32(1).U32(kHatched).U32(0).U32(kHorizontal));
  metafile.SelectObject(1).Rectangle({0, 0, 100, 100});
  const Bytes image = MetafileImage(kEmf, metafile.Build());
  EXPECT_THAT(PlayedOnto({0, 0}, {100, 0}, {0, 100}, image).trace,
              HasSubstr("fill-pattern 8 8 under 1 0 0 -1 "));
  EXPECT_THAT(PlayedOnto({100, 0}, {100, 100}, {0, 0}, image).trace,
              HasSubstr("fill-pattern 8 8 under 0 1 1 0 "));
}

TEST(MetafileImages, MarkNothingOnALine) {
  const PlayedMetafile played = PlayedOnto({10, 20}, {50, 60}, {30, 40});
  EXPECT_EQ(played.trace, "");
  EXPECT_EQ(played.report, "");
}

// What is not played is told as what it is.

TEST(MetafileImages, AreReportedWhereTheyAreNone) {
  const PlayedMetafile played = Played(FileOf(Drawing(MetafileImage(kEmf, {1, 2, 3, 4}))));
  EXPECT_THAT(played.report, HasSubstr("its metafile cannot be read"));
  EXPECT_FALSE(played.isWhole);
}

TEST(MetafileImages, AreReportedWhereTheyAreTooDeep) {
  constexpr int kDeepest = 8;
  std::vector<unsigned char> file =
      FileOf(Drawing(MetafileImage(kWmf, DiagonalOfWindow().Build())));
  for (int i = 1; i < kDeepest; ++i)
    file = FileOf(Drawing(MetafileImage(kEmf, file)));
  const PlayedMetafile deep = Played(file);
  EXPECT_THAT(deep.trace, HasSubstr("line "));
  EXPECT_EQ(deep.report, "");

  const PlayedMetafile deeper = Played(FileOf(Drawing(MetafileImage(kEmf, file))));
  EXPECT_THAT(deeper.trace, Not(HasSubstr("line ")));
  EXPECT_THAT(deeper.report, HasSubstr("its metafile lies within too many others"));
  EXPECT_FALSE(deeper.isWhole);
}

}  // namespace
}  // namespace kelvane::test
