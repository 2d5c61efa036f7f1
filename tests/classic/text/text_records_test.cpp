#include "classic/text/text_records.h"

#include <thread>

#include <gmock/gmock.h>

#include "support/playback.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::ReadRecord;
using testing::ElementsAre;
using testing::IsEmpty;

using WideRecord = ExtTextOutRecord<std::uint16_t>;
using NarrowRecord = ExtTextOutRecord<char>;

/// The fields before the string.
Bytes Head(std::uint32_t count, std::uint32_t stringOffset, std::uint32_t spacingOffset) {
  return Bytes()
      .Rectangle(1, 2, 3, 4)
      .U32(2)
      .F32(0.5F)
      .F32(0.25F)
      .PointL(-5, 6)
      .U32(count)
      .U32(stringOffset)
      .U32(4)
      .Rectangle(0, 0, -1, -1)
      .U32(spacingOffset);
}

TEST(ExtTextOutRecord, KeepsItsFields) {
  const auto record = ReadRecord<WideRecord>(Head(0, 0, 0));
  EXPECT_EQ(record->bounds.bottom, 4);
  EXPECT_EQ(record->graphicsMode, 2U);
  EXPECT_EQ(record->xScale, 0.5F);
  EXPECT_EQ(record->yScale, 0.25F);
  EXPECT_EQ(record->block.reference.x, -5);
  EXPECT_EQ(record->block.options, 4U);
}

TEST(ExtTextOutRecord, SkipsTwoBytesBehindAnOddNumberOfUnits) {
  const auto record = ReadRecord<WideRecord>(
      Head(5, 76, 88).Utf16(u"abcde").U16(0xFFFF).U32(1).U32(2).U32(3).U32(4).U32(5));
  EXPECT_THAT(record->text, ElementsAre('a', 'b', 'c', 'd', 'e'));
  EXPECT_THAT(record->spacing, ElementsAre(1, 2, 3, 4, 5));
}

TEST(ExtTextOutRecord, SkipsNothingBehindAnEvenNumberOfUnits) {
  const auto record =
      ReadRecord<WideRecord>(Head(4, 76, 84).Utf16(u"abcd").U32(1).U32(2).U32(3).U32(4));
  EXPECT_THAT(record->spacing, ElementsAre(1, 2, 3, 4));
}

TEST(ExtTextOutRecord, SkipsTwoBytesBehindAnOddNumberOfBytesToo) {
  const auto record = ReadRecord<NarrowRecord>(
      Head(3, 76, 80).U8('a').U8('b').U8('c').U16(0xFFFF).U32(1).U32(2).U32(3));
  EXPECT_THAT(record->text, ElementsAre('a', 'b', 'c'));
  EXPECT_THAT(record->spacing, ElementsAre(1, 2, 3));
}

TEST(ExtTextOutRecord, SkipsNothingBehindAnEvenNumberOfBytes) {
  const auto record = ReadRecord<NarrowRecord>(
      Head(4, 76, 80).U8('a').U8('b').U8('c').U8('d').U32(1).U32(2).U32(3).U32(4));
  EXPECT_THAT(record->spacing, ElementsAre(1, 2, 3, 4));
}

TEST(ExtTextOutRecord, TakesTheStringFromBehindTheBlockWhereverItsOffsetPoints) {
  const auto record = ReadRecord<WideRecord>(Head(2, 500, 0).Utf16(u"ab"));
  EXPECT_THAT(record->text, ElementsAre('a', 'b'));
}

TEST(ExtTextOutRecord, HasNoStringWithoutAnOffset) {
  const auto record = ReadRecord<WideRecord>(Head(3, 0, 76).U32(1).U32(2).U32(3));
  EXPECT_THAT(record->text, IsEmpty());
  EXPECT_THAT(record->spacing, ElementsAre(1, 2, 3));
}

TEST(ExtTextOutRecord, HasNoSpacingWithoutAnOffset) {
  const auto record = ReadRecord<WideRecord>(Head(2, 76, 0).Utf16(u"ab").U32(1).U32(2));
  EXPECT_THAT(record->spacing, IsEmpty());
}

