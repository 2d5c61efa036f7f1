#include "metafile/emf/emf_line_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Points = std::vector<PointL>;
using Points16 = std::vector<Point16>;

TEST(MoveToExRecord, HasAPoint) {
  EXPECT_EQ(Decode(DecodeMoveToEx, Bytes().PointL(-1, 2))->point, (PointL{-1, 2}));
}

TEST(LineToRecord, HasAPoint) {
  EXPECT_EQ(Decode(DecodeLineTo, Bytes().PointL(3, -4))->point, (PointL{3, -4}));
}

TEST(PolyRecord, HasBoundsAndPointsOf32Bits) {
  const auto record = Decode(DecodePoly<PointL>,
                             Bytes().Rectangle(1, 2, 3, 4).U32(2).PointL(-70000, 5).PointL(6, 7));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(Elements(record->points), (Points{{-70000, 5}, {6, 7}}));
}

TEST(PolyRecord, HasPointsOf16Bits) {
  const auto record = Decode(DecodePoly<Point16>,
                             Bytes().Rectangle(1, 2, 3, 4).U32(2).Point(-32768, 5).Point(6, 7));
  EXPECT_EQ(Elements(record->points), (Points16{{-32768, 5}, {6, 7}}));
}

TEST(PolyRecord, KeepsTheWholePointsThatAreThere) {
  const Bytes bytes = Bytes().Zeros(8).Rectangle(0, 0, 9, 9).U32(0x40000000).Point(1, 2).U16(3);
  const DecodedRecord record(DecodePoly<Point16>, bytes.Data());
  EXPECT_TRUE(record.IsShort());
  EXPECT_EQ(Elements(record->points), (Points16{{1, 2}}));
}

TEST(PolyPolyRecord, HasACountForEachFigureAndAllPoints) {
  const auto record = Decode(DecodePolyPoly<Point16>, Bytes()
                                                          .Rectangle(1, 2, 3, 4)
                                                          .U32(2)
                                                          .U32(3)
                                                          .U32(1)
                                                          .U32(2)
                                                          .Point(1, 2)
                                                          .Point(3, 4)
                                                          .Point(5, 6));
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(Elements(record->counts), (std::vector<std::uint32_t>{1, 2}));
  EXPECT_EQ(Elements(record->points), (Points16{{1, 2}, {3, 4}, {5, 6}}));
}

TEST(PolyPolyRecord, HasPointsOf32Bits) {
  const auto record = Decode(DecodePolyPoly<PointL>,
                             Bytes().Rectangle(0, 0, 0, 0).U32(1).U32(1).U32(1).PointL(100000, -1));
  EXPECT_EQ(Elements(record->points), (Points{{100000, -1}}));
}

TEST(PolyDrawRecord, HasATypeForEachPoint) {
  const auto record = Decode(
      DecodePolyDraw<Point16>,
      Bytes().Rectangle(1, 2, 3, 4).U32(2).Point(1, 2).Point(3, 4).Each({6, 3}).Zeros(2), 30);
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(Elements(record->points), (Points16{{1, 2}, {3, 4}}));
  EXPECT_EQ(record->types[0], PT_MOVETO);
  EXPECT_EQ(record->types[1], PT_LINETO | PT_CLOSEFIGURE);
}

TEST(PolyDrawRecord, HasPointsOf32Bits) {
  const auto record =
      Decode(DecodePolyDraw<PointL>, Bytes().Rectangle(0, 0, 0, 0).U32(1).PointL(1, -100000).U8(2));
  EXPECT_EQ(Elements(record->points), (Points{{1, -100000}}));
  EXPECT_EQ(record->types[0], PT_LINETO);
}

}  // namespace
}  // namespace kelvane::test
