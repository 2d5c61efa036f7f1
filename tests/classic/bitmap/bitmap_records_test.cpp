#include "classic/bitmap/bitmap_records.h"

#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/bytes.h"
#include "support/metafile.h"
#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::kPatCopy;
using test::kSrcCopy;
using test::Metafile;
using test::ParsedMetafile;
using test::ReadRecord;
using test::Trace;
using test::TracedPage;
using testing::ElementsAre;
using testing::SizeIs;

constexpr std::uint32_t kBlackness = 0x00000042;
constexpr std::uint32_t kLeaveDestination = 0x00AA0029;
constexpr std::uint32_t kPatInvert = 0x005A0049;
constexpr std::uint32_t kSrcInvert = 0x00660046;
constexpr RectangleL kBox = {10, 20, 30, 60};
const Bytes kPixel = Bytes().BitmapHeader({}).Each({3, 2, 1, 0});
const std::string kPixelInBox = "image 1 1 rgb under 20 0 0 40 10 -60\n";
const std::string kRectangleFilled = "fill-color 1 1 1\nrect 10 -60 20 40\nfill\n";

TEST(BitBltRecord, ReadsItsFieldsInFileOrder) {
  const auto record = ReadRecord<BitBltRecord>(Bytes()
                                                   .Rectangle(1, 2, 3, 4)
                                                   .PointL(5, 6)
                                                   .PointL(7, 8)
                                                   .U32(9)
                                                   .PointL(10, 11)
                                                   .F32(12)
                                                   .Zeros(16)
                                                   .F32(13)
                                                   .U32(14)
                                                   .U32(15)
                                                   .U32(16)
                                                   .U32(40)
                                                   .U32(17)
                                                   .U32(3)
                                                   .BitmapHeader({.width = 18, .bitCount = 4})
                                                   .Each({19, 20, 21}));
  EXPECT_EQ(record->rclBounds.bottom, 4);
  EXPECT_EQ(record->xDest, 5);
  EXPECT_EQ(record->yDest, 6);
  EXPECT_EQ(record->cxDest, 7);
  EXPECT_EQ(record->cyDest, 8);
  EXPECT_EQ(record->dwRop, 9U);
  EXPECT_EQ(record->xSrc, 10);
  EXPECT_EQ(record->ySrc, 11);
  EXPECT_EQ(record->xformSrc.eM11, 12);
  EXPECT_EQ(record->xformSrc.eDy, 13);
  EXPECT_EQ(record->crBkColorSrc, 14U);
  EXPECT_EQ(record->iUsageSrc, 15U);
  EXPECT_EQ(record->offBmiSrc, 16U);
  EXPECT_EQ(record->cbBmiSrc, 40U);
  EXPECT_EQ(record->offBitsSrc, 17U);
  EXPECT_EQ(record->cbBitsSrc, 3U);
  EXPECT_EQ(record->bmiSrc.biWidth, 18);
  EXPECT_EQ(record->bmiSrc.biClrUsed, 16U);
  EXPECT_THAT(record->bitsSrc, ElementsAre(19, 20, 21));
}

TEST(BitBltRecord, ReadsNoHeaderWithoutABitmap) {
  const auto record =
      ReadRecord<BitBltRecord>(Bytes().Zeros(80).U32(0).U32(0).U32(2).Each({5, 6, 7}));
  EXPECT_EQ(record->bmiSrc.biSize, 0U);
  EXPECT_THAT(record->bitsSrc, ElementsAre(5, 6));
}

TEST(BitBltRecord, KeepsTheBitsReadBeforeTheDataEnds) {
  const auto record =
      ReadRecord<BitBltRecord>(Bytes().Zeros(80).U32(0).U32(0).U32(0xFFFFFFFF).Each({5, 6, 7}));
  EXPECT_THAT(record->bitsSrc, ElementsAre(5, 6, 7));
}

TEST(BitBltRecord, FillsItsDestination) {
  EXPECT_EQ(Trace(Metafile().BitBlt({10, 20}, {20, 40}, kPatCopy)), kRectangleFilled);
  EXPECT_EQ(Trace(Metafile().BitBlt({10, 20}, {20, 40}, kBlackness)), kRectangleFilled);
}

TEST(BitBltRecord, DrawsNothingForTheOperationsThatKeepOrInvertTheDestination) {
  EXPECT_EQ(Trace(Metafile().BitBlt({10, 20}, {20, 40}, kLeaveDestination)), "");
  EXPECT_EQ(Trace(Metafile().BitBlt({10, 20}, {20, 40}, kPatInvert)), "");
}

TEST(BitBltRecord, DrawsNothingWithASourceBitmap) {
  const Bytes bits = Bytes().Each({3, 2, 1, 0});
  EXPECT_EQ(Trace(Metafile().BitBlt({10, 20}, {20, 40}, kSrcCopy, bits)), "");
  EXPECT_EQ(Trace(Metafile().BitBlt({10, 20}, {20, 40}, kPatCopy, bits)), "");
}

TEST(BitBltRecord, FillsWithAHollowBrushAndInsideAPathToo) {
  BitBltRecord record;
  record.cxDest = 20;
  record.cyDest = 40;
  TracedPage page;
  page.Context().hollowBrush = 1;
  page.Context().inPath = 1;
  record.drawToPDF(page.Context());
  EXPECT_EQ(page.Trace(), "rect 0 -40 20 40\nfill\n");
}

TEST(BitBltRecord, WrapsADestinationBeyond32Bits) {
  constexpr auto kMost = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(Trace(Metafile().BitBlt({kMost, 0}, {1, 1})),
            "fill-color 1 1 1\nrect -2147483648 -1 1 1\nfill\n");
}

