#include "classic/context/coordinates.h"

#include <limits>
#include <numbers>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"

namespace kelvane {
namespace {

constexpr std::int32_t kLowest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t kHighest = std::numeric_limits<std::int32_t>::max();

/// A context of mapping mode MM_ANISOTROPIC with extents and origins.
struct Anisotropic : AbstractContext {
  Anisotropic(SIZEL window, SIZEL viewport, PointL windowOrigin = {}, PointL viewportOrigin = {}) {
    mapMode = kMapModeAnisotropic;
    windowExt = window;
    viewportExt = viewport;
    windowOrg = windowOrigin;
    viewportOrg = viewportOrigin;
  }
};

PointL Map(const AbstractContext& context, std::int32_t x, std::int32_t y) {
  ChangeXY(context, x, y);
  return {x, y};
}

TEST(ChangeXY, OnlyNegatesYOutsideTheAnisotropicMode) {
  for (std::int32_t mode = -1; mode <= 9; ++mode) {
    if (mode == kMapModeAnisotropic) continue;
    Anisotropic context({3, 3}, {7, 7}, {100, 100}, {50, 50});
    context.mapMode = mode;
    EXPECT_EQ(Map(context, 100, 200).x, 100) << mode;
    EXPECT_EQ(Map(context, 100, 200).y, -200) << mode;
  }
}

TEST(ChangeXY, MapsTheWindowOntoTheViewport) {
  const Anisotropic context({100, 200}, {50, 100}, {10, 20}, {5, 7});
  EXPECT_EQ(Map(context, 30, 60).x, 15);
  EXPECT_EQ(Map(context, 30, 60).y, -27);
}

TEST(ChangeXY, TruncatesTowardZero) {
  const Anisotropic context({10, 10}, {1, 1});
  EXPECT_EQ(Map(context, 79, 79).x, 7);
  EXPECT_EQ(Map(context, 79, 79).y, -7);
  EXPECT_EQ(Map(context, -79, -79).x, -7);
  EXPECT_EQ(Map(context, -79, -79).y, 7);
}

TEST(ChangeXY, TurnsYAroundForANegativeWindow) {
  const Anisotropic context({100, -100}, {100, 100});
  EXPECT_EQ(Map(context, 0, 30).y, 30);
}

TEST(ChangeXY, LeavesACoordinateUnscaledWhereTheWindowHasNoExtent) {
  const Anisotropic narrow({0, 100}, {50, 50}, {10, 10}, {3, 3});
  EXPECT_EQ(Map(narrow, 20, 30).x, 20);
  EXPECT_EQ(Map(narrow, 20, 30).y, -13);
  const Anisotropic flat({100, 0}, {50, 50}, {10, 10}, {3, 3});
  EXPECT_EQ(Map(flat, 20, 30).x, 8);
  EXPECT_EQ(Map(flat, 20, 30).y, -30);
}

TEST(ChangeXY, SaturatesScaledCoordinates) {
  const Anisotropic context({1, 1}, {1000, 1000});
  EXPECT_EQ(Map(context, kHighest, 0).x, kHighest);
  EXPECT_EQ(Map(context, kLowest, 0).x, kLowest);
}

TEST(ChangeXY, RoundsTheProductAndSumOnce) {
  // The ratio is a little below a third, so six of them are a little below 2: rounded on its own,
  // the product would be 2 and the result 1.
  const Anisotropic context({3, 1}, {1, 1}, {}, {-1, 0});
  EXPECT_EQ(Map(context, 6, 0).x, 0);
}

TEST(ChangeXY, WrapsTheDistanceFromTheWindowsOrigin) {
  const Anisotropic context({1, 1}, {1, 1}, {-1, 0});
  EXPECT_EQ(Map(context, kHighest, 0).x, kLowest);
}

TEST(ChangeXY, WrapsTheNegationOfTheLowestCoordinate) {
  EXPECT_EQ(Map(AbstractContext(), 0, kLowest).y, kLowest);
}

TEST(GetImageBox, TakesTheBoundsAsTheyAre) {
  EXPECT_EQ(GetImageBox(AbstractContext(), {0, 0, 100, 50}), CGRectMake(0, -50, 100, 50));
  EXPECT_EQ(GetImageBox(Anisotropic({2, 2}, {1, 1}), {0, 0, 100, 50}), CGRectMake(0, -50, 100, 50));
}

TEST(GetImageBox, PutsTheEdgesInOrder) {
  EXPECT_EQ(GetImageBox(AbstractContext(), {110, 20, 10, 220}), CGRectMake(10, -220, 100, 200));
  EXPECT_EQ(GetImageBox(AbstractContext(), {10, 220, 110, 20}), CGRectMake(10, -20, 100, 200));
}

TEST(GetImageBox, MeasuresTheWidestBounds) {
  EXPECT_EQ(GetImageBox(AbstractContext(), {0, 0, kLowest, 1}).size.width, 2147483648.0F);
}

TEST(DegreesToRadians, IsTheNearestFloat) {
  EXPECT_EQ(DegreesToRadians(180), static_cast<float>(std::numbers::pi));
  EXPECT_EQ(DegreesToRadians(90), static_cast<float>(std::numbers::pi / 2));
  EXPECT_EQ(DegreesToRadians(0), 0);
  EXPECT_EQ(DegreesToRadians(-180), -static_cast<float>(std::numbers::pi));
}

TEST(RectangleToCGRect, PutsTheCornersInOrder) {
  const AbstractContext context;
  const CGRect expected = CGRectMake(10, -60, 20, 40);
  EXPECT_EQ(RectangleToCGRect(context, {10, 20, 30, 60}), expected);
  EXPECT_EQ(RectangleToCGRect(context, {30, 20, 10, 60}), expected);
  EXPECT_EQ(RectangleToCGRect(context, {10, 60, 30, 20}), expected);
}

TEST(RectangleToCGRect, MapsItsCorners) {
  EXPECT_EQ(RectangleToCGRect(Anisotropic({2, 2}, {1, 1}), {10, 20, 30, 60}),
            CGRectMake(5, -30, 10, 20));
}

/// A context drawing on a trace surface.
class OnSurface : public testing::Test {
 protected:
  void SetUp() override { context_.context = surface_.get(); }
  [[nodiscard]] CGAffineTransform Ctm() const { return CGContextGetCTM(surface_.get()); }

