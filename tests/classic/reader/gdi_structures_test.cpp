#include "classic/reader/gdi_structures.h"

#include <gtest/gtest.h>

#include "classic/reader/reader.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

using test::Bytes;

/// Reads a structure from the bytes, with more behind them.
/// @return how many bytes it took.
template <class T>
std::int64_t ReadFrom(const Bytes& bytes, T& structure) {
  std::vector<unsigned char> block = bytes.Data();
  block.resize(block.size() + 512);
  Reader reader(block.data(), static_cast<std::int32_t>(block.size()));
  reader.read(structure);
  return reader.getPosition();
}

Bytes LogFont(std::int32_t height, std::u16string_view faceName) {
  Bytes bytes;
  bytes.I32(height).I32(2).I32(3).I32(4).I32(5);
  for (std::uint32_t value = 6; value <= 13; ++value)
    bytes.U8(value);
  bytes.Utf16(faceName);
  return bytes.Zeros(2 * (32 - faceName.size()));
}

TEST(GdiStructures, APenIsStyleWidthAndColour) {
  LogicalPen pen;
  EXPECT_EQ(ReadFrom(Bytes().U32(1).I32(-7).I32(9).U32(0x00010203), pen), 16);
  EXPECT_EQ(pen.style, 1U);
  EXPECT_EQ(pen.width.x, -7);
  EXPECT_EQ(pen.width.y, 9);
  EXPECT_EQ(pen.color, 0x00010203U);
}

TEST(GdiStructures, ABrushIsStyleColourAndHatch) {
  LogicalBrush brush;
  EXPECT_EQ(ReadFrom(Bytes().U32(2).U32(0x00FFEEDD).U32(4), brush), 12);
  EXPECT_EQ(brush.style, 2U);
  EXPECT_EQ(brush.color, 0x00FFEEDDU);
  EXPECT_EQ(brush.hatch, 4U);
}

TEST(GdiStructures, OnlyTheFirstStyleEntryOfAnExtendedPenIsRead) {
  ExtLogPen pen;
  const Bytes bytes = Bytes().U32(1).U32(2).U32(3).U32(4).U32(5).U32(3).U32(70).U32(71).U32(72);
  EXPECT_EQ(ReadFrom(bytes, pen), 28);
  EXPECT_EQ(pen.style, 1U);
  EXPECT_EQ(pen.width, 2U);
  EXPECT_EQ(pen.brushStyle, 3U);
  EXPECT_EQ(pen.color, 4U);
  EXPECT_EQ(pen.hatch, 5U);
  EXPECT_EQ(pen.styleEntryCount, 3U);
  EXPECT_EQ(pen.styleEntry, 70U);
}

TEST(GdiStructures, ATextBlockIsFortyBytes) {
  TextW text;
  const Bytes bytes =
      Bytes().PointL(1, -2).U32(3).U32(4).U32(5).Rectangle(6, 7, 8, 9).U32(10).U32(11);
  EXPECT_EQ(ReadFrom(bytes, text), 40);
  EXPECT_EQ(text.reference.y, -2);
  EXPECT_EQ(text.characterCount, 3U);
  EXPECT_EQ(text.stringOffset, 4U);
  EXPECT_EQ(text.options, 5U);
  EXPECT_EQ(text.rectangle.bottom, 9);
  EXPECT_EQ(text.spacingOffset, 10U);
}

TEST(GdiStructures, AFaceNameKeepsAllItsThirtyTwoUnits) {
  LogFontW font;
  EXPECT_EQ(ReadFrom(LogFont(12, u"Arial"), font), 92);
  ASSERT_EQ(font.lfFaceName.size(), 32U);
  EXPECT_EQ(font.lfFaceName.substr(0, 5), u"Arial");
  EXPECT_EQ(font.lfFaceName.substr(5), std::u16string(27, u'\0'));
}

TEST(GdiStructures, ANegativeFontHeightStaysNegative) {
  LogFontW font;
  ReadFrom(LogFont(-13, u"A"), font);
  EXPECT_EQ(font.lfHeight, -13);
}

TEST(GdiStructures, AFontsByteFieldsComeInFileOrder) {
  LogFontW font;
  ReadFrom(LogFont(1, u""), font);
  EXPECT_EQ(font.lfWidth, 2);
  EXPECT_EQ(font.lfEscapement, 3);
  EXPECT_EQ(font.lfOrientation, 4);
  EXPECT_EQ(font.lfWeight, 5);
  EXPECT_EQ(font.lfItalic, 6);
  EXPECT_EQ(font.lfUnderline, 7);
  EXPECT_EQ(font.lfStrikeOut, 8);
  EXPECT_EQ(font.lfCharSet, 9);
  EXPECT_EQ(font.lfOutPrecision, 10);
  EXPECT_EQ(font.lfClipPrecision, 11);
  EXPECT_EQ(font.lfQuality, 12);
  EXPECT_EQ(font.lfPitchAndFamily, 13);
}

TEST(GdiStructures, APanoseIsTenBytesInOrder) {
  Bytes bytes;
  for (std::uint32_t value = 1; value <= 10; ++value)
    bytes.U8(value);
  PANOSE panose;
  EXPECT_EQ(ReadFrom(bytes, panose), 10);
  EXPECT_EQ(panose.bFamilyType, 1);
  EXPECT_EQ(panose.bSerifStyle, 2);
  EXPECT_EQ(panose.bWeight, 3);
  EXPECT_EQ(panose.bProportion, 4);
  EXPECT_EQ(panose.bContrast, 5);
  EXPECT_EQ(panose.bStrokeVariation, 6);
  EXPECT_EQ(panose.bArmStyle, 7);
  EXPECT_EQ(panose.bLetterform, 8);
  EXPECT_EQ(panose.bMidline, 9);
  EXPECT_EQ(panose.bXHeight, 10);
}

TEST(GdiStructures, AnExtendedFontIsThreeHundredAndTwentyBytes) {
  Bytes bytes = LogFont(1, u"Face");
  bytes.Utf16(u"Full").Zeros(120).Utf16(u"Style").Zeros(54);
  bytes.U32(1).U32(2).U32(3).U32(4).U8(5).U8(6).U8(7).U8(8).U32(9).Zeros(10).U16(0xABCD);
  ExtLogFontW font;
  EXPECT_EQ(ReadFrom(bytes, font), 320);
  EXPECT_EQ(font.fullName[3], 'l');
  EXPECT_EQ(font.style[4], 'e');
  EXPECT_EQ(font.version, 1U);
  EXPECT_EQ(font.styleSize, 2U);
  EXPECT_EQ(font.match, 3U);
  EXPECT_EQ(font.reserved, 4U);
  EXPECT_EQ(font.vendorId, (std::array<std::uint8_t, 4>{5, 6, 7, 8}));
  EXPECT_EQ(font.culture, 9U);
  EXPECT_EQ(font.padding, 0xABCD);
}

}  // namespace
}  // namespace kelvane
