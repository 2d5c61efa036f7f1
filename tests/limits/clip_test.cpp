// What clips of many rectangles, many clips and dashes next to nothing may take. Steps and lines of
// a trace are counted, which are the same on every machine.

#include <algorithm>
#include <string>

#include <gtest/gtest.h>

#include "gdi/clipping.h"
#include "gdi/coordinates.h"
#include "gdi/lines.h"
#include "gdi/shapes.h"
#include "gdi/stored_array.h"
#include "gdi/test_pens.h"
#include "gdi/traced_device.h"

namespace kelvane {
namespace {

constexpr std::size_t kMany = 100000;

StoredRectangles Scattered(std::size_t count, std::int32_t offset) {
  StoredRectangles rectangles({});
  for (std::size_t i = 0; i < count; ++i) {
    const auto left = static_cast<std::int32_t>(i % 500 * 2) + offset;
    const auto top = static_cast<std::int32_t>(i / 500 * 2) + offset;
    rectangles.Add({left, top, left + 1, top + 1});
  }
  return rectangles;
}

std::size_t LineCount(const std::string& trace) {
  return static_cast<std::size_t>(std::ranges::count(trace, '\n'));
}

/// Expects twice as many to take twice as much, but for what it takes to begin with.
void ExpectLinear(std::size_t ofHalf, std::size_t ofAll) {
  EXPECT_GT(ofAll, 0U);
  EXPECT_LT(ofAll, ofHalf * 21 / 10);
}

class RegionClip : public testing::TestWithParam<RegionMode> {
 protected:
  /// Joins rectangles to as many others. @return the steps that this leaves less of.
  static std::size_t StepsFor(std::size_t count) {
    TracedDevice device;
    *device->clipSteps = Steps(100 * count);
    EXPECT_TRUE(ExtSelectClipRgn(device, Scattered(count, 0).View(), RGN_COPY));
    EXPECT_TRUE(ExtSelectClipRgn(device, Scattered(count, 1).View(), GetParam()));
    const std::size_t added = 2 * (256 + 16 * count);  // by the calls
    return 100 * count + added - device->clipSteps->Left();
  }
};

TEST_P(RegionClip, TakesStepsInProportionToItsRectangles) {
  ExpectLinear(StepsFor(kMany / 2), StepsFor(kMany));
}

INSTANTIATE_TEST_SUITE_P(, RegionClip, testing::Values(RGN_AND, RGN_OR, RGN_XOR, RGN_DIFF));

TEST(ClipOfRectangles, IsWrittenOnceForAllMarksUnderIt) {
  TracedDevice device;
  EXPECT_TRUE(ExtSelectClipRgn(device, Scattered(kMany, 0).View(), RGN_COPY));
  for (std::size_t i = 0; i < kMany; ++i)
    Rectangle(device, {0, 0, 4, 4});
  EXPECT_LT(LineCount(device.Take()), 10 * kMany);
}

/// @return the lines of a trace of marks, each under one more rectangle cut from the clip.
std::size_t LinesOfCuts(std::size_t count, bool (*cut)(DeviceContext&, const RectangleL&)) {
  TracedDevice device;
  for (std::size_t i = 0; i < count; ++i) {
    const auto at = static_cast<std::int32_t>(i);
    EXPECT_TRUE(cut(device, {-at, at % 1000, 500, at % 1000 + 500000}));
    SetPixelV(device, {600, 0}, {});
    DrawPendingMarks(device);
  }
  EXPECT_TRUE(device->shortfalls.IsEmpty());
  return LineCount(device.Take());
}

TEST(CutClip, IsWrittenInProportionToTheCallsThatIntersectIt) {
  ExpectLinear(LinesOfCuts(kMany / 2, IntersectClipRect), LinesOfCuts(kMany, IntersectClipRect));
}

TEST(CutClip, IsWrittenInProportionToTheCallsThatExcludeFromIt) {
  ExpectLinear(LinesOfCuts(kMany / 2, ExcludeClipRect), LinesOfCuts(kMany, ExcludeClipRect));
}

// A dash is a millionth of a point, and a line has a thousand points.
TEST(ShortDashes, AreALineForEachOfAHundredThousand) {
  TracedDevice device;
  SetWorldTransform(device, {1e-6F, 0, 0, 1e-6F, 0, 0});
  device.Select(1, GeometricPen(PS_USERSTYLE | PS_ENDCAP_FLAT, 1, {}, {1, 1}));
  const StoredPoints line({{0, 0}, {1000000000, 0}});
  for (std::size_t i = 0; i < kMany; ++i)
    Polyline(device, line.View());
  const std::string trace = device.Take();
  EXPECT_LT(LineCount(trace), 3 * kMany + 10);
  EXPECT_EQ(trace.find("line-dash"), std::string::npos);
}

}  // namespace
}  // namespace kelvane
