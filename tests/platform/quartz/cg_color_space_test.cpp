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

TEST(CGColorSpace, OfNumbersHasATableOfColours) {
  std::array<unsigned char, 6> colors = {1, 2, 3, 4, 5, 6};
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  const CFOwned<const CGColorSpace> space(CGColorSpaceCreateIndexed(rgb.get(), 1, colors.data()));
  colors = {};
  EXPECT_EQ(space->components, 1U);
  EXPECT_TRUE(space->IsIndexed());
  EXPECT_EQ(space->table, (std::vector<unsigned char>{1, 2, 3, 4, 5, 6}));
  EXPECT_FALSE(rgb->IsIndexed());
}

TEST(CGColorSpace, OfNumbersIsNullForWhatItCannotHave) {
  const std::array<unsigned char, 3 * 257> colors = {};
  const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
  const CFOwned<const CGColorSpace> rgb(CGColorSpaceCreateDeviceRGB());
  EXPECT_EQ(CGColorSpaceCreateIndexed(nullptr, 1, colors.data()), nullptr);
  EXPECT_EQ(CGColorSpaceCreateIndexed(gray.get(), 1, colors.data()), nullptr);
  EXPECT_EQ(CGColorSpaceCreateIndexed(rgb.get(), 256, colors.data()), nullptr);
  EXPECT_EQ(CGColorSpaceCreateIndexed(rgb.get(), 1, nullptr), nullptr);
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
