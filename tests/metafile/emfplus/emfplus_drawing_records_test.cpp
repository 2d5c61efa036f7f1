#include "metafile/emfplus/emfplus_drawing_records.h"

#include <gtest/gtest.h>

#include "emfplus_decoding.h"

namespace kelvane::test {
namespace {

// Flags of records.
constexpr std::uint32_t kColor = 0x8000;
constexpr std::uint32_t kIntegers = 0x4000;
constexpr std::uint32_t kSpecial = 0x2000;
constexpr std::uint32_t kRelative = 0x0800;

constexpr std::uint32_t kRed = 0x80FF0000;
constexpr Argb kRedColor = {0, 0, 255, 128};

using Points = std::vector<PointF>;
using Rectangles = std::vector<RectF>;

const EmfPlusBrushUse kRedBrush = kRedColor;

EmfPlusBrushUse BrushAt(EmfPlusSlot slot) {
  return slot;
}

Bytes Box(float x, float y, float width, float height) {
  return Bytes().F32(x).F32(y).F32(width).F32(height);
}

TEST(EmfPlusClear, HasAColor) {
  const auto clear = DecodeWhole(DecodeEmfPlusClear, 0, Bytes().U32(kRed));
  ASSERT_TRUE(clear);
  EXPECT_EQ(clear->color, kRedColor);
}

TEST(EmfPlusFillRects, HasABrushAndRectangles) {
  const auto fill =
      DecodeWhole(DecodeEmfPlusFillRects, 0, Bytes().U32(7).U32(1).Append(Box(1, 2, 3, 4).Data()));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, BrushAt(7));
  EXPECT_EQ(fill->rectangles, (Rectangles{{1, 2, 3, 4}}));
}

TEST(EmfPlusFillRects, MayHaveAColorAndIntegers) {
  const auto fill =
      DecodeWhole(DecodeEmfPlusFillRects, kColor | kIntegers,
                  Bytes().U32(kRed).U32(2).Point(1, 2).Point(3, 4).Point(5, 6).Point(7, 8));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, kRedBrush);
  EXPECT_EQ(fill->rectangles, (Rectangles{{1, 2, 3, 4}, {5, 6, 7, 8}}));
}

// One writer makes records of integers as long as those of floats.
TEST(EmfPlusFillRects, MayHaveBytesLeft) {
  const Bytes data = Bytes().U32(7).U32(1).Point(1, 2).Point(3, 4).Zeros(8);
  const auto fill = DecodeEmfPlusFillRects(StoredEmfPlusRecord(kIntegers, data.Data()).Record());
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->rectangles, (Rectangles{{1, 2, 3, 4}}));
}

TEST(EmfPlusDrawRects, HasAPenAndRectangles) {
  const auto draw =
      DecodeWhole(DecodeEmfPlusDrawRects, 5, Bytes().U32(1).Append(Box(1, 2, -3, 4).Data()));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_EQ(draw->rectangles, (Rectangles{{1, 2, -3, 4}}));
}

TEST(EmfPlusFillPolygon, HasABrushAndPoints) {
  const auto fill = DecodeWhole(DecodeEmfPlusFillPolygon, kIntegers,
                                Bytes().U32(7).U32(2).Point(1, 2).Point(3, 4));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, BrushAt(7));
  EXPECT_EQ(fill->points, (Points{{1, 2}, {3, 4}}));
}

TEST(EmfPlusDrawLines, HasAPenAndPoints) {
  const auto draw = DecodeWhole(DecodeEmfPlusDrawLines, 5, Bytes().U32(1).F32(1.5F).F32(2));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_FALSE(draw->isClosed);
  EXPECT_EQ(draw->points, (Points{{1.5F, 2}}));
}

TEST(EmfPlusDrawLines, MayBeClosedAndRelative) {
  // What is relative is not compressed any further, whatever the flags say.
  const auto draw = DecodeWhole(DecodeEmfPlusDrawLines, kSpecial | kRelative | kIntegers,
                                Bytes().U32(2).Each({1, 2, 3, 4}));
  ASSERT_TRUE(draw);
  EXPECT_TRUE(draw->isClosed);
  EXPECT_EQ(draw->points, (Points{{1, 2}, {4, 6}}));
}

TEST(EmfPlusEllipses, HaveABox) {
  const auto fill = DecodeWhole(DecodeEmfPlusFillEllipse, kColor,
                                Bytes().U32(kRed).Append(Box(1, 2, 3, 4).Data()));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, kRedBrush);
  EXPECT_EQ(fill->box, (RectF{1, 2, 3, 4}));

  const auto draw =
      DecodeWhole(DecodeEmfPlusDrawEllipse, kIntegers | 5, Bytes().Point(1, 2).Point(3, 4));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_EQ(draw->box, (RectF{1, 2, 3, 4}));
}

