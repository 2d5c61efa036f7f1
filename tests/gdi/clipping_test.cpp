#include "gdi/clipping.h"

#include <numbers>

#include <gtest/gtest.h>

#include "gdi/area_points.h"
#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/stored_array.h"

namespace kelvane {
namespace {

constexpr ReferenceDevice kDevice = {{1280, 960}, {320, 240}, 0, 1280};
constexpr XForm kTwice = {2, 0, 0, 2, 0, 0};

/// The clip, which must be one cut.
Area ClipOf(const DeviceContext& device) {
  const auto& innermost = device.state.clip.Innermost();
  EXPECT_NE(innermost, nullptr);
  EXPECT_EQ(innermost->Depth(), 1U);
  return innermost->CutTo();
}

bool Paints(const DeviceContext& device, PointD point) {
  return Contains(device.state.clip, point);
}

std::shared_ptr<const CGPath> Triangle() {
  CGPath path;
  for (const CGPoint point : {CGPoint{0, 0}, CGPoint{8, 0}, CGPoint{0, 8}})
    path.LineTo(point);
  return std::make_shared<CGPath>(path);
}

TEST(IntersectClipRect, TakesLogicalUnitsAndCornersInAnyOrder) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(SetWorldTransform(device, kTwice));
  ASSERT_TRUE(IntersectClipRect(device, {10, 20, 3, 4}));
  EXPECT_EQ(ClipOf(device), Area(Region({6, 8, 20, 40})));
}

TEST(IntersectClipRect, StaysWhereItWasWhenTheMappingChanges) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {1, 2, 3, 4}));
  ASSERT_TRUE(SetWorldTransform(device, kTwice));
  EXPECT_EQ(ClipOf(device), Area(Region({1, 2, 3, 4})));
}

TEST(IntersectClipRect, TurnsWithTheWorld) {
  DeviceContext device(kDevice);
  constexpr float kHalf = std::numbers::sqrt2_v<float> / 2;
  ASSERT_TRUE(SetWorldTransform(device, {kHalf, kHalf, -kHalf, kHalf, 0, 0}));
  ASSERT_TRUE(IntersectClipRect(device, {-10, -10, 10, 10}));
  EXPECT_TRUE(Paints(device, {13, 0}));
  EXPECT_FALSE(Paints(device, {8, 8}));
}

TEST(IntersectClipRect, SaturatesWhereFilesMeanNoEnd) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(SetWorldTransform(device, kTwice));
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 2147483647, 2147483647}));
  EXPECT_TRUE(Paints(device, {99, 99}));
  EXPECT_FALSE(Paints(device, {-1, 5}));
}

TEST(IntersectClipRect, OfNothingHidesAll) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {5, 5, 5, 9}));
  EXPECT_EQ(ClipOf(device), Area(Region()));
}

TEST(ExcludeClipRect, CutsAHole) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(ExcludeClipRect(device, {1, 1, 2, 2}));
  EXPECT_FALSE(Paints(device, {1.5, 1.5}));
  EXPECT_TRUE(Paints(device, {2.5, 1.5}));
}

TEST(OffsetClipRgn, MovesByALogicalVector) {
  DeviceContext device(kDevice);
  SetViewportOrgEx(device, {100, 100});
  ASSERT_TRUE(SetWorldTransform(device, kTwice));
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 5, 5}));
  ASSERT_TRUE(OffsetClipRgn(device, {1, -2}));
  EXPECT_EQ(ClipOf(device), Area(Region({102, 96, 112, 106})));
}

TEST(OffsetClipRgn, DoesNothingWithoutAClip) {
  DeviceContext device(kDevice);
  EXPECT_TRUE(OffsetClipRgn(device, {1, 1}));
  EXPECT_FALSE(device.state.clip.HasClip());
}

TEST(ExtSelectClipRgn, TakesDeviceUnitsWhateverTheMapping) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(SetWorldTransform(device, kTwice));
  const StoredRectangles rectangles = {{1, 2, 3, 4}};
  ASSERT_TRUE(ExtSelectClipRgn(device, rectangles.View(), RGN_COPY));
  EXPECT_EQ(ClipOf(device), Area(Region({1, 2, 3, 4})));
}

TEST(ExtSelectClipRgn, CombinesWithTheClip) {
  const StoredRectangles there = {{0, 0, 4, 4}};
  const StoredRectangles added = {{2, 0, 6, 4}};
  const struct {
    RegionMode mode;
    Area expected;
  } rows[] = {
      {RGN_AND, Region({2, 0, 4, 4})},
      {RGN_OR, Region({0, 0, 6, 4})},
      {RGN_DIFF, Region({0, 0, 2, 4})},
      {RGN_COPY, Region({2, 0, 6, 4})},
      {RGN_XOR, AreaOf(std::vector<RectangleD>{{0, 0, 2, 4}, {4, 0, 6, 4}})},
  };
  for (const auto& [mode, expected] : rows) {
    DeviceContext device(kDevice);
    ASSERT_TRUE(ExtSelectClipRgn(device, there.View(), RGN_COPY));
    ASSERT_TRUE(ExtSelectClipRgn(device, added.View(), mode));
    EXPECT_EQ(ClipOf(device), expected) << mode;
  }
}

