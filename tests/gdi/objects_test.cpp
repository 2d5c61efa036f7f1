#include "gdi/objects.h"

#include <string>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/coordinates.h"
#include "gdi/stored_array.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr ReferenceDevice kDevice = {{1280, 960}, {320, 240}, 0, 1280};
constexpr ColorRef kRed = {0x0000FF};
constexpr RgbColor kRedRgb = {255, 0, 0};
constexpr RgbColor kBlueRgb = {0, 0, 255};

Pen PenOfWidth(std::int32_t width) {
  return CreatePenIndirect({PS_SOLID, {width, 0}, kRed});
}

std::u16string FaceOf(const LogFont& font) {
  return font.faceName.data();
}

TEST(Objects, AreSelectedByTheirKind) {
  DeviceContext device(kDevice);
  device.objects.Set(1, PenOfWidth(7));
  device.objects.Set(2, CreateSolidBrush(kRed));
  LogFont font;
  font.height = 30;
  device.objects.Set(3, font);
  for (const std::uint32_t handle : {1U, 2U, 3U})
    EXPECT_TRUE(SelectObject(device, handle));
  EXPECT_EQ(device.state.pen->width, 7);
  EXPECT_EQ(device.state.brush->color, kRed);
  EXPECT_EQ(device.state.font->height, 30);
}

TEST(Objects, StayInUseWhenTheyAreDeleted) {
  DeviceContext device(kDevice);
  device.objects.Set(1, PenOfWidth(7));
  ASSERT_TRUE(SelectObject(device, 1));
  DeleteObject(device, 1);
  EXPECT_EQ(device.state.pen->width, 7);
  EXPECT_FALSE(SelectObject(device, 1));
  EXPECT_EQ(device.state.pen->width, 7);
}

TEST(Objects, StayInUseWhenOthersTakeTheirPlace) {
  DeviceContext device(kDevice);
  device.objects.Set(1, PenOfWidth(7));
  ASSERT_TRUE(SelectObject(device, 1));
  device.objects.Set(1, PenOfWidth(9));
  EXPECT_EQ(device.state.pen->width, 7);
  ASSERT_TRUE(SelectObject(device, 1));
  EXPECT_EQ(device.state.pen->width, 9);
}

TEST(Objects, ThatAreMissingChangeNothing) {
  DeviceContext device(kDevice);
  const DeviceState before = device.state;
  for (const std::uint32_t handle : {0U, 5U, 0x7FFFFFFFU, 0x80000009U, 0x80000014U, 0xFFFFFFFFU})
    EXPECT_FALSE(SelectObject(device, handle)) << handle;
  EXPECT_EQ(device.state, before);
}

TEST(Objects, AreOnlyWhereAHeaderCanHaveThem) {
  DeviceContext device(kDevice);
  for (const std::uint32_t index : {0U, 0x10000U, 0xFFFFFFFFU}) {
    device.objects.Set(index, PenOfWidth(7));
    EXPECT_FALSE(SelectObject(device, index)) << index;
  }
  device.objects.Set(0xFFFF, PenOfWidth(7));
  EXPECT_TRUE(SelectObject(device, 0xFFFF));
}

TEST(StockObjects, AreSelectedAtFirst) {
  const DeviceContext device(kDevice);
  EXPECT_EQ(device.state.pen, device.objects.Find<const Pen>(BLACK_PEN));
  EXPECT_EQ(device.state.brush, device.objects.Find<const Brush>(WHITE_BRUSH));
  EXPECT_EQ(device.state.font, device.objects.Find<const LogFont>(SYSTEM_FONT));
  EXPECT_EQ(device.state.palette, device.objects.Find<Palette>(DEFAULT_PALETTE));
}

TEST(StockObjects, HaveTheColorsOfTheirNames) {
  const DeviceContext device(kDevice);
  const struct {
    StockObject handle;
    RgbColor color;
  } rows[] = {
      {WHITE_BRUSH, {255, 255, 255}}, {LTGRAY_BRUSH, {0xC0, 0xC0, 0xC0}},
      {GRAY_BRUSH, {128, 128, 128}},  {DKGRAY_BRUSH, {64, 64, 64}},
      {BLACK_BRUSH, {0, 0, 0}},       {DC_BRUSH, {255, 255, 255}},
  };
  for (const auto& [handle, color] : rows) {
    const BrushPaint paint = ResolveBrush(device, *device.objects.Find<const Brush>(handle));
    EXPECT_EQ(paint.kind, Brush::Kind::kSolid) << handle;
    EXPECT_EQ(paint.color, color) << handle;
  }
  EXPECT_EQ(device.objects.Find<const Brush>(NULL_BRUSH)->kind, Brush::Kind::kNull);
}