TEST(EmfPlusArcs, HaveAnglesAndABox) {
  const Bytes arc = Bytes().F32(10).F32(-20).Append(Box(1, 2, 3, 4).Data());
  const auto fill = DecodeWhole(DecodeEmfPlusFillPie, kColor, Bytes().U32(kRed).Append(arc.Data()));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, kRedBrush);
  EXPECT_EQ(fill->startAngle, 10);
  EXPECT_EQ(fill->sweepAngle, -20);
  EXPECT_EQ(fill->box, (RectF{1, 2, 3, 4}));

  const auto draw = DecodeWhole(DecodeEmfPlusDrawArc, 5, arc);
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_EQ(draw->startAngle, 10);
  EXPECT_EQ(draw->sweepAngle, -20);
  EXPECT_EQ(draw->box, (RectF{1, 2, 3, 4}));
}

TEST(EmfPlusFillRegion, HasABrushAndARegion) {
  const auto fill = DecodeWhole(DecodeEmfPlusFillRegion, kColor | 9, Bytes().U32(kRed));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, kRedBrush);
  EXPECT_EQ(fill->region, 9U);
}

TEST(EmfPlusPaths, HaveAPathAndWhatDrawsIt) {
  const auto fill = DecodeWhole(DecodeEmfPlusFillPath, 9, Bytes().U32(7));
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, BrushAt(7));
  EXPECT_EQ(fill->path, 9U);

  const auto draw = DecodeWhole(DecodeEmfPlusDrawPath, 9, Bytes().U32(7));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 7U);
  EXPECT_EQ(draw->path, 9U);
}

TEST(EmfPlusFillClosedCurve, HasABrushATensionAndPoints) {
  const Bytes data = Bytes().U32(7).F32(0.5F).U32(1).Point(1, 2);
  const auto fill = DecodeWhole(DecodeEmfPlusFillClosedCurve, kIntegers | kSpecial, data);
  ASSERT_TRUE(fill);
  EXPECT_EQ(fill->brush, BrushAt(7));
  EXPECT_EQ(fill->tension, 0.5F);
  EXPECT_TRUE(fill->isWinding);
  EXPECT_EQ(fill->points, (Points{{1, 2}}));
  EXPECT_FALSE(DecodeWhole(DecodeEmfPlusFillClosedCurve, kIntegers, data)->isWinding);
}

TEST(EmfPlusDrawClosedCurve, HasAPenATensionAndPoints) {
  const auto draw = DecodeWhole(DecodeEmfPlusDrawClosedCurve, kRelative | 5,
                                Bytes().F32(0.5F).U32(2).Each({1, 2, 3, 4}));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_EQ(draw->tension, 0.5F);
  EXPECT_EQ(draw->points, (Points{{1, 2}, {4, 6}}));
}

TEST(EmfPlusDrawCurve, HasAPartOfItsPointsAndNeverRelativeOnes) {
  const auto draw = DecodeWhole(
      DecodeEmfPlusDrawCurve, kIntegers | kRelative | 5,
      Bytes().F32(0.5F).U32(1).U32(2).U32(4).Point(1, 2).Point(3, 4).Point(5, 6).Point(7, 8));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_EQ(draw->tension, 0.5F);
  EXPECT_EQ(draw->offset, 1U);
  EXPECT_EQ(draw->segments, 2U);
  EXPECT_EQ(draw->points, (Points{{1, 2}, {3, 4}, {5, 6}, {7, 8}}));
}

TEST(EmfPlusDrawBeziers, HasAPenAndPoints) {
  const auto draw =
      DecodeWhole(DecodeEmfPlusDrawBeziers, kIntegers | 5, Bytes().U32(2).Point(1, 2).Point(3, 4));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->pen, 5U);
  EXPECT_EQ(draw->points, (Points{{1, 2}, {3, 4}}));
}

TEST(EmfPlusPoints, MustAllBeThere) {
  const Bytes data = Bytes().U32(0xFFFFFFFF).Zeros(64);
  for (const std::uint32_t flags : {0U, kIntegers, kRelative}) {
    const StoredEmfPlusRecord record(flags, data.Data());
    EXPECT_FALSE(DecodeEmfPlusDrawLines(record.Record()));
    EXPECT_FALSE(DecodeEmfPlusDrawBeziers(record.Record()));
    EXPECT_FALSE(DecodeEmfPlusDrawRects(record.Record()));
  }
}

