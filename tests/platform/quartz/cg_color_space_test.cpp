#include "platform/quartz/cg_color_space.h"

#include <array>
#include <limits>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

TEST(CGColorSpace, HasOneComponentForGreyAndThreeForRGB) {
  const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  EXPECT_EQ(gray->components, 1U);
  EXPECT_EQ(rgb->components, 3U);
}

TEST(MakeColor, TakesRedGreenBlueAndAlpha) {
  constexpr std::array<CGFloat, 4> kComponents = {0.25F, 0.5F, 0.75F, 0.125F};
  EXPECT_EQ(MakeColor(kComponents.data(), 3), (CGColor{0.25F, 0.5F, 0.75F, 0.125F}));
}

TEST(MakeColor, SpreadsGreyOverAllThree) {
  constexpr std::array<CGFloat, 2> kComponents = {0.25F, 0.5F};
  EXPECT_EQ(MakeColor(kComponents.data(), 1), (CGColor{0.25F, 0.25F, 0.25F, 0.5F}));
}

TEST(MakeColor, BringsComponentsIntoRange) {
  constexpr CGFloat kInfinity = std::numeric_limits<CGFloat>::infinity();
  constexpr std::array<CGFloat, 4> kComponents = {-0.1F, 1.1F, kInfinity, -kInfinity};
  EXPECT_EQ(MakeColor(kComponents.data(), 3), (CGColor{0, 1, 1, 0}));
}

TEST(MakeColor, TakesNotANumberForZero) {
  constexpr CGFloat kNaN = std::numeric_limits<CGFloat>::quiet_NaN();
  constexpr std::array<CGFloat, 4> kComponents = {kNaN, 1, kNaN, kNaN};
  EXPECT_EQ(MakeColor(kComponents.data(), 3), (CGColor{0, 1, 0, 0}));
}

}  // namespace
}  // namespace kelvane