TEST(StockObjects, HavePensAsThinAsAPixel) {
  DeviceContext device(kDevice);
  const struct {
    StockObject handle;
    RgbColor color;
  } rows[] = {{WHITE_PEN, {255, 255, 255}}, {BLACK_PEN, {0, 0, 0}}, {DC_PEN, {0, 0, 0}}};
  for (const auto& [handle, color] : rows) {
    ASSERT_TRUE(SelectObject(device, handle));
    EXPECT_EQ(ResolvePen(device).width, 0) << handle;
    EXPECT_EQ(ResolveBrush(device, device.state.pen->brush).color, color) << handle;
  }
  ASSERT_TRUE(SelectObject(device, NULL_PEN));
  EXPECT_TRUE(ResolvePen(device).isNull);
}

TEST(StockObjects, HaveSevenFonts) {
  const DeviceContext device(kDevice);
  const struct {
    StockObject handle;
    const char16_t* face;
    std::int32_t height;
  } rows[] = {
      {OEM_FIXED_FONT, u"Terminal", 12},        {ANSI_FIXED_FONT, u"Courier", 12},
      {ANSI_VAR_FONT, u"MS Sans Serif", 12},    {SYSTEM_FONT, u"System", 0},
      {DEVICE_DEFAULT_FONT, u"System", 0},      {SYSTEM_FIXED_FONT, u"Fixedsys", 0},
      {DEFAULT_GUI_FONT, u"MS Shell Dlg", -11},
  };
  for (const auto& [handle, face, height] : rows) {
    const auto font = device.objects.Find<const LogFont>(handle);
    ASSERT_NE(font, nullptr) << handle;
    EXPECT_EQ(FaceOf(*font), face);
    EXPECT_EQ(font->height, height);
    EXPECT_EQ(font->weight, FaceOf(*font) == u"System" ? 700 : 400);
  }
}

TEST(StockObjects, CannotBeDeleted) {
  DeviceContext device(kDevice);
  DeleteObject(device, WHITE_PEN);
  EXPECT_TRUE(SelectObject(device, WHITE_PEN));
}

TEST(Palettes, AreSelectedApartFromOtherObjects) {
  DeviceContext device(kDevice);
  device.objects.Set(1, Palette({kRedRgb}));
  device.objects.Set(2, PenOfWidth(7));
  EXPECT_FALSE(SelectObject(device, 1));
  EXPECT_FALSE(SelectPalette(device, 2));
  EXPECT_TRUE(SelectPalette(device, 1));
  EXPECT_EQ(ResolveColor(device, {0x01000000}), kRedRgb);
  EXPECT_TRUE(SelectPalette(device, DEFAULT_PALETTE));
  EXPECT_EQ(ResolveColor(device, {0x01000000}), RgbColor());
}

TEST(Palettes, ChangeWhereTheyAreSelected) {
  DeviceContext device(kDevice);
  device.objects.Set(1, Palette({kRedRgb}));
  ASSERT_TRUE(SelectPalette(device, 1));
  ASSERT_TRUE(ResizePalette(device, 1, 2));
  const StoredPaletteEntries blue = {kBlueRgb};
  ASSERT_TRUE(SetPaletteEntries(device, 1, 1, blue.View()));
  EXPECT_EQ(ResolveColor(device, {0x01000001}), kBlueRgb);
}

TEST(Palettes, OfTheSystemStayAsTheyAre) {
  DeviceContext device(kDevice);
  const StoredPaletteEntries blue = {kBlueRgb};
  EXPECT_FALSE(SetPaletteEntries(device, DEFAULT_PALETTE, 0, blue.View()));
  EXPECT_FALSE(ResizePalette(device, DEFAULT_PALETTE, 5));
  EXPECT_FALSE(SetPaletteEntries(device, 5, 0, blue.View()));
}

TEST(Pens, BecomeThinByTheMapping) {
  DeviceContext device(kDevice);
  device.objects.Set(1, CreatePenIndirect({PS_DASH, {10, 0}, kRed}));
  ASSERT_TRUE(SelectObject(device, 1));
  EXPECT_TRUE(ResolvePen(device).dashes.empty());
  ASSERT_TRUE(SetWorldTransform(device, {0.1F, 0, 0, 0.1F, 0, 0}));
  EXPECT_FALSE(ResolvePen(device).dashes.empty());
  EXPECT_TRUE(ResolvePen(device).paintsGaps);
  ASSERT_TRUE(SetBkMode(device, TRANSPARENT));
  EXPECT_FALSE(ResolvePen(device).paintsGaps);
}

TEST(Pens, AreThinByAScreensPixelsWhereNobodyKnowsTheDevice) {
  TracedDevice device({}, {960, 960});
  device.Select(1, CreatePenIndirect({PS_DASH, {10, 0}, kRed}));
  EXPECT_TRUE(ResolvePen(device).dashes.empty());
  device->isForAnyDevice = true;
  EXPECT_FALSE(ResolvePen(device).dashes.empty());
  device.Select(1, CreatePenIndirect({PS_SOLID, {10, 0}, kRed}));
  EXPECT_EQ(ResolvePen(device).endCap, PS_ENDCAP_ROUND);
}

}  // namespace
}  // namespace kelvane
