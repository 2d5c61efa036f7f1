#include "gdi/text_output.h"

#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/path_brackets.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/written_device.h"

namespace kelvane {
namespace {

// Liberation Sans has 2048 units an em, so that this height halves its numbers. The cell reaches
// from 927 above the baseline to 217 below it, A is 683 wide, an l 69 to 159 of 228 and 742 high.
constexpr std::int32_t kHeight = -1024;

constexpr ColorRef kRed = {0x0000FF};
constexpr ColorRef kGreen = {0x00FF00};

LogFont Plain() {
  return FontOf(u"Liberation Sans", kHeight);
}

LogFont Turned(std::int32_t escapement) {
  LogFont font = Plain();
  font.escapement = escapement;
  return font;
}

TextAlign Aligned(int bits) {
  return static_cast<TextAlign>(bits);
}

ExtTextOutOptions Options(int bits) {
  return static_cast<ExtTextOutOptions>(bits);
}

/// Text in Liberation Sans on a transparent background, at its baseline.
class Text : public testing::Test {
 protected:
  Text() {
    device.Select(1, Plain());
    SetBkMode(device, TRANSPARENT);
    SetTextAlign(device, TA_BASELINE);
  }

  void Write(PointL at, const std::u16string& text = u"A") {
    TextPlacing placing;
    placing.reference = at;
    ExtTextOut(device, placing, text);
  }

  void WriteIn(const RectangleL& rectangle, int options, const std::u16string& text) {
    TextPlacing placing;
    placing.rectangle = rectangle;
    placing.options = Options(options);
    ExtTextOut(device, placing, text);
  }

  std::string OriginOf(PointL at, int align) {
    SetTextAlign(device, Aligned(align));
    Write(at);
    return device.TakeOrigins();
  }

  [[nodiscard]] PointD Current() { return device->state.currentPosition; }

  /// @return how far a line moves the current position.
  double WidthOf(const std::u16string& text) {
    SetTextAlign(device, Aligned(TA_BASELINE | TA_UPDATECP));
    MoveToEx(device, {0, 0});
    Write({}, text);
    return Current().x;
  }

  WrittenDevice device;
};

void ExpectNear(PointD point, double x, double y) {
  EXPECT_NEAR(point.x, x, 1e-6);
  EXPECT_NEAR(point.y, y, 1e-6);
}

TEST_F(Text, IsSetInItsFaceAndSize) {
  Write({100, 200});
  EXPECT_EQ(device.Take(), "text \"A\" LiberationSans 1024 under 1 0 0 -1 100 200\n");
}

// Alignment. The baseline lies 927 below the top of the cell and 217 above its bottom.

TEST_F(Text, StandsWithAnyPointOfItsLineAtItsReference) {
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_TOP), "100 1127\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_TOP), "-241.5 1127\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_TOP), "-583 1127\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_BASELINE), "100 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_BASELINE), "-241.5 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BASELINE), "-583 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_BOTTOM), "100 -17\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_CENTER | TA_BOTTOM), "-241.5 -17\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BOTTOM), "-583 -17\n");
}

TEST_F(Text, TurnsWithItsAlignment) {
  device.Select(2, Turned(900));
  EXPECT_EQ(OriginOf({100, 200}, TA_LEFT | TA_TOP), "1027 200\n");
  EXPECT_EQ(OriginOf({100, 200}, TA_RIGHT | TA_BOTTOM), "-117 883\n");
}

TEST_F(Text, StaysOnItsLineHoweverThatTurns) {
  device.Select(2, Turned(337));
  Write({}, u"AA");
  EXPECT_EQ(LinesWith(device.Take(), "").back(), "  at 683 0");
}

TEST_F(Text, LiesBelowItsTopWhereYGrowsUpwards) {
  SetMapMode(device, MM_ANISOTROPIC);
  SetViewportExtEx(device, {1, -1});
  EXPECT_EQ(OriginOf({100, -200}, TA_LEFT | TA_TOP), "100 1127\n");
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

// Background.

TEST_F(Text, LiesOnItsCellInOpaqueMode) {
  SetBkMode(device, OPAQUE);
  SetBkColor(device, kRed);
  Write({100, 200});
  const std::string trace = device.Take();
  EXPECT_EQ(TracedDevice::MarksOf(trace),
            "move 100 417\nline 783 417\nline 783 -727\nline 100 -727\nclose\nfill\n");
  EXPECT_EQ(LinesWith(trace, "fill-color"),
            (std::vector<std::string>{"fill-color 1 0 0", "fill-color 0 0 0"}));
  EXPECT_LT(trace.find("fill\n"), trace.find("text"));
}

TEST_F(Text, TurnsWithItsCell) {
  device.Select(2, Turned(900));
  SetBkMode(device, OPAQUE);
  Write({100, 200});
  EXPECT_EQ(device.TakeMarks(),
            "move 317 200\nline 317 -483\nline -827 -483\nline -827 200\nclose\nfill\n");
}

TEST_F(Text, HasNoCellInTransparentMode) {
  Write({100, 200});
  EXPECT_EQ(device.TakeMarks(), "");
}

// The rectangle of a call.

TEST_F(Text, LiesOnTheOpaqueRectangleWhateverTheMode) {
  SetBkColor(device, kRed);
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE, u"A");
  const std::string trace = device.Take();
  EXPECT_EQ(TracedDevice::MarksOf(trace), "rect 10 20 20 20\neo-fill\n");
  EXPECT_EQ(LinesWith(trace, "fill-color").front(), "fill-color 1 0 0");
  EXPECT_LT(trace.find("eo-fill"), trace.find("text"));
}

