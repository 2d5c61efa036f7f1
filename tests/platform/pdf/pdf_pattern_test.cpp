#include "platform/pdf/pdf_pattern.h"

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/files.h"
#include "support/pdf.h"
#include "support/raster.h"
#include "support/surface.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::kBluePixel;
using test::kGreenPixel;
using test::kRedPixel;
using test::kWhitePixel;
using test::PdfBytesOf;
using test::PdfContentOf;
using test::Raster;
using testing::HasSubstr;
using testing::Not;

constexpr CGColor kRedMark = {1, 0, 0, 1};
constexpr CGColor kBlueMark = {0, 0, 1, 1};
constexpr CGColor kNoBlue = {0, 0, 1, 0};
constexpr CGColor kHalfRed = {1, 0, 0, 0.5F};

CGSharedPattern Shared(CGPattern pattern) {
  return std::make_shared<const CGPattern>(std::move(pattern));
}

/// @param matrix  from where the colours lie between 0 and 1 along x.
CGSharedPattern Along(const CGColor& from, const CGColor& to, const CGAffineTransform& matrix) {
  CGPattern pattern;
  pattern.matrix = matrix;
  pattern.shading = CGAxialShading{{0, 0}, {1, 0}, {{0, from}, {1, to}}};
  return Shared(std::move(pattern));
}

/// From x = 20 to x = 80.
CGSharedPattern Across(const CGColor& from, const CGColor& to) {
  return Along(from, to, {60, 0, 0, 1, 20, 0});
}

/// The page's lower left half, of one colour.
CGSharedPattern Half(const CGColor& color) {
  CGPattern pattern;
  pattern.matrix = {10, 0, 0, 10, 0, 0};
  pattern.shading = CGTriangleMesh{{{{0, 0}, color}, {{9, 0}, color}, {{0, 9}, color}}};
  return Shared(std::move(pattern));
}

Raster Filled(const CGSharedPattern& pattern, const CGRect& rect = test::kPageBox) {
  return Raster(PdfBytesOf([&](CGContextRef c) {
    c->SetFillPattern(pattern);
    FillRect(c, rect);
  }));
}

/// Renderers paint shadings in steps.
void ExpectNear(const Raster::Color& color, const Raster::Color& expected) {
  constexpr int kStep = 4;
  for (std::size_t i = 0; i < color.size(); ++i)
    EXPECT_NEAR(color[i], expected[i], kStep) << i;
}

// The middle of the pixel at 35 is 15.5 of the 60 points along: 0.258.
TEST(PdfShadingPattern, FillsInItsColours) {
  const Raster page = Filled(Across(kRedMark, kBlueMark), CGRectMake(0, 0, 100, 50));
  EXPECT_EQ(page.At(5, 75), kRedPixel);
  EXPECT_EQ(page.At(95, 75), kBluePixel);
  ExpectNear(page.At(35, 75), {189, 0, 66});
  EXPECT_EQ(page.At(35, 25), kWhitePixel);
}

// Colours that change along x, sheared: those at x = 50 below lie at x = 70 above.
TEST(PdfShadingPattern, ShearsWithItsMatrix) {
  const Raster page = Filled(Along(kRedMark, kBlueMark, {60, 0, 20, 100, 20, 0}));
  ExpectNear(page.At(50, 99), {125, 0, 130});
  ExpectNear(page.At(70, 0), {125, 0, 130});
}

// 30.5 of 60 points along, half of red is left over white.
TEST(PdfShadingPattern, LetsPaperShowThroughByItsAlpha) {
  const Raster page = Filled(Across(kRedMark, {1, 0, 0, 0}));
  EXPECT_EQ(page.At(5, 50), kRedPixel);
  ExpectNear(page.At(50, 50), {255, 130, 130});
  EXPECT_EQ(page.At(95, 50), kWhitePixel);
}

TEST(PdfShadingPattern, KeepsTheColourBelowItsAlpha) {
  const Raster page = Filled(Across(kRedMark, kNoBlue));
  ExpectNear(page.At(50, 50), {255 - 64, 130, 255 - 62});
}

TEST(PdfShadingPattern, LeavesItsAlphaBehindWithItsMark) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    c->SetFillPattern(Across({1, 0, 0, 0}, {1, 0, 0, 0}));
    FillRect(c, {{0, 0}, {100, 100}});
    test::SetFill(c, 0, 0, 1);
    FillRect(c, {{0, 0}, {100, 50}});
  }));
  EXPECT_EQ(page.At(50, 75), kBluePixel);
  EXPECT_EQ(page.At(50, 25), kWhitePixel);
}

