#include "metafile/wmf/wmf_text_records.h"

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

TEST(WmfTextOutRecord, HasItsPlaceBehindTheText) {
  const Bytes body = Bytes().U16(4).Each({'a', 'b', 'c', 0xE9}).I16(-20).I16(10);
  const auto record = DecodeWmf(DecodeWmfTextOut, body);
  EXPECT_EQ(Text(record->text), "abc\xE9");
  EXPECT_EQ(record->reference, (PointL{10, -20}));
}

TEST(WmfTextOutRecord, FillsTextUpToAWord) {
  const auto record =
      DecodeWmf(DecodeWmfTextOut, Bytes().U16(3).Each({'a', 'b', 'c', 'x'}).I16(-20).I16(10));
  EXPECT_EQ(Text(record->text), "abc");
  EXPECT_EQ(record->reference, (PointL{10, -20}));
}

TEST(WmfExtTextOutRecord, HasNoRectangleUnlessItIsUsed) {
  const Bytes body = Bytes().I16(-20).I16(10).U16(2).U16(0x10).Each({'a', 'b'}).I16(5).I16(-6);
  const auto record = DecodeWmf(DecodeWmfExtTextOut, body, 10);
  EXPECT_EQ(record->reference, (PointL{10, -20}));
  EXPECT_EQ(record->options, ETO_GLYPH_INDEX);
  EXPECT_EQ(record->rectangle, RectangleL{});
  EXPECT_EQ(Text(record->text), "ab");
  EXPECT_EQ(Elements(record->advances.values), (std::vector<std::int16_t>{5, -6}));
}

TEST(WmfExtTextOutRecord, HasItsRectangleInPlainOrder) {
  for (const std::uint32_t option : {2U, 4U}) {
    const Bytes place = Bytes().I16(-20).I16(10).U16(3).U16(option).Point(-1, 2).Point(30, 40);
    const Bytes body = Bytes(place).Each({'a', 'b', 'c', 0}).I16(5).I16(6).I16(7);
    const auto record = DecodeWmf(DecodeWmfExtTextOut, body, 20);
    EXPECT_EQ(record->rectangle, (RectangleL{-1, 2, 30, 40}));
    EXPECT_EQ(Text(record->text), "abc");
    EXPECT_EQ(Elements(record->advances.values), (std::vector<std::int16_t>{5, 6, 7}));
  }
}

TEST(WmfExtTextOutRecord, HasAdvancesForAllOrNone) {
  const Bytes text = Bytes().I16(0).I16(0).U16(2).U16(0).Each({'a', 'b'});
  EXPECT_TRUE(DecodeWmf(DecodeWmfExtTextOut, text)->advances.IsEmpty());
  EXPECT_TRUE(DecodeWmf(DecodeWmfExtTextOut, Bytes(text).I16(5), 10)->advances.IsEmpty());
}

TEST(WmfExtTextOutRecord, MayHaveAdvancesInPairs) {
  const Bytes text = Bytes().I16(0).I16(0).U16(2).U16(ETO_PDY).Each({'a', 'b'});
  const auto pairs =
      DecodeWmf(DecodeWmfExtTextOut, Bytes(text).I16(5).I16(6).I16(7).I16(8), 10)->advances;
  EXPECT_EQ(pairs.values.size(), 4U);
  EXPECT_TRUE(pairs.arePairs);
}

}  // namespace
}  // namespace kelvane::test
