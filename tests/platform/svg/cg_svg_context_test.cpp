#include "platform/svg/cg_svg_context.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/quartz/cg_context_calls.h"
#include "support/fonts.h"
#include "support/images.h"
#include "support/surface_values.h"
#include "support/svg.h"
#include "support/text.h"

namespace kelvane {
namespace {

using test::FillRect;
using test::SvgBodyOf;
using test::SvgOf;
using testing::HasSubstr;
using testing::Not;

std::size_t CountOf(const std::string& text, const std::string& part) {
  std::size_t count = 0;
  for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
    ++count;
  return count;
}

TEST(CGSVGContextCreate, GivesNothingForNoConsumer) {
  EXPECT_EQ(CGSVGContextCreate(nullptr, {}), nullptr);
}

TEST(CGSVGContext, IsAsLargeAsItsPage) {
  const std::string svg = SvgOf([](CGContextRef) {}, {{10, 20}, {300.5F, 200}});
  EXPECT_EQ(
      svg,
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:xlink=\"http://www.w3.org/1999/xlink\""
      " version=\"1.1\" width=\"300.5pt\" height=\"200pt\" viewBox=\"0 0 300.5 200\"></svg>\n");
}

TEST(CGSVGContext, HasItsOriginInThePagesTopLeftCorner) {
  const std::string svg = SvgOf(
      [](CGContextRef c) {
        FillRect(c, {{10, 20}, {1, 2}});
      },
      {{10, 20}, {100, 50}});
  EXPECT_THAT(svg, HasSubstr("<path d=\"m0 50h1v-2h-1z\"/>"));
}

TEST(CGSVGContext, SaysItsTitle) {
  EXPECT_THAT(SvgOf([](CGContextRef) {}, test::kPageBox, {.title = u"A < B & \x01 C"}),
              HasSubstr("><title>A &lt; B &amp;  C</title>"));
}

TEST(CGSVGContext, LeavesNothingWithoutClosing) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  CFOwned<CGContext> surface(CGSVGContextCreate(consumer.get(), {}));
  CGContextBeginPage(surface.get(), &test::kPageBox);
  surface.reset();
  EXPECT_TRUE(data->bytes.empty());
}

TEST(CGSVGContext, RecordsTheFirstPageAlone) {
  const CFOwned<CFData> data(CFDataCreateMutable(kCFAllocatorDefault, 0));
  const CFOwned<CGDataConsumer> consumer(CGDataConsumerCreateWithCFData(data.get()));
  const CFOwned<CGContext> surface(CGSVGContextCreate(consumer.get(), {}));
  for (const CGFloat side : {100.0F, 50.0F}) {
    const CGRect box = {{0, 0}, {side, side}};
    CGContextBeginPage(surface.get(), &box);
    FillRect(surface.get(), {{0, 0}, {side, side}});
    CGContextEndPage(surface.get());
  }
  surface->Close();
  const std::string svg(data->bytes.begin(), data->bytes.end());
  EXPECT_THAT(svg, HasSubstr("viewBox=\"0 0 100 100\""));
  EXPECT_EQ(CountOf(svg, "<path"), 1U);
}

TEST(CGSVGContext, GroupsOnlyWhatIsCut) {
  EXPECT_EQ(
      SvgBodyOf([](CGContextRef c) {
        FillRect(c, {{0, 0}, {1, 1}});
        CGContextSaveGState(c);
        CGContextClipToRect(c, {{0, 0}, {50, 50}});
        FillRect(c, {{0, 0}, {1, 1}});
        FillRect(c, {{0, 0}, {1, 1}});
        CGContextRestoreGState(c);
        FillRect(c, {{0, 0}, {1, 1}});
      }),
      "<defs><clipPath id=\"c0\"><path d=\"m0 100h50v-50h-50z\"/></clipPath></defs>"
      "<path d=\"m0 100h1v-1h-1z\"/>"
      "<g clip-path=\"url(#c0)\"><path d=\"m0 100h1v-1h-1z\"/><path d=\"m0 100h1v-1h-1z\"/></g>"
      "<path d=\"m0 100h1v-1h-1z\"/>");
}

TEST(CGSVGContext, NeedsNoClipThatLeavesThePageWhole) {
  EXPECT_EQ(SvgBodyOf([](CGContextRef c) {
              CGContextClipToRect(c, {{0, -5}, {100, 110}});
              FillRect(c, {{0, 0}, {1, 1}});
            }),
            "<path d=\"m0 100h1v-1h-1z\"/>");
}

TEST(CGSVGContext, DefinesEqualClipsImagesAndGradientsOnce) {
  const auto image = test::ImageOf(1, 1, 3, {1, 2, 3});
  const auto equal = test::ImageOf(1, 1, 3, {1, 2, 3});
  const std::string body = SvgBodyOf([&](CGContextRef c) {
    for (int i = 0; i < 3; ++i) {
      CGContextSaveGState(c);
      CGContextClipToRect(c, {{0, 0}, {50, 50}});
      CGContextDrawImage(c, {{10, 10}, {20, 20}}, (i == 1 ? equal : image).get());
      CGContextDrawShading(c, CGAxialShading{{0, 0}, {9, 0}, {{0, {}}, {1, {1, 1, 1, 1}}}});
      CGContextRestoreGState(c);
    }
  });
  EXPECT_EQ(CountOf(body, "<clipPath"), 2U);  // and the edge of the image, which is smooth
  EXPECT_EQ(CountOf(body, "<image"), 1U);
  EXPECT_EQ(CountOf(body, "<linearGradient"), 1U);
  EXPECT_EQ(CountOf(body, "<use xlink:href=\"#i0\""), 1U);
  EXPECT_EQ(CountOf(body, "<use xlink:href=\"#g0\""), 3U);
}

TEST(CGSVGContext, HasColorsOfSmoothImagesInTheCornersOfTheirPixels) {
  const auto image = test::ImageOf(2, 1, 1, {0, 255});
  const test::Raster raster = test::RasterOfSvg(SvgOf([&](CGContextRef c) {
    CGContextDrawImage(c, {{0, 0}, {80, 80}}, image.get());
  }));
  EXPECT_LE(raster.At(0, 50)[0], 6);  // the middle of the first pixel of the page
  EXPECT_NEAR(raster.At(20, 50)[0], 128, 6);
  EXPECT_EQ(raster.At(40, 50), test::kWhitePixel);
  EXPECT_EQ(raster.At(0, 19), test::kWhitePixel);  // above the image
}

TEST(CGSVGContext, LeavesSmoothImagesOfTheScreensSizeWhereTheyAre) {
  const auto image = test::ImageOf(2, 1, 1, {0, 255});
  EXPECT_THAT(SvgBodyOf([&](CGContextRef c) {
                CGContextDrawImage(c, {{0, 0}, {1.5F, 0.75F}}, image.get());
              }),
              testing::AllOf(HasSubstr("<image id=\"i0\" width=\"2\" height=\"1\""),
                             Not(HasSubstr("clip"))));
}

TEST(CGSVGContext, KeepsJpegFilesAsTheyAre) {
  const auto provider = test::ProviderOf({0xFF, 0xD8, 0xFF});
  const CFOwned<const CGImage> image(CGImageCreateWithJPEG(8, 8, 3, provider.get(), false));
  EXPECT_THAT(SvgBodyOf([&](CGContextRef c) { CGContextDrawImage(c, test::kMark, image.get()); }),
              HasSubstr("xlink:href=\"data:image/jpeg;base64,/9j/\""));
}

TEST(CGSVGContext, DrawsNoImageWhoseBytesFallShort) {
  int timesAsked = 0;
  const auto short1 = test::MakerOf({1}, timesAsked);
  const auto image = test::GrayOf(2, 2, short1);
  EXPECT_EQ(SvgBodyOf([&](CGContextRef c) { CGContextDrawImage(c, test::kMark, image.get()); }),
            "");
}

TEST(CGSVGContext, HasPaperBelowWhatIsBlended) {
  EXPECT_EQ(SvgBodyOf([](CGContextRef c) {
              CGContextClipToRect(c, {{0, 0}, {50, 50}});
              CGContextSetBlendMode(c, kCGBlendModeMultiply);
              FillRect(c, {{0, 0}, {1, 1}});
            }),
            "<defs><clipPath id=\"c0\"><path d=\"m0 100h50v-50h-50z\"/></clipPath></defs>"
            "<rect width=\"100\" height=\"100\" fill=\"#fff\"/>"
            "<g style=\"mix-blend-mode:multiply\"><g clip-path=\"url(#c0)\">"
            "<path d=\"m0 100h1v-1h-1z\"/></g></g>");
}

TEST(CGSVGContext, DrawsHairlinesAsOnePixelWhereThatIsKnown) {
  const std::string body = SvgBodyOf([](CGContextRef c) {
    CGContextSetLineWidth(c, 0);
    test::StrokeLine(c, {0, 0}, {10, 10});
  });
  EXPECT_THAT(body, HasSubstr(".h{vector-effect:non-scaling-stroke;stroke-width:calc(1px)}"));
  EXPECT_THAT(body, HasSubstr("class=\"h\" stroke=\"#000\" stroke-width=\".1\""));
}

TEST(CGSVGContext, WritesTextAsItsCharacters) {
  const std::string body = SvgBodyOf([](CGContextRef c) {
    test::DrawText(c, u"A & \xD835\xDC00", {.font = "DejaVu Sans", .size = 10, .x = 5, .y = 20});
  });
  EXPECT_THAT(body, HasSubstr("font-size=\"10\" x=\"5\" y=\"80\""));
  EXPECT_THAT(body, HasSubstr("&amp;"));
  EXPECT_THAT(body, HasSubstr("\xF0\x9D\x90\x80"));
}

TEST(CGSVGContext, TellsPlacesThatAreNotThoseOfTheFace) {
  const std::string body = SvgBodyOf(
      [](CGContextRef c) { test::DrawUnits(c, u"AB", 25, {.size = 10, .x = 5, .y = 20}); });
  EXPECT_THAT(body, HasSubstr(">A"));
  EXPECT_THAT(body, HasSubstr("x=\"30\""));
}

TEST(CGSVGContext, CarriesTheFacesOfItsText) {
  const test::Drawing draw = [](CGContextRef c) { test::DrawText(c, u"Ab"); };
  EXPECT_THAT(SvgOf(draw), HasSubstr("@font-face{font-family:f0;src:url(data:font/woff2;base64,"));
  EXPECT_THAT(SvgOf(draw), HasSubstr(".f0{white-space:pre;font-kerning:none;font-family:f0,'"
                                     "Liberation Sans',Arial,Helvetica,sans-serif}"));
  const std::string bare = SvgOf(draw, test::kPageBox, {.title = {}, .embedsFonts = false});
  EXPECT_THAT(bare, Not(HasSubstr("@font-face")));
  EXPECT_THAT(bare, HasSubstr("font-family:'Liberation Sans',Arial,Helvetica,sans-serif}"));
}

TEST(CGSVGContext, WantsLettersBetweenPixelsWhereThereAreAny) {
  const std::string wish = "text-rendering=\"geometricPrecision\"";
  EXPECT_THAT(SvgOf([](CGContextRef c) { test::DrawText(c, u"Ab"); }), HasSubstr(wish));
  EXPECT_THAT(SvgOf([](CGContextRef c) { FillRect(c, {{0, 0}, {1, 1}}); }), Not(HasSubstr(wish)));
}

TEST(CGSVGContext, NamesWeightAndSlantOfAFace) {
  EXPECT_THAT(SvgBodyOf([](CGContextRef c) {
                test::DrawText(c, u"Ab", {.font = "Liberation Serif Bold Italic"});
              }),
              HasSubstr(".f0{font-weight:700;font-style:italic;white-space:pre;font-kerning:none;"
                        "font-family:f0,'Liberation Serif','Times New Roman',Times,serif}"));
}

/// What is drawn with a face that comes as a file with licence bits.
std::string TextUnderLicence(unsigned bits) {
  test::OtherFonts fonts({});
  fonts.Add("face.ttf", test::WithLicence(test::kLiberationSans, bits));
  FontRegistry registry;
  return SvgBodyOf([&](CGContextRef c) { test::DrawText(c, u"Ab", {.fonts = registry}); });
}

TEST(CGSVGContext, CarriesNoFaceThatMayNotTravel) {
  constexpr unsigned kRestricted = 0x0002;
  EXPECT_THAT(TextUnderLicence(0), HasSubstr("@font-face"));
  EXPECT_THAT(TextUnderLicence(kRestricted), Not(HasSubstr("@font-face")));
}

TEST(CGSVGContext, ShowsGlyphsThatNoCharacterLeadsToAsOutlinesUnderHiddenText) {
  const std::string body = SvgBodyOf([](CGContextRef c) {
    // Arabic letters are joined: their glyphs are not those that stand alone.
    test::DrawText(c, u"\x0644\x0645\x0646", {.font = "DejaVu Sans", .size = 20, .x = 10, .y = 50});
  });
  EXPECT_THAT(body, HasSubstr("<path"));
  EXPECT_THAT(body, HasSubstr("fill-opacity=\"0\""));
}

}  // namespace
}  // namespace kelvane
