#include <array>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::TraceOf;

TEST(CGContext, TakesGreyUntilAnotherColourSpaceIsSet) {
  constexpr std::array<CGFloat, 2> kHalfGrey = {0.5F, 1};
  (void)TraceOf([&](CGContextRef c) {
    CGContextSetFillColor(c, kHalfGrey.data());
    CGContextSetStrokeColor(c, kHalfGrey.data());
    EXPECT_EQ(c->State().fillColor, (CGColor{0.5F, 0.5F, 0.5F, 1}));
    EXPECT_EQ(c->State().strokeColor, (CGColor{0.5F, 0.5F, 0.5F, 1}));
  });
}

TEST(CGContext, IsBlackAgainInANewColourSpace) {
  (void)TraceOf([](CGContextRef c) {
    test::SetFill(c, 1, 0, 0);
    test::SetStroke(c, 1, 0, 0);
    const CFOwned<const CGColorSpace> gray(CGColorSpaceCreateDeviceGray());
    CGContextSetFillColorSpace(c, gray.get());
    CGContextSetStrokeColorSpace(c, gray.get());
    EXPECT_EQ(c->State().fillColor, CGColor{});
    EXPECT_EQ(c->State().strokeColor, CGColor{});
  });
}

}  // namespace
}  // namespace kelvane
