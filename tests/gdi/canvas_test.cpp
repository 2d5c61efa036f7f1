#include "gdi/canvas.h"

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/lines.h"
#include "gdi/path_brackets.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/traced_device.h"
#include "support/bytes.h"

namespace kelvane {
namespace {

const std::string kPixel = "rect 1 1 1 1\nfill\n";

/// Marks a pixel. @return the trace of what comes before it; nothing when it is hidden.
std::string BeforeAMark(TracedDevice& device) {
  SetPixelV(device, {1, 1}, {});
  const std::string trace = device.Take();
  if (trace.empty()) return "hidden";
  EXPECT_TRUE(trace.ends_with(kPixel)) << trace;
  return trace.substr(0, trace.size() - kPixel.size());
}

TEST(Canvas, WritesNoClipWithoutOne) {
  TracedDevice device;
  EXPECT_EQ(BeforeAMark(device), "");
}

TEST(Canvas, WritesAClipWhenAMarkNeedsIt) {
  TracedDevice device;
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 50, 40}));
  EXPECT_EQ(device.Take(), "");
  EXPECT_EQ(BeforeAMark(device), "save\nrect 0 0 50 40\neo-clip\n");
}

TEST(Canvas, WritesAClipOnce) {
  TracedDevice device;
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 50, 40}));
  BeforeAMark(device);
  EXPECT_EQ(BeforeAMark(device), "");
}

TEST(Canvas, GoesOutToTheClipThatTwoStatesShareAndInAgain) {
  TracedDevice device;
  EXPECT_TRUE(ExcludeClipRect(device, {9, 9, 10, 10}));
  BeforeAMark(device);
  SaveDC(device);
  BeginPath(device);
  Ellipse(device, {0, 0, 20, 20});
  EXPECT_TRUE(EndPath(device) && SelectClipPath(device, RGN_AND));
  EXPECT_EQ(LinesWith(BeforeAMark(device), "save").size(), 1U);
  EXPECT_TRUE(RestoreDC(device, -1));
  EXPECT_EQ(BeforeAMark(device), "restore\n");
  EXPECT_EQ(BeforeAMark(device), "");
}

TEST(Canvas, LeavesTheClipWithTheStateThatHadIt) {
  TracedDevice device;
  SaveDC(device);
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 50, 40}));
  BeforeAMark(device);
  EXPECT_TRUE(RestoreDC(device, -1));
  EXPECT_EQ(BeforeAMark(device), "restore\n");
}

TEST(Canvas, WritesNothingOfAClipThatNoMarkCameUnder) {
  TracedDevice device;
  SaveDC(device);
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 50, 40}));
  EXPECT_TRUE(RestoreDC(device, -1));
  EXPECT_EQ(BeforeAMark(device), "");
}

TEST(Canvas, ShowsNothingInAClipWithoutArea) {
  TracedDevice device;
  SaveDC(device);
  EXPECT_TRUE(ExtSelectClipRgn(device, StoredRectangles({}).View(), RGN_COPY));
  EXPECT_EQ(BeforeAMark(device), "hidden");
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 50, 40}));
  EXPECT_EQ(BeforeAMark(device), "hidden");
  EXPECT_TRUE(RestoreDC(device, -1));
  EXPECT_EQ(BeforeAMark(device), "");
}

TEST(Canvas, ShowsNothingInAClipWithinAnEmptyMetaRegion) {
  TracedDevice device;
  EXPECT_TRUE(ExtSelectClipRgn(device, StoredRectangles({}).View(), RGN_COPY));
  SetMetaRgn(device);
  EXPECT_TRUE(ExtSelectClipRgn(device, StoredRectangles({{0, 0, 9, 9}}).View(), RGN_COPY));
  EXPECT_EQ(BeforeAMark(device), "hidden");
}

TEST(Canvas, ShowsNothingWhereClipsDoNotMeet) {
  TracedDevice device;
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 5, 5}));
  EXPECT_TRUE(IntersectClipRect(device, {5, 0, 9, 5}));
  EXPECT_EQ(BeforeAMark(device), "hidden");
}

/// Two triangles of the same sense, the one within the other, as a clip.
std::string ClipToTriangles(PolyFillMode mode) {
  TracedDevice device;
  BeginPath(device);
  PolyPolygon(device, StoredNumbers({3, 3}).View(),
              StoredPoints({{0, 0}, {90, 0}, {0, 90}, {10, 10}, {20, 10}, {10, 20}}).View());
  SetPolyFillMode(device, mode);
  EXPECT_TRUE(EndPath(device) && SelectClipPath(device, RGN_COPY));
  const std::string trace = BeforeAMark(device);
  return trace.substr(trace.rfind("close\n") + 6);
}

TEST(Canvas, ClipsToAPathByTheFillModeOfThatTime) {
  EXPECT_EQ(ClipToTriangles(ALTERNATE), "eo-clip\n");
  EXPECT_EQ(ClipToTriangles(WINDING), "clip\n");
}

// The page is from -1000 to 1000 here.
TEST(Canvas, CutsEverythingElseToThePage) {
  TracedDevice device;
  EXPECT_TRUE(ExcludeClipRect(device, {-2000, -2000, 2000, 0}));
  EXPECT_EQ(BeforeAMark(device), "save\nrect -1000 0 2000 1000\neo-clip\n");
}

TEST(Canvas, GivesTheSurfaceBackAsItWas) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  surface->BeginPage({{0, 0}, {100, 100}});
  const CGGraphicsState before = surface->State();
  {
    Canvas canvas(*surface, {}, {0, 0, 100, 100}, {});
    ClipState clip;
    Steps steps(1000);
    EXPECT_TRUE(clip.Join(Region({0, 0, 50, 50}), RGN_AND, steps));
    EXPECT_TRUE(canvas.BringClip(clip));
    EXPECT_EQ(surface->State().clipCount, 1U);
  }
  EXPECT_EQ(surface->State(), before);
}