  std::string trace_;
  CFOwned<CGContext> surface_{CGTraceContextCreate(trace_)};
  AbstractContext context_;
};

TEST_F(OnSurface, SettingTheCtmDiscardsWhatItWas) {
  CGContextConcatCTM(surface_.get(), {2, 0, 0, 4, 8, 16});
  ContextSetCTM(context_, CGAffineTransformMake(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(Ctm(), CGAffineTransformMake(1, 2, 3, 4, 5, 6));
}

TEST_F(OnSurface, SettingTheCtmOverASingularOneMultipliesBoth) {
  CGContextConcatCTM(surface_.get(), {0, 0, 0, 0, 1, 1});
  ContextSetCTM(context_, CGAffineTransformMake(1, 0, 0, 1, 5, 6));
  EXPECT_EQ(Ctm(), CGAffineTransformMake(0, 0, 0, 0, 1, 1));
}

TEST_F(OnSurface, AWorldTransformsShiftIsWholeAndTurnedWithThePage) {
  ContextSetCTM(context_, XForm{1, 0.5F, 0.25F, 1, 3.75F, 10.75F});
  EXPECT_EQ(Ctm(), CGAffineTransformMake(1, 0.5F, 0.25F, 1, 3.75F, -10));
}

TEST_F(OnSurface, AWorldTransformsShiftStaysUpwardsUnderATurnedWindow) {
  context_.windowExtYPositive = 0;
  ContextSetCTM(context_, XForm{1, 0, 0, 1, 0, 10.75F});
  EXPECT_EQ(Ctm().ty, 10);
}

TEST_F(OnSurface, AWorldTransformsShiftSaturates) {
  ContextSetCTM(context_, XForm{1, 0, 0, 1, 0, 1e20F});
  EXPECT_EQ(Ctm().ty, -2147483648.0F);
}

TEST_F(OnSurface, TransformingChangesTheWorldAndTheCtm) {
  context_.SetWorldTransform({1, 0, 0, 1, 10, 0});
  TransformContext(context_, 3, {2, 0, 0, 2, 0, 0});
  EXPECT_EQ(context_.worldTransform.eDx, 20);
  EXPECT_EQ(Ctm(), CGAffineTransformMake(2, 0, 0, 2, 20, 0));
}

TEST_F(OnSurface, ATextMatrixIsARotationThatIsRemembered) {
  ContextSetTextMatrix(context_, 90);
  EXPECT_EQ(context_.textAngle, 90);
  EXPECT_NEAR(CGContextGetTextMatrix(surface_.get()).b, 1, 1e-6);
  EXPECT_NEAR(CGContextGetTextMatrix(surface_.get()).c, -1, 1e-6);
  EXPECT_NEAR(CGContextGetTextMatrix(surface_.get()).a, 0, 1e-6);
}

}  // namespace
}  // namespace kelvane