TEST(PdfShadingPattern, IsMixedByTheStateToo) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextSetAlpha(c, 0.5F);
    c->SetFillPattern(Across(kHalfRed, kHalfRed));
    FillRect(c, {{0, 0}, {100, 100}});
  }));
  ExpectNear(page.At(50, 50), {255, 191, 191});
}

TEST(PdfShadingPattern, ColoursStrokes) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextConcatCTM(c, {1, 0, 0, 2, 0, 0});  // the pen is deformed, the pattern stays
    CGContextSetLineWidth(c, 10);
    c->SetStrokePattern(Across(kRedMark, {1, 0, 0, 0}));
    test::StrokeLine(c, {0, 25}, {100, 25});
  }));
  EXPECT_EQ(page.At(5, 50), kRedPixel);
  ExpectNear(page.At(50, 50), {255, 130, 130});
  EXPECT_EQ(page.At(5, 30), kWhitePixel);
}

TEST(PdfShadingPattern, FillsAndStrokesWithTwoKindsOfAlpha) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextSetLineWidth(c, 10);
    c->SetFillPattern(Across(kHalfRed, kHalfRed));
    c->SetStrokePattern(Across(kBlueMark, kNoBlue));
    CGContextAddRect(c, CGRectMake(20, 20, 60, 60));
    CGContextDrawPath(c, kCGPathFillStroke);
  }));
  ExpectNear(page.At(50, 50), {255, 128, 128});
  EXPECT_EQ(page.At(17, 50), kBluePixel);
  EXPECT_EQ(page.At(83, 50), kWhitePixel);
}

// Without their alpha the two patterns are one.
TEST(PdfShadingPattern, ColoursText) {
  const std::string content = PdfContentOf([](CGContextRef c) {
    c->SetFillPattern(Across(kRedMark, kNoBlue));
    test::DrawHelvetica(c, u"A", 10, {});
    c->SetFillPattern(Across(kRedMark, kBlueMark));
    test::DrawHelvetica(c, u"A", 10, {});
  });
  EXPECT_EQ(content,
            "/Pattern cs\n/P1 scn\nq\n/G1 gs\nBT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<41>]TJ\nET\nQ\n"
            "/Pattern cs\n/P1 scn\nBT\n/F1 10 Tf\n1 0 0 1 0 0 Tm\n[<41>]TJ\nET\n");
}

TEST(PdfShadingPattern, OfAMeshFillsWhatTheMeshCovers) {
  const Raster page = Filled(Half(kRedMark), CGRectMake(0, 0, 50, 50));
  EXPECT_EQ(page.At(10, 90), kRedPixel);
  EXPECT_EQ(page.At(55, 90), kWhitePixel);
  EXPECT_EQ(page.At(48, 52), kWhitePixel);
}

TEST(PdfShadingPattern, OfATranslucentMeshIsMixedOnce) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    test::SetFill(c, 0, 1, 0);
    FillRect(c, {{0, 0}, {50, 100}});
    c->SetFillPattern(Half(kHalfRed));
    FillRect(c, {{0, 0}, {100, 50}});
  }));
  for (int column = 2; column < 40; ++column)
    ExpectNear(page.At(column, 95), {128, 128, 0});
  ExpectNear(page.At(60, 95), {255, 128, 128});
  EXPECT_EQ(page.At(10, 40), kGreenPixel);
}

TEST(PdfShadingPattern, OfATranslucentMeshStrokesThroughItsAlpha) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextSetLineWidth(c, 20);
    CGPattern pattern;
    pattern.shading =
        CGTriangleMesh{{{{0, 0}, kRedMark}, {{100, 0}, {1, 0, 0, 0}}, {{0, 100}, kRedMark}}};
    c->SetStrokePattern(Shared(std::move(pattern)));
    test::StrokeLine(c, {0, 10}, {80, 10});
  }));
  ExpectNear(page.At(50, 90), {255, 129, 129});
  EXPECT_EQ(page.At(50, 75), kWhitePixel);
}

TEST(PdfShadingPattern, OfATranslucentMeshColoursTextInAGroup) {
  const std::string content = PdfContentOf([](CGContextRef c) {
    c->SetFillPattern(Half(kHalfRed));
    test::DrawHelvetica(c, u"A", 10, {});
  });
  EXPECT_EQ(content, "/Pattern cs\n/P1 scn\nq\n/G1 gs\n/Fm1 Do\nQ\n");
}

TEST(PdfShading, IsDrawnWithItsAlpha) {
  const Raster page(PdfBytesOf([](CGContextRef c) {
    CGContextDrawShading(c, CGAxialShading{{20, 0}, {80, 0}, {{0, kRedMark}, {1, {1, 0, 0, 0}}}});
    test::SetFill(c, 0, 0, 1);
    FillRect(c, {{0, 0}, {100, 10}});
  }));
  EXPECT_EQ(page.At(5, 50), kRedPixel);
  ExpectNear(page.At(50, 50), {255, 130, 130});
  EXPECT_EQ(page.At(95, 95), kBluePixel);
}

