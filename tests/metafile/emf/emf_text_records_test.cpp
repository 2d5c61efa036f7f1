#include "metafile/emf/emf_text_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

using Advances = std::vector<std::int32_t>;

constexpr std::uint32_t kBehindFields = 76;  // of a record of one text, from its start
constexpr std::size_t kFieldSize = 68;       // the same without type and size

/// Bounds, graphics mode and scales.
Bytes Start() {
  return Bytes().Rectangle(1, 2, 3, 4).U32(1).F32(26.5F).F32(-26.5F);
}

void ExpectTheStart(const RectangleL& bounds, const TextScale& scale) {
  EXPECT_EQ(bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(scale.graphicsMode, GM_COMPATIBLE);
  EXPECT_EQ(scale.exScale, 26.5F);
  EXPECT_EQ(scale.eyScale, -26.5F);
}

/// A text at (5, 6) in the rectangle (7, 8, 9, 10).
Bytes TextFields(std::uint32_t chars, std::uint32_t offString, std::uint32_t options,
                 std::uint32_t offDx) {
  return Bytes()
      .PointL(5, 6)
      .U32(chars)
      .U32(offString)
      .U32(options)
      .Rectangle(7, 8, 9, 10)
      .U32(offDx);
}

Bytes OneText(std::uint32_t chars, std::uint32_t options, std::uint32_t offDx) {
  return Start().Append(TextFields(chars, kBehindFields, options, offDx).Data());
}

template <class Unit>
void ExpectTheFields(const TextItem<Unit>& text) {
  EXPECT_EQ(text.reference, (PointL{5, 6}));
  EXPECT_EQ(text.rectangle, (RectangleL{7, 8, 9, 10}));
}

TEST(ExtTextOutRecord, HasTextOfUtf16AndAdvances) {
  const auto record =
      Decode(DecodeExtTextOut<char16_t>, OneText(2, ETO_CLIPPED, 80).Utf16(u"ab").I32(-11).I32(12),
             kFieldSize + 4);
  ExpectTheStart(record->bounds, record->scale);
  ExpectTheFields(record->text);
  EXPECT_EQ(record->text.options, ETO_CLIPPED);
  EXPECT_EQ(Text(record->text.text), u"ab");
  EXPECT_EQ(Elements(record->text.advances.values), (Advances{-11, 12}));
  EXPECT_EQ(record->text.advances.Dx(1), 12);
  EXPECT_EQ(record->text.advances.Dy(1), 0);
}

TEST(ExtTextOutRecord, HasTextOfBytes) {
  const auto record =
      Decode(DecodeExtTextOut<char>, OneText(2, 0, 80).Each({'a', 0xE4, 0, 0}).I32(11).I32(12),
             kFieldSize + 2);
  ExpectTheStart(record->bounds, record->scale);
  ExpectTheFields(record->text);
  EXPECT_EQ(Text(record->text.text), "a\xE4");
  EXPECT_EQ(Elements(record->text.advances.values), (Advances{11, 12}));
}

TEST(ExtTextOutRecord, MayHaveNoAdvances) {
  const auto record = Decode(DecodeExtTextOut<char16_t>, OneText(1, 0, 0).Utf16(u"a"));
  EXPECT_TRUE(record->text.advances.IsEmpty());
}

TEST(ExtTextOutRecord, MayHaveNoCharactersWhereverTheyAreSaidToBe) {
  const auto record = Decode(DecodeExtTextOut<char16_t>,
                             Start().Append(TextFields(0, 99999, ETO_OPAQUE, 99999).Data()));
  EXPECT_TRUE(record->text.text.empty());
  EXPECT_TRUE(record->text.advances.IsEmpty());
}

TEST(ExtTextOutRecord, HasPairsOfAdvancesWithPdy) {
  const auto record =
      Decode(DecodeExtTextOut<char16_t>,
             OneText(2, ETO_PDY, 80).Utf16(u"ab").I32(1).I32(2).I32(3).I32(-4), kFieldSize + 4);
  EXPECT_TRUE(record->text.advances.arePairs);
  EXPECT_EQ(record->text.advances.Dx(1), 3);
  EXPECT_EQ(record->text.advances.Dy(1), -4);
}

TEST(ExtTextOutRecord, MayHaveRoomForNoPairsInSpiteOfPdy) {
  const auto record = Decode(DecodeExtTextOut<char16_t>,
                             OneText(2, ETO_PDY, 80).Utf16(u"ab").I32(1).I32(3), kFieldSize + 4);
  EXPECT_FALSE(record->text.advances.arePairs);
  EXPECT_EQ(Elements(record->text.advances.values), (Advances{1, 3}));
}

TEST(ExtTextOutRecord, HasNoAdvancesWhenTheyAreNotAllThere) {
  const auto record =
      Decode(DecodeExtTextOut<char16_t>, OneText(2, 0, 80).Utf16(u"ab").I32(1), kFieldSize + 4);
  EXPECT_TRUE(record->text.advances.IsEmpty());
}

TEST(PolyTextOutRecord, HasTextsOfUtf16) {
  const auto record =
      Decode(DecodePolyTextOut<char16_t>, Start()
                                              .U32(2)
                                              .Append(TextFields(1, 120, 0, 124).Data())
                                              .Append(TextFields(2, 128, 0, 0).Data())
                                              .Utf16(u"a")
                                              .Zeros(2)
                                              .I32(11)
                                              .Utf16(u"bc"));
  ExpectTheStart(record->bounds, record->scale);
  ASSERT_EQ(record->texts.size(), 2U);
  ExpectTheFields(record->Text(0));
  EXPECT_EQ(Text(record->Text(0).text), u"a");
  EXPECT_EQ(Elements(record->Text(0).advances.values), (Advances{11}));
  EXPECT_EQ(Text(record->Text(1).text), u"bc");
}

TEST(PolyTextOutRecord, HasTextsOfBytes) {
  const auto record =
      Decode(DecodePolyTextOut<char>,
             Start().U32(1).Append(TextFields(3, 80, 0, 0).Data()).Each({'a', 'b', 'c'}));
  EXPECT_EQ(Text(record->Text(0).text), "abc");
}

Bytes SmallText(std::uint32_t chars, std::uint32_t options) {
  return Bytes().PointL(5, 6).U32(chars).U32(options).U32(2).F32(1).F32(-1);
}

TEST(SmallTextOutRecord, HasBoundsAndTextOfUtf16) {
  const auto record =
      Decode(DecodeSmallTextOut, SmallText(2, 0).Rectangle(1, 2, 3, 4).Utf16(u"ab"));
  EXPECT_EQ(record->reference, (PointL{5, 6}));
  EXPECT_EQ(record->scale.graphicsMode, GM_ADVANCED);
  EXPECT_EQ(record->scale.eyScale, -1);
  EXPECT_EQ(record->bounds, (RectangleL{1, 2, 3, 4}));
  EXPECT_EQ(Text(record->text), u"ab");
  EXPECT_TRUE(record->smallText.empty());
}

TEST(SmallTextOutRecord, MayHaveLowBytesAndNoBounds) {
  const auto record =
      Decode(DecodeSmallTextOut, SmallText(2, ETO_SMALL_CHARS | ETO_NO_RECT).Each({'a', 0xE4}));
  EXPECT_EQ(record->options, ETO_SMALL_CHARS | ETO_NO_RECT);
  EXPECT_EQ(record->bounds, RectangleL{});
  EXPECT_EQ(Elements(record->smallText), (std::vector<unsigned char>{'a', 0xE4}));
  EXPECT_TRUE(record->text.empty());
}

}  // namespace
}  // namespace kelvane::test
