#import "platform/appkit/kelvane_pdf_image_rep.h"

#include <string>

#import <AppKit/NSGraphics.h>
#include <gtest/gtest.h>

#include "support/appkit/appkit.h"
#include "support/library.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

NSData* PdfOf(const Metafile& metafile) {
  const std::string pdf = ConvertInMemory(metafile.Build()).output;
  return [NSData dataWithBytes:pdf.data() length:pdf.size()];
}

NSData* Red() {
  return PdfOf(Metafile()
                   .Bounds(-20, 10, 20, 40)
                   .CreateBrush(1, Rgb(255, 0, 0))
                   .SelectObject(1)
                   .Rectangle({-30, 0, 50, 50}));
}

NSPDFImageRep* ImageOf(NSData* pdf) {
  // By name, since the library that is tested alongside keeps its own class to itself.
  return [[[NSClassFromString(@"KelvanePDFImageRep") alloc] initWithData:pdf] autorelease];
}

class APdfImage : public DrawingTest {
 protected:
  static Raster Picture(NSImageRep* image) {
    return PictureOf(40, 30, [&] { EXPECT_EQ([image drawInRect:NSMakeRect(0, 0, 40, 30)], YES); });
  }

  static constexpr Raster::Color kRed = {254, 0, 0};  // as a brush of a metafile makes it
};

TEST_F(APdfImage, TellsOfItsPage) {
  NSPDFImageRep* image = ImageOf(Red());
  EXPECT_TRUE(NSEqualSizes([image size], NSMakeSize(40, 30)));
  EXPECT_TRUE(NSEqualRects([image bounds], NSMakeRect(-20, -40, 40, 30)));
  EXPECT_EQ([image pageCount], 1);
  EXPECT_EQ([image currentPage], 0);
  EXPECT_EQ([image isOpaque], NO);
}

TEST_F(APdfImage, GivesBackItsDocument) {
  EXPECT_TRUE([[ImageOf(Red()) PDFRepresentation] isEqual:Red()]);
}

TEST_F(APdfImage, KeepsItsDocumentWhenTheDataChange) {
  NSMutableData* pdf = [[Red() mutableCopy] autorelease];
  NSPDFImageRep* image = ImageOf(pdf);
  [pdf resetBytesInRange:NSMakeRange(0, [pdf length])];
  EXPECT_EQ(Picture(image).At(20, 15), kRed);
}

TEST_F(APdfImage, IsMadeByTheFactoryMethod) {
  EXPECT_EQ(Picture([NSClassFromString(@"KelvanePDFImageRep") imageRepWithData:Red()]).At(20, 15),
            kRed);
}

TEST_F(APdfImage, IsNilWithoutAPdf) {
  EXPECT_EQ(ImageOf(nil), nil);
  EXPECT_EQ(ImageOf([NSData data]), nil);
  EXPECT_EQ(ImageOf([NSData dataWithBytes:"no document" length:11]), nil);
  EXPECT_EQ(ImageOf([Red() subdataWithRange:NSMakeRange(0, 100)]), nil);
}

TEST_F(APdfImage, IsDrawnInTheSizeItIsGiven) {
  NSPDFImageRep* image = ImageOf(Red());
  [image setSize:NSMakeSize(10, 10)];
  const Raster picture = PictureOf(40, 30, [&] { [image draw]; });
  EXPECT_EQ(picture.At(5, 25), kRed);
  EXPECT_EQ(picture.At(15, 25), (Raster::Color{255, 255, 255}));
  EXPECT_EQ(picture.At(5, 15), (Raster::Color{255, 255, 255}));
}

TEST_F(APdfImage, IsDrawnByACopyThatOutlivesIt) {
  NSPDFImageRep* image = [[NSClassFromString(@"KelvanePDFImageRep") alloc] initWithData:Red()];
  NSPDFImageRep* copy = [[image copy] autorelease];
  [image release];
  EXPECT_EQ(Picture(copy).At(20, 15), kRed);
}

}  // namespace
}  // namespace kelvane::test