/// Cells of 10 points, their left half of one colour.
CGPattern Bars(const CGColor& color) {
  CGPattern pattern;
  pattern.cell = {10, 10};
  CGPath bar;
  bar.AddRectangle({0, 0}, {5, 10});
  pattern.shapes.push_back({bar, color});
  return pattern;
}

TEST(PdfTilingPattern, HasShapesWithAlpha) {
  CGPattern bars = Bars(kHalfRed);
  CGPath rest;
  rest.AddRectangle({5, 0}, {5, 10});
  bars.shapes.push_back({rest, kBlueMark});
  const Raster page = Filled(Shared(std::move(bars)));
  ExpectNear(page.At(42, 50), {255, 128, 128});
  EXPECT_EQ(page.At(47, 50), kBluePixel);
}

TEST(PdfTilingPattern, LeavesGapsBetweenItsCells) {
  CGPattern bars = Bars(kRedMark);
  bars.gap = {30, 1000};
  const Raster page = Filled(Shared(std::move(bars)));
  EXPECT_EQ(page.At(42, 95), kRedPixel);
  EXPECT_EQ(page.At(12, 95), kWhitePixel);
  EXPECT_EQ(page.At(42, 85), kWhitePixel);
}

/// Cells of 10 points: red and blue above green and white.
CGPattern Quarters() {
  CGPattern pattern;
  pattern.cell = {10, 10};
  std::vector<unsigned char> pixels;
  for (int row = 0; row < 10; ++row) {
    for (int column = 0; column < 10; ++column) {
      const Raster::Color color = row < 5 ? (column < 5 ? kRedPixel : kBluePixel)
                                          : (column < 5 ? kGreenPixel : kWhitePixel);
      for (const int channel : color)
        pixels.push_back(static_cast<unsigned char>(channel));
    }
  }
  pattern.image = test::ImageOf(10, 10, 3, pixels);
  return pattern;
}

TEST(PdfTilingPattern, MirrorsEveryOtherImage) {
  CGPattern quarters = Quarters();
  quarters.mirrorsX = true;
  quarters.mirrorsY = true;
  const Raster page = Filled(Shared(std::move(quarters)));
  EXPECT_EQ(page.At(22, 92), kRedPixel);
  EXPECT_EQ(page.At(27, 92), kBluePixel);
  EXPECT_EQ(page.At(32, 92), kBluePixel);
  EXPECT_EQ(page.At(37, 92), kRedPixel);
  EXPECT_EQ(page.At(22, 97), kGreenPixel);
  EXPECT_EQ(page.At(22, 87), kRedPixel);
  EXPECT_EQ(page.At(22, 82), kGreenPixel);
}

TEST(PdfPattern, OfEqualValueIsStoredOnce) {
  const std::string content = PdfContentOf([](CGContextRef c) {
    for (int i = 0; i < 2; ++i) {
      c->SetFillPattern(Shared(Bars(kHalfRed)));
      FillRect(c, {{0, 0}, {10, 10}});
      c->SetFillPattern(Across(kRedMark, kNoBlue));
      FillRect(c, {{0, 0}, {10, 10}});
    }
  });
  EXPECT_THAT(content, HasSubstr("/P2 scn"));
  EXPECT_THAT(content, Not(HasSubstr("/P3")));
  EXPECT_THAT(content, Not(HasSubstr("/G2")));
}

TEST(PdfPattern, OfAnyKindMakesAFileWithoutFault) {
  const std::string bytes = PdfBytesOf([](CGContextRef c) {
    CGPattern gapped = Bars(kHalfRed);
    gapped.gap = {1, 2};
    for (const CGSharedPattern& pattern :
         {Across(kRedMark, kNoBlue), Half(kHalfRed), Half(kRedMark), Shared(Bars(kHalfRed)),
          Shared(std::move(gapped))}) {
      c->SetFillPattern(pattern);
      c->SetStrokePattern(pattern);
      CGContextAddRect(c, CGRectMake(10, 10, 60, 60));
      CGContextDrawPath(c, kCGPathFillStroke);
      test::DrawHelvetica(c, u"Hi", 10, {});
    }
  });
  const test::TemporaryFolder folder;
  test::WriteFile(folder / "a.pdf", bytes);
  EXPECT_EQ(test::ComplaintsAbout(folder / "a.pdf"), "");
}

}  // namespace
}  // namespace kelvane
