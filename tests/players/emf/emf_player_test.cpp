#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "players/traced_metafile.h"
#include "support/blits.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// Types that the builder has no verb for.
constexpr std::uint32_t kEmrExtFloodFill = 53;
constexpr std::uint32_t kUnknownType = 200;

constexpr std::size_t kTypes = 123;  // from 0 on

/// A line, and what is left of it: pens stay as they are at the start.
constexpr At kFrom = {10, 20};
constexpr At kTo = {30, 40};
const std::string kLine = "line-width 0\nline-join 1\nmove 10 20\nline 30 40\nstroke\n";

Metafile& AddLine(Metafile& metafile) {
  return metafile.Polyline({kFrom, kTo});
}

/// A file of one record.
PlayedMetafile PlayedAlone(std::uint32_t type, const Bytes& body = {}) {
  return Played(Metafile().Record(type, body).Build());
}

TEST(EmfPlayer, PlaysRecordsAndCountsThem) {
  const PlayedMetafile played = Played(FileOfALine());
  EXPECT_EQ(played.trace, kLine);
  EXPECT_EQ(played.records, 3U);
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(played.remarks, IsEmpty());
  EXPECT_TRUE(played.isWhole);
}

TEST(EmfPlayer, PlaysNothingOfWhatIsNoMetafile) {
  const std::vector<unsigned char> file = FileOfALine();
  EXPECT_TRUE(HasEmfHeader(file));
  EXPECT_FALSE(HasEmfHeader({}));
  EXPECT_FALSE(HasEmfHeader(WithField(file, 0, EMR_EOF)));
  EXPECT_FALSE(HasEmfHeader(WithField(file, 40, 0)));  // the signature
  EXPECT_FALSE(HasEmfHeader({file.begin(), file.begin() + 80}));
  EXPECT_EQ(Played(WithField(file, 40, 0)).records, 0U);
}

// Records that are not as they should be.

TEST(EmfPlayer, ReportsUnknownRecordsAndGoesOn) {
  Metafile metafile;
  metafile.Record(kUnknownType, Bytes().U32(1)).Record(kUnknownType);
  const PlayedMetafile played = Played(AddLine(metafile).Build());
  EXPECT_EQ(played.report, "left out 200 2: it is of an unknown kind\n");
  EXPECT_FALSE(played.isWhole);
  EXPECT_EQ(played.trace, kLine);
}

TEST(EmfPlayer, SkipsRecordsThatAreTooShortForTheirFields) {
  Metafile metafile;
  metafile.Record(EMR_RECTANGLE, Bytes().I32(1).I32(2).I32(3));
  const PlayedMetafile played = Played(AddLine(metafile).Build());
  EXPECT_EQ(played.report, "damaged EMR_RECTANGLE 1: it is too short for its fields\n");
  EXPECT_FALSE(played.isWhole);
  EXPECT_EQ(played.trace, kLine);
}

TEST(EmfPlayer, MarksNothingOfARecordWithoutABody) {
  for (std::uint32_t type = 0; type < kTypes; ++type)
    EXPECT_EQ(PlayedAlone(type).trace, "") << type;
}

/// Types whose records have fields that a handler reads.
constexpr std::uint32_t kWithFields[] = {
    EMR_POLYBEZIER,   EMR_POLYLINE16,        EMR_POLYPOLYGON,  EMR_SETWINDOWEXTEX,
    EMR_SETPIXELV,    EMR_SETMAPMODE,        EMR_LINETO,       EMR_SETWORLDTRANSFORM,
    EMR_SELECTOBJECT, EMR_CREATEPEN,         EMR_ANGLEARC,     EMR_POLYDRAW16,
    EMR_FILLPATH,     EMR_INTERSECTCLIPRECT, EMR_RESTOREDC,    EMR_GDICOMMENT,
    EMR_BITBLT,       EMR_STRETCHDIBITS,     EMR_EXTCREATEPEN, EMR_EXTCREATEFONTINDIRECTW};

