// What text leaves on the page or in a path: its cell, rectangle, lines and outlines.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/path_brackets.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/text_on_a_device.h"
#include "gdi/text_output.h"

namespace kelvane {
namespace {

class MarksOfText : public TextOnADevice {};

// Background.

TEST_F(MarksOfText, LiesOnItsCellInOpaqueMode) {
  SetBkMode(device, OPAQUE);
  SetBkColor(device, kTextRed);
  Write({100, 200});
  const std::string trace = device.Take();
  EXPECT_EQ(TracedDevice::MarksOf(trace),
            "move 100 417\nline 783 417\nline 783 -727\nline 100 -727\nclose\nfill\n");
  EXPECT_EQ(LinesWith(trace, "fill-color"),
            (std::vector<std::string>{"fill-color 1 0 0", "fill-color 0 0 0"}));
  EXPECT_LT(trace.find("fill\n"), trace.find("text"));
}

TEST_F(MarksOfText, TurnsWithItsCell) {
  device.Select(2, Turned(900));
  SetBkMode(device, OPAQUE);
  Write({100, 200});
  EXPECT_EQ(device.TakeMarks(),
            "move 317 200\nline 317 -483\nline -827 -483\nline -827 200\nclose\nfill\n");
}

TEST_F(MarksOfText, HasNoCellInTransparentMode) {
  Write({100, 200});
  EXPECT_EQ(device.TakeMarks(), "");
}

// The rectangle of a call.

TEST_F(MarksOfText, LiesOnTheOpaqueRectangleWhateverTheMode) {
  SetBkColor(device, kTextRed);
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE, u"A");
  const std::string trace = device.Take();
  EXPECT_EQ(TracedDevice::MarksOf(trace), "rect 10 20 20 20\neo-fill\n");
  EXPECT_EQ(LinesWith(trace, "fill-color").front(), "fill-color 1 0 0");
  EXPECT_LT(trace.find("eo-fill"), trace.find("text"));
}

TEST_F(MarksOfText, LeavesItsOpaqueRectangleWithoutCharacters) {
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE, u"");
  EXPECT_EQ(device.TakeMarks(), "rect 10 20 20 20\neo-fill\n");
}

TEST_F(MarksOfText, TakesTheCornersOfItsRectangleInAnyOrder) {
  WriteIn({30, 40, 10, 20}, ETO_OPAQUE, u"");
  EXPECT_EQ(device.TakeMarks(), "rect 30 40 -20 -20\neo-fill\n");
  WriteIn({10, 40, 30, 20}, ETO_OPAQUE | ETO_CLIPPED, u"A");
  EXPECT_EQ(device.TakeOrigins(), "0 0\n");
}

TEST_F(MarksOfText, HasNoOpaqueRectangleWithoutAnArea) {
  for (const RectangleL& empty :
       {RectangleL{10, 20, 10, 40}, RectangleL{10, 20, 30, 20}, RectangleL{0, 0, -1, -1}}) {
    WriteIn(empty, ETO_OPAQUE, u"");
    EXPECT_EQ(device.TakeMarks(), "") << empty.left << ' ' << empty.bottom;
  }
}

TEST_F(MarksOfText, HasARectangleThatIsNotAskedFor) {
  WriteIn({10, 20, 30, 40}, 0, u"");
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE | ETO_NO_RECT, u"");
  EXPECT_EQ(device.Take(), "");
}

TEST_F(MarksOfText, IsCutToItsRectangleAndNothingAfterIt) {
  WriteIn({10, 20, 30, 40}, ETO_CLIPPED, u"A");
  const std::string trace = device.Take();
  EXPECT_NE(trace.find("rect 10 20 20 20\neo-clip\n"), std::string::npos) << trace;
  EXPECT_LT(trace.find("clip"), trace.find("text"));
  Write({100, 200});
  EXPECT_EQ(device.Take(), "restore\ntext \"A\" LiberationSans 1024 under 1 0 0 -1 100 200\n");
}

TEST_F(MarksOfText, IsCutToTheClipAsWell) {
  IntersectClipRect(device, {0, 0, 20, 30});
  WriteIn({10, 20, 30, 40}, ETO_CLIPPED, u"A");
  EXPECT_NE(device.Take().find("rect 10 20 10 10\neo-clip\n"), std::string::npos);
}

