#include "gdi/device_context.h"

#include <limits>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/objects.h"

namespace kelvane {
namespace {

constexpr ReferenceDevice kDevice = {{1280, 960}, {320, 240}, 0, 1280};

DeviceState& Colored(DeviceContext& device, std::uint32_t color) {
  SetTextColor(device, {color});
  return device.state;
}

/// A context with levels 1, 2 and 3 saved, of the colours 1, 2 and 3.
DeviceContext Saved() {
  DeviceContext device(kDevice);
  for (std::uint32_t color = 1; color <= 3; ++color) {
    Colored(device, color);
    EXPECT_EQ(SaveDC(device), static_cast<int>(color));
  }
  Colored(device, 9);
  return device;
}

TEST(RestoreDC, GoesUpByNegativeLevels) {
  for (const int up : {1, 2, 3}) {
    DeviceContext device = Saved();
    EXPECT_TRUE(RestoreDC(device, -up));
    EXPECT_EQ(device.state.textColor.value, static_cast<std::uint32_t>(4 - up));
    EXPECT_EQ(device.saved.Depth(), static_cast<std::size_t>(3 - up));
  }
}

TEST(RestoreDC, GoesToPositiveLevels) {
  for (const int level : {1, 2, 3}) {
    DeviceContext device = Saved();
    EXPECT_TRUE(RestoreDC(device, level));
    EXPECT_EQ(device.state.textColor.value, static_cast<std::uint32_t>(level));
    EXPECT_EQ(SaveDC(device), level);
  }
}

TEST(RestoreDC, IgnoresLevelsThatAreNotThere) {
  DeviceContext device = Saved();
  for (const int level :
       {0, 4, -4, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    EXPECT_FALSE(RestoreDC(device, level)) << level;
  EXPECT_EQ(device.state.textColor.value, 9U);
  EXPECT_EQ(device.saved.Depth(), 3U);
}

TEST(RestoreDC, BringsBackTheWholeState) {
  DeviceContext device(kDevice);
  const DeviceState before = device.state;
  SaveDC(device);
  device.objects.Set(1, CreateSolidBrush({5}));
  device.objects.Set(2, Palette({{1, 2, 3}}));
  EXPECT_TRUE(SelectObject(device, 1) && SelectObject(device, WHITE_PEN));
  EXPECT_TRUE(SelectObject(device, DEFAULT_GUI_FONT) && SelectPalette(device, 2));
  EXPECT_TRUE(SetMapMode(device, MM_LOMETRIC));
  SetTextColor(device, {1});
  SetBkColor(device, {2});
  EXPECT_TRUE(SetBkMode(device, TRANSPARENT) && SetROP2(device, R2_XORPEN));
  EXPECT_TRUE(SetPolyFillMode(device, WINDING) && SetStretchBltMode(device, STRETCH_HALFTONE));
  EXPECT_TRUE(SetArcDirection(device, AD_CLOCKWISE) && SetMiterLimit(device, 3));
  SetTextAlign(device, TA_BASELINE);
  SetBrushOrgEx(device, {4, 5});
  device.state.currentPosition = {6, 7};
  device.state.path = std::make_shared<CGPath>();
  EXPECT_TRUE(IntersectClipRect(device, {0, 0, 5, 5}));
  SetMetaRgn(device);
  EXPECT_NE(device.state, before);
  ASSERT_TRUE(RestoreDC(device, -1));
  EXPECT_EQ(device.state, before);
}

TEST(RestoreDC, LeavesTheObjectTableAlone) {
  DeviceContext device(kDevice);
  SaveDC(device);
  device.objects.Set(1, CreateSolidBrush({5}));
  ASSERT_TRUE(RestoreDC(device, -1));
  EXPECT_TRUE(SelectObject(device, 1));
}

// A million times the size of a state would be some hundred megabytes.
TEST(SaveDC, KeepsAStateOnceHoweverOftenItIsSaved) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(IntersectClipRect(device, {0, 0, 5, 5}));
  for (int i = 1; i <= 1000000; ++i)
    ASSERT_EQ(SaveDC(device), i);
  Colored(device, 9);
  ASSERT_TRUE(RestoreDC(device, -999999));
  EXPECT_EQ(device.saved.Depth(), 1U);
  EXPECT_EQ(device.state.textColor.value, 0U);
}

TEST(Attributes, StartAsWindowsHasThem) {
  const DeviceContext device(kDevice);
  const DeviceState& state = device.state;
  EXPECT_EQ(state.textColor.value, 0U);
  EXPECT_EQ(state.backgroundColor.value, 0xFFFFFFU);
  EXPECT_EQ(state.backgroundMode, OPAQUE);
  EXPECT_EQ(state.rop2, R2_COPYPEN);
  EXPECT_EQ(state.polyFillMode, ALTERNATE);
  EXPECT_EQ(state.stretchMode, STRETCH_ANDSCANS);
  EXPECT_EQ(state.arcDirection, AD_COUNTERCLOCKWISE);
  EXPECT_EQ(state.miterLimit, 10);
  EXPECT_EQ(state.currentPosition, PointD());
  EXPECT_EQ(state.mapping.ToDevice(), TransformD());
  EXPECT_FALSE(state.clip.HasClip());
}

TEST(Attributes, IgnoreValuesWithoutAMeaning) {
  DeviceContext device(kDevice);
  const DeviceState before = device.state;
  for (const std::uint32_t none : {0U, 17U, 0xFFFFFFFFU}) {
    EXPECT_FALSE(SetBkMode(device, static_cast<BackgroundMode>(none)));
    EXPECT_FALSE(SetROP2(device, static_cast<BinaryRasterOperation>(none)));
    EXPECT_FALSE(SetPolyFillMode(device, static_cast<PolyFillMode>(none)));
    EXPECT_FALSE(SetStretchBltMode(device, static_cast<StretchMode>(none)));
    EXPECT_FALSE(SetArcDirection(device, static_cast<ArcDirection>(none)));
  }
  for (const float none : {0.5F, -3.F, std::numeric_limits<float>::infinity(),
                           std::numeric_limits<float>::quiet_NaN()})
    EXPECT_FALSE(SetMiterLimit(device, none));
  EXPECT_EQ(device.state, before);
}

TEST(Coordinates, GoToTheDeviceAndBack) {
  DeviceContext device(kDevice);
  ASSERT_TRUE(SetMapMode(device, MM_ANISOTROPIC));
  ASSERT_TRUE(SetWindowExtEx(device, {10, 10}));
  ASSERT_TRUE(SetViewportExtEx(device, {20, 40}));
  ASSERT_TRUE(ScaleWindowExtEx(device, 1, 2, 1, 1));
  ASSERT_TRUE(ScaleViewportExtEx(device, 1, 1, 1, 2));
  SetWindowOrgEx(device, {1, 1});
  SetViewportOrgEx(device, {100, 100});
  ASSERT_TRUE(ModifyWorldTransform(device, {1, 0, 0, 1, 1, 1}, MWT_LEFTMULTIPLY));
  EXPECT_EQ(LPtoDP(device, {5, 5}), (PointD{120, 110}));
  EXPECT_EQ(DPtoLP(device, {120, 110}), (PointD{5, 5}));
  SetLayout(device, LAYOUT_RTL);
  EXPECT_EQ(LPtoDP(device, {5, 5}), (PointD{1280 - 120, 110}));
  ASSERT_TRUE(SetWorldTransform(device, {}));
  EXPECT_EQ(DPtoLP(device, {0, 0}), std::nullopt);
}

}  // namespace
}  // namespace kelvane