TEST(EmfPlayer, ReportsEveryRecordWithoutItsFieldsAsDamaged) {
  for (const std::uint32_t type : kWithFields)
    EXPECT_EQ(PlayedAlone(type).report.substr(0, 8), "damaged ") << type;
}

TEST(EmfPlayer, ReportsADrawingWithAPointOfNoType) {
  Metafile metafile;
  metafile.Record(EMR_POLYDRAW16,
                  Bytes().Rectangle(0, 0, 0, 0).U32(2).Point(5, 5).Point(6, 6).Each({2, 9}));
  EXPECT_EQ(Played(metafile.Build()).report,
            "damaged EMR_POLYDRAW16 1: it has a point of an unknown kind\n");
}

TEST(EmfPlayer, ReportsABrushOfNoStyle) {
  EXPECT_EQ(PlayedAlone(EMR_CREATEBRUSHINDIRECT, Bytes().U32(1).U32(99).U32(0).U32(0)).report,
            "damaged EMR_CREATEBRUSHINDIRECT 1: its brush is of an unknown kind\n");
}

TEST(EmfPlayer, DrawsWhatComesBeforeASizeThatLeadsNowhereAndRemarksIt) {
  Metafile metafile;
  AddLine(metafile).RecordOfSize(EMR_RECTANGLE, 7).Polyline({{1, 1}, {2, 2}});
  const PlayedMetafile played = Played(metafile.Build());
  EXPECT_EQ(played.trace, kLine);
  // The header has 108 bytes, a line of two points 8, 16, 4 and 2 times 4.
  EXPECT_THAT(played.remarks,
              ElementsAre("the records end at byte 144: a record claims less than the 8 bytes of "
                          "its type and size"));
}

TEST(EmfPlayer, RemarksThatAFileEndsWithoutItsLastRecord) {
  Metafile metafile;
  const PlayedMetafile played = Played(AddLine(metafile).BuildWithoutEnd());
  EXPECT_EQ(played.trace, kLine);
  EXPECT_THAT(played.remarks,
              ElementsAre("the records end at byte 144: the file ends without an EMR_EOF"));
}

TEST(EmfPlayer, PlaysNothingBehindTheLastRecord) {
  Metafile metafile;
  metafile.Record(EMR_EOF, Bytes().Zeros(12));
  EXPECT_EQ(Played(AddLine(metafile).Build()).trace, "");
}

// What is left out, and said to be.

TEST(EmfPlayer, LeavesBitmapsOutThatCannotBeRead) {
  for (const std::uint32_t type : {kAlphaBlend, kTransparentBlt}) {
    const PlayedMetafile played = PlayedAlone(type, Bytes().Zeros(160));
    EXPECT_EQ(played.trace, "");
    EXPECT_THAT(played.report, testing::HasSubstr("its bitmap cannot be read"));
  }
}

// Bitmaps that wait for others.

/// A bitmap of one row, two pixels of 24 bits, that is drawn from the corner on.
Metafile& AddTwoPixels(Metafile& metafile, const Bytes& pixels, std::uint32_t operation) {
  Blit blit;
  blit.size = {2, 1};
  blit.sourceSize = {2, 1};
  blit.operation = operation;
  blit.bitmap = {Bytes().BitmapHeader({.width = 2, .height = 1}), pixels};
  return AddBlit(metafile, kStretchDibits, blit);
}

const Bytes kBlackAndWhite = Bytes().Zeros(3).Each({255, 255, 255, 0, 0});
const Bytes kGreyAndBlack = Bytes().Each({128, 128, 128}).Zeros(5);
constexpr std::uint32_t kSrcAnd = 0x008800C6;
constexpr std::uint32_t kSrcPaint = 0x00EE0086;