TEST_F(Text, LeavesItsOpaqueRectangleWithoutCharacters) {
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE, u"");
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 20 20\neo-fill\n");
}

TEST_F(Text, TakesTheCornersOfItsRectangleInAnyOrder) {
  WriteIn({30, 40, 10, 20}, ETO_OPAQUE, u"");
  EXPECT_EQ(device.TakeMarks(), "rect 30 40 -20 -20\neo-fill\n");
  WriteIn({10, 40, 30, 20}, ETO_OPAQUE | ETO_CLIPPED, u"A");
  EXPECT_EQ(device.TakeOrigins(), "0 0\n");
}

TEST_F(Text, HasNoOpaqueRectangleWithoutAnArea) {
  for (const RectangleL& empty :
       {RectangleL{10, 20, 10, 40}, RectangleL{10, 20, 30, 20}, RectangleL{0, 0, -1, -1}}) {
    WriteIn(empty, ETO_OPAQUE, u"");
    EXPECT_EQ(device.TakeMarks(), "") << empty.left << ' ' << empty.bottom;
  }
}

TEST_F(Text, HasARectangleThatIsNotAskedFor) {
  WriteIn({10, 20, 30, 40}, 0, u"");
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE | ETO_NO_RECT, u"");
  EXPECT_EQ(device.Take(), "");
}

TEST_F(Text, IsCutToItsRectangleAndNothingAfterIt) {
  WriteIn({10, 20, 30, 40}, ETO_CLIPPED, u"A");
  const std::string trace = device.Take();
  EXPECT_NE(trace.find("rect 10 20 20 20\neo-clip\n"), std::string::npos) << trace;
  EXPECT_LT(trace.find("clip"), trace.find("text"));
  Write({100, 200});
  EXPECT_EQ(device.Take(), "restore\ntext \"A\" LiberationSans 1024 under 1 0 0 -1 100 200\n");
}

TEST_F(Text, IsCutToTheClipAsWell) {
  IntersectClipRect(device, {0, 0, 20, 30});
  WriteIn({10, 20, 30, 40}, ETO_CLIPPED, u"A");
  EXPECT_NE(device.Take().find("rect 10 20 10 10\neo-clip\n"), std::string::npos);
}

TEST_F(Text, IsHiddenByARectangleWithoutAnArea) {
  for (const RectangleL& empty :
       {RectangleL{10, 20, 10, 40}, RectangleL{10, 20, 30, 20}, RectangleL{0, 0, -1, -1}}) {
    WriteIn(empty, ETO_CLIPPED, u"A");
    EXPECT_EQ(device.TakeOrigins(), "") << empty.left << ' ' << empty.bottom;
  }
  Write({100, 200});
  EXPECT_EQ(device.TakeOrigins(), "100 200\n");
}

// Lines along it. The underline is 75 high from 33.5 below the baseline on, the other 51 from 265
// above it down.

TEST_F(Text, IsUnderlinedWhereItsFaceSays) {
  LogFont font = Plain();
  font.underline = 1;
  device.Select(2, font);
  Write({});
  EXPECT_EQ(device.TakeMarks(),
            "move 0 108.5\nline 683 108.5\nline 683 33.5\nline 0 33.5\nclose\nfill\n");
}

TEST_F(Text, IsStruckOutWhereItsFaceSays) {
  LogFont font = Plain();
  font.strikeOut = 1;
  device.Select(2, font);
  Write({});
  EXPECT_EQ(device.TakeMarks(),
            "move 0 -214\nline 683 -214\nline 683 -265\nline 0 -265\nclose\nfill\n");
}

