#include <array>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/raster.h"
#include "support/surface.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kCyanPixel;
using test::kGreenPixel;
using test::kRedPixel;
using test::kWhitePixel;
using test::PdfBytesOf;
using test::PdfContentOf;
using test::Raster;
using test::SetFill;
using testing::HasSubstr;
using testing::Not;

/// Cells of 20 points: the lower left quarter is red, the rest bare.
CGSharedPattern RedQuarters() {
  CGPattern pattern;
  pattern.cell = {2, 2};
  pattern.matrix = {10, 0, 0, 10, 0, 0};
  CGPath square;
  square.AddRectangle({0, 0}, {1, 1});
  pattern.shapes.push_back({square, {1, 0, 0, 1}});
  return std::make_shared<const CGPattern>(std::move(pattern));
}

TEST(PdfPainting, RepeatsAPatternsCell) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    c->SetFillPattern(RedQuarters());
    FillRect(c, {{0, 0}, {100, 100}});
  }));
  EXPECT_EQ(page.At(5, 95), kRedPixel);
  EXPECT_EQ(page.At(15, 95), kWhitePixel);
  EXPECT_EQ(page.At(5, 85), kWhitePixel);
  EXPECT_EQ(page.At(45, 55), kRedPixel);
}

/// An image of 20 by 20 pixels: red and green above white.
CFOwned<const CGImage> Quarters() {
  std::vector<unsigned char> pixels;
  for (int row = 0; row < 20; ++row) {
    for (int column = 0; column < 20; ++column) {
      const Raster::Color color = row >= 10 ? kWhitePixel : column < 10 ? kRedPixel : kGreenPixel;
      for (const int channel : color)
        pixels.push_back(static_cast<unsigned char>(channel));
    }
  }
  return test::ImageOf(20, 20, 3, pixels);
}

TEST(PdfPainting, DrawsAPatternsImageUpright) {
  CGPattern pattern;
  pattern.cell = {20, 20};
  pattern.image = Quarters();
  const auto shared = std::make_shared<const CGPattern>(std::move(pattern));
  const Raster page(PdfBytesOf([&](CGContextRef c) {
    c->SetFillPattern(shared);
    FillRect(c, {{0, 0}, {100, 100}});
  }));
  EXPECT_EQ(page.At(45, 45), kRedPixel);
  EXPECT_EQ(page.At(55, 45), kGreenPixel);
  EXPECT_EQ(page.At(45, 55), kWhitePixel);
}

TEST(PdfPainting, StoresAPatternOnce) {
  const CGSharedPattern quarters = RedQuarters();
  const std::string content = PdfContentOf([&](CGContextRef c) {
    for (int i = 0; i < 3; ++i) {
      c->SetFillPattern(quarters);
      FillRect(c, {{0, 0}, {10, 10}});
      SetFill(c, 0, 0, 0);
      FillRect(c, {{0, 0}, {10, 10}});
    }
  });
  EXPECT_THAT(content, HasSubstr("/P1 scn"));
  EXPECT_THAT(content, Not(HasSubstr("/P2")));
}

TEST(PdfPainting, BlendsWithWhitePaper) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    SetFill(c, 1, 0, 0);
    CGContextSetBlendMode(c, kCGBlendModeDifference);
    FillRect(c, {{0, 0}, {50, 100}});
  }));
  EXPECT_EQ(page.At(25, 50), kCyanPixel);
  EXPECT_EQ(page.At(75, 50), kWhitePixel);
}

TEST(PdfPainting, PutsPaperOnlyBelowWhatIsBlended) {
  const auto content = [](CGBlendMode mode) {
    return PdfContentOf([mode](CGContextRef c) {
      CGContextSetBlendMode(c, mode);
      FillRect(c, {{0, 0}, {50, 100}});
    });
  };
  EXPECT_THAT(content(kCGBlendModeNormal), Not(HasSubstr("0 0 100 100 re")));
  EXPECT_THAT(content(kCGBlendModeDarken), HasSubstr("q\n1 1 1 rg\n0 0 100 100 re\nf\nQ\n"));
}

TEST(PdfPainting, LetsPaperShowThroughByItsAlpha) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    SetFill(c, 1, 0, 0);
    CGContextSetAlpha(c, 0.5F);
    FillRect(c, {{0, 0}, {100, 100}});
  }));
  const Raster::Color color = page.At(50, 50);
  EXPECT_EQ(color[0], 255);
  EXPECT_NEAR(color[1], 128, 1);
}

TEST(PdfPainting, CutsToWhatIsInsideByTheEvenOddRule) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    c->AddRect({{0, 0}, {100, 100}});
    c->AddRect({{25, 25}, {50, 50}});
    CGContextEOClip(c);
    SetFill(c, 1, 0, 0);
    FillRect(c, {{0, 0}, {100, 100}});
  }));
  EXPECT_EQ(page.At(10, 10), kRedPixel);
  EXPECT_EQ(page.At(50, 50), kWhitePixel);
}

TEST(PdfPainting, DashesALineFromItsStart) {
  constexpr std::array<CGFloat, 2> kLengths = {20, 10};
  const Raster page(PdfBytesOf([&](CGContextRef c) {
    CGContextSetLineWidth(c, 10);
    CGContextSetLineDash(c, 0, kLengths.data(), kLengths.size());
    test::SetStroke(c, 1, 0, 0);
    test::StrokeLine(c, {0, 50}, {100, 50});
  }));
  EXPECT_EQ(page.At(10, 50), kRedPixel);
  EXPECT_EQ(page.At(25, 50), kWhitePixel);
  EXPECT_EQ(page.At(35, 50), kRedPixel);
}

}  // namespace
}  // namespace kelvane
