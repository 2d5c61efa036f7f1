#include "platform/trace/cg_trace_context.h"

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::TraceOf;

TEST(CGTraceContext, WritesAPagesBox) {
  constexpr CGRect kBox = {{-1.5F, -50}, {100, 50.25F}};
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  CGContextBeginPage(surface.get(), &kBox);
  CGContextEndPage(surface.get());
  EXPECT_EQ(trace, "page -1.5 -50 100 50.25\nend-page\n");
}

TEST(CGTraceContext, AppendsToItsOutput) {
  std::string trace = "before\n";
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  CGContextBeginPage(surface.get(), &test::kPageBox);
  EXPECT_EQ(trace, "before\npage 0 0 100 100\n");
}

TEST(CGTraceContext, EndsThePageWhenClosed) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  CGContextBeginPage(surface.get(), &test::kPageBox);
  surface->Close();
  EXPECT_EQ(trace, "page 0 0 100 100\nend-page\n");
}

TEST(CGTraceContext, WritesAnImagesSizeSpaceAndPlace) {
  const CFOwned<const CGImage> gray = test::ImageOf(2, 1, 1, {1, 2});
  const CFOwned<const CGImage> rgb = test::ImageOf(1, 1, 3, {1, 2, 3});
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              CGContextDrawImage(c, CGRectMake(10, 20, 30, 40), gray.get());
              CGContextConcatCTM(c, CGAffineTransformMakeScale(2, -1));
              CGContextDrawImage(c, CGRectMake(10, 20, 30, 40), rgb.get());
            }),
            "image 2 1 gray under 30 0 0 40 10 20\nimage 1 1 rgb under 60 0 0 -40 20 -20\n");
}

TEST(CGTraceContext, WritesATextRunsTextFaceSizeAndPlace) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextConcatCTM(c, {1, 0, 0, 1, 100, 0});
              test::DrawHelvetica(c, u"Hi", 12.5F, {0, 1, -1, 0, 10, 20});
            }),
            "text \"Hi\" Helvetica 12.5 under 0 1 -1 0 110 20\n  at 0 0\n  at 9.025 0\n");
}

}  // namespace
}  // namespace kelvane