TEST_F(Text, IsUnderlinedInItsColorAndTurnedWithIt) {
  LogFont font = Turned(900);
  font.underline = 1;
  device.Select(2, font);
  SetTextColor(device, kGreen);
  Write({});
  const std::string trace = device.Take();
  EXPECT_EQ(LinesWith(trace, "fill-color"), std::vector<std::string>{"fill-color 0 1 0"});
  EXPECT_EQ(TracedDevice::MarksOf(trace),
            "move 108.5 0\nline 108.5 -683\nline 33.5 -683\nline 33.5 0\nclose\nfill\n");
}

// At this size it would be 0.29 pixels, from 0.13 on.
TEST_F(Text, IsUnderlinedByAPixelAtLeast) {
  LogFont font = FontOf(u"Liberation Sans", -4);
  font.underline = 1;
  device.Select(2, font);
  const StoredAdvances advances = {9};
  TextPlacing placing;
  placing.advances = advances.View();
  ExtTextOut(device, placing, std::u16string(u"A"));
  EXPECT_EQ(device.TakeMarks(),
            "move 0 1.13\nline 9 1.13\nline 9 0.13\nline 0 0.13\nclose\nfill\n");
}

// Paths.

const std::string kOutlineOfL = "move 69 0\nline 69 -742\nline 159 -742\nline 159 0\nline 69 0\nclose\n";

TEST_F(Text, AddsItsOutlinesToAPath) {
  SelectObject(device, NULL_PEN);
  BeginPath(device);
  Write({}, u"l");
  EXPECT_TRUE(EndPath(device));
  EXPECT_EQ(device.Take(), "");
  EXPECT_TRUE(FillPath(device));
  EXPECT_EQ(device.TakeMarks(), kOutlineOfL + "eo-fill\n");
}

TEST_F(Text, AddsLinesAlongItToAPath) {
  LogFont font = Plain();
  font.underline = 1;
  device.Select(2, font);
  SelectObject(device, NULL_PEN);
  BeginPath(device);
  Write({}, u"l");
  EXPECT_TRUE(EndPath(device));
  EXPECT_TRUE(FillPath(device));
  EXPECT_EQ(
      device.TakeMarks(),
      kOutlineOfL + "move 0 108.5\nline 228 108.5\nline 228 33.5\nline 0 33.5\nclose\neo-fill\n");
}

TEST_F(Text, PaintsNothingWithinABracket) {
  BeginPath(device);
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE | ETO_CLIPPED, u"l");
  EndPath(device);
  EXPECT_EQ(device.Take(), "");
  SelectObject(device, NULL_PEN);
  FillPath(device);
  EXPECT_EQ(device.TakeMarks(), kOutlineOfL + "eo-fill\n");
}

TEST_F(Text, MovesTheCurrentPositionWithinABracket) {
  BeginPath(device);
  EXPECT_EQ(WidthOf(u"A"), 683);
}

TEST_F(Text, MayBeAClip) {
  BeginPath(device);
  Write({}, u"l");
  EndPath(device);
  EXPECT_TRUE(SelectClipPath(device, RGN_COPY));
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_NE(device.Take().find(kOutlineOfL + "eo-clip\n"), std::string::npos);
}

// As shapes.

TEST_F(Text, BecomesShapesWhereTheUserWantsThem) {
  device->outlinesText = true;
  SetTextColor(device, kGreen);
  Write({}, u"l");
  EXPECT_EQ(device.Take(), "fill-color 0 1 0\n" + kOutlineOfL + "fill\n");
}

// Colours.

TEST_F(Text, IsDrawnInItsColorWhateverRasterOperationPensAndBrushesHave) {
  SetROP2(device, R2_XORPEN);
  SelectObject(device, NULL_PEN);
  Rectangle(device, {0, 0, 4, 4});
  device.Take();
  SetTextColor(device, kRed);
  SetBkMode(device, OPAQUE);
  SetBkColor(device, kGreen);
  Write({100, 200});
  const std::string trace = device.Take();
  EXPECT_EQ(LinesWith(trace, "blend"), std::vector<std::string>{"blend normal alpha 1"});
  EXPECT_EQ(LinesWith(trace, "fill-color"),
            (std::vector<std::string>{"fill-color 0 1 0", "fill-color 1 0 0"}));
}

TEST_F(Text, MayHaveAColorOfThePalette) {
  device->objects.Set(3, Palette({{0, 0, 0}, {0, 0, 255}}));
  SelectPalette(device, 3);
  SetTextColor(device, {0x01000001});
  Write({});
  EXPECT_EQ(LinesWith(device.Take(), "fill-color"), std::vector<std::string>{"fill-color 0 0 1"});
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
  device.Select(2, FontOf(u"Arial", kHeight));
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
