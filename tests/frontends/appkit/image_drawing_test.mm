#include <vector>

#import <AppKit/NSColor.h>
#import <AppKit/NSGraphicsContext.h>
#import <AppKit/NSPDFImageRep.h>
#include <gtest/gtest.h>

#import <kelvane/torvi_emf_image_rep.h>

#include "support/appkit/appkit.h"
#include "support/appkit/replaced_method.h"
#include "support/bytes.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

constexpr Raster::Color kWhite = {255, 255, 255};
constexpr Raster::Color kRed = {254, 0, 0};  // as a brush of a metafile makes it
constexpr Raster::Color kBlue = {0, 0, 255};

NSImageRep* ImageOf(const Metafile& metafile) {
  return [[[TorviEMFImageRep alloc] initWithData:DataOf(metafile.Build())] autorelease];
}

/// A page with a red square of 10 units in its upper left corner.
Metafile RedCorner(At corner, At size) {
  return Metafile()
      .Bounds(corner.x, corner.y, corner.x + size.x, corner.y + size.y)
      .CreateBrush(1, Rgb(255, 0, 0))
      .SelectObject(1)
      .SelectObject(kStockNullPen)
      .Rectangle({corner.x, corner.y, corner.x + 10, corner.y + 10});
}

using DrawnImage = DrawingTest;

TEST_F(DrawnImage, FillsItsSizeFromTheOrigin) {
  const Raster picture = PictureOf(60, 40, [] { [ImageOf(RedCorner({0, 0}, {40, 30})) draw]; });
  EXPECT_EQ(picture.At(1, 11), kRed);  // the picture is 10 units higher than the page
  EXPECT_EQ(picture.At(8, 18), kRed);
  EXPECT_EQ(picture.At(5, 8), kWhite);
  EXPECT_EQ(picture.At(5, 22), kWhite);
  EXPECT_EQ(picture.At(12, 15), kWhite);
}

TEST_F(DrawnImage, StartsAtTheCornerOfItsBoundsWhereverThatIs) {
  for (const At corner : {At{100, 50}, At{-500, -700}, At{-7, 3}}) {
    const Raster picture = PictureOf(40, 30, [&] { [ImageOf(RedCorner(corner, {40, 30})) draw]; });
    EXPECT_EQ(picture.At(1, 1), kRed) << corner.x;
    EXPECT_EQ(picture.At(8, 8), kRed) << corner.x;
    EXPECT_EQ(picture.At(12, 12), kWhite) << corner.x;
  }
}

TEST_F(DrawnImage, IsMovedToAPoint) {
  const Raster picture = PictureOf(60, 40, [] {
    EXPECT_EQ([ImageOf(RedCorner({0, 0}, {40, 30})) drawAtPoint:NSMakePoint(20, 10)], YES);
  });
  EXPECT_EQ(picture.At(21, 1), kRed);
  EXPECT_EQ(picture.At(18, 1), kWhite);
}

TEST_F(DrawnImage, LeavesWhatIsBelowWhereThePageIsBare) {
  const Raster picture = PictureOf(40, 30, [] {
    [[NSColor colorWithDeviceRed:0 green:0 blue:1 alpha:1] set];
    NSRectFill(NSMakeRect(0, 0, 40, 30));
    [ImageOf(RedCorner({0, 0}, {40, 30})) draw];
  });
  EXPECT_EQ(picture.At(5, 5), kRed);
  EXPECT_EQ(picture.At(25, 20), kBlue);
}