// Patterns.

constexpr BrushPaint kHatch = {.kind = Brush::Kind::kHatched, .hatch = HS_CROSS};
constexpr CGAffineTransform kScreen = {0.75F, 0, 0, -0.75F, 0, 75};

/// Where a pattern's cell lies, less the hair by which it is inside of the first pixel.
CGAffineTransform WithoutHair(CGAffineTransform matrix) {
  matrix.tx -= std::abs(matrix.a) / 16;
  matrix.ty -= std::abs(matrix.d) / 16;
  return matrix;
}

TEST(PatternOf, IsAPixelADeviceUnitOnAScreen) {
  TracedDevice device(kScreen, {96, 96});
  const auto pattern = device.OnCanvas().PatternOf(kHatch, {}, RasterStep::Color::kPaint);
  EXPECT_EQ(WithoutHair(pattern->matrix), (CGAffineTransform{0.75F, 0, 0, 0.75F, 0, 69}));
}

// 8 pixels of 1/96 inch are 6 points.
TEST(PatternOf, IsAPixelOfAScreenOnAPrinter) {
  TracedDevice device({0.0625F, 0, 0, -0.0625F, 0, 75}, {1152, 1152});
  const auto pattern = device.OnCanvas().PatternOf(kHatch, {}, RasterStep::Color::kPaint);
  EXPECT_EQ(WithoutHair(pattern->matrix), (CGAffineTransform{0.75F, 0, 0, 0.75F, 0, 69}));
}

TEST(PatternOf, StartsAtTheOriginOfTheBrush) {
  TracedDevice device(kScreen, {96, 96});
  const auto pattern = device.OnCanvas().PatternOf(kHatch, {4, 8}, RasterStep::Color::kPaint);
  EXPECT_EQ(WithoutHair(pattern->matrix), (CGAffineTransform{0.75F, 0, 0, 0.75F, 3, 63}));
}

TEST(PatternOf, IsOneForAllThatIsAlike) {
  TracedDevice device;
  Canvas& canvas = device.OnCanvas();
  const auto pattern = canvas.PatternOf(kHatch, {1, 2}, RasterStep::Color::kPaint);
  EXPECT_EQ(canvas.PatternOf(kHatch, {1, 2}, RasterStep::Color::kPaint), pattern);
}

TEST(PatternOf, IsAnotherForAnythingElse) {
  TracedDevice device;
  Canvas& canvas = device.OnCanvas();
  const auto pattern = canvas.PatternOf(kHatch, {1, 2}, RasterStep::Color::kPaint);
  BrushPaint other = kHatch;
  other.color = {1, 0, 0};
  EXPECT_NE(canvas.PatternOf(other, {1, 2}, RasterStep::Color::kPaint), pattern);
  other = kHatch;
  other.background = RgbColor{0, 0, 0};
  EXPECT_NE(canvas.PatternOf(other, {1, 2}, RasterStep::Color::kPaint), pattern);
  other = kHatch;
  other.hatch = HS_VERTICAL;
  EXPECT_NE(canvas.PatternOf(other, {1, 2}, RasterStep::Color::kPaint), pattern);
  EXPECT_NE(canvas.PatternOf(kHatch, {1, 3}, RasterStep::Color::kPaint), pattern);
  EXPECT_NE(canvas.PatternOf(kHatch, {2, 2}, RasterStep::Color::kPaint), pattern);
  EXPECT_NE(canvas.PatternOf(kHatch, {1, 2}, RasterStep::Color::kInversePaint), pattern);
}

TEST(PatternOf, SharesItsBitmapWithThoseAtOtherOrigins) {
  TracedDevice device;
  Canvas& canvas = device.OnCanvas();
  const test::Bytes header = test::Bytes().BitmapHeader({.width = 1, .height = 1});
  const test::Bytes pixels = test::Bytes().Zeros(4);
  const BrushPaint paint = {.kind = Brush::Kind::kPattern,
                            .pattern = {header.Data(), pixels.Data()}};
  const auto one = canvas.PatternOf(paint, {1, 2}, RasterStep::Color::kPaint);
  const auto other = canvas.PatternOf(paint, {3, 4}, RasterStep::Color::kPaint);
  EXPECT_NE(one, other);
  ASSERT_NE(one->image, nullptr);
  EXPECT_EQ(one->image.get(), other->image.get());
}

TEST(PatternOf, StartsNoLongerWhereItShouldAfterAThousandOrigins) {
  TracedDevice device;
  Canvas& canvas = device.OnCanvas();
  for (int i = 1; i <= 1024; ++i)
    canvas.PatternOf(kHatch, {i, 0}, RasterStep::Color::kPaint);
  EXPECT_EQ(canvas.PatternOf(kHatch, {5000, 0}, RasterStep::Color::kPaint),
            canvas.PatternOf(kHatch, {6000, 0}, RasterStep::Color::kPaint));
}

TEST(PatternOf, IsNoneOfABitmapThatCannotBeRead) {
  TracedDevice device;
  EXPECT_EQ(
      device.OnCanvas().PatternOf({.kind = Brush::Kind::kPattern}, {}, RasterStep::Color::kPaint),
      nullptr);
}

TEST(Canvas, KnowsThePixelOfAScreen) {
  EXPECT_EQ(TracedDevice(kScreen, {96, 96}).OnCanvas().ScreenPixel(), 1);
  EXPECT_EQ(TracedDevice(kScreen, {1152, 600}).OnCanvas().ScreenPixel(), 12);
}

}  // namespace
}  // namespace kelvane
