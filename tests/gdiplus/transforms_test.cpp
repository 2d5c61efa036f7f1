#include "gdiplus/transforms.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "gdi/area_points.h"
#include "gdiplus/clips.h"

namespace kelvane::gdiplus {
namespace {

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

Graphics AtScreen() {
  return {nullptr, {96, 96}};
}

void ExpectMaps(const Graphics& graphics, PointD from, PointD to) {
  const PointD mapped = WorldToDevice(graphics).Map(from);
  EXPECT_NEAR(mapped.x, to.x, 1e-9);
  EXPECT_NEAR(mapped.y, to.y, 1e-9);
}

TEST(WorldTransform, TakesWhatIsPrependedFirst) {
  Graphics graphics = AtScreen();
  ScaleWorldTransform(graphics, 2, 3, MatrixOrder::kPrepend);
  TranslateWorldTransform(graphics, 10, 20, MatrixOrder::kPrepend);
  ExpectMaps(graphics, {1, 1}, {22, 63});
}

TEST(WorldTransform, TakesWhatIsAppendedLast) {
  Graphics graphics = AtScreen();
  ScaleWorldTransform(graphics, 2, 3, MatrixOrder::kAppend);
  TranslateWorldTransform(graphics, 10, 20, MatrixOrder::kAppend);
  ExpectMaps(graphics, {1, 1}, {12, 23});
}

TEST(WorldTransform, MultipliesInEitherOrder) {
  Graphics graphics = AtScreen();
  SetWorldTransform(graphics, {2, 0, 0, 2, 0, 0});
  MultiplyWorldTransform(graphics, {1, 0, 0, 1, 5, 0}, MatrixOrder::kPrepend);
  ExpectMaps(graphics, {0, 0}, {10, 0});
  MultiplyWorldTransform(graphics, {1, 0, 0, 1, 5, 0}, MatrixOrder::kAppend);
  ExpectMaps(graphics, {0, 0}, {15, 0});
}

TEST(WorldTransform, TurnsClockwiseWithYDownwards) {
  Graphics graphics = AtScreen();
  RotateWorldTransform(graphics, 30, MatrixOrder::kPrepend);
  ExpectMaps(graphics, {2, 0}, {std::sqrt(3.0), 1});
}

TEST(WorldTransform, KeepsRectanglesUnderRightAngles) {
  Graphics graphics = AtScreen();
  RotateWorldTransform(graphics, -450, MatrixOrder::kPrepend);
  EXPECT_TRUE(graphics.state.world.KeepsRectangles());
  ExpectMaps(graphics, {2, 0}, {0, -2});
}

TEST(WorldTransform, IsNotChangedByWhatIsNoNumber) {
  Graphics graphics = AtScreen();
  TranslateWorldTransform(graphics, 3, 4, MatrixOrder::kPrepend);
  SetWorldTransform(graphics, {1, 0, 0, 1, kNaN, 0});
  RotateWorldTransform(graphics, kNaN, MatrixOrder::kPrepend);
  ScaleWorldTransform(graphics, std::numeric_limits<float>::infinity(), 1, MatrixOrder::kAppend);
  SetPageTransform(graphics, EmfPlusUnit::kInch, kNaN);
  ExpectMaps(graphics, {0, 0}, {3, 4});
  EXPECT_EQ(graphics.state.pageUnit, EmfPlusUnit::kDisplay);
}

TEST(WorldTransform, StaysFiniteHoweverOftenItGrows) {
  Graphics graphics = AtScreen();
  for (int i = 0; i < 100; ++i)
    ScaleWorldTransform(graphics, 1e30F, 1, MatrixOrder::kPrepend);
  EXPECT_TRUE(graphics.state.world.IsFinite());
}

TEST(PageTransform, ScalesTheUnit) {
  Graphics graphics = AtScreen();
  SetPageTransform(graphics, EmfPlusUnit::kInch, 0.5F);
  TranslateWorldTransform(graphics, 1, 0, MatrixOrder::kPrepend);
  ExpectMaps(graphics, {1, 2}, {96, 96});
}

TEST(Restore, GoesBackToTheNewestStateOfItsLabel) {
  Graphics graphics = AtScreen();
  for (const float x : {1.0F, 2.0F, 3.0F}) {
    graphics.state.world.dx = x;
    Save(graphics, x == 2 ? 8 : 7);
  }
  graphics.state.world.dx = 9;
  Restore(graphics, 7);
  EXPECT_EQ(graphics.state.world.dx, 3);
  Restore(graphics, 7);
  EXPECT_EQ(graphics.state.world.dx, 1);
}

TEST(Restore, DropsWhatWasSavedSince) {
  Graphics graphics = AtScreen();
  Save(graphics, 1);
  graphics.state.world.dx = 5;
  Save(graphics, 2);
  Restore(graphics, 1);
  graphics.state.world.dx = 6;
  Restore(graphics, 2);
  EXPECT_EQ(graphics.state.world.dx, 6);
  EXPECT_EQ(graphics.saved.Count(), 0U);
}

TEST(Restore, ChangesNothingForALabelThatIsNotThere) {
  Graphics graphics = AtScreen();
  Save(graphics, 1);
  graphics.state.world.dx = 5;
  Restore(graphics, 3);
  EXPECT_EQ(graphics.state.world.dx, 5);
  EXPECT_EQ(graphics.saved.Count(), 1U);
}

// Were each label looked for, it would take ten thousand million looks.
TEST(Restore, FindsOutAtOnceAmongAHundredThousandStates) {
  Graphics graphics = AtScreen();
  constexpr std::uint32_t kMany = 100'000;
  for (std::uint32_t i = 0; i < kMany; ++i) {
    graphics.state.world.dx = i;
    Save(graphics, i);
  }
  for (std::uint32_t i = 0; i < kMany; ++i)
    Restore(graphics, kMany + i);
  EXPECT_EQ(graphics.saved.Count(), kMany);
  Restore(graphics, 0);
  EXPECT_EQ(graphics.saved.Count(), 0U);
}

TEST(Container, MapsItsSourceToItsDestinationInTheWorldAround) {
  Graphics graphics = AtScreen();
  SetWorldTransform(graphics, {1, 0, 0, 1, 100, 0});
  BeginContainer(graphics, {10, 10, 20, 40}, {0, 0, 10, 10}, EmfPlusUnit::kPixel, 1);
  ExpectMaps(graphics, {0, 0}, {110, 10});
  ExpectMaps(graphics, {10, 10}, {130, 50});
}

TEST(Container, CountsItsSourceInItsUnit) {
  Graphics graphics = AtScreen();
  BeginContainer(graphics, {0, 0, 50, 50}, {1, 0, 1, 1}, EmfPlusUnit::kInch, 1);
  ExpectMaps(graphics, {96, 0}, {0, 0});
  ExpectMaps(graphics, {192, 96}, {50, 50});
}

TEST(Container, StartsWithAWorldAndAPageOfItsOwn) {
  Graphics graphics = AtScreen();
  SetPageTransform(graphics, EmfPlusUnit::kPixel, 2);
  SetWorldTransform(graphics, {1, 0, 0, 1, 5, 0});
  graphics.state.pixelOffset = EmfPlusPixelOffsetMode::kHalf;
  BeginContainer(graphics, 1);
  EXPECT_EQ(graphics.state.pageScale, 1);
  EXPECT_EQ(graphics.state.pixelOffset, EmfPlusPixelOffsetMode::kDefault);
  SetWorldTransform(graphics, {3, 0, 0, 3, 0, 0});
  ExpectMaps(graphics, {1, 0}, {16, 0});
  ResetWorldTransform(graphics);
  ExpectMaps(graphics, {1, 0}, {12, 0});
}

TEST(Container, BringsAllBackAtItsEnd) {
  Graphics graphics = AtScreen();
  SetWorldTransform(graphics, {1, 0, 0, 1, 5, 0});
  const GraphicsState before = graphics.state;
  BeginContainer(graphics, 4);
  SetWorldTransform(graphics, {9, 0, 0, 9, 0, 0});
  SetClip(graphics, RectF{0, 0, 1, 1}, EmfPlusCombineMode::kReplace);
  EndContainer(graphics, 4);
  EXPECT_EQ(graphics.state, before);
}

TEST(Container, WithoutASizeOfItsSourceMapsNothing) {
  Graphics graphics = AtScreen();
  BeginContainer(graphics, {10, 10, 20, 40}, {0, 0, 0, 10}, EmfPlusUnit::kPixel, 1);
  ExpectMaps(graphics, {7, 8}, {7, 8});
}

TEST(Container, IsCutToTheClipsAroundIt) {
  Graphics graphics = AtScreen();
  SetClip(graphics, RectF{0, 0, 20, 20}, EmfPlusCombineMode::kReplace);
  BeginContainer(graphics, 1);
  EXPECT_FALSE(graphics.state.clip.HasClip());
  SetClip(graphics, RectF{10, 0, 50, 50}, EmfPlusCombineMode::kReplace);
  EXPECT_TRUE(Contains(graphics.state.clip, {15, 5}));
  EXPECT_FALSE(Contains(graphics.state.clip, {5, 5}));
  EXPECT_FALSE(Contains(graphics.state.clip, {30, 5}));
  ResetClip(graphics);
  EXPECT_TRUE(Contains(graphics.state.clip, {5, 5}));
  EXPECT_FALSE(Contains(graphics.state.clip, {30, 5}));
}

}  // namespace
}  // namespace kelvane::gdiplus
