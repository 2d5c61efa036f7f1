#include <string>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "platform/trace/cg_trace_context.h"
#include "support/surface.h"
#include "support/surface_values.h"

namespace kelvane {
namespace {

using test::kDouble;
using test::StrokeLine;

/// What `draw` writes on a trace surface that it opens pages on itself.
std::string TraceOfPages(const test::Drawing& draw) {
  std::string trace;
  const CFOwned<CGContext> surface(CGTraceContextCreate(trace));
  draw(surface.get());
  return trace;
}

constexpr CGRect kBox = {{0, -50}, {100, 50}};

TEST(CGContext, LosesWhatIsDrawnOutsideAPage) {
  EXPECT_EQ(TraceOfPages([](CGContextRef c) {
              StrokeLine(c, {1, 2}, {3, 4});
              CGContextBeginPage(c, &kBox);
              CGContextEndPage(c);
              StrokeLine(c, {1, 2}, {3, 4});
            }),
            "page 0 -50 100 50\nend-page\n");
}

TEST(CGContext, StartsEachPageAfresh) {
  EXPECT_EQ(TraceOfPages([](CGContextRef c) {
              CGContextBeginPage(c, &kBox);
              CGContextClipToRect(c, CGRectMake(0, 0, 1, 1));
              CGContextSaveGState(c);
              CGContextConcatCTM(c, kDouble);
              CGContextSetTextMatrix(c, kDouble);
              CGContextMoveToPoint(c, 1, 2);
              CGContextEndPage(c);
              CGContextBeginPage(c, &kBox);
              CGContextRestoreGState(c);
              EXPECT_EQ(CGContextGetCTM(c), CGAffineTransformIdentity);
              EXPECT_EQ(CGContextGetTextMatrix(c), CGAffineTransformIdentity);
              CGContextAddLineToPoint(c, 5, 6);
              CGContextAddLineToPoint(c, 7, 8);
              CGContextDrawPath(c, kCGPathStroke);
              CGContextEndPage(c);
            }),
            "page 0 -50 100 50\nend-page\n"
            "page 0 -50 100 50\nmove 5 6\nline 7 8\nstroke\nend-page\n");
}

TEST(CGContext, LosesAStateSetOutsideAPage) {
  (void)TraceOfPages([](CGContextRef c) {
    CGContextConcatCTM(c, kDouble);
    CGContextBeginPage(c, &kBox);
    EXPECT_EQ(CGContextGetCTM(c), CGAffineTransformIdentity);
  });
}

TEST(CGContext, EndsAPageThatIsOpenWhenTheNextBegins) {
  EXPECT_EQ(TraceOfPages([](CGContextRef c) {
              CGContextBeginPage(c, &kBox);
              CGContextBeginPage(c, &kBox);
              CGContextEndPage(c);
              CGContextEndPage(c);
            }),
            "page 0 -50 100 50\nend-page\npage 0 -50 100 50\nend-page\n");
}

}  // namespace
}  // namespace kelvane
