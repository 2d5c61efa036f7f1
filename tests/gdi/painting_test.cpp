#include "gdi/painting.h"

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/page_color.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/test_pens.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr ColorRef kRed = {0x0000FF};
constexpr ColorRef kGreen = {0x00FF00};
constexpr ColorRef kGray = {0x808080};

/// What a rectangle from (0, 0) to (4, 4) leaves, between colours and pens.
const std::string kBox = "rect 0 0 4 4\n";
// As one is drawn that may be dashed.
const std::string kDashedBox = "move 4 0\nline 0 0\nline 0 4\nline 4 4\nclose\n";

/// Draws that rectangle.
std::string Box(TracedDevice& device) {
  Rectangle(device, {0, 0, 4, 4});
  return device.Take();
}

void UseRedAndGreen(TracedDevice& device) {
  device.Select(1, CreateSolidBrush(kRed));
  device.Select(2, OldPen(PS_SOLID, 0, kGreen));
}

TEST(PaintPath, FillsAndStrokesInOneMark) {
  TracedDevice device;
  UseRedAndGreen(device);
  EXPECT_EQ(Box(device), "fill-color 1 0 0\nstroke-color 0 1 0\nline-width 0\nline-join 1\n" +
                             kBox + "eo-fill-stroke\n");
}

TEST(PaintPath, FillsAloneWithANullPen) {
  TracedDevice device;
  SelectObject(device, NULL_PEN);
  EXPECT_EQ(Box(device), "fill-color 1 1 1\n" + kBox + "eo-fill\n");
}

TEST(PaintPath, StrokesAloneWithANullBrush) {
  TracedDevice device;
  SelectObject(device, NULL_BRUSH);
  EXPECT_EQ(Box(device), "line-width 0\nline-join 1\n" + kBox + "stroke\n");
}

TEST(PaintPath, MarksNothingWithNeither) {
  TracedDevice device;
  SelectObject(device, NULL_PEN);
  SelectObject(device, NULL_BRUSH);
  EXPECT_EQ(Box(device), "");
}

// Raster operations.

TEST(PaintPath, PaintsInverseColorsInOneMark) {
  TracedDevice device;
  UseRedAndGreen(device);
  SetROP2(device, R2_NOTCOPYPEN);
  EXPECT_EQ(Box(device), "fill-color 0 1 1\nstroke-color 1 0 1\nline-width 0\nline-join 1\n" +
                             kBox + "eo-fill-stroke\n");
}

// The stroke lies on the fill, and is mixed with it.
TEST(PaintPath, MixesFillAndStrokeOneAfterTheOther) {
  TracedDevice device;
  UseRedAndGreen(device);
  SetROP2(device, R2_XORPEN);
  EXPECT_EQ(Box(device), "fill-color 1 0 0\nblend difference alpha 1\n" + kBox +
                             "eo-fill\nstroke-color 0 1 0\nline-width 0\nline-join 1\n" + kBox +
                             "stroke\n");
}

TEST(PaintPath, MakesBothMarksOfAnOperationThatTakesTwo) {
  TracedDevice device;
  device.Select(1, CreateSolidBrush(kRed));
  SelectObject(device, NULL_PEN);
  SetROP2(device, R2_NOTMERGEPEN);
  EXPECT_EQ(Box(device), "fill-color 1 0 0\nblend lighten alpha 1\n" + kBox +
                             "eo-fill\nfill-color 1 1 1\nblend difference alpha 1\n" + kBox +
                             "eo-fill\n");
}

TEST(PaintPath, MixesNothingIntoWhatIsPaintedLater) {
  TracedDevice device;
  SelectObject(device, NULL_PEN);
  SetROP2(device, R2_NOT);
  Box(device);
  SetROP2(device, R2_COPYPEN);
  EXPECT_EQ(Box(device), "blend normal alpha 1\n" + kBox + "eo-fill\n");
}

TEST(PaintPath, MarksNothingWhereTheDestinationStays) {
  TracedDevice device;
  SetROP2(device, R2_NOP);
  EXPECT_EQ(Box(device), "");
}

TEST(PaintPath, TellsOfColorsThatDoNotBlendAsBits) {
  TracedDevice device;
  device.Select(1, CreateSolidBrush(kGray));
  SetROP2(device, R2_MASKPEN);
  Box(device);
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBlendedColors));
}

