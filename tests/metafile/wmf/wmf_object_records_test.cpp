#include "metafile/wmf/wmf_object_records.h"

#include <string_view>

#include <gtest/gtest.h>

#include "wmf_decoding.h"

namespace kelvane::test {
namespace {

/// Numbers of a font, 18 bytes.
Bytes FontNumbers() {
  return Bytes().I16(-12).I16(5).I16(900).I16(450).I16(700).Each({1, 0, 1, 204, 3, 2, 1, 34});
}

std::string_view NameIn(const LogFont16& font) {
  return {font.faceName.data(), font.faceName.size()};
}

TEST(WmfObjectRecord, HasAnIndex) {
  EXPECT_EQ(DecodeWmf(DecodeWmfObject, Bytes().U16(40000))->index, 40000);
}

TEST(WmfCreatePenIndirectRecord, HasAPenInWords) {
  const Bytes body = Bytes().U16(0x0106).I16(-7).I16(9).U32(0x332211);
  const LogPen pen = DecodeWmf(DecodeWmfCreatePenIndirect, body)->pen;
  EXPECT_EQ(pen.style, PS_INSIDEFRAME | PS_ENDCAP_SQUARE);
  EXPECT_EQ(pen.width, (PointL{-7, 9}));
  EXPECT_EQ(pen.color, ColorRef{0x332211});
}

TEST(WmfCreateBrushIndirectRecord, HasABrushInWords) {
  const Bytes body = Bytes().U16(2).U32(0x332211).U16(5);
  EXPECT_EQ(DecodeWmf(DecodeWmfCreateBrushIndirect, body)->brush,
            (LogBrush{BS_HATCHED, ColorRef{0x332211}, HS_DIAGCROSS}));
}

TEST(WmfCreateFontIndirectRecord, HasAFontInWords) {
  const Bytes body = FontNumbers().Each({'A', 'r', 'i', 'a', 'l'}).Zeros(27);
  const LogFont16 font = DecodeWmf(DecodeWmfCreateFontIndirect, body, 18)->font;
  EXPECT_EQ(font.height, -12);
  EXPECT_EQ(font.width, 5);
  EXPECT_EQ(font.escapement, 900);
  EXPECT_EQ(font.orientation, 450);
  EXPECT_EQ(font.weight, 700);
  EXPECT_EQ(font.italic, 1);
  EXPECT_EQ(font.underline, 0);
  EXPECT_EQ(font.strikeOut, 1);
  EXPECT_EQ(font.charSet, RUSSIAN_CHARSET);
  EXPECT_EQ(font.outPrecision, 3);
  EXPECT_EQ(font.clipPrecision, 2);
  EXPECT_EQ(font.quality, DRAFT_QUALITY);
  EXPECT_EQ(font.pitchAndFamily, VARIABLE_PITCH | FF_SWISS);
  EXPECT_EQ(NameIn(font), std::string("Arial") + std::string(27, '\0'));
}

TEST(WmfCreateFontIndirectRecord, MayEndBehindItsName) {
  const auto record = DecodeWmf(DecodeWmfCreateFontIndirect, FontNumbers().Each({'X', 'Y'}), 18);
  EXPECT_EQ(NameIn(record->font), "XY" + std::string(30, '\0'));
}

TEST(WmfCreateFontIndirectRecord, MayHaveANameWithoutAnEnd) {
  const std::vector<unsigned char> letters(40, 'x');
  const auto record = DecodeWmf(DecodeWmfCreateFontIndirect, FontNumbers().Append(letters), 18);
  EXPECT_EQ(NameIn(record->font), std::string(32, 'x'));
}

TEST(WmfPaletteRecord, HasEntriesRedFirst) {
  const Bytes body = Bytes().U16(0x300).U16(2).Each({1, 2, 3, 4, 5, 6, 7, 8});
  const auto record = DecodeWmf(DecodeWmfPalette, body);
  EXPECT_EQ(record->start, 0x300);
  EXPECT_EQ(Elements(record->entries), (std::vector<PaletteEntry>{{1, 2, 3, 4}, {5, 6, 7, 8}}));
}

TEST(WmfResizePaletteRecord, HasASize) {
  EXPECT_EQ(DecodeWmf(DecodeWmfResizePalette, Bytes().U16(256))->entries, 256);
}

}  // namespace
}  // namespace kelvane::test