TEST(ExtSelectClipRgn, DropsTheClipByACopyOfNothing) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 9, 9}));
  SetMetaRgn(device);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 5, 5}));
  ASSERT_TRUE(ExtSelectClipRgn(device, std::nullopt, RGN_COPY));
  EXPECT_EQ(ClipOf(device), Area(Region({0, 0, 9, 9})));
}

TEST(ExtSelectClipRgn, FailsWithoutDataInOtherModes) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 9, 9}));
  for (const RegionMode mode : {RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF}) {
    EXPECT_FALSE(ExtSelectClipRgn(device, std::nullopt, mode)) << mode;
  }
  EXPECT_EQ(ClipOf(device), Area(Region({0, 0, 9, 9})));
}

TEST(ExtSelectClipRgn, HidesAllByACopyOfNoRectangles) {
  DeviceContext device(kDevice);
  const StoredRectangles none = {};
  ASSERT_TRUE(ExtSelectClipRgn(device, none.View(), RGN_COPY));
  EXPECT_EQ(ClipOf(device), Area(Region()));
}

TEST(SelectClipPath, CutsToThePathAndUsesItUp) {
  DeviceContext device(kDevice);
  device.state.path = Triangle();
  ASSERT_TRUE(SelectClipPath(device, RGN_AND));
  EXPECT_TRUE(Paints(device, {2, 2}));
  EXPECT_FALSE(Paints(device, {7, 7}));
  EXPECT_EQ(device.state.path, nullptr);
  EXPECT_FALSE(SelectClipPath(device, RGN_AND));
}

TEST(SelectClipPath, JoinsThePathToTheClip) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {10, 10, 20, 20}));
  device.state.path = Triangle();
  ASSERT_TRUE(SelectClipPath(device, RGN_OR));
  EXPECT_TRUE(Paints(device, {2, 2}));
  EXPECT_TRUE(Paints(device, {15, 15}));
  EXPECT_FALSE(Paints(device, {7, 7}));
}

TEST(SelectClipPath, CountsTheFillModeOfNow) {
  CGPath twice;  // the same square, wound twice
  for (int i = 0; i < 2; ++i)
    twice.AddRectangle({0, 0}, {4, 4});
  for (const PolyFillMode mode : {ALTERNATE, WINDING}) {
    DeviceContext device(kDevice);
    device.state.path = std::make_shared<CGPath>(twice);
    ASSERT_TRUE(SetPolyFillMode(device, mode));
    ASSERT_TRUE(SelectClipPath(device, RGN_COPY));
    ASSERT_TRUE(SetPolyFillMode(device, ALTERNATE));
    EXPECT_EQ(Paints(device, {2, 2}), mode == WINDING);
  }
}

TEST(SelectClipPath, FailsForAnEmptyPath) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 9, 9}));
  device.state.path = std::make_shared<CGPath>();
  EXPECT_FALSE(SelectClipPath(device, RGN_COPY));
  EXPECT_EQ(ClipOf(device), Area(Region({0, 0, 9, 9})));
}

TEST(SetMetaRgn, CutsAllThatComesUntilRestoreDC) {
  DeviceContext device(kDevice);
  SaveDC(device);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 9, 9}));
  SetMetaRgn(device);
  const StoredRectangles wide = {{5, 5, 50, 50}};
  ASSERT_TRUE(ExtSelectClipRgn(device, wide.View(), RGN_COPY));
  EXPECT_TRUE(Paints(device, {6, 6}));
  EXPECT_FALSE(Paints(device, {20, 20}));
  ASSERT_TRUE(RestoreDC(device, -1));
  EXPECT_TRUE(Paints(device, {20, 20}));
}

// Each call adds a rectangle to all those before it.
TEST(Clipping, OfAHostileFileFailsInTheEnd) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 1, 1}));
  bool failed = false;
  for (int i = 1; i < 100000 && !failed; ++i) {
    const StoredRectangles next = {{2 * i, 2 * i, 2 * i + 1, 2 * i + 1}};
    failed = !ExtSelectClipRgn(device, next.View(), RGN_OR);
  }
  EXPECT_TRUE(failed);
  EXPECT_TRUE(Paints(device, {2.5, 2.5}));
}

TEST(Clipping, ByAHundredThousandRectanglesNeverFails) {
  DeviceContext device(kDevice);
  for (int i = 0; i < 100000; ++i) {
    ASSERT_TRUE(IntersectClipRect(device, {-i, -i, 1000000 - i, 1000000 - i}));
    ASSERT_TRUE(ExcludeClipRect(device, {3 * i, 3 * i, 3 * i + 1, 3 * i + 1}));
  }
}

}  // namespace
}  // namespace kelvane
