#include "gdi/mapping.h"

#include <limits>

#include <gtest/gtest.h>

namespace kelvane {
namespace {

/// 4 pixels a millimetre across, 2 down.
constexpr ReferenceDevice kDevice = {{1280, 480}, {320, 240}};

/// 4 pixels a millimetre in both directions.
constexpr ReferenceDevice kSquare = {{1280, 960}, {320, 240}};

Mapping InMode(MapMode mode, const ReferenceDevice& device = kDevice) {
  Mapping mapping(device);
  EXPECT_TRUE(mapping.SetMode(mode));
  return mapping;
}

void ExpectMaps(const Mapping& mapping, PointD logical, PointD device) {
  const PointD mapped = mapping.ToDevice().Map(logical);
  EXPECT_NEAR(mapped.x, device.x, 1e-9);
  EXPECT_NEAR(mapped.y, device.y, 1e-9);
}

TEST(Mapping, IsPixelsAtFirst) {
  EXPECT_EQ(Mapping(kDevice).ToDevice(), TransformD());
}

struct Length {
  MapMode mode;
  double unitsInAnInch;
};

class MetricMode : public testing::TestWithParam<Length> {};

TEST_P(MetricMode, HasATrueLengthAsItsUnit) {
  const auto [mode, unitsInAnInch] = GetParam();
  ExpectMaps(InMode(mode), {unitsInAnInch, unitsInAnInch}, {25.4 * 4, -25.4 * 2});
}

TEST_P(MetricMode, IgnoresExtents) {
  Mapping mapping = InMode(GetParam().mode);
  const Mapping before = mapping;
  EXPECT_TRUE(mapping.SetWindowExtent({5, 6}));
  EXPECT_TRUE(mapping.SetViewportExtent({5, 6}));
  EXPECT_TRUE(mapping.ScaleWindowExtent(2, 1, 2, 1));
  EXPECT_TRUE(mapping.ScaleViewportExtent(2, 1, 2, 1));
  EXPECT_EQ(mapping, before);
}

TEST_P(MetricMode, TakesOrigins) {
  Mapping mapping = InMode(GetParam().mode);
  mapping.SetWindowOrigin({3, 4});
  mapping.SetViewportOrigin({100, 200});
  ExpectMaps(mapping, {3, 4}, {100, 200});
}

INSTANTIATE_TEST_SUITE_P(, MetricMode,
                         testing::Values(Length{MM_LOMETRIC, 254}, Length{MM_HIMETRIC, 2540},
                                         Length{MM_LOENGLISH, 100}, Length{MM_HIENGLISH, 1000},
                                         Length{MM_TWIPS, 1440}));

TEST(Mapping, IgnoresExtentsInPixels) {
  Mapping mapping(kDevice);
  EXPECT_TRUE(mapping.SetWindowExtent({1000, 1000}));
  EXPECT_EQ(mapping.ToDevice(), TransformD());
  mapping.SetWindowOrigin({1, 2});
  mapping.SetViewportOrigin({10, 20});
  ExpectMaps(mapping, {1, 2}, {10, 20});
}

TEST(Mapping, TakesWindowToViewport) {
  Mapping mapping = InMode(MM_ANISOTROPIC);
  mapping.SetWindowOrigin({-10, 100});
  EXPECT_TRUE(mapping.SetWindowExtent({20, -200}));
  mapping.SetViewportOrigin({5, 6});
  EXPECT_TRUE(mapping.SetViewportExtent({10, 50}));
  ExpectMaps(mapping, {-10, 100}, {5, 6});
  ExpectMaps(mapping, {10, -100}, {15, 56});
  ExpectMaps(mapping, {-9, 100}, {5.5, 6});  // not rounded
}

TEST(Mapping, KeepsTheExtentsThereAreWhenItBecomesAnisotropic) {
  Mapping mapping(kDevice);
  ASSERT_TRUE(mapping.SetMode(MM_ANISOTROPIC));
  EXPECT_EQ(mapping.ToDevice(), TransformD());
  ASSERT_TRUE(mapping.SetMode(MM_LOMETRIC));
  ASSERT_TRUE(mapping.SetMode(MM_ANISOTROPIC));
  ExpectMaps(mapping, {10, 10}, {4, -2});
  ASSERT_TRUE(mapping.SetMode(MM_TEXT));
  EXPECT_EQ(mapping.ToDevice(), TransformD());
}

TEST(Mapping, KeepsOriginsWhenTheModeChanges) {
  Mapping mapping(kDevice);
  mapping.SetWindowOrigin({7, 8});
  ASSERT_TRUE(mapping.SetMode(MM_HIMETRIC));
  ExpectMaps(mapping, {7, 8}, {0, 0});
}

TEST(Mapping, IgnoresExtentsOfNothing) {
  Mapping mapping = InMode(MM_ANISOTROPIC);
  EXPECT_FALSE(mapping.SetWindowExtent({0, 5}));
  EXPECT_FALSE(mapping.SetViewportExtent({5, 0}));
  EXPECT_FALSE(mapping.ScaleWindowExtent(1, 2, 1, 1));  // half a unit is none
  EXPECT_FALSE(mapping.ScaleWindowExtent(1, 0, 1, 1));
  EXPECT_FALSE(mapping.ScaleViewportExtent(1, 1, 1, 0));
  EXPECT_EQ(mapping.ToDevice(), TransformD());
}

TEST(Mapping, ScalesExtentsInWholeUnits) {
  Mapping mapping = InMode(MM_ANISOTROPIC);
  ASSERT_TRUE(mapping.SetViewportExtent({10, 10}));
  ASSERT_TRUE(mapping.ScaleViewportExtent(3, 4, -1, 3));
  ExpectMaps(mapping, {1, 1}, {7, -3});
  ASSERT_TRUE(mapping.ScaleWindowExtent(7, 1, 3, 1));
  ExpectMaps(mapping, {1, 1}, {1, -1});
}

TEST(Mapping, RefusesExtentsBeyond32Bits) {
  Mapping mapping = InMode(MM_ANISOTROPIC);
  ASSERT_TRUE(mapping.SetWindowExtent({2147483647, 1}));
  EXPECT_FALSE(mapping.ScaleWindowExtent(2147483647, 1, 1, 1));
  ExpectMaps(mapping, {2147483647, 1}, {1, 1});
}

TEST(Mapping, ShrinksTheViewportUntilUnitsAreEqual) {
  Mapping mapping = InMode(MM_ISOTROPIC, kSquare);
  ASSERT_TRUE(mapping.SetWindowExtent({100, 100}));
  ASSERT_TRUE(mapping.SetViewportExtent({200, 50}));
  ExpectMaps(mapping, {100, 100}, {50, 50});
  ASSERT_TRUE(mapping.SetWindowExtent({100, 400}));
  ExpectMaps(mapping, {100, 400}, {12, 50});
  // What was taken away does not come back.
  ASSERT_TRUE(mapping.SetWindowExtent({100, 100}));
  ExpectMaps(mapping, {100, 100}, {12, 12});
}

TEST(Mapping, IsEqualOnPaperAndNotInPixelsWhenIsotropic) {
  Mapping mapping = InMode(MM_ISOTROPIC, kDevice);
  ASSERT_TRUE(mapping.SetWindowExtent({100, 100}));
  ASSERT_TRUE(mapping.SetViewportExtent({200, -200}));
  ExpectMaps(mapping, {100, 100}, {200, -100});
}

TEST(Mapping, StartsIsotropicInTenthsOfMillimetres) {
  ExpectMaps(InMode(MM_ISOTROPIC), {10, 10}, {4, -2});
}

TEST(Mapping, NeverShrinksTheViewportToNothing) {
  Mapping mapping = InMode(MM_ISOTROPIC, kSquare);
  ASSERT_TRUE(mapping.SetWindowExtent({1, 2000000000}));
  ASSERT_TRUE(mapping.SetViewportExtent({-100, 100}));
  ExpectMaps(mapping, {1, 0}, {-1, 0});
}

TEST(Mapping, KeepsExtentsWhenTheModeIsSetAgain) {
  Mapping mapping = InMode(MM_ISOTROPIC, kSquare);
  ASSERT_TRUE(mapping.SetWindowExtent({100, 100}));
  ASSERT_TRUE(mapping.SetViewportExtent({50, 50}));
  ASSERT_TRUE(mapping.SetMode(MM_ISOTROPIC));
  ExpectMaps(mapping, {100, 100}, {50, 50});
}

TEST(Mapping, RefusesModesThatAreNone) {
  Mapping mapping = InMode(MM_LOMETRIC);
  EXPECT_FALSE(mapping.SetMode(static_cast<MapMode>(0)));
  EXPECT_FALSE(mapping.SetMode(static_cast<MapMode>(9)));
  EXPECT_EQ(mapping.Mode(), MM_LOMETRIC);
}

TEST(Mapping, TakesADeviceWithoutASizeFor96DotsPerInch) {
  Mapping mapping = InMode(MM_LOENGLISH, {{0, 0}, {320, 240}});
  ExpectMaps(mapping, {100, 100}, {96, -96});
}

TEST(Mapping, AppliesTheWorldBeforeThePage) {
  Mapping mapping = InMode(MM_ANISOTROPIC);
  ASSERT_TRUE(mapping.SetViewportExtent({2, 2}));
  ASSERT_TRUE(mapping.SetWorld({0, 1, -1, 0, 10, 20}));
  ExpectMaps(mapping, {3, 4}, {2 * (10 - 4), 2 * (20 + 3)});
}

TEST(Mapping, ModifiesTheWorldInFourWays) {
  constexpr XForm kScale = {2, 0, 0, 2, 0, 0};
  constexpr XForm kMove = {1, 0, 0, 1, 10, 0};
  Mapping mapping(kDevice);
  ASSERT_TRUE(mapping.ModifyWorld(kMove, MWT_SET));
  ASSERT_TRUE(mapping.ModifyWorld(kScale, MWT_LEFTMULTIPLY));  // the scale first
  ExpectMaps(mapping, {1, 1}, {12, 2});
  ASSERT_TRUE(mapping.ModifyWorld(kScale, MWT_RIGHTMULTIPLY));  // the scale last
  ExpectMaps(mapping, {1, 1}, {24, 4});
  ASSERT_TRUE(mapping.ModifyWorld(kScale, MWT_IDENTITY));
  ExpectMaps(mapping, {1, 1}, {1, 1});
  EXPECT_FALSE(mapping.ModifyWorld(kScale, static_cast<WorldTransformMode>(0)));
  EXPECT_FALSE(mapping.ModifyWorld(kScale, static_cast<WorldTransformMode>(5)));
}

TEST(Mapping, RefusesWorldsThatAreNoNumbers) {
  Mapping mapping(kDevice);
  EXPECT_FALSE(mapping.SetWorld({std::numeric_limits<float>::quiet_NaN(), 0, 0, 1, 0, 0}));
  EXPECT_FALSE(mapping.SetWorld({1, 0, 0, 1, std::numeric_limits<float>::infinity(), 0}));
  EXPECT_EQ(mapping.ToDevice(), TransformD());
  bool accepted = true;
  for (int i = 0; i < 20; ++i)
    accepted = mapping.ModifyWorld({3e38F, 0, 0, 1, 0, 0}, MWT_LEFTMULTIPLY);
  EXPECT_FALSE(accepted);
  EXPECT_TRUE(mapping.World().IsFinite());
}

TEST(Mapping, GoesBackFromTheDevice) {
  Mapping mapping = InMode(MM_HIMETRIC);
  mapping.SetWindowOrigin({5, 6});
  ASSERT_TRUE(mapping.SetWorld({1, 2, -3, 4, 5, 6}));
  const PointD back = mapping.ToLogical().value().Map(mapping.ToDevice().Map({70, 80}));
  EXPECT_NEAR(back.x, 70, 1e-9);
  EXPECT_NEAR(back.y, 80, 1e-9);
}

TEST(Mapping, DoesNotGoBackFromALine) {
  Mapping mapping(kDevice);
  ASSERT_TRUE(mapping.SetWorld({1, 2, 2, 4, 0, 0}));
  EXPECT_EQ(mapping.ToLogical(), std::nullopt);
}

TEST(Mapping, RunsLeftwardsOverThePageInALayoutFromRightToLeft) {
  Mapping mapping({{1280, 480}, {320, 240}, 100, 900});
  mapping.SetLayout(LAYOUT_RTL);
  ExpectMaps(mapping, {100, 5}, {900, 5});
  ExpectMaps(mapping, {900, 5}, {100, 5});
  mapping.SetLayout(LAYOUT_BITMAPORIENTATIONPRESERVED);
  ExpectMaps(mapping, {100, 5}, {100, 5});
}

TEST(Mapping, KnowsHowLongAHorizontalUnitIs) {
  Mapping mapping = InMode(MM_ANISOTROPIC);
  ASSERT_TRUE(mapping.SetViewportExtent({10, 20}));
  EXPECT_DOUBLE_EQ(mapping.HorizontalScale(), 10);
  ASSERT_TRUE(mapping.SetWorld({0, 1, -1, 0, 0, 0}));
  EXPECT_DOUBLE_EQ(mapping.HorizontalScale(), 20);
}

}  // namespace
}  // namespace kelvane
