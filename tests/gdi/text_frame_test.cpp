#include "gdi/text_frame.h"

#include <cmath>
#include <limits>
#include <numbers>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

constexpr double kNear = 1e-9;
constexpr double kEm = 10;
const double kSine = 0.5;  // of 30 degrees
const double kCosine = std::numbers::sqrt3 / 2;

Mapping OfPixels() {
  return Mapping(ReferenceDevice{{1000, 1000}, {250, 250}, 0, 1000});
}

/// Scales that may be negative, in whole numbers.
Mapping Scaled(std::int32_t x, std::int32_t y) {
  Mapping mapping = OfPixels();
  mapping.SetMode(MM_ANISOTROPIC);
  mapping.SetViewportExtent({x, y});
  return mapping;
}

/// A quarter clockwise, as seen with y downwards.
Mapping TurnedRight() {
  Mapping mapping = OfPixels();
  mapping.SetWorld({0, 1, -1, 0, 0, 0});
  return mapping;
}

LogFont Turned(std::int32_t escapement, std::int32_t orientation = 0) {
  LogFont font;
  font.escapement = escapement;
  font.orientation = orientation;
  return font;
}

LogFont Wide() {
  LogFont font;
  font.width = 7;  // what it comes to is said by TextFont
  return font;
}

TextFont OfAnEm(double xScale = 1) {
  TextFont font;
  font.em = kEm;
  font.xScale = xScale;
  return font;
}

TextFrame Compatible(const LogFont& font, const Mapping& mapping, double xScale = 1) {
  return FrameOf(font, OfAnEm(xScale), mapping, GM_COMPATIBLE);
}

TextFrame Advanced(const LogFont& font, const Mapping& mapping, double xScale = 1) {
  return FrameOf(font, OfAnEm(xScale), mapping, GM_ADVANCED);
}

testing::AssertionResult Is(PointD vector, double x, double y) {
  if (std::abs(vector.x - x) < kNear && std::abs(vector.y - y) < kNear)
    return testing::AssertionSuccess();
  return testing::AssertionFailure() << vector.x << ' ' << vector.y << " is not " << x << ' ' << y;
}

TEST(TextFrame, OfPixelsRunsToTheRightAndUp) {
  for (const GraphicsMode mode : {GM_COMPATIBLE, GM_ADVANCED}) {
    const TextFrame frame = FrameOf({}, OfAnEm(), OfPixels(), mode);
    EXPECT_TRUE(Is(frame.along, 1, 0));
    EXPECT_TRUE(Is(frame.up, 0, -1));
    EXPECT_TRUE(Is(frame.glyphAlong, kEm, 0));
    EXPECT_TRUE(Is(frame.glyphUp, 0, -kEm));
    EXPECT_NEAR(frame.em, kEm, kNear);
  }
}

TEST(TextFrame, BringsPlacesOfTheLineOntoTheDevice) {
  EXPECT_TRUE(Is(Compatible({}, Scaled(2, 3)).ToDevice({5, 7}), 10, -21));
  EXPECT_TRUE(Is(Compatible(Turned(900), OfPixels()).ToDevice({5, 7}), -7, -5));
}

// Compatible mode.

TEST(ACompatibleTextFrame, StandsUprightWhereYGrowsUpwards) {
  const TextFrame frame = Compatible({}, Scaled(2, -2));
  EXPECT_TRUE(Is(frame.along, 2, 0));
  EXPECT_TRUE(Is(frame.up, 0, -2));
  EXPECT_TRUE(Is(frame.glyphAlong, 2 * kEm, 0));
  EXPECT_TRUE(Is(frame.glyphUp, 0, -2 * kEm));
}

TEST(ACompatibleTextFrame, IsReadFromLeftToRightWhereXGrowsLeftwards) {
  const TextFrame frame = Compatible({}, Scaled(-2, 2));
  EXPECT_TRUE(Is(frame.along, 2, 0));
  EXPECT_TRUE(Is(frame.up, 0, -2));
  EXPECT_TRUE(Is(frame.glyphAlong, 2 * kEm, 0));
  EXPECT_TRUE(Is(frame.glyphUp, 0, -2 * kEm));
}