TEST(ExtTextOutRecord, KeepsTheUnitsReadBeforeTheDataEnds) {
  const auto record = ReadRecord<WideRecord>(Head(0x7FFFFFFF, 76, 76).Utf16(u"ab"));
  EXPECT_THAT(record->text, ElementsAre('a', 'b'));
  EXPECT_THAT(record->spacing, IsEmpty());
}

Metafile Text() {
  return Metafile().CreateFont(1, {}).SelectObject(1).SetTextAlign(test::kTextBaseline);
}

std::string Unit(const std::string& text, const std::string& place) {
  return "text \"" + text + "\" LiberationSans 10 under 1 0 0 1 " + place + "\n";
}

TEST(ExtTextOutRecord, IsDrawnFromItsReferencePoint) {
  EXPECT_EQ(Trace(Text().TextOut({10, 20}, u"Hi", {7, 3})),
            Unit("H", "10 -20") + Unit("i", "17 -20"));
}

TEST(ExtTextOutRecord, IsDrawnInTheTextColour) {
  EXPECT_THAT(Trace(Text().SetTextColor(test::Rgb(128, 64, 0)).TextOut({10, 20}, u"H")),
              "fill-color 0.5 0.25 0\n" + Unit("H", "10 -20"));
}

TEST(ExtTextOutRecord, IsDrawnOverItsOwnBoundsWhenOpaque) {
  EXPECT_EQ(
      Trace(Text()
                .SetBkMode(test::kOpaque)
                .SetBkColor(test::Rgb(128, 128, 0))
                .TextOut({10, 20}, u"H", {}, {5, 10, 25, 30})),
      "fill-color 0.5 0.5 0\nrect 5 -30 20 20\nfill\nfill-color 0 0 0\n" + Unit("H", "10 -20"));
}

TEST(ExtTextOutRecord, TakesTwoBytesForOneUnit) {
  EXPECT_EQ(Trace(Text().TextOutA({10, 20}, std::string_view("\0A\0B", 4), {1, 2, 3, 4})),
            Unit("A", "10 -20") + Unit("B", "11 -20"));
}

TEST(ExtTextOutRecord, MovesThePenForEveryByte) {
  EXPECT_EQ(Trace(Text()
                      .TextOutA({10, 20}, std::string_view("\0A\0B", 4), {1, 2, 3, 4})
                      .SetTextAlign(test::kTextUpdateCP)
                      .TextOut({0, 0}, u"C")),
            Unit("A", "10 -20") + Unit("B", "11 -20") + Unit("C", "20 -20"));
}

TEST(ExtTextOutRecord, LeavesOutALoneLastByte) {
  EXPECT_EQ(Trace(Text().TextOutA({10, 20}, std::string_view("\0AB", 3), {1, 2, 3})),
            Unit("A", "10 -20"));
}

TEST(ExtTextOutRecord, GoesOnWhereTheTextBeforeEnded) {
  EXPECT_EQ(Trace(Text()
                      .TextOut({10, 20}, u"H", {7})
                      .SetTextAlign(test::kTextUpdateCP)
                      .TextOut({90, 90}, u"i")),
            Unit("H", "10 -20") + Unit("i", "17 -20"));
}

TEST(ExtTextOutRecord, IsTurnedByTheLastFontCreated) {
  EXPECT_EQ(Trace(Text().CreateFont(2, {.escapement = 900}).TextOut({10, 20}, u"H")),
            "text \"H\" LiberationSans 10 under 0 1 -1 0 10 -20\n");
}

TEST(ExtTextOutRecord, StaysTurnedWhenAStateIsRestored) {
  EXPECT_EQ(
      Trace(Text().SaveDC().CreateFont(2, {.escapement = 900}).RestoreDC().TextOut({10, 20}, u"H")),
      "text \"H\" LiberationSans 10 under 0 1 -1 0 10 -20\n");
}

}  // namespace
}  // namespace kelvane
