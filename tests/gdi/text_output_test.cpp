#include "gdi/text_output.h"

#include <string>

#include <gtest/gtest.h>

#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/text_on_a_device.h"

namespace kelvane {
namespace {

using Text = TextOnADevice;

void ExpectNear(PointD point, double x, double y) {
  EXPECT_NEAR(point.x, x, 1e-6);
  EXPECT_NEAR(point.y, y, 1e-6);
}

TEST_F(Text, IsSetInItsFaceAndSize) {
  Write({100, 200});
  EXPECT_EQ(device.Take(), "text \"A\" LiberationSans 1024 under 1 0 0 -1 100 200\n");
}

// Alignment. The baseline lies 927 below the top of the cell and 217 above its bottom, and a
// sixteenth below the edge of a row.

TEST_F(Text, StandsWithAnyPointOfItsLineAtItsReference) {
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_TOP), "100 1127.06\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_TOP), "-241.5 1127.06\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_TOP), "-583 1127.06\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_BASELINE), "100 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_BASELINE), "-241.5 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BASELINE), "-583 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_BOTTOM), "100 -16.94\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_BOTTOM), "-241.5 -16.94\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BOTTOM), "-583 -16.94\n");
}

TEST_F(Text, HasItsBaselineOnAUnitUnlessItsCellIsAskedFor) {
  LogFont font = Plain();
  font.height = -18;  // ascends by 16.29
  device.Select(2, font);
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_TOP), "100 216.06\n");
  font.height = 18;  // of which 14.59 lie above the baseline
  device.Select(2, font);
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_TOP), "100 214.59\n");
}

TEST_F(Text, HasItsBaselineOnAPixelWhereThatIsSmallerThanAUnit) {
  LogFont font = Plain();
  font.height = -18;  // ascends by 16.29, which is 65.17 pixels
  device.Select(2, font);
  SetMapMode(device, MM_ANISOTROPIC);
  SetViewportExtEx(device, {4, 4});
  EXPECT_EQ(OriginOf({0, 0}, TA_LEFT | TA_TOP), "0 65.06\n");
}

TEST_F(Text, TurnsWithItsAlignment) {
  device.Select(2, Turned(900));
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_TOP), "1027.06 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BOTTOM), "-116.94 883\n");
}

TEST_F(Text, StaysOnItsLineHoweverThatTurns) {
  device.Select(2, Turned(337));
  Write({}, u"AA");
  EXPECT_EQ(LinesWith(device.Take(), "").back(), "  at 683 0");
}

TEST_F(Text, LiesBelowItsTopWhereYGrowsUpwards) {
  SetMapMode(device, MM_ANISOTROPIC);
  SetViewportExtEx(device, {1, -1});
  EXPECT_EQ(OriginOf({100, -200}, TA_LEFT | TA_TOP), "100 1127.06\n");
}

TEST_F(Text, SwapsItsSidesInALayoutFromRightToLeft) {
  SetLayout(device, LAYOUT_RTL);  // of a page 1280 wide
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_BASELINE), "497 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BASELINE), "1180 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_BASELINE), "838.5 200\n");
}

// The current position.

TEST_F(Text, StartsAtTheCurrentPositionAndMovesIt) {
  SetTextAlign(device, Aligned(TA_BASELINE | TA_UPDATECP));
  MoveToEx(device, {100, 200});
  Write({7, 8});
  ExpectNear(Current(), 783, 200);
  Write({7, 8});
  EXPECT_EQ(device.TakeOrigins(), "100 200\n783 200\n");
}

TEST_F(Text, EndsAtTheCurrentPositionAndMovesItBack) {
  SetTextAlign(device, Aligned(TA_BASELINE | TA_RIGHT | TA_UPDATECP));
  MoveToEx(device, {100, 200});
  Write({7, 8});
  ExpectNear(Current(), -583, 200);
  EXPECT_EQ(device.TakeOrigins(), "-583 200\n");
}

TEST_F(Text, LeavesTheCurrentPositionInItsMiddle) {
  SetTextAlign(device, Aligned(TA_BASELINE | TA_CENTER | TA_UPDATECP));
  MoveToEx(device, {100, 200});
  Write({7, 8});
  ExpectNear(Current(), 100, 200);
  EXPECT_EQ(device.TakeOrigins(), "-241.5 200\n");
}

TEST_F(Text, MovesTheCurrentPositionInLogicalUnits) {
  SetMapMode(device, MM_ANISOTROPIC);
  SetViewportExtEx(device, {1, -1});
  SetTextAlign(device, Aligned(TA_BASELINE | TA_UPDATECP));
  MoveToEx(device, {100, 200});
  Write({});
  ExpectNear(Current(), 783, 200);
}