TEST(PaintPath, TellsOfAPenThatDoesNotBlendAsBits) {
  TracedDevice device;
  device.Select(1, OldPen(PS_SOLID, 0, kGray));
  SetROP2(device, R2_MASKPEN);
  Polyline(device, StoredPoints({{0, 0}, {4, 4}}).View());
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBlendedColors));
}

TEST(PaintPath, TellsOfNothingWhereBlendingIsExact) {
  TracedDevice device;
  UseRedAndGreen(device);
  SetROP2(device, R2_MASKPEN);
  Box(device);
  device.Select(1, CreateSolidBrush(kGray));
  for (const BinaryRasterOperation operation : {R2_COPYPEN, R2_NOT, R2_NOP, R2_WHITE}) {
    SetROP2(device, operation);
    Box(device);
  }
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

// Gaps. A unit of the device is a pixel of 1/96 inch here.

TEST(Gaps, LieBelowTheDashesInTheBackgroundColor) {
  TracedDevice device;
  device.Select(1, OldPen(PS_DOT, 1, kGreen));
  SetBkColor(device, kRed);
  Polyline(device, StoredPoints({{0, 0}, {9, 0}}).View());
  EXPECT_EQ(device.Take(),
            "stroke-color 1 0 0\nline-join 1\nmove 0 0\nline 9 0\nstroke\n"
            "stroke-color 0 1 0\nline-dash 3 3 from 0\nmove 0 0\nline 9 0\nstroke\n");
}

TEST(Gaps, LieOnTheFill) {
  TracedDevice device;
  device.Select(1, OldPen(PS_DOT, 1));
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_EQ(device.TakeMarks(),
            kDashedBox + "eo-fill\n" + kDashedBox + "stroke\n" + kDashedBox + "stroke\n");
}

TEST(Gaps, StayOpenInTransparentMode) {
  TracedDevice device;
  device.Select(1, OldPen(PS_DOT, 1));
  SetBkMode(device, TRANSPARENT);
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_EQ(device.TakeMarks(), kDashedBox + "eo-fill-stroke\n");
}

TEST(Gaps, StayOpenUnderAnExtendedPen) {
  TracedDevice device;
  device.Select(1, ExtendedPen(PS_DOT, 1));
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_EQ(device.TakeMarks(), kDashedBox + "eo-fill-stroke\n");
}

// Patterns.

Brush Hatched(ColorRef color) {
  return CreateBrushIndirect({BS_HATCHED, color, HS_HORIZONTAL}).value();
}

TEST(Patterns, FillInOneMarkWithTheStroke) {
  TracedDevice device;
  device.Select(1, Hatched(kRed));
  SetBkColor(device, kGreen);
  EXPECT_EQ(Box(device),
            "fill-pattern 8 8 under 1 0 0 -1 0.0625 8.0625\n"
            "  fill-color 0 1 0\nrect 0 0 8 8\n  fill-color 1 0 0\nrect 0 4 8 1\nend-pattern\n"
            "line-width 0\nline-join 1\n" +
                kBox + "eo-fill-stroke\n");
}

TEST(Patterns, GiveWayToAColor) {
  TracedDevice device;
  device.Select(1, Hatched(kRed));
  Box(device);
  device.Select(2, CreateSolidBrush(kRed));
  EXPECT_EQ(Box(device), "fill-color 1 0 0\n" + kBox + "eo-fill-stroke\n");
}

TEST(Patterns, StayTheSameFromMarkToMark) {
  TracedDevice device;
  device.Select(1, Hatched(kRed));
  Box(device);
  EXPECT_EQ(Box(device), kBox + "eo-fill-stroke\n");
}

TEST(Patterns, ComeInTheColorsOfEachStep) {
  TracedDevice device;
  device.Select(1, Hatched(kRed));
  SelectObject(device, NULL_PEN);
  SetBkMode(device, TRANSPARENT);
  SetROP2(device, R2_MASKNOTPEN);
  const std::string trace = Box(device);
  EXPECT_EQ(LinesWith(trace, "blend"), std::vector<std::string>{"blend darken alpha 1"});
  EXPECT_NE(trace.find("  fill-color 0 1 1\n"), std::string::npos) << trace;
}

TEST(Patterns, StrokeWithABrushOfAPen) {
  TracedDevice device;
  Pen pen = GeometricPen(PS_SOLID, 4);
  pen.brush = Hatched(kRed);
  device.Select(1, pen);
  Polyline(device, StoredPoints({{0, 0}, {9, 0}}).View());
  EXPECT_EQ(LinesWith(device.Take(), "stroke-pattern").size(), 1U);
}

TEST(Patterns, ThatCannotBeReadLeaveTheStrokeAndAreToldOf) {
  TracedDevice device;
  device.Select(1, CreateDIBPatternBrushPt({}));
  EXPECT_EQ(Box(device), "line-width 0\nline-join 1\n" + kBox + "stroke\n");
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kUnreadablePattern));
}

