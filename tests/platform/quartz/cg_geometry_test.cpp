#include "platform/quartz/cg_geometry.h"

#include <numbers>
#include <string>

#include <gtest/gtest.h>

#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::kDouble;
using test::kInfinity;
using test::kNaN;

constexpr CGAffineTransform kMoveBy10 = {1, 0, 0, 1, 10, 0};

void ExpectNear(const CGAffineTransform& actual, const CGAffineTransform& expected) {
  constexpr double kTolerance = 1e-6;
  EXPECT_NEAR(actual.a, expected.a, kTolerance);
  EXPECT_NEAR(actual.b, expected.b, kTolerance);
  EXPECT_NEAR(actual.c, expected.c, kTolerance);
  EXPECT_NEAR(actual.d, expected.d, kTolerance);
  EXPECT_NEAR(actual.tx, expected.tx, kTolerance);
  EXPECT_NEAR(actual.ty, expected.ty, kTolerance);
}

TEST(CGPointApplyAffineTransform, MultipliesARowVector) {
  EXPECT_EQ(CGPointApplyAffineTransform({10, 100}, {1, 2, 3, 4, 5, 6}), (CGPoint{315, 426}));
}

TEST(CGAffineTransform, IsTheIdentityByDefault) {
  EXPECT_EQ(CGAffineTransform{}, CGAffineTransformMake(1, 0, 0, 1, 0, 0));
  EXPECT_EQ(CGAffineTransform{}, CGAffineTransformIdentity);
}

TEST(CGAffineTransformMakeScale, ScalesEachAxis) {
  EXPECT_EQ(CGPointApplyAffineTransform({3, 5}, CGAffineTransformMakeScale(2, -1)),
            (CGPoint{6, -5}));
}

TEST(CGAffineTransformConcat, AppliesTheFirstOneFirst) {
  EXPECT_EQ(CGPointApplyAffineTransform({1, 0}, CGAffineTransformConcat(kMoveBy10, kDouble)),
            (CGPoint{22, 0}));
  EXPECT_EQ(CGPointApplyAffineTransform({1, 0}, CGAffineTransformConcat(kDouble, kMoveBy10)),
            (CGPoint{12, 0}));
}

TEST(CGAffineTransformConcat, MultipliesEveryElement) {
  EXPECT_EQ(CGAffineTransformConcat({1, 2, 3, 4, 5, 6}, {7, 8, 9, 10, 11, 12}),
            CGAffineTransformMake(25, 28, 57, 64, 100, 112));
}

TEST(CGAffineTransformInvert, UndoesTheTransform) {
  constexpr CGAffineTransform kTransform = {2, 1, -1, 3, 40, -7};
  ExpectNear(CGAffineTransformConcat(kTransform, CGAffineTransformInvert(kTransform)), {});
}

TEST(CGAffineTransformInvert, IsExactForPowersOfTwo) {
  EXPECT_EQ(CGAffineTransformInvert({2, 0, 0, 4, 10, 20}),
            CGAffineTransformMake(0.5F, 0, 0, 0.25F, -5, -5));
}

TEST(CGAffineTransformInvert, TakesSmallScalesWhoseProductSinglePrecisionCannotHold) {
  EXPECT_EQ(CGAffineTransformInvert(CGAffineTransformMakeScale(0x1p-80F, 0x1p-80F)),
            CGAffineTransformMakeScale(0x1p80F, 0x1p80F));
}

TEST(CGAffineTransformInvert, ReturnsASingularTransformUnchanged) {
  for (const CGAffineTransform& singular :
       {CGAffineTransform{0, 0, 0, 0, 5, 6}, CGAffineTransform{1, 2, 2, 4, 5, 6},
        CGAffineTransform{1, 0, 0, 0, 5, 6}, CGAffineTransform{kInfinity, 0, 0, 1, 5, 6}}) {
    EXPECT_EQ(CGAffineTransformInvert(singular), singular);
  }
}

TEST(CGAffineTransformMakeRotation, TurnsTheXAxisTowardsTheYAxis) {
  constexpr auto kSixthOfAHalfTurn = static_cast<CGFloat>(std::numbers::pi / 6);
  const CGPoint turned =
      CGPointApplyAffineTransform({2, 0}, CGAffineTransformMakeRotation(kSixthOfAHalfTurn));
  EXPECT_NEAR(turned.x, std::sqrt(3.0), 1e-6);
  EXPECT_NEAR(turned.y, 1, 1e-6);
}

TEST(CGAffineTransformMakeRotation, ByNothingIsTheIdentity) {
  EXPECT_EQ(CGAffineTransformMakeRotation(0), CGAffineTransformIdentity);
}