TEST_F(Text, MovesTheCurrentPositionAlongItsLine) {
  device.Select(2, Turned(900));
  SetTextAlign(device, Aligned(TA_BASELINE | TA_UPDATECP));
  MoveToEx(device, {100, 200});
  Write({});
  ExpectNear(Current(), 100, 200 - 683);
}

TEST_F(Text, MovesTheCurrentPositionOnInALayoutFromRightToLeft) {
  SetLayout(device, LAYOUT_RTL);
  SetTextAlign(device, Aligned(TA_BASELINE | TA_UPDATECP));
  MoveToEx(device, {100, 200});
  Write({});
  ExpectNear(Current(), 783, 200);
}

TEST_F(Text, LeavesTheCurrentPositionAloneUnlessAskedToMoveIt) {
  MoveToEx(device, {100, 200});
  Write({7, 8});
  ExpectNear(Current(), 100, 200);
}

// Spacing. A space is 284.5 wide, which is 284 pixels.

TEST_F(Text, SharesOutWhatJustifiesItAmongSpaces) {
  SetTextJustification(device, 30, 3);
  EXPECT_EQ(WidthOf(u"A A"), 683 + 284 + 10 + 683);
  SetTextJustification(device, 0, 0);
  EXPECT_EQ(WidthOf(u"A A"), 683 + 284 + 683);
  SetTextJustification(device, 30, -1);
  EXPECT_EQ(WidthOf(u"A A"), 683 + 284 + 683);
}

TEST_F(Text, IsMeasuredInPixelsOrInUnitsWhereNobodyKnowsTheDevice) {
  SetMapMode(device, MM_ANISOTROPIC);
  SetViewportExtEx(device, {4, 4});
  EXPECT_EQ(WidthOf(u"A A"), 683 + 284.5 + 683);
  device->isForAnyDevice = true;
  EXPECT_EQ(WidthOf(u"A A"), 683 + 284 + 683);
}

TEST_F(Text, HasSpaceBehindItsCharacters) {
  SetTextCharacterExtra(device, 10);
  EXPECT_EQ(WidthOf(u"AA"), 2 * 693);
}

TEST_F(Text, HasTheSpacingOfTheStateThatIsBroughtBack) {
  SetTextJustification(device, 30, 3);
  SetTextCharacterExtra(device, 5);
  SaveDC(device);
  SetTextJustification(device, 0, 0);
  SetTextCharacterExtra(device, 0);
  RestoreDC(device, -1);
  EXPECT_EQ(WidthOf(u"A A"), 688 + 284 + 15 + 688);
}

// What is missing.

TEST_F(Text, IsNotWrittenWithoutFontsButItsRectangleIs) {
  device->fonts = nullptr;
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE, u"A");
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 20 20\neo-fill\n");
  EXPECT_EQ(device.TakeOrigins(), "");
}

TEST_F(Text, TellsOfCharactersThatNoFaceHas) {
  Write({}, u"A");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  Write({}, u"\uE123");
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kMissingCharacters));
}

TEST_F(Text, TellsOfGlyphNumbersOfAnotherFace) {
  device.Select(2, FontOf(u"Arial", kTextHeight));
  WriteIn({}, ETO_GLYPH_INDEX, {36});
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  WriteIn({}, ETO_GLYPH_INDEX, {400});
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kForeignGlyphs));
}

TEST_F(Text, TellsOfGlyphNumbersBeyondItsFace) {
  WriteIn({}, ETO_GLYPH_INDEX, {680});  // the last one
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  device.Take();
  WriteIn({}, ETO_GLYPH_INDEX, {681, 0xFFFF});
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kMissingCharacters));
  EXPECT_EQ(device.TakeOrigins(), "");
}

TEST_F(Text, IsNotDrawnWhereItIsNowhere) {
  SetWorldTransform(device, {3e38F, 0, 0, 3e38F, 0, 0});
  SetBkMode(device, OPAQUE);
  Write({2000000000, 1});
  EXPECT_EQ(device.Take(), "");
  SetWorldTransform(device, {0, 0, 0, 0, 5, 5});
  Write({});
  EXPECT_EQ(device.TakeOrigins(), "");
}

TEST_F(Text, OfBytesIsReadByItsFont) {
  ExtTextOut(device, {}, std::string("A\xC4"));
  EXPECT_NE(device.Take().find("text \"A\u00C4\" LiberationSans"), std::string::npos);
}

}  // namespace
}  // namespace kelvane
