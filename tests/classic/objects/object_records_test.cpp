#include "classic/objects/object_records.h"

#include <gtest/gtest.h>

#include "classic/objects/creation_records.h"
#include "classic/objects/graphics_objects.h"
#include "support/playback.h"
#include "support/surface_fixture.h"

namespace kelvane {
namespace {

using test::Bytes;
using test::Metafile;
using test::ParsedMetafile;
using test::ReadRecord;

constexpr CGColor kFullRed = {0.99609375F, 0, 0, 1};
constexpr CGColor kBlack = {0, 0, 0, 1};
constexpr CGColor kWhite = {1, 1, 1, 1};
constexpr std::uint32_t kStock = 0x80000000;
constexpr std::uint32_t kHatchedBrushStyle = 2;

Bytes Brush(std::uint32_t index, std::uint32_t style, std::uint32_t color) {
  return Bytes().U32(index).U32(style).U32(color).U32(0);
}

Bytes Pen(std::uint32_t index, std::int32_t width, std::uint32_t color) {
  return Bytes().U32(index).U32(0).I32(width).I32(0).U32(color);
}

Bytes Font(std::uint32_t index, std::int32_t height, std::int32_t escapement) {
  return Bytes().U32(index).I32(height).I32(0).I32(escapement).Zeros(320 - 12);
}

class ObjectRecords : public test::SurfaceFixture {
 protected:
  void Select(std::uint32_t index) { Play<SelectObjectRecord>(Bytes().U32(index)); }
  void CreateBrush(std::uint32_t index, std::uint32_t style, std::uint32_t color) {
    Play<CreateBrushIndirectRecord>(Brush(index, style, color));
  }
  void CreatePen(std::uint32_t index, std::int32_t width, std::uint32_t color) {
    Play<CreatePenRecord>(Pen(index, width, color));
  }

