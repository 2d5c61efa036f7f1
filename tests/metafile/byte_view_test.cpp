#include "metafile/byte_view.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "metafile/gdi_types.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;

TEST(ByteView, ReadsLittleEndianNumbersInARow) {
  const Bytes bytes = Bytes().U8(0x12).U16(0x3456).U32(0x789ABCDE).I16(-2).I32(-3).F32(1.5F);
  ByteView view(bytes.Data());
  EXPECT_EQ(view.Read<std::uint8_t>(), 0x12);
  EXPECT_EQ(view.Read<std::uint16_t>(), 0x3456);
  EXPECT_EQ(view.Read<std::uint32_t>(), 0x789ABCDEU);
  EXPECT_EQ(view.Read<std::int16_t>(), -2);
  EXPECT_EQ(view.Read<std::int32_t>(), -3);
  EXPECT_EQ(view.Read<float>(), 1.5F);
  EXPECT_EQ(view.Remaining(), 0U);
  EXPECT_FALSE(view.IsShort());
}

TEST(ByteView, ReadsStructuresFieldByField) {
  const Bytes bytes = Bytes().Rectangle(1, -2, 3, 4).Point(-5, 6);
  ByteView view(bytes.Data());
  EXPECT_EQ(view.Read<RectangleL>(), (RectangleL{1, -2, 3, 4}));
  EXPECT_EQ(view.Read<Point16>(), (Point16{-5, 6}));
  EXPECT_FALSE(view.IsShort());
}

TEST(ByteView, GivesZerosForWhatIsNotWholly) {
  const Bytes bytes = Bytes().Each({1, 2, 3});
  ByteView view(bytes.Data());
  EXPECT_EQ(view.Read<std::uint32_t>(), 0U);
  EXPECT_TRUE(view.IsShort());
}

TEST(ByteView, StaysShortEvenForWhatWouldStillFit) {
  const Bytes bytes = Bytes().Each({1, 2, 3});
  ByteView view(bytes.Data());
  view.Read<std::uint32_t>();
  EXPECT_EQ(view.Read<std::uint8_t>(), 0);
  EXPECT_EQ(view.Remaining(), 0U);
  EXPECT_TRUE(view.IsShort());
}

TEST(ByteView, IsNotShortUntilSomethingIsMissed) {
  ByteView view;
  EXPECT_FALSE(view.IsShort());
  EXPECT_TRUE(view.Array<std::uint32_t>(0).empty());
  EXPECT_FALSE(view.IsShort());
  EXPECT_EQ(view.Read<std::uint8_t>(), 0);
  EXPECT_TRUE(view.IsShort());
}

TEST(ByteView, TakesAnArrayAndReadsOnBehindIt) {
  const Bytes bytes = Bytes().Point(1, 2).Point(3, 4).U32(5);
  ByteView view(bytes.Data());
  const auto points = view.Array<Point16>(2);
  ASSERT_EQ(points.size(), 2U);
  EXPECT_EQ(points[1], (Point16{3, 4}));
  EXPECT_EQ(view.Read<std::uint32_t>(), 5U);
  EXPECT_FALSE(view.IsShort());
}

TEST(ByteView, KeepsTheWholeElementsOfAnArrayThatEndsEarly) {
  const Bytes bytes = Bytes().Point(1, 2).Point(3, 4).U16(5);
  ByteView view(bytes.Data());
  EXPECT_EQ(view.Array<Point16>(0xFFFFFFFF).size(), 2U);
  EXPECT_TRUE(view.IsShort());
}

TEST(ByteView, MayDoWithFewerElements) {
  const Bytes bytes = Bytes().Point(1, 2).Point(3, 4).U16(5);
  ByteView view(bytes.Data());
  EXPECT_EQ(view.ArrayUpTo<Point16>(3).size(), 2U);
  EXPECT_FALSE(view.IsShort());
  EXPECT_EQ(view.Read<std::uint16_t>(), 5);
}