// Advances of the face are as wide as its glyphs, so they take more logical units; those that are
// stored count by the scale along the line.
TEST(ACompatibleTextFrame, HasItsSizeFromTheVerticalScale) {
  const TextFrame frame = Compatible({}, Scaled(2, -3));
  EXPECT_TRUE(Is(frame.glyphAlong, 3 * kEm, 0));
  EXPECT_TRUE(Is(frame.glyphUp, 0, -3 * kEm));
  EXPECT_TRUE(Is(frame.along, 2, 0));
  EXPECT_TRUE(Is(frame.up, 0, -3));
  EXPECT_NEAR(frame.em, kEm * 3 / 2, kNear);
}

TEST(ACompatibleTextFrame, HasAWidthThatIsAskedForFromTheHorizontalScale) {
  const TextFrame frame = Compatible(Wide(), Scaled(2, -3), 0.5);
  EXPECT_TRUE(Is(frame.glyphAlong, 2 * kEm / 2, 0));
  EXPECT_TRUE(Is(frame.glyphUp, 0, -3 * kEm));
  EXPECT_NEAR(frame.em, kEm / 2, kNear);
}

TEST(ACompatibleTextFrame, TakesNoPartInTurnsOfTheWorld) {
  const TextFrame frame = Compatible({}, TurnedRight());
  EXPECT_TRUE(Is(frame.along, 1, 0));
  EXPECT_TRUE(Is(frame.up, 0, -1));
  EXPECT_TRUE(Is(frame.glyphAlong, kEm, 0));
}

TEST(ACompatibleTextFrame, TurnsItsLineCounterClockwise) {
  const TextFrame slanting = Compatible(Turned(300), OfPixels());
  EXPECT_TRUE(Is(slanting.along, kCosine, -kSine));
  EXPECT_TRUE(Is(slanting.up, -kSine, -kCosine));
  const TextFrame rising = Compatible(Turned(900), OfPixels());
  EXPECT_TRUE(Is(rising.along, 0, -1));
  EXPECT_TRUE(Is(rising.up, -1, 0));
  const TextFrame falling = Compatible(Turned(2700), OfPixels());
  EXPECT_TRUE(Is(falling.along, 0, 1));
  EXPECT_TRUE(Is(falling.up, 1, 0));
}

// The angle is one of logical space, whose y axis is turned over; the glyphs are not.
TEST(ACompatibleTextFrame, TurnsItsLineTheOtherWayWhereYGrowsUpwards) {
  const TextFrame slanting = Compatible(Turned(300), Scaled(1, -1));
  EXPECT_TRUE(Is(slanting.along, kCosine, kSine));
  EXPECT_TRUE(Is(slanting.up, kSine, -kCosine));
  const TextFrame falling = Compatible(Turned(900), Scaled(1, -1));
  EXPECT_TRUE(Is(falling.along, 0, 1));
  EXPECT_TRUE(Is(falling.up, 1, 0));
  const TextFrame rising = Compatible(Turned(2700), Scaled(1, -1));
  EXPECT_TRUE(Is(rising.along, 0, -1));
  EXPECT_TRUE(Is(rising.up, -1, 0));
}

TEST(ACompatibleTextFrame, MovesByTheScaleAlongItsLine) {
  const TextFrame frame = Compatible(Turned(900), Scaled(2, 3));
  EXPECT_TRUE(Is(frame.along, 0, -3));
  EXPECT_NEAR(frame.PixelsAlong(), 3, kNear);
}

TEST(ACompatibleTextFrame, TurnsItsGlyphsWithTheLineOnly) {
  const TextFrame frame = Compatible(Turned(300, 900), OfPixels());
  EXPECT_TRUE(Is(frame.glyphAlong, kEm * kCosine, -kEm * kSine));
  EXPECT_TRUE(Is(frame.glyphUp, -kEm * kSine, -kEm * kCosine));
}

// Advanced mode.

TEST(AnAdvancedTextFrame, TakesPartInAllTransforms) {
  const TextFrame frame = Advanced({}, TurnedRight());
  EXPECT_TRUE(Is(frame.along, 0, 1));
  EXPECT_TRUE(Is(frame.up, 1, 0));
  EXPECT_TRUE(Is(frame.glyphAlong, 0, kEm));
  EXPECT_TRUE(Is(frame.glyphUp, kEm, 0));
}