TEST_F(MarksOfText, IsHiddenByARectangleWithoutAnArea) {
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

TEST_F(MarksOfText, IsUnderlinedWhereItsFaceSays) {
  LogFont font = Plain();
  font.underline = 1;
  device.Select(2, font);
  Write({});
  EXPECT_EQ(device.TakeMarks(),
            "move 0 108.5\nline 683 108.5\nline 683 33.5\nline 0 33.5\nclose\nfill\n");
}

TEST_F(MarksOfText, IsStruckOutWhereItsFaceSays) {
  LogFont font = Plain();
  font.strikeOut = 1;
  device.Select(2, font);
  Write({});
  EXPECT_EQ(device.TakeMarks(),
            "move 0 -214\nline 683 -214\nline 683 -265\nline 0 -265\nclose\nfill\n");
}

TEST_F(MarksOfText, IsUnderlinedInItsColorAndTurnedWithIt) {
  LogFont font = Turned(900);
  font.underline = 1;
  device.Select(2, font);
  SetTextColor(device, kTextGreen);
  Write({});
  const std::string trace = device.Take();
  EXPECT_EQ(LinesWith(trace, "fill-color"), std::vector<std::string>{"fill-color 0 1 0"});
  EXPECT_EQ(TracedDevice::MarksOf(trace),
            "move 108.5 0\nline 108.5 -683\nline 33.5 -683\nline 33.5 0\nclose\nfill\n");
}

// At this size it would be 0.29 pixels, from 0.13 on.
TEST_F(MarksOfText, IsUnderlinedByAPixelAtLeast) {
  LogFont font = FontOf(u"Liberation Sans", -4);
  font.underline = 1;
  device.Select(2, font);
  const StoredAdvances advances = {9};
  TextPlacing placing;
  placing.advances = TextAdvances<std::int32_t>{advances.View()};
  ExtTextOut(device, placing, std::u16string(u"A"));
  EXPECT_EQ(device.TakeMarks(),
            "move 0 1.13\nline 9 1.13\nline 9 0.13\nline 0 0.13\nclose\nfill\n");
}

// Paths.

const std::string kOutlineOfL =
    "move 69 0\nline 69 -742\nline 159 -742\nline 159 0\nline 69 0\nclose\n";

TEST_F(MarksOfText, AddsItsOutlinesToAPath) {
  SelectObject(device, NULL_PEN);
  BeginPath(device);
  Write({}, u"l");
  EXPECT_TRUE(EndPath(device));
  EXPECT_EQ(device.Take(), "");
  EXPECT_TRUE(FillPath(device));
  EXPECT_EQ(device.TakeMarks(), kOutlineOfL + "eo-fill\n");
}

TEST_F(MarksOfText, AddsLinesAlongItToAPath) {
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

TEST_F(MarksOfText, PaintsNothingWithinABracket) {
  BeginPath(device);
  WriteIn({10, 20, 30, 40}, ETO_OPAQUE | ETO_CLIPPED, u"l");
  EndPath(device);
  EXPECT_EQ(device.Take(), "");
  SelectObject(device, NULL_PEN);
  FillPath(device);
  EXPECT_EQ(device.TakeMarks(), kOutlineOfL + "eo-fill\n");
}

TEST_F(MarksOfText, MovesTheCurrentPositionWithinABracket) {
  BeginPath(device);
  EXPECT_EQ(WidthOf(u"A"), 683);
}

TEST_F(MarksOfText, MayBeAClip) {
  BeginPath(device);
  Write({}, u"l");
  EndPath(device);
  EXPECT_TRUE(SelectClipPath(device, RGN_COPY));
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_NE(device.Take().find(kOutlineOfL + "eo-clip\n"), std::string::npos);
}

// As shapes.

TEST_F(MarksOfText, BecomesShapesWhereTheUserWantsThem) {
  device->outlinesText = true;
  SetTextColor(device, kTextGreen);
  Write({}, u"l");
  EXPECT_EQ(device.Take(), "fill-color 0 1 0\n" + kOutlineOfL + "fill\n");
}

// Colours.

TEST_F(MarksOfText, IsDrawnInItsColorWhateverRasterOperationPensAndBrushesHave) {
  SetROP2(device, R2_XORPEN);
  SelectObject(device, NULL_PEN);
  Rectangle(device, {0, 0, 4, 4});
  device.Take();
  SetTextColor(device, kTextRed);
  SetBkMode(device, OPAQUE);
  SetBkColor(device, kTextGreen);
  Write({100, 200});
  const std::string trace = device.Take();
  EXPECT_EQ(LinesWith(trace, "blend"), std::vector<std::string>{"blend normal alpha 1"});
  EXPECT_EQ(LinesWith(trace, "fill-color"),
            (std::vector<std::string>{"fill-color 0 1 0", "fill-color 1 0 0"}));
}

TEST_F(MarksOfText, MayHaveAColorOfThePalette) {
  device->objects.Set(3, Palette({{0, 0, 0}, {0, 0, 255}}));
  SelectPalette(device, 3);
  SetTextColor(device, {0x01000001});
  Write({});
  EXPECT_EQ(LinesWith(device.Take(), "fill-color"), std::vector<std::string>{"fill-color 0 0 1"});
}

}  // namespace
}  // namespace kelvane
