#include "metafile/emfplus/emfplus_types.h"

#include <gtest/gtest.h>

#include "support/bytes.h"

namespace kelvane::test {
namespace {

using Points = std::vector<PointF>;

TEST(EmfPlusPoints, AreFloatsOrIntegers) {
  const Bytes floats = Bytes().F32(1.5F).F32(-2).F32(3).F32(4);
  ByteView view(floats.Data());
  EXPECT_EQ(ReadEmfPlusPoints(view, 2, EmfPlusNumbers::kFloats), (Points{{1.5F, -2}, {3, 4}}));

  const Bytes integers = Bytes().Point(1, -2).Point(-32768, 32767);
  view = ByteView(integers.Data());
  EXPECT_EQ(ReadEmfPlusPoints(view, 2, EmfPlusNumbers::kIntegers),
            (Points{{1, -2}, {-32768, 32767}}));
}

TEST(EmfPlusPoints, CountFromTheOneBeforeWhenTheyAreRelative) {
  const Bytes bytes = Bytes().Each({10, 20, 0x7F, 1});  // -1, 1
  ByteView view(bytes.Data());
  EXPECT_EQ(ReadEmfPlusPoints(view, 2, EmfPlusNumbers::kRelative), (Points{{10, 20}, {9, 21}}));
}

TEST(EmfPlusPoints, TakeOneByteOrTwoForEachRelativeNumber) {
  const struct {
    Bytes bytes;
    float number;
  } rows[] = {
      {Bytes().Each({0x3F}), 63},           {Bytes().Each({0x40}), -64},
      {Bytes().Each({0x80, 0x40}), 64},     {Bytes().Each({0xBF, 0xFF}), 16383},
      {Bytes().Each({0xC0, 0x00}), -16384}, {Bytes().Each({0xFF, 0xFF}), -1},
  };
  for (const auto& row : rows) {
    const Bytes bytes = Bytes().Append(row.bytes.Data()).U8(5);
    ByteView view(bytes.Data());
    EXPECT_EQ(ReadEmfPlusPoints(view, 1, EmfPlusNumbers::kRelative), (Points{{row.number, 5}}));
    EXPECT_EQ(view.Remaining(), 0U);
  }
}

TEST(EmfPlusPoints, AreThoseThatAreThereWhateverTheCountSays) {
  const Bytes bytes = Bytes().Zeros(17);
  const struct {
    EmfPlusNumbers numbers;
    std::size_t points;
  } rows[] = {
      {EmfPlusNumbers::kFloats, 2}, {EmfPlusNumbers::kIntegers, 4}, {EmfPlusNumbers::kRelative, 8}};
  for (const auto& row : rows) {
    ByteView view(bytes.Data());
    EXPECT_EQ(ReadEmfPlusPoints(view, 0xFFFFFFFF, row.numbers).size(), row.points);
    EXPECT_TRUE(view.IsShort());
  }
}

TEST(EmfPlusRectangles, AreFloatsOrIntegers) {
  const Bytes floats = Bytes().F32(1.5F).F32(-2).F32(3).F32(-4);
  ByteView view(floats.Data());
  EXPECT_EQ(ReadEmfPlusRectangle(view, EmfPlusNumbers::kFloats), (RectF{1.5F, -2, 3, -4}));

  const Bytes integers = Bytes().Point(1, -2).Point(3, 4).Point(5, 6).Point(7, 8);
  view = ByteView(integers.Data());
  EXPECT_EQ(ReadEmfPlusRectangles(view, 2, EmfPlusNumbers::kIntegers),
            (std::vector<RectF>{{1, -2, 3, 4}, {5, 6, 7, 8}}));
}

TEST(EmfPlusRectangles, AreThoseThatAreThereWhateverTheCountSays) {
  const Bytes bytes = Bytes().Zeros(47);
  ByteView view(bytes.Data());
  EXPECT_EQ(ReadEmfPlusRectangles(view, 0xFFFFFFFF, EmfPlusNumbers::kFloats).size(), 2U);
  EXPECT_TRUE(view.IsShort());
}

}  // namespace
}  // namespace kelvane::test
