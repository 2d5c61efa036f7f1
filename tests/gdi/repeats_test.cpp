#include <cstddef>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "gdi/attributes.h"
#include "gdi/clipping.h"
#include "gdi/font_book.h"
#include "gdi/lines.h"
#include "gdi/path_brackets.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/text_output.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr std::int32_t kManyPoints = 20'000;
constexpr int kManyTimes = 300;

/// Begins and ends a path of many points.
void MakeLargePath(TracedDevice& device) {
  BeginPath(device);
  MoveToEx(device, {0, 0});
  for (std::int32_t i = 1; i < kManyPoints; ++i)
    LineTo(device, {i, i % 2});
  EndPath(device);
}

std::size_t CountOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

TEST(Repeats, OfASavedPathEndWhenTheyTakeTooMuch) {
  TracedDevice device;
  MakeLargePath(device);
  for (int i = 0; i < kManyTimes; ++i) {
    SaveDC(device);
    StrokePath(device);
    RestoreDC(device, -1);
  }
  const std::size_t strokes = CountOf(device.Take(), "stroke\n");
  EXPECT_GT(strokes, 100U);
  EXPECT_LT(strokes, kManyTimes);
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kDrawnTooOften));
}

TEST(Repeats, OfALargeClipEndWhenTheyTakeTooMuch) {
  TracedDevice device;
  MakeLargePath(device);
  SelectClipPath(device, RGN_COPY);
  for (int i = 0; i < kManyTimes; ++i) {
    SaveDC(device);
    ExtSelectClipRgn(device, std::nullopt, RGN_COPY);
    Rectangle(device, {0, 0, 5, 5});
    RestoreDC(device, -1);
    Rectangle(device, {0, 0, 5, 5});
  }
  const std::size_t clips = CountOf(device.Take(), "eo-clip\n");
  EXPECT_GT(clips, 100U);
  EXPECT_LT(clips, kManyTimes);
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kDrawnTooOften));
}

// Each of its letters has more than ten elements.
TEST(TextInABracket, EndsWhenItsOutlinesTakeTooMuch) {
  const FontMap noWishes;
  FontBook fonts(FontRegistry::Shared(), AnyFont, noWishes);
  TracedDevice device;
  device->fonts = &fonts;
  SetBkMode(device, TRANSPARENT);
  BeginPath(device);
  for (int i = 0; i < kManyTimes; ++i)
    ExtTextOut(device, {}, std::u16string(kManyPoints / 10, u'B'));
  EndPath(device);
  EXPECT_TRUE(device->shortfalls.Has(Shortfall::kDrawnTooOften));
  EXPECT_LT(device->state.path->Reached().elements, 1U << 23);
}

TEST(Repeats, OfSmallThingsGoOn) {
  TracedDevice device;
  IntersectClipRect(device, {0, 0, 50, 50});
  for (int i = 0; i < kManyTimes; ++i) {
    SaveDC(device);
    ExtSelectClipRgn(device, std::nullopt, RGN_COPY);
    Rectangle(device, {0, 0, 5, 5});
    RestoreDC(device, -1);
    Rectangle(device, {0, 0, 5, 5});
  }
  EXPECT_TRUE(device->shortfalls.IsEmpty());
}

}  // namespace
}  // namespace kelvane