TEST(StretchDibitsRecord, ReadsItsFieldsInFileOrder) {
  const auto record = ReadRecord<StretchDibitsRecord>(Bytes()
                                                          .Rectangle(1, 2, 3, 4)
                                                          .PointL(5, 6)
                                                          .PointL(7, 8)
                                                          .PointL(9, 10)
                                                          .U32(11)
                                                          .U32(12)
                                                          .U32(13)
                                                          .U32(14)
                                                          .U32(15)
                                                          .U32(16)
                                                          .PointL(17, 18)
                                                          .Append(kPixel.Data()));
  EXPECT_EQ(record->rclBounds.bottom, 4);
  EXPECT_EQ(record->xDest, 5);
  EXPECT_EQ(record->yDest, 6);
  EXPECT_EQ(record->xSrc, 7);
  EXPECT_EQ(record->ySrc, 8);
  EXPECT_EQ(record->cxSrc, 9);
  EXPECT_EQ(record->cySrc, 10);
  EXPECT_EQ(record->offBmiSrc, 11U);
  EXPECT_EQ(record->cbBmiSrc, 12U);
  EXPECT_EQ(record->offBitsSrc, 13U);
  EXPECT_EQ(record->cbBitsSrc, 14U);
  EXPECT_EQ(record->iUsageSrc, 15U);
  EXPECT_EQ(record->dwRop, 16U);
  EXPECT_EQ(record->cxDest, 17);
  EXPECT_EQ(record->cyDest, 18);
  EXPECT_FALSE(record->flipped);
  EXPECT_THAT(record->dib.data, ElementsAre(1, 2, 3, 0));
}

TEST(StretchDibitsRecord, TellsItsBitmapWhereAndHowLongItsPixelsAre) {
  const auto record = ReadRecord<StretchDibitsRecord>(
      Bytes().Zeros(16 + 8 * 4).U32(100).U32(14).Zeros(16).BitmapHeader({.bitCount = 1}).Zeros(8));
  EXPECT_EQ(record->dib.bitsPosition, 100U + 8U);
  EXPECT_EQ(record->dib.size, 14U) << "as nothing is decoded";
}

TEST(StretchDibitsRecord, TakesANegativeHeightForAFlippedOne) {
  const auto record = ReadRecord<StretchDibitsRecord>(Bytes().Zeros(68).I32(-18));
  EXPECT_EQ(record->cyDest, 18);
  EXPECT_TRUE(record->flipped);
}

TEST(StretchDibitsRecord, DrawsTheBitmapIntoItsBounds) {
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, kPixel)), kPixelInBox);
}

TEST(StretchDibitsRecord, DrawsTheSameWithANegativeHeight) {
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, kPixel, kSrcCopy, -9)), kPixelInBox);
}

TEST(StretchDibitsRecord, DrawsNothingWhenItInvertsTheDestination) {
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, kPixel, kSrcInvert)), "");
}

TEST(StretchDibitsRecord, DrawsColorsOfAnEightBitTableInRgb) {
  const Bytes bitmap = Bytes().BitmapHeader({.bitCount = 8, .colorsUsed = 1}).Zeros(8);
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, bitmap)), kPixelInBox);
}

TEST(StretchDibitsRecord, DrawsFourBitPixelsInGray) {
  const Bytes bitmap = Bytes().BitmapHeader({.bitCount = 4, .colorsUsed = 1}).Zeros(8);
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, bitmap)),
            "image 1 1 gray under 20 0 0 40 10 -60\n");
}

TEST(StretchDibitsRecord, IsReadPastWhenItsPixelsAreLeftUndecoded) {
  const Bytes monochrome = Bytes().BitmapHeader({.width = 32, .bitCount = 1}).Zeros(8 + 4);
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, monochrome).MoveTo(1, 2).LineTo(3, 4)),
            Trace(Metafile().MoveTo(1, 2).LineTo(3, 4)));
}

TEST(StretchDibitsRecord, IsFollowedByTheNextRecordWhenItsBitmapClaimsMoreThanItHolds) {
  const Bytes tooFew = Bytes().BitmapHeader({.height = 3}).Each({3, 2, 1, 0});
  const std::string line = Trace(Metafile().MoveTo(1, 2).LineTo(3, 4));
  EXPECT_EQ(Trace(Metafile().StretchDibits(kBox, tooFew).MoveTo(1, 2).LineTo(3, 4)),
            "image 1 3 rgb under 20 0 0 40 10 -60\n" + line);
}

TEST(StretchDibitsRecord, HasNoPixelsOnceOthersTookTheSameBytesTooOften) {
  constexpr std::size_t kMegabyte = std::size_t{1} << 20;
  const Bytes onlyAHeader = Bytes().BitmapHeader({.width = 512, .height = 512, .bitCount = 32});
  const Metafile shared = Metafile()
                              .StretchDibits(kBox, onlyAHeader)
                              .StretchDibits(kBox, onlyAHeader)
                              .StretchDibits(kBox, onlyAHeader)
                              .Record(test::EMR_GDICOMMENT, Bytes().Zeros(kMegabyte));
  // A megabyte taken from behind counts as eight, and the budget is 16 and 8 times the metafile's.
  const std::string image = "image 512 512 rgb under 20 0 0 40 10 -60\n";
  EXPECT_EQ(Trace(shared), image + image);
}

TEST(StretchDibitsRecord, OfASizeBeyondTheDataEndsTheParse) {
  const Bytes body = Bytes().Rectangle(10, 20, 30, 60).Zeros(56).Append(kPixel.Data());
  ParsedMetafile parsed(Metafile()
                            .RecordOfSize(test::EMR_STRETCHDIBITS, 0x10000, body)
                            .LineTo(1, 2)
                            .BuildWithoutEnd());
  EXPECT_THAT(parsed->records, SizeIs(1));
}

}  // namespace
}  // namespace kelvane
