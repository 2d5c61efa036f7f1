#include "platform/trace/cg_trace_context.h"

#include <memory>
#include <utility>

#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/images.h"
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

std::string TraceOfImage(const CFOwned<const CGImage>& image) {
  return TraceOf(
      [&](CGContextRef c) { CGContextDrawImage(c, CGRectMake(0, 0, 1, 1), image.get()); });
}

TEST(CGTraceContext, WritesThePixelsOfAnImageThatAreMade) {
  int timesAsked = 0;
  const auto provider = test::MakerOf({1, 2, 3, 0xA4, 5, 6}, timesAsked);
  EXPECT_EQ(TraceOfImage(test::GrayOf(3, 2, provider)),
            "image 3 2 gray under 1 0 0 1 0 0\n  bytes 010203 a40506\n");
}

TEST(CGTraceContext, WritesAHashOfManyPixels) {
  int timesAsked = 0;
  const std::string flat =
      TraceOfImage(test::GrayOf(13, 5, test::MakerOf(test::ByteList(65, 1), timesAsked)));
  const std::string other =
      TraceOfImage(test::GrayOf(13, 5, test::MakerOf(test::ByteList(65, 2), timesAsked)));
  EXPECT_EQ(flat.substr(0, flat.size() - 9), "image 13 5 gray under 1 0 0 1 0 0\n  bytes hash ");
  EXPECT_NE(flat, other);
}

TEST(CGTraceContext, LeavesOutAnImageThatFallsShort) {
  int timesAsked = 0;
  EXPECT_EQ(TraceOfImage(test::GrayOf(3, 2, test::MakerOf({1, 2, 3, 4, 5}, timesAsked))), "");
  const auto mask = test::GrayOf(1, 1, test::MakerOf({}, timesAsked));
  EXPECT_EQ(TraceOfImage(test::Masked(test::ImageOf(1, 1, 1, {7}), mask)), "");
}

TEST(CGTraceContext, WritesAMaskInTheFillColour) {
  EXPECT_EQ(
      TraceOf([](CGContextRef c) {
        test::SetFill(c, 1, 0, 0);
        CGContextDrawImage(c, CGRectMake(0, 0, 1, 1), test::MaskOf(9, 2, {1, 2, 3, 4}, true).get());
      }),
      "fill-color 1 0 0\n"
      "image 9 2 mask smooth under 1 0 0 1 0 0\n"
      "  bytes 0102 0304\n");
}

TEST(CGTraceContext, WritesWhatAnImageIsMaskedWith) {
  const auto gray = test::ImageOf(1, 1, 1, {7});
  EXPECT_EQ(TraceOfImage(test::Masked(gray, test::MaskOf(2, 1, {0x40}))),
            "image 1 1 gray smooth masked 2 1 under 1 0 0 1 0 0\n  bytes 07\n  mask 40\n");
  EXPECT_EQ(TraceOfImage(test::Masked(gray, test::ImageOf(1, 2, 1, {8, 9}))),
            "image 1 1 gray smooth soft-masked 1 2 under 1 0 0 1 0 0\n  bytes 07\n  mask 08 09\n");
}

TEST(CGTraceContext, WritesNumbersAndTheirColours) {
  EXPECT_EQ(TraceOfImage(test::IndexedOf(3, 1, 4, {1, 2, 3, 255, 255, 255}, {0x01, 0x10})),
            "image 3 1 indexed 4 under 1 0 0 1 0 0\n  bytes 0110\n  colors 010203 ffffff\n");
}

TEST(CGTraceContext, WritesAHashOfAJpegFile) {
  const CFOwned<const CGImage> image(
      CGImageCreateWithJPEG(1, 1, 3, test::ProviderOf({'a'}).get(), false));
  // FNV-1a of "a", as it is published.
  EXPECT_EQ(TraceOfImage(image), "image 1 1 jpeg rgb under 1 0 0 1 0 0\n  bytes hash e40c292c\n");
}

TEST(CGTraceContext, WritesTheAlphaOfColoursThatHaveOne) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextDrawShading(
                  c, CGAxialShading{{0, 0}, {9, 0}, {{0, {1, 0, 0, 1}}, {1, {0, 1, 0, 0.5F}}}});
            }),
            "axial 0 0 9 0\n  stop 0 1 0 0\n  stop 1 0 1 0 alpha 0.5\n");
}

TEST(CGTraceContext, WritesAPatternThatIsAShading) {
  CGPattern pattern;
  pattern.matrix = {2, 0, 0, 2, 0, 0};
  pattern.shading = CGAxialShading{{0, 0}, {1, 0}, {{0, {1, 0, 0, 1}}, {1, {0, 1, 0, 1}}}};
  const auto shared = std::make_shared<const CGPattern>(std::move(pattern));
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              c->SetFillPattern(shared);
              test::FillRect(c, {{0, 0}, {1, 1}});
            }),
            "fill-pattern under 2 0 0 2 0 0\n"
            "axial 0 0 1 0\n  stop 0 1 0 0\n  stop 1 0 1 0\n"
            "end-pattern\n"
            "rect 0 0 1 1\nfill\n");
}

TEST(CGTraceContext, WritesHowCellsFollowEachOther) {
  CGPattern pattern;
  pattern.cell = {8, 9};
  pattern.gap = {1, 2};
  pattern.mirrorsX = true;
  pattern.mirrorsY = true;
  const auto shared = std::make_shared<const CGPattern>(std::move(pattern));
  EXPECT_EQ(TraceOf([&](CGContextRef c) {
              c->SetFillPattern(shared);
              test::FillRect(c, {{0, 0}, {1, 1}});
            }),
            "fill-pattern 8 9 gap 1 2 mirror-x mirror-y under 1 0 0 1 0 0\nend-pattern\n"
            "rect 0 0 1 1\nfill\n");
}

TEST(CGTraceContext, WritesTheCornersOfAMesh) {
  EXPECT_EQ(TraceOf([](CGContextRef c) {
              CGContextDrawShading(c, CGTriangleMesh{{{{1, 2}, {1, 0, 0, 1}},
                                                      {{3, 4}, {0, 1, 0, 1}},
                                                      {{5, 6}, {0, 0, 0.5F, 1}}}});
            }),
            "mesh\n  vertex 1 2 1 0 0\n  vertex 3 4 0 1 0\n  vertex 5 6 0 0 0.5\n");
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