TEST(AnAdvancedTextFrame, IsMirroredAndStretchedWithItsMap) {
  const TextFrame frame = Advanced({}, Scaled(-2, -3));
  EXPECT_TRUE(Is(frame.along, -2, 0));
  EXPECT_TRUE(Is(frame.up, 0, 3));
  EXPECT_TRUE(Is(frame.glyphAlong, -2 * kEm, 0));
  EXPECT_TRUE(Is(frame.glyphUp, 0, 3 * kEm));
  EXPECT_NEAR(frame.em, kEm, kNear);
}

TEST(AnAdvancedTextFrame, HasAWidthThatIsAskedFor) {
  const TextFrame frame = Advanced(Wide(), Scaled(2, 3), 0.5);
  EXPECT_TRUE(Is(frame.glyphAlong, 2 * kEm / 2, 0));
  EXPECT_TRUE(Is(frame.glyphUp, 0, -3 * kEm));
  EXPECT_NEAR(frame.em, kEm / 2, kNear);
}

// Up on the page is where logical y grows.
TEST(AnAdvancedTextFrame, TurnsItsLineInLogicalSpace) {
  EXPECT_TRUE(Is(Advanced(Turned(900), Scaled(2, 3)).along, 0, -3));
  EXPECT_TRUE(Is(Advanced(Turned(900), Scaled(2, -3)).along, 0, 3));
}

TEST(AnAdvancedTextFrame, TurnsItsGlyphsOnTheirOwn) {
  const TextFrame frame = Advanced(Turned(0, 900), OfPixels());
  EXPECT_TRUE(Is(frame.along, 1, 0));
  EXPECT_TRUE(Is(frame.up, 0, -1));
  EXPECT_TRUE(Is(frame.glyphAlong, 0, -kEm));
  EXPECT_TRUE(Is(frame.glyphUp, -kEm, 0));
  EXPECT_TRUE(Is(Advanced(Turned(900, 0), OfPixels()).glyphAlong, kEm, 0));
}

// A layout from right to left mirrors the page, but what is written on it is read as ever.
TEST(TextFrame, StaysReadableInALayoutFromRightToLeft) {
  Mapping mapping = OfPixels();
  mapping.SetLayout(LAYOUT_RTL);
  for (const GraphicsMode mode : {GM_COMPATIBLE, GM_ADVANCED}) {
    const TextFrame frame = FrameOf({}, OfAnEm(), mapping, mode);
    EXPECT_TRUE(Is(frame.along, 1, 0));
    EXPECT_TRUE(Is(frame.up, 0, -1));
    EXPECT_TRUE(Is(frame.glyphAlong, kEm, 0));
  }
}

TEST(TextFrame, TakesAnglesOfAnySize) {
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();  // 275.2 degrees
  for (const GraphicsMode mode : {GM_COMPATIBLE, GM_ADVANCED}) {
    const PointD along = FrameOf(Turned(2752), OfAnEm(), OfPixels(), mode).along;
    EXPECT_TRUE(Is(FrameOf(Turned(kLeast), OfAnEm(), OfPixels(), mode).along, along.x, along.y));
    EXPECT_TRUE(Is(FrameOf(Turned(-900), OfAnEm(), OfPixels(), mode).along, 0, 1));
    EXPECT_TRUE(Is(FrameOf(Turned(3600 + 900), OfAnEm(), OfPixels(), mode).along, 0, -1));
  }
}

TEST(TextFrame, HasNoSizeInAWorldWithoutArea) {
  Mapping mapping = OfPixels();
  mapping.SetWorld({0, 0, 0, 0, 0, 0});
  for (const GraphicsMode mode : {GM_COMPATIBLE, GM_ADVANCED}) {
    const TextFrame frame = FrameOf({}, OfAnEm(), mapping, mode);
    EXPECT_EQ(frame.PixelsAlong(), 0);
    EXPECT_TRUE(std::isfinite(frame.em));
  }
}

}  // namespace
}  // namespace kelvane
