#include "metafile/emf/emf_font_records.h"

#include <gtest/gtest.h>

#include "decoded_record.h"

namespace kelvane::test {
namespace {

constexpr std::size_t kFontSize = 96;  // the index and a LogFont: what there must be

/// `units` of text and NULs.
Bytes Name(std::u16string_view text, std::size_t units) {
  return Bytes().Utf16(text).Zeros(2 * (units - text.size()));
}

Bytes FontBytes() {
  return Bytes()
      .U32(1)
      .I32(-12)
      .I32(3)
      .I32(900)
      .I32(450)
      .I32(700)
      .Each({1, 2, 3, 238, 4, 0x20, 5, 0x12})
      .Append(Name(u"Arial", 32).Data());
}

Bytes NamesBytes() {
  return FontBytes().Append(Name(u"Arial Bold", 64).Data()).Append(Name(u"Bold", 32).Data());
}

TEST(ExtCreateFontIndirectWRecord, MayHaveTheFontAlone) {
  const auto record = Decode(DecodeExtCreateFontIndirectW, FontBytes());
  EXPECT_EQ(record->ihFont, 1U);
  const LogFont& font = record->font;
  EXPECT_EQ(font.height, -12);
  EXPECT_EQ(font.width, 3);
  EXPECT_EQ(font.escapement, 900);
  EXPECT_EQ(font.orientation, 450);
  EXPECT_EQ(font.weight, 700);
  EXPECT_EQ(font.italic, 1);
  EXPECT_EQ(font.underline, 2);
  EXPECT_EQ(font.strikeOut, 3);
  EXPECT_EQ(font.charSet, EASTEUROPE_CHARSET);
  EXPECT_EQ(font.outPrecision, OUT_TT_PRECIS);
  EXPECT_EQ(font.clipPrecision, CLIP_TT_ALWAYS);
  EXPECT_EQ(font.quality, CLEARTYPE_QUALITY);
  EXPECT_EQ(font.pitchAndFamily, FF_ROMAN | VARIABLE_PITCH);
  EXPECT_EQ(std::u16string_view(font.faceName.data()), u"Arial");
  EXPECT_TRUE(record->fullName.empty());
}

TEST(ExtCreateFontIndirectWRecord, MayHaveAPanose) {
  const auto record =
      Decode(DecodeExtCreateFontIndirectW,
             NamesBytes().Zeros(24).Each({1, 2, 3, 4, 5, 6, 7, 8, 9, 10}).Zeros(2), kFontSize);
  EXPECT_TRUE(Text(record->fullName).starts_with(u"Arial Bold"));
  EXPECT_TRUE(Text(record->style).starts_with(u"Bold"));
  EXPECT_EQ(record->panose, (Panose{1, 2, 3, 4, 5, 6, 7, 8, 9, 10}));
  EXPECT_TRUE(record->script.empty());
}

TEST(ExtCreateFontIndirectWRecord, MayHaveADesignVector) {
  const auto record =
      Decode(DecodeExtCreateFontIndirectW,
             NamesBytes().Append(Name(u"Western", 32).Data()).U32(0x08007664).U32(2).I32(-5).I32(6),
             kFontSize);
  EXPECT_TRUE(Text(record->fullName).starts_with(u"Arial Bold"));
  EXPECT_TRUE(Text(record->script).starts_with(u"Western"));
  EXPECT_EQ(Elements(record->designAxes), (std::vector<std::int32_t>{-5, 6}));
  EXPECT_EQ(record->panose, Panose{});
}

TEST(ExtCreateFontIndirectWRecord, HasAtMostSixteenAxes) {
  const auto record = Decode(DecodeExtCreateFontIndirectW,
                             NamesBytes().Zeros(64).U32(0).U32(0xFFFFFFFF).Zeros(80), kFontSize);
  EXPECT_EQ(record->designAxes.size(), 16U);
}

}  // namespace
}  // namespace kelvane::test