  /// The line width that a pen of `width` has under MM_ANISOTROPIC.
  float LineWidth(std::int32_t width, std::int32_t windowExtent, std::int32_t viewportExtent) {
    context_.mapMode = kMapModeAnisotropic;
    context_.windowExt.cx = windowExtent;
    context_.viewportExt.cx = viewportExtent;
    CreatePen(1, width, 0);
    Select(1);
    return State().lineWidth;
  }
};

TEST_F(ObjectRecords, SelectingABrushSetsTheFillColour) {
  CreateBrush(1, 0, 0x000000FF);
  Select(1);
  EXPECT_EQ(State().fillColor, kFullRed);
  EXPECT_EQ(context_.fillColor.red, 0.99609375);
  EXPECT_EQ(context_.fillColor.green, 0);
  EXPECT_EQ(context_.hollowBrush, 0);
}

TEST_F(ObjectRecords, SelectingANullBrushIsHollowAndStillSetsTheFillColour) {
  CreateBrush(1, kNullBrushStyle, 0x000000FF);
  Select(1);
  EXPECT_EQ(context_.hollowBrush, 1);
  EXPECT_EQ(State().fillColor, kFullRed);
}

TEST_F(ObjectRecords, SelectingAHatchedBrushFillsSolid) {
  CreateBrush(1, kHatchedBrushStyle, 0x000000FF);
  context_.hollowBrush = 1;
  Select(1);
  EXPECT_EQ(context_.hollowBrush, 0);
}

TEST_F(ObjectRecords, SelectingAPatternBrushChangesNothingElse) {
  context_.hollowBrush = 1;
  Play<CreateDIBBrushRecord>(Bytes().U32(1).Zeros(20));
  Select(1);
  EXPECT_EQ(context_.GetCurrentObject(), context_.objects.at(1).get());
  EXPECT_EQ(State().fillColor, kBlack);
  EXPECT_EQ(context_.hollowBrush, 1);
}

TEST_F(ObjectRecords, SelectingAPenSetsTheStrokeColourAndWidth) {
  CreatePen(1, 3, 0x000000FF);
  Select(1);
  EXPECT_EQ(State().strokeColor, kFullRed);
  EXPECT_EQ(State().lineWidth, 3);
  EXPECT_EQ(context_.penWidth, 3U);
}

TEST_F(ObjectRecords, APenOfWidthZeroIsOneWide) {
  CreatePen(1, 0, 0);
  Select(1);
  EXPECT_EQ(State().lineWidth, 1);
  EXPECT_EQ(context_.penWidth, 1U);
}

TEST_F(ObjectRecords, APensWidthIsScaledToTheViewport) {
  EXPECT_EQ(LineWidth(10, 1000, 250), 2);
  EXPECT_EQ(LineWidth(10, 1000, 333), 3);
  EXPECT_EQ(LineWidth(10, 1000, 50), 1) << "scaled to nothing";
}

TEST_F(ObjectRecords, APensScaledWidthIsAsWideAsAnUnsignedNumber) {
  constexpr std::int32_t kWide = 0x60000000;
  EXPECT_EQ(LineWidth(kWide, 1, 2), 3221225472.0F);
  EXPECT_EQ(context_.penWidth, 3221225472U);
  EXPECT_EQ(LineWidth(kWide, 1, 3), 4294967296.0F);
  EXPECT_EQ(context_.penWidth, 4294967295U) << "saturated";
}

TEST_F(ObjectRecords, APensWidthIsNotScaledWithoutExtents) {
  EXPECT_EQ(LineWidth(10, 0, 250), 10);
  EXPECT_EQ(LineWidth(10, 1000, 0), 10);
}

TEST_F(ObjectRecords, APensWidthIsNotScaledInOtherMappingModes) {
  CreatePen(1, 10, 0);
  context_.windowExt.cx = 1000;
  context_.viewportExt.cx = 250;
  Select(1);
  EXPECT_EQ(State().lineWidth, 10);
}

TEST_F(ObjectRecords, AMirroredViewportKeepsTheNegativeWidthsBitPattern) {
  EXPECT_EQ(LineWidth(10, 1000, -250), 4294967296.0F);
  EXPECT_EQ(context_.penWidth, 4294967294U);
}

TEST_F(ObjectRecords, AnExtendedPenKeepsItsWidthAndColour) {
  Play<ExtCreatePenRecord>(Bytes().U32(1).Zeros(16).U32(0).U32(4).U32(1).U32(0x000000FF).Zeros(12));
  Select(1);
  EXPECT_EQ(State().lineWidth, 4);
  EXPECT_EQ(State().strokeColor, kFullRed);
}

TEST_F(ObjectRecords, APlainPenBecomesAnExtendedOneWithoutTheRest) {
  Play<CreatePenRecord>(Bytes().U32(1).U32(2).I32(5).I32(99).U32(0x00123456));
  const auto& pen = dynamic_cast<const ExtPenObject&>(*context_.objects.at(1)).pen;
  EXPECT_EQ(pen.style, 2U);
  EXPECT_EQ(pen.width, 5U);
  EXPECT_EQ(pen.color, 0x00123456U);
  EXPECT_EQ(pen.brushStyle, 0U);
  EXPECT_EQ(pen.hatch, 0U);
  EXPECT_EQ(pen.styleEntryCount, 0U);
  EXPECT_EQ(pen.styleEntry, 0U);
}

TEST_F(ObjectRecords, StockBrushesSetTheFillColour) {
  context_.hollowBrush = 1;
  Select(test::kStockWhiteBrush);
  EXPECT_EQ(State().fillColor, kWhite);
  EXPECT_EQ(context_.fillColor.green, 1.0);
  EXPECT_EQ(context_.hollowBrush, 0);
  context_.hollowBrush = 1;
  Select(test::kStockBlackBrush);
  EXPECT_EQ(State().fillColor, kBlack);
  EXPECT_EQ(context_.fillColor.green, 0.0);
  EXPECT_EQ(context_.hollowBrush, 0);
}

TEST_F(ObjectRecords, TheStockNullBrushOnlyIsHollow) {
  Select(test::kStockWhiteBrush);
  Select(test::kStockNullBrush);
  EXPECT_EQ(context_.hollowBrush, 1);
  EXPECT_EQ(State().fillColor, kWhite);
  EXPECT_EQ(context_.fillColor.red, 1.0);
}

TEST_F(ObjectRecords, StockPensSetTheStrokeColour) {
  Select(test::kStockWhitePen);
  EXPECT_EQ(State().strokeColor, kWhite);
  Select(test::kStockBlackPen);
  EXPECT_EQ(State().strokeColor, kBlack);
}

TEST_F(ObjectRecords, TheStockNullPenOnlySetsTheLineWidth) {
  CreatePen(1, 5, 0x000000FF);
  Select(1);
  Select(test::kStockNullPen);
  EXPECT_EQ(State().lineWidth, 0);
  EXPECT_EQ(State().strokeColor, kFullRed);
  EXPECT_EQ(context_.penWidth, 5U);
}

TEST_F(ObjectRecords, OtherStockObjectsChangeNothing) {
  CreateBrush(1, 0, 0x000000FF);
  Select(1);
  for (const std::uint32_t stock : {1U, 2U, 3U, 9U, 10U, 13U, 17U, 19U, 0xFFFFU}) {
    Select(kStock | stock);
    EXPECT_EQ(State().fillColor, kFullRed);
    EXPECT_EQ(State().strokeColor, kBlack);
    EXPECT_EQ(State().lineWidth, 1);
  }
}

TEST_F(ObjectRecords, AnUnknownIndexIsTakenForAStockObjects) {
  Select(0x00050000);
  EXPECT_EQ(State().fillColor, kWhite);
  Select(4);
  EXPECT_EQ(State().fillColor, kBlack);
}

TEST_F(ObjectRecords, AnIndexOfTheTableComesBeforeTheStockObjects) {
  CreateBrush(test::kStockWhiteBrush, 0, 0x000000FF);
  Select(test::kStockWhiteBrush);
  EXPECT_EQ(State().fillColor, kFullRed);
}

TEST_F(ObjectRecords, SelectingADeletedIndexLeavesEverythingAsItWas) {
  CreateBrush(1, 0, 0x000000FF);
  CreatePen(2, 4, 0x000000FF);
  for (const std::uint32_t index : {1U, 2U}) {
    Select(index);
    Play<DeleteObjectRecord>(Bytes().U32(index));
    Select(index);
  }
  EXPECT_EQ(context_.GetCurrentObject(), nullptr);
  EXPECT_EQ(State().fillColor, kFullRed);
  EXPECT_EQ(State().strokeColor, kFullRed);
  EXPECT_EQ(State().lineWidth, 4);
}

TEST_F(ObjectRecords, SelectingAFontCopiesItToTheContext) {
  Play<ExtCreateFontIndirectWRecord>(Font(1, -20, 0));
  EXPECT_EQ(context_.font.lfHeight, 0) << "not yet selected";
  Select(1);
  EXPECT_EQ(context_.font.lfHeight, -20);
  EXPECT_EQ(context_.font.lfFaceName.size(), 32U);
}

TEST_F(ObjectRecords, SelectingADeletedFontLeavesTheContextsFont) {
  Play<ExtCreateFontIndirectWRecord>(Font(1, -20, 0));
  Select(1);
  Play<DeleteObjectRecord>(Bytes().U32(1));
  Select(1);
  EXPECT_EQ(context_.font.lfHeight, -20);
  EXPECT_EQ(context_.font.lfFaceName.size(), 32U);
}

TEST_F(ObjectRecords, AFontsEscapementStaysWhenAnotherIsSelected) {
  Play<ExtCreateFontIndirectWRecord>(Font(1, -20, 0));
  Play<ExtCreateFontIndirectWRecord>(Font(2, 10, 900));
  Select(1);
  EXPECT_EQ(context_.font.lfHeight, -20);
  EXPECT_EQ(context_.textAngle, 90);
}

TEST_F(ObjectRecords, AFontsEscapementTurnsTextOnceItIsCreated) {
  Play<ExtCreateFontIndirectWRecord>(Font(1, 10, 900));
  Play<SelectObjectRecord>(Bytes().U32(2));
  EXPECT_EQ(context_.textAngle, 90);
  Play<ExtCreateFontIndirectWRecord>(Font(2, 10, -5));
  EXPECT_EQ(context_.textAngle, -0.5F);
}

TEST(CreateDIBBrushRecord, CountsItsBytesByTheBitsOffset) {
  const Bytes fields = Bytes().U32(1).U32(0).U32(32).U32(40).U32(3).U32(100).Zeros(8);
  EXPECT_EQ(ReadRecord<CreateDIBBrushRecord>(fields)->bytes.size(), 3U);
}

TEST(CreateDIBBrushRecord, WithoutABitsOffsetReadsNoBytes) {
  const Bytes fields = Bytes().U32(1).U32(0).U32(32).U32(40).U32(0).U32(100).Zeros(8);
  EXPECT_TRUE(ReadRecord<CreateDIBBrushRecord>(fields)->bytes.empty());
}

TEST(CreateDIBBrushRecord, KeepsTheBytesThatTheDataSupplies) {
  const Bytes fields = Bytes().U32(1).Zeros(12).U32(0xFFFFFFFF).U32(0).Zeros(8);
  EXPECT_EQ(ReadRecord<CreateDIBBrushRecord>(fields)->bytes.size(), 8U);
}

TEST(ExtCreateFontIndirectWRecord, OfAnyLengthEndsWhereItDeclares) {
  for (const std::size_t length : {92U, 320U, 348U}) {
    Metafile metafile;
    metafile.Record(test::EMR_EXTCREATEFONTINDIRECTW, Bytes().U32(1).I32(-20).Zeros(length - 4));
    metafile.Polyline({{1, 2}, {3, 4}});
    ParsedMetafile parsed(metafile.Build());
    EXPECT_EQ(parsed->records.size(), 2U) << length;
    EXPECT_EQ(dynamic_cast<ExtCreateFontIndirectWRecord&>(*parsed->records[0]).font.font.lfHeight,
              -20);
    EXPECT_EQ(test::Trace(metafile), "move 1 -2\nline 3 -4\nstroke\n");
  }
}

}  // namespace
}  // namespace kelvane
