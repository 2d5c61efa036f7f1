#include "support/drawn_marks.h"

#include <array>
#include <memory>
#include <span>
#include <utility>

#include "platform/quartz/cg_context_calls.h"
#include "platform/quartz/cg_pattern.h"
#include "support/images.h"
#include "support/text.h"

namespace kelvane::test {
namespace {

constexpr CGColor kRed = {1, 0, 0, 1};
constexpr CGColor kGreen = {0, 1, 0, 1};
constexpr CGColor kBlue = {0, 0, 1, 1};

void AddStar(CGContextRef c) {
  constexpr std::array<CGPoint, 5> kCorners = {{{50, 95}, {75, 10}, {5, 65}, {95, 65}, {25, 10}}};
  CGContextMoveToPoint(c, kCorners[0].x, kCorners[0].y);
  for (std::size_t i = 1; i < kCorners.size(); ++i)
    CGContextAddLineToPoint(c, kCorners[i].x, kCorners[i].y);
  CGContextClosePath(c);
}

void Star(CGContextRef c, CGPathDrawingMode mode) {
  SetFill(c, 1, .5F, 0);
  SetStroke(c, 0, 0, .5F);
  CGContextSetLineWidth(c, 3);
  AddStar(c);
  CGContextDrawPath(c, mode);
}

void StyledLine(CGContextRef c, CGLineCap cap, CGLineJoin join) {
  constexpr std::array<CGFloat, 2> kDash = {25, 15};
  CGContextSetLineWidth(c, 8);
  CGContextSetLineCap(c, cap);
  CGContextSetLineJoin(c, join);
  CGContextSetLineDash(c, 10, kDash.data(), kDash.size());
  CGContextMoveToPoint(c, 10, 10);
  CGContextAddLineToPoint(c, 50, 90);
  CGContextAddLineToPoint(c, 70, 20);
  CGContextAddCurveToPoint(c, 80, 20, 90, 50, 90, 90);
  CGContextDrawPath(c, kCGPathStroke);
}

void Blended(CGContextRef c, CGBlendMode mode) {
  SetFill(c, .8F, .4F, .2F);
  FillRect(c, {{10, 10}, {60, 60}});
  c->AddRect({{20, 20}, {70, 70}});
  CGContextClip(c);
  CGContextSetBlendMode(c, mode);
  SetFill(c, .3F, .6F, .9F);
  FillRect(c, {{30, 30}, {70, 70}});
}

CGSharedPattern Shared(CGPattern pattern) {
  return std::make_shared<const CGPattern>(std::move(pattern));
}

void FillWith(CGContextRef c, CGPattern pattern) {
  c->SetFillPattern(Shared(std::move(pattern)));
  c->AddEllipseInRect({{5, 5}, {90, 90}});
  CGContextDrawPath(c, kCGPathFill);
}

CGPattern Tiles(const CFOwned<const CGImage>& image) {
  CGPattern pattern;
  pattern.cell = {20, 10};
  pattern.matrix = {1, .25F, 0, 1, 3, 4};
  pattern.image = CFShare(image.get());
  return pattern;
}

/// Red, green, blue, white from the top left.
CFOwned<const CGImage> FourPixels() {
  const CFOwned<const CGDataProvider> provider =
      ProviderOf({255, 0, 0, 0, 255, 0, 0, 0, 255, 255, 255, 255});
  const CFOwned<const CGColorSpace> space(CGColorSpaceCreateDeviceRGB());
  return CFOwned<const CGImage>(CGImageCreate(2, 2, 8, 24, 6, space.get(), 0, provider.get(),
                                              nullptr, false, kCGRenderingIntentDefault));
}

CGPattern Shapes() {
  CGPattern pattern;
  pattern.cell = {10, 10};
  pattern.gap = {5, 5};
  CGPath square;
  square.AddRectangle({2, 2}, {20, 4});  // goes on beyond the cell
  pattern.shapes = {{square, kRed}};
  return pattern;
}

CGPattern Shaded(CGShading shading) {
  CGPattern pattern;
  pattern.shading = std::move(shading);
  return pattern;
}

const CGAxialShading kAcross = {{20, 20}, {80, 60}, {{0, kRed}, {.3F, kGreen}, {1, kBlue}}};

CGTriangleMesh Triangle(const CGColor& a, const CGColor& b, const CGColor& c) {
  return {{{{5, 5}, a}, {{95, 10}, b}, {{40, 95}, c}}};
}

void Text(CGContextRef c, float rotation) {
  DrawText(c, u"Tjg & <x>", {.size = 18, .rotation = rotation, .x = 10, .y = 20});
}

const DrawnMark kPaths[] = {
    {"Fill", [](CGContextRef c) { Star(c, kCGPathFill); }},
    {"EvenOddFill", [](CGContextRef c) { Star(c, kCGPathEOFill); }},
    {"Stroke", [](CGContextRef c) { Star(c, kCGPathStroke); }},
    {"FillAndStroke", [](CGContextRef c) { Star(c, kCGPathEOFillStroke); }},
    {"RoundDashes", [](CGContextRef c) { StyledLine(c, kCGLineCapRound, kCGLineJoinRound); }},
    {"SquareDashes", [](CGContextRef c) { StyledLine(c, kCGLineCapSquare, kCGLineJoinBevel); }},
    {"ButtDashes", [](CGContextRef c) { StyledLine(c, kCGLineCapButt, kCGLineJoinMiter); }},
    {"UnevenPen",
     [](CGContextRef c) {
       CGContextConcatCTM(c, {3, 0, 0, .5F, 0, 0});
       CGContextSetLineWidth(c, 4);
       c->AddEllipseInRect({{5, 20}, {23, 160}});
       CGContextDrawPath(c, kCGPathStroke);
     }},
    {"Alpha",
     [](CGContextRef c) {
       CGContextSetAlpha(c, .5F);
       Star(c, kCGPathFill);
       FillRect(c, {{0, 40}, {100, 20}});
     }},
    {"AlphaAtATip",
     [](CGContextRef c) {
       CGContextSetAlpha(c, .5F);
       CGContextSetLineWidth(c, 8);
       CGContextMoveToPoint(c, 35, 10);
       CGContextAddLineToPoint(c, 50, 70);
       CGContextAddLineToPoint(c, 65, 10);
       CGContextDrawPath(c, kCGPathStroke);
     }},
};

const DrawnMark kClips[] = {
    {"InEachOther",
     [](CGContextRef c) {
       c->AddEllipseInRect({{10, 10}, {60, 80}});
       CGContextClip(c);
       CGContextSaveGState(c);
       AddStar(c);
       CGContextEOClip(c);
       FillRect(c, {{0, 0}, {100, 100}});
       CGContextRestoreGState(c);
       SetFill(c, 0, .5F, 0);
       FillRect(c, {{0, 45}, {100, 10}});
     }},
    {"Multiply", [](CGContextRef c) { Blended(c, kCGBlendModeMultiply); }},
    {"Screen", [](CGContextRef c) { Blended(c, kCGBlendModeScreen); }},
    {"Difference", [](CGContextRef c) { Blended(c, kCGBlendModeDifference); }},
    {"Exclusion", [](CGContextRef c) { Blended(c, kCGBlendModeExclusion); }},
    {"Darken", [](CGContextRef c) { Blended(c, kCGBlendModeDarken); }},
};

const DrawnMark kPaints[] = {
    {"Tiles", [](CGContextRef c) { FillWith(c, Tiles(FourPixels())); }, 400},
    {"MirroredTiles",
     [](CGContextRef c) {
       CGPattern pattern = Tiles(FourPixels());
       pattern.mirrorsX = pattern.mirrorsY = true;
       FillWith(c, std::move(pattern));
     },
     800},
    {"ShapesApart", [](CGContextRef c) { FillWith(c, Shapes()); }},
    {"Axial", [](CGContextRef c) { FillWith(c, Shaded(kAcross)); }},
    {"AxialStroke",
     [](CGContextRef c) {
       c->SetStrokePattern(Shared(Shaded(kAcross)));
       CGContextConcatCTM(c, {2, 0, 0, .5F, 0, 0});
       CGContextSetLineWidth(c, 10);
       StrokeLine(c, {5, 20}, {45, 180});
     }},
    {"AxialOverAll", [](CGContextRef c) { CGContextDrawShading(c, kAcross); }},
    {"FadingAxial",
     [](CGContextRef c) {
       CGAxialShading shading = kAcross;
       shading.stops.back().color.alpha = 0;
       FillWith(c, Shaded(shading));
     }},
    {"MeshOfTwoColours",
     [](CGContextRef c) { CGContextDrawShading(c, Triangle(kRed, kRed, kBlue)); }},
    {"MeshOfColoursOnALine",
     [](CGContextRef c) {
       CGContextDrawShading(c, Triangle(kRed, {.5F, 0, .5F, 1}, kBlue));
     }},
    {"MeshOfThreeColours",
     [](CGContextRef c) { CGContextDrawShading(c, Triangle(kRed, kGreen, kBlue)); }, 20, 12},
    {"MeshAsAPattern", [](CGContextRef c) { FillWith(c, Shaded(Triangle(kRed, kRed, kBlue))); }},
};

void Draw(CGContextRef c, const CFOwned<const CGImage>& image) {
  CGContextConcatCTM(c, {.9F, .2F, -.2F, .9F, 10, 0});
  CGContextDrawImage(c, {{10, 10}, {80, 60}}, image.get());
}

const DrawnMark kImages[] = {
    {"Rgb", [](CGContextRef c) { Draw(c, FourPixels()); }},
    {"Numbers",
     [](CGContextRef c) {
       Draw(c, IndexedOf(3, 2, 4, {255, 0, 0, 0, 255, 0, 0, 0, 255}, {0x01, 0x20, 0x21, 0x00}));
     }},
    {"Mask",
     [](CGContextRef c) {
       SetFill(c, 0, .5F, 1);
       Draw(c, MaskOf(4, 2, {0x50, 0xA0}));
     }},
    {"MaskOfAPattern",
     [](CGContextRef c) {
       c->SetFillPattern(Shared(Shaded(kAcross)));
       Draw(c, MaskOf(4, 2, {0x50, 0xA0}));
     }},
    {"MaskedByOneOfItsSize",
     [](CGContextRef c) {
       Draw(c, Masked(FourPixels(), MaskOf(2, 2, {0x40, 0x80})));
     }},
    {"MaskedByAnotherSize",
     [](CGContextRef c) { Draw(c, Masked(FourPixels(), MaskOf(4, 1, {0x50}))); }, 300},
    {"Jpeg",
     [](CGContextRef c) {
       const auto provider = ProviderOf(JpegOf(3));
       const CFOwned<const CGImage> image(CGImageCreateWithJPEG(8, 8, 3, provider.get(), false));
       CGContextSetAlpha(c, .5F);
       Draw(c, image);
     },
     20, 6, true},
};

const DrawnMark kTexts[] = {
    {"Upright", [](CGContextRef c) { Text(c, 0); }},
    {"Turned", [](CGContextRef c) { Text(c, 30); }},
    {"SetApart", [](CGContextRef c) { DrawUnits(c, u"AVA", 25, {.size = 20, .x = 5, .y = 40}); }},
    {"AlphaEnlarged",
     [](CGContextRef c) {
       CGContextSetAlpha(c, .5F);
       CGContextConcatCTM(c, {6, 0, 0, 6, 0, 0});
       DrawText(c, u"Tj", {.size = 9, .x = 3, .y = 4});
     }},
    {"Outlined",
     [](CGContextRef c) {
       CGContextSetTextDrawingMode(c, kCGTextFillStroke);
       SetFill(c, 1, 1, 0);
       SetStroke(c, 1, 0, 0);
       Text(c, 0);
     },
     200},
    {"OfAGradient",
     [](CGContextRef c) {
       c->SetFillPattern(Shared(Shaded(kAcross)));
       Text(c, 45);
     }},
};

}  // namespace

std::ostream& operator<<(std::ostream& out, const DrawnMark& mark) {
  return out << mark.name;
}

std::vector<DrawnMark> DrawnMarks() {
  std::vector<DrawnMark> all;
  for (const std::span<const DrawnMark> kind :
       {std::span<const DrawnMark>(kPaths), std::span<const DrawnMark>(kClips),
        std::span<const DrawnMark>(kPaints), std::span<const DrawnMark>(kImages),
        std::span<const DrawnMark>(kTexts)}) {
    all.insert(all.end(), kind.begin(), kind.end());
  }
  return all;
}

}  // namespace kelvane::test