TEST_F(DrawnImage, ShowsBitmapsTheRightWayUp) {
  const Bytes fourPixels = Bytes()
                               .BitmapHeader({.width = 2, .height = 2})
                               .Each({0, 0, 0, 0, 255, 0, 0, 0})     // below: black, green
                               .Each({0, 0, 255, 255, 0, 0, 0, 0});  // above: red, blue
  const Raster picture = PictureOf(40, 40, [&] {
    [ImageOf(Metafile().Bounds(0, 0, 40, 40).StretchDibits({0, 0, 40, 40}, fourPixels)) draw];
  });
  EXPECT_EQ(picture.At(1, 1), (Raster::Color{255, 0, 0}));
  EXPECT_EQ(picture.At(38, 1), (Raster::Color{0, 0, 255}));
  EXPECT_EQ(picture.At(1, 38), (Raster::Color{0, 0, 0}));
  EXPECT_EQ(picture.At(38, 38), (Raster::Color{0, 255, 0}));
}

TEST_F(DrawnImage, IsWhatItsInnerRepresentationDraws) {
  TorviEMFImageRep* image = [[[TorviEMFImageRep alloc]
      initWithData:DataOf(RedCorner({0, 0}, {40, 30}).TextOut({20, 20}, u"Ag").Build())]
      autorelease];
  const Raster picture = PictureOf(40, 30, [&] { EXPECT_EQ([image draw], YES); });
  const Raster inner = PictureOf(40, 30, [&] { EXPECT_EQ([[image pdfImageRep] draw], YES); });
  EXPECT_EQ(inner.At(5, 5), kRed);
  EXPECT_EQ(DifferingPixels(picture, inner, 0), 0);
}

BOOL AnswerNo(id /*self*/, SEL /*name*/) {
  return NO;
}

TEST_F(DrawnImage, AnswersWhatItsInnerRepresentationAnswers) {
  NSImageRep* image = ImageOf(RedCorner({0, 0}, {40, 30}));
  const ReplacedMethod method("KelvanePDFImageRep", @selector(draw), AnswerNo);
  const Raster picture = PictureOf(40, 30, [&] { EXPECT_EQ([image draw], NO); });
  EXPECT_EQ(picture.At(5, 5), kWhite);
}

TEST_F(DrawnImage, CannotBeDrawnWithoutAContext) {
  [NSGraphicsContext saveGraphicsState];
  [NSGraphicsContext setCurrentContext:nil];
  EXPECT_EQ([ImageOf(RedCorner({0, 0}, {40, 30})) draw], NO);
  [NSGraphicsContext restoreGraphicsState];
}

TEST_F(DrawnImage, CannotBeDrawnIntoNoRoom) {
  (void)PictureOf(40, 30, [] {
    EXPECT_EQ([ImageOf(RedCorner({0, 0}, {40, 30})) drawInRect:NSZeroRect], NO);
  });
}

/// A page that is red all over.
NSImageRep* RedPage(std::int32_t width, std::int32_t height) {
  return ImageOf(Metafile()
                     .Bounds(0, 0, width, height)
                     .CreateBrush(1, Rgb(255, 0, 0))
                     .SelectObject(1)
                     .Rectangle({0, 0, width, height}));
}

TEST_F(DrawnImage, OfAHugePageFitsIntoAnyRoom) {
  constexpr std::int32_t kHuge = 2000000000;
  for (const At size : {At{kHuge, kHuge}, At{kHuge, 10}, At{10, kHuge}}) {
    const Raster picture = PictureOf(40, 30, [&] {
      EXPECT_EQ([RedPage(size.x, size.y) drawInRect:NSMakeRect(0, 0, 40, 30)], YES);
    });
    EXPECT_EQ(picture.At(20, 15), kRed) << size.x;
  }
}

TEST_F(DrawnImage, IsCoarserWhereItWouldTakeTooMuchMemory) {
  const Raster picture = PictureOf(40, 30, [] { EXPECT_EQ([RedPage(32767, 32767) draw], YES); });
  EXPECT_EQ(picture.At(20, 15), kRed);
}

TEST_F(DrawnImage, CannotBeDrawnLargerThanAnyDevice) {
  const Raster picture = PictureOf(40, 30, [] { EXPECT_EQ([RedPage(32768, 10) draw], NO); });
  EXPECT_EQ(picture.At(20, 25), kWhite);
}

}  // namespace
}  // namespace kelvane::test