TEST(CGRectApplyAffineTransform, KeepsARectangleUnderTheIdentity) {
  EXPECT_EQ(CGRectApplyAffineTransform(CGRectMake(10, -60, 20, 40), {}),
            CGRectMake(10, -60, 20, 40));
}

TEST(CGRectApplyAffineTransform, ReturnsTheCornersBoundingBox) {
  EXPECT_EQ(CGRectApplyAffineTransform(CGRectMake(0, 0, 10, 20), {0, 1, -1, 0, 0, 0}),
            CGRectMake(-20, 0, 20, 10));
  EXPECT_EQ(CGRectApplyAffineTransform(CGRectMake(1, 1, 2, 2), {1, 1, -1, 1, 0, 0}),
            CGRectMake(-2, 2, 4, 4));
}

TEST(CGRectApplyAffineTransform, PutsMirroredCornersInOrder) {
  EXPECT_EQ(CGRectApplyAffineTransform(CGRectMake(1, 2, 3, 4), CGAffineTransformMakeScale(-1, -1)),
            CGRectMake(-4, -6, 3, 4));
}

TEST(CGRectApplyAffineTransform, TakesANegativeSize) {
  EXPECT_EQ(CGRectApplyAffineTransform(CGRectMake(10, 10, -4, -6), {}), CGRectMake(6, 4, 4, 6));
}

struct EvennessCase {
  const char* name;
  CGAffineTransform transform;
  bool even;
};

class ScalesEvenlyTest : public testing::TestWithParam<EvennessCase> {};

TEST_P(ScalesEvenlyTest, TellsWhetherEveryDirectionScalesAlike) {
  EXPECT_EQ(ScalesEvenly(GetParam().transform), GetParam().even);
}

constexpr CGFloat kSine = 0.6F;
constexpr CGFloat kCosine = 0.8F;

INSTANTIATE_TEST_SUITE_P(
    Transforms, ScalesEvenlyTest,
    testing::Values(EvennessCase{"Identity", {}, true},
                    EvennessCase{"Translation", {1, 0, 0, 1, 1e6F, -7}, true},
                    EvennessCase{"Scale", {3, 0, 0, 3, 0, 0}, true},
                    EvennessCase{"TinyScale", {1e-30F, 0, 0, 1e-30F, 0, 0}, true},
                    EvennessCase{"HugeScale", {1e30F, 0, 0, 1e30F, 0, 0}, true},
                    EvennessCase{"Rotation", {kCosine, kSine, -kSine, kCosine, 0, 0}, true},
                    EvennessCase{"RotationAndScale",
                                 {50 * kCosine, 50 * kSine, -50 * kSine, 50 * kCosine, 1, 2},
                                 true},
                    EvennessCase{"QuarterTurn", {0, 1, -1, 0, 0, 0}, true},
                    EvennessCase{"Reflection", {1, 0, 0, -1, 0, 0}, true},
                    EvennessCase{"ReflectionAtADiagonal", {0, 2, 2, 0, 0, 0}, true},
                    EvennessCase{"Zero", {0, 0, 0, 0, 0, 0}, true},
                    EvennessCase{"UnevenScale", {2, 0, 0, 1, 0, 0}, false},
                    EvennessCase{"SlightlyUnevenScale", {1.001F, 0, 0, 1, 0, 0}, false},
                    EvennessCase{"Shear", {1, 0, 1, 1, 0, 0}, false},
                    EvennessCase{"ShearThatKeepsAxisLengths", {1, 0, kSine, kCosine, 0, 0}, false},
                    EvennessCase{"OneAxisLost", {1, 0, 0, 0, 0, 0}, false},
                    EvennessCase{"NotANumber", {kNaN, 0, 0, 1, 0, 0}, false},
                    EvennessCase{"Infinite", {kInfinity, 0, 0, kInfinity, 0, 0}, false}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ScalesEvenly, AllowsForTheRoundingOfEveryRotation) {
  for (int degrees = 0; degrees < 360; ++degrees) {
    const auto angle = static_cast<CGFloat>(degrees * std::numbers::pi / 180);
    EXPECT_TRUE(ScalesEvenly(CGAffineTransformMakeRotation(angle))) << degrees << " degrees";
  }
}

TEST(Determinant, NeitherOverflowsNorVanishes) {
  EXPECT_GT(Determinant(CGAffineTransformMakeScale(1e38F, 1e38F)), 9e75);
  EXPECT_GT(Determinant(CGAffineTransformMakeScale(1e-38F, 1e-38F)), 9e-77);
}

}  // namespace
}  // namespace kelvane