TEST(EmfPlayer, MakesOnePictureOfAMaskAndAnImageWithStateBetweenThem) {
  Metafile metafile;
  AddTwoPixels(metafile, kBlackAndWhite, kSrcAnd).SetTextColor(0x123456);
  const PlayedMetafile played = Played(AddTwoPixels(metafile, kGreyAndBlack, kSrcPaint).Build());
  EXPECT_THAT(played.trace, testing::HasSubstr("masked 2 1"));
  EXPECT_THAT(played.trace, testing::Not(testing::HasSubstr("blend")));
  EXPECT_EQ(played.report, "");
}

TEST(EmfPlayer, DrawsAMaskBeforeWhatIsDrawnOnIt) {
  Metafile metafile;
  AddLine(AddTwoPixels(metafile, kBlackAndWhite, kSrcAnd));
  const PlayedMetafile played = Played(metafile.Build());
  const std::size_t mask = played.trace.find("image 2 1 mask");
  ASSERT_NE(mask, std::string::npos) << played.trace;
  EXPECT_LT(mask, played.trace.find("stroke"));
}

TEST(EmfPlayer, TellsWhatABitmapFallsShortOfByItsOwnRecord) {
  Metafile metafile;
  metafile.Ellipse({0, 0, 100, 100});
  AddTwoPixels(metafile, kGreyAndBlack, kSrcPaint).SetTextColor(0x123456);
  const PlayedMetafile played = Played(AddLine(metafile).Build());
  EXPECT_EQ(
      played.report,
      "only nearly EMR_STRETCHDIBITS 1: its raster operation on these colours is only near\n");
}

TEST(EmfPlayer, LeavesFloodFillsOut) {
  EXPECT_EQ(PlayedAlone(kEmrExtFloodFill, Bytes().Zeros(16)).report,
            "left out EMR_EXTFLOODFILL 1: a flood fill needs the pixels of the page\n");
}

TEST(EmfPlayer, ReportsARecordWhoseColorsAreOnlyNear) {
  Metafile metafile;
  metafile.Ellipse({0, 0, 100, 100}).CreateBrush(1, Rgb(128, 128, 128)).SelectObject(1);
  metafile.Record(EMR_SETROP2, Bytes().U32(7));
  const PlayedMetafile played = Played(metafile.Rectangle({0, 0, 4, 4}).Build());
  EXPECT_EQ(played.report,
            "only nearly EMR_RECTANGLE 1: its raster operation on these colours is only near\n");
  EXPECT_TRUE(played.isWhole);
}

// Blits without a bitmap.

TEST(EmfPlayer, FillsWithABlitThatHasNoBitmap) {
  Metafile metafile;
  metafile.CreateBrush(1, Rgb(255, 0, 0)).SelectObject(1).BitBlt({1, 2}, {3, 4}, kPatCopy);
  const PlayedMetafile played = Played(metafile.Build());
  EXPECT_EQ(played.trace, "fill-color 1 0 0\nrect 1 2 3 4\nfill\n");
  EXPECT_EQ(played.report, "");
}

TEST(EmfPlayer, MarksNothingByABlitThatLacksItsBitmap) {
  const PlayedMetafile played = Played(Metafile().BitBlt({1, 2}, {3, 4}, kSrcCopy).Build());
  EXPECT_EQ(played.trace, "");
  EXPECT_EQ(played.report, "");
}

TEST(EmfPlayer, MarksNothingByABlitThatLeavesThePage) {
  constexpr std::uint32_t kDestination = 0x00AA0029;
  EXPECT_EQ(Played(Metafile().BitBlt({0, 0}, {99, 99}, kDestination).Build()).trace, "");
}

// Comments.

TEST(EmfPlayer, CountsTheCommentsOfPrograms) {
  Metafile metafile;
  metafile.Record(EMR_GDICOMMENT, Bytes().U32(4).U32(0x12345678))
      .Record(EMR_GDICOMMENT, Bytes().U32(0));
  EXPECT_THAT(Played(metafile.Build()).remarks,
              ElementsAre("2 comments of programs were passed over"));
}