TEST(EmfPlusDrawImage, HasASourceAndADestination) {
  const Bytes data =
      Bytes().U32(0xFFFFFFFF).U32(2).Append(Box(1, 2, 3, 4).Data()).Append(Box(5, 6, 7, 8).Data());
  const auto draw = DecodeWhole(DecodeEmfPlusDrawImage, 5, data);
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->image, 5U);
  EXPECT_EQ(draw->attributes, 0xFFFFFFFF);
  EXPECT_EQ(draw->sourceUnit, EmfPlusUnit::kPixel);
  EXPECT_EQ(draw->source, (RectF{1, 2, 3, 4}));
  EXPECT_EQ(draw->destination, (RectF{5, 6, 7, 8}));
}

Bytes ImagePoints(std::uint32_t count) {
  return Bytes()
      .U32(6)
      .U32(2)
      .Append(Box(1, 2, 3, 4).Data())
      .U32(count)
      .Point(1, 2)
      .Point(3, 4)
      .Point(5, 6);
}

TEST(EmfPlusDrawImagePoints, HasASourceAndThreeCorners) {
  const auto draw =
      DecodeWhole(DecodeEmfPlusDrawImagePoints, kIntegers | kSpecial | 5, ImagePoints(3));
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->image, 5U);
  EXPECT_EQ(draw->attributes, 6U);
  EXPECT_TRUE(draw->hasEffect);
  EXPECT_EQ(draw->sourceUnit, EmfPlusUnit::kPixel);
  EXPECT_EQ(draw->source, (RectF{1, 2, 3, 4}));
  EXPECT_EQ(draw->corners, (std::array<PointF, 3>{{{1, 2}, {3, 4}, {5, 6}}}));
}

TEST(EmfPlusDrawImagePoints, HasNoOtherNumberOfCorners) {
  for (const std::uint32_t count : {0U, 2U}) {
    const StoredEmfPlusRecord record(kIntegers, ImagePoints(count).Data());
    EXPECT_FALSE(DecodeEmfPlusDrawImagePoints(record.Record())) << count;
  }
}

TEST(EmfPlusDrawString, HasTextItsFontBrushFormatAndPlace) {
  const Bytes data = Bytes().U32(kRed).U32(3).U32(2).Append(Box(1, 2, 0, 0).Data()).Utf16(u"Ab");
  const auto draw = DecodeWhole(DecodeEmfPlusDrawString, kColor | 5, data);
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->font, 5U);
  EXPECT_EQ(draw->brush, kRedBrush);
  EXPECT_EQ(draw->format, 3U);
  EXPECT_EQ(draw->layout, (RectF{1, 2, 0, 0}));
  EXPECT_EQ(draw->text, u"Ab");
}

TEST(EmfPlusDrawDriverString, HasGlyphsAndAPlaceForEach) {
  // An odd number of them, and nothing between them and the places.
  const Bytes data = Bytes().U32(7).U32(1).U32(0).U32(1).Utf16(u"A").F32(1).F32(2);
  const auto draw = DecodeWhole(DecodeEmfPlusDrawDriverString, 5, data);
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->font, 5U);
  EXPECT_EQ(draw->brush, BrushAt(7));
  EXPECT_EQ(draw->options, kEmfPlusCmapLookup);
  EXPECT_EQ(draw->values, u"A");
  EXPECT_EQ(draw->places, (Points{{1, 2}}));
  EXPECT_FALSE(draw->matrix);
}

Bytes Matrix() {
  return Bytes().F32(1).F32(2).F32(3).F32(4).F32(5).F32(6);
}

TEST(EmfPlusDrawDriverString, MayHaveAMatrix) {
  const Bytes data =
      Bytes().U32(7).U32(0).U32(1).U32(1).Utf16(u"A").F32(1).F32(2).Append(Matrix().Data());
  const auto draw = DecodeWhole(DecodeEmfPlusDrawDriverString, 5, data);
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->matrix, (XForm{1, 2, 3, 4, 5, 6}));
}

TEST(EmfPlusDrawDriverString, MayHaveOnePlaceForAll) {
  const Bytes data =
      Bytes().U32(7).U32(4).U32(1).U32(3).Utf16(u"Abc").F32(1).F32(2).Append(Matrix().Data());
  const auto draw = DecodeWhole(DecodeEmfPlusDrawDriverString, 5, data);
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->places, (Points{{1, 2}}));
  EXPECT_EQ(draw->matrix, (XForm{1, 2, 3, 4, 5, 6}));
}

TEST(EmfPlusDrawDriverString, MayHaveThemAllThoughOneWouldDo) {
  const Bytes data = Bytes().U32(7).U32(4).U32(0).U32(2).Utf16(u"Ab").F32(1).F32(2).F32(3).F32(4);
  const auto draw = DecodeEmfPlusDrawDriverString(StoredEmfPlusRecord(5, data.Data()).Record());
  ASSERT_TRUE(draw);
  EXPECT_EQ(draw->places, (Points{{1, 2}, {3, 4}}));
}

}  // namespace
}  // namespace kelvane::test