// What cannot be painted.

TEST(PaintPath, LeavesOutWhatIsNotFinite) {
  TracedDevice device;
  SetWorldTransform(device, {3e38F, 0, 0, 3e38F, 0, 0});
  Polyline(device, StoredPoints({{0, 0}, {2000000000, 1}}).View());
  EXPECT_EQ(device.TakeMarks(), "");
}

TEST(PaintPath, LeavesThePathEmptyWithoutACanvas) {
  DeviceContext device({{1280, 960}, {320, 240}, 0, 1280});
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_TRUE(device.scratch.IsEmpty());
  LineTo(device, {5, 5});
  DrawPendingMarks(device);
  EXPECT_TRUE(device.pending.path.IsEmpty());
}

TEST(PaintPath, LeavesThePathEmptyWhereAllIsHidden) {
  TracedDevice device;
  ExtSelectClipRgn(device, StoredRectangles({}).View(), RGN_COPY);
  Rectangle(device, {0, 0, 4, 4});
  EXPECT_TRUE(device->scratch.IsEmpty());
  EXPECT_EQ(device.Take(), "");
}

TEST(FillWith, TakesNeitherTheSelectedBrushNorTheFillMode) {
  TracedDevice device;
  CGPath path;
  path.AddRectangle({1, 2}, {3, 4});
  FillWith(device, path, WINDING, CreateSolidBrush(kRed), R2_COPYPEN);
  EXPECT_EQ(device.Take(), "fill-color 1 0 0\nrect 1 2 3 4\nfill\n");
  EXPECT_TRUE(path.IsEmpty());
  path.AddRectangle({1, 2}, {3, 4});
  FillWith(device, path, ALTERNATE, RgbColor{0, 255, 0}, R2_COPYPEN);
  EXPECT_EQ(device.Take(), "fill-color 0 1 0\nrect 1 2 3 4\neo-fill\n");
}

TEST(DrawPendingMarks, DrawsThemOnce) {
  TracedDevice device;
  LineTo(device, {5, 5});
  EXPECT_NE(device.Take(), "");
  EXPECT_EQ(device.Take(), "");
}

TEST(DrawPendingMarks, KeepsTheOrderOfLinesAndPixels) {
  TracedDevice device;
  LineTo(device, {5, 5});
  SetPixelV(device, {1, 1}, kRed);
  LineTo(device, {9, 5});
  EXPECT_EQ(device.TakeMarks(),
            "move 0 0\nline 5 5\nstroke\nrect 1 1 1 1\nfill\nmove 5 5\nline 9 5\nstroke\n");
}

// On a ground of one colour that is known, what an operation makes of it is a plain colour.

TEST(KnownGround, MakesMarksOfAnyColorExact) {
  TracedDevice device;
  device.OnCanvas().Surface().WatchGround(ColorOnPage({0x3C, 0xC8, 0x78}));
  device.Select(1, CreateSolidBrush(kGray));
  device.Select(2, OldPen(PS_SOLID, 0, kGray));
  SetROP2(device, R2_MASKPEN);
  EXPECT_EQ(Box(device),
            "fill-color 0 0.502 0\nstroke-color 0 0.502 0\nline-width 0\n"
            "line-join 1\n" +
                kBox + "eo-fill-stroke\n");
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  Rectangle(device, {2, 2, 40, 40});  // partly on the first
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBlendedColors));
}

TEST(KnownGround, IsToReachAsFarAsTheLinesDo) {
  TracedDevice device;
  device.OnCanvas().Surface().WatchGround({1, 1, 1, 1});
  device.Select(1, OldPen(PS_SOLID, 10, kGray));
  SetROP2(device, R2_MASKPEN);
  Polyline(device, StoredPoints({{0, 0}, {9, 0}}).View());
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  Polyline(device, StoredPoints({{0, 9}, {9, 9}}).View());  // their edges meet
  device.Take();
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kBlendedColors));
}

}  // namespace
}  // namespace kelvane