TEST(EmfPlayer, SaysNothingOfGroups) {
  constexpr std::uint32_t kPublic = 0x43494447;
  const PlayedMetafile played =
      PlayedAlone(EMR_GDICOMMENT, Bytes().U32(28).U32(kPublic).U32(2).Zeros(20));
  EXPECT_EQ(played.report, "");
  EXPECT_THAT(played.remarks, IsEmpty());
}

// Marks that are made piece by piece.

TEST(EmfPlayer, StrokesARunOfLinesAsOne) {
  const PlayedMetafile played =
      Played(Metafile().MoveTo(1, 1).LineTo(2, 2).LineTo(3, 1).MoveTo(5, 5).LineTo(6, 6).Build());
  EXPECT_EQ(played.trace,
            "line-width 0\nline-join 1\n"
            "move 1 1\nline 2 2\nline 3 1\nmove 5 5\nline 6 6\nstroke\n");
}

TEST(EmfPlayer, StrokesARunOfLinesBeforeThePenChanges) {
  Metafile metafile;
  metafile.CreatePen(1, 0, Rgb(255, 0, 0)).MoveTo(1, 1).LineTo(2, 2).SelectObject(1).LineTo(3, 3);
  EXPECT_EQ(Played(metafile.Build()).trace,
            "line-width 0\nline-join 1\nmove 1 1\nline 2 2\nstroke\n"
            "stroke-color 1 0 0\nmove 2 2\nline 3 3\nstroke\n");
}

TEST(EmfPlayer, FillsARunOfPixelsAsOne) {
  Metafile metafile;
  for (const std::int32_t x : {1, 2, 3})
    metafile.Record(EMR_SETPIXELV, Bytes().PointL(x, 5).U32(0));
  metafile.Record(EMR_SETPIXELV, Bytes().PointL(1, 6).U32(0));
  EXPECT_EQ(Played(metafile.Build()).trace, "rect 1 5 3 1\nrect 1 6 1 1\nfill\n");
}

// The state.

TEST(EmfPlayer, RestoresByLevelsBelowZeroAlone) {
  Metafile metafile;
  metafile.SaveDC().SetWindowOrg(10, 20).RestoreDC(1);
  EXPECT_THAT(Played(AddLine(metafile).Build()).trace, testing::HasSubstr("move 0 0\n"));
  metafile.RestoreDC(-1);
  EXPECT_THAT(Played(AddLine(metafile).Build()).trace, testing::HasSubstr("move 10 20\n"));
}

// The area that is drawn.

TEST(DrawnArea, IsWhereTheLinesGo) {
  const auto area = DrawnAreaOf(FileOfALine());
  ASSERT_TRUE(area);
  EXPECT_EQ(area->left, 10);
  EXPECT_EQ(area->top, 20);
  EXPECT_EQ(area->right, 30);
  EXPECT_EQ(area->bottom, 40);
}

TEST(DrawnArea, HasHalfOfAPenAroundIt) {
  Metafile metafile;
  metafile.CreatePen(1, 6, 0).SelectObject(1);
  const auto area = DrawnAreaOf(AddLine(metafile).Build());
  ASSERT_TRUE(area);
  EXPECT_EQ(area->left, 7);
  EXPECT_EQ(area->bottom, 43);
}

TEST(DrawnArea, ReachesFarBeyondAnyPage) {
  const auto area = DrawnAreaOf(Metafile().Polyline({{-90000, 5}, {90000, 6}}, true).Build());
  ASSERT_TRUE(area);
  EXPECT_NEAR(area->left, -90000, 0.01);
  EXPECT_NEAR(area->right, 90000, 0.01);
}

TEST(DrawnArea, IsNoneWithoutAMark) {
  EXPECT_FALSE(DrawnAreaOf(Metafile().Build()));
  EXPECT_FALSE(DrawnAreaOf(Metafile().TextOut({1, 2}, u"").Build()));
  EXPECT_FALSE(DrawnAreaOf({}));
}

}  // namespace
}  // namespace kelvane::test