TEST(ByteView, SplitsOffAViewThatEndsWhereItIsTold) {
  const Bytes bytes = Bytes().U32(1).U32(2).U32(3);
  ByteView view(bytes.Data());
  view.Skip(4);
  ByteView part = view.Split(4);
  EXPECT_EQ(part.Read<std::uint32_t>(), 2U);
  part.Read<std::uint32_t>();
  EXPECT_TRUE(part.IsShort());
  EXPECT_EQ(view.Read<std::uint32_t>(), 3U);
  EXPECT_FALSE(view.IsShort());
}

TEST(ByteView, SplitsOffWhatIsThere) {
  const Bytes bytes = Bytes().U32(1).U32(2);
  ByteView view(bytes.Data());
  view.Skip(4);
  EXPECT_EQ(view.Split(5).Bytes().size(), 4U);
  EXPECT_TRUE(view.IsShort());
}

TEST(ByteView, FindsBytesByTheirPlaceWhereverReadingStands) {
  const Bytes bytes = Bytes().U32(1).U32(2).U32(3);
  ByteView view(bytes.Data());
  view.Skip(8);
  EXPECT_EQ(view.Slice(4, 4).Read<std::uint32_t>(), 2U);
  EXPECT_EQ(view.ArrayAt<std::uint32_t>(0, 3)[0], 1U);
  EXPECT_EQ(view.Read<std::uint32_t>(), 3U);
  EXPECT_FALSE(view.IsShort());
}

struct BadPlace {
  std::size_t offset;
  std::size_t length;
  std::size_t there;  // of the length
};
constexpr std::size_t kHuge = 0xFFFFFFFF;
constexpr BadPlace kBadPlaces[] = {{8, 5, 4},         {12, 1, 0},     {13, 1, 0},
                                   {kHuge, kHuge, 0}, {0, kHuge, 12}, {SIZE_MAX, SIZE_MAX, 0}};

TEST(ByteView, IsShortOfASliceThatReachesPastTheEnd) {
  const Bytes bytes = Bytes().Zeros(12);
  for (const BadPlace& place : kBadPlaces) {
    ByteView view(bytes.Data());
    EXPECT_EQ(view.Slice(place.offset, place.length).Bytes().size(), place.there);
    EXPECT_TRUE(view.IsShort()) << place.offset << ", " << place.length;
  }
}

TEST(ByteView, IsShortOfAnArrayThatReachesPastTheEnd) {
  const Bytes bytes = Bytes().Zeros(12);
  for (const BadPlace& place : kBadPlaces) {
    ByteView view(bytes.Data());
    EXPECT_EQ(view.ArrayAt<std::uint16_t>(place.offset, place.length).size(), place.there / 2);
    EXPECT_TRUE(view.IsShort()) << place.offset << ", " << place.length;
  }
}

TEST(ByteView, AsksNothingOfThePlaceOfNothing) {
  ByteView view;
  EXPECT_TRUE(view.Slice(1000, 0).Bytes().empty());
  EXPECT_TRUE(view.ArrayAt<std::uint32_t>(1000, 0).empty());
  EXPECT_FALSE(view.IsShort());
}

TEST(ArrayView, GivesTheSameByIndexAndInOrder) {
  const Bytes bytes = Bytes().Utf16(u"abc");
  const ArrayView<char16_t> units(bytes.Data().data(), 3);
  EXPECT_EQ(std::u16string(units.begin(), units.end()), u"abc");
  EXPECT_EQ(units[2], u'c');
}

TEST(ArrayView, MayLieAtAnyAddress) {
  const Bytes bytes = Bytes().U8(0).PointL(1, 2).PointL(-3, 4);
  const ArrayView<PointL> points(bytes.Data().data() + 1, 2);
  EXPECT_EQ(std::vector<PointL>(points.begin(), points.end()),
            (std::vector<PointL>{{1, 2}, {-3, 4}}));
}

TEST(ArrayView, HasParts) {
  const Bytes bytes = Bytes().Utf16(u"abcd");
  const ArrayView<char16_t> units(bytes.Data().data(), 4);
  const auto part = units.Part(1, 2);
  EXPECT_EQ(std::u16string(part.begin(), part.end()), u"bc");
  EXPECT_TRUE(units.Part(4, 0).empty());
}

}  // namespace
}  // namespace kelvane
