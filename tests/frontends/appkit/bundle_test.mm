#import <AppKit/NSImage.h>
#import <AppKit/NSImageRep.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSBundle.h>
#import <Foundation/NSString.h>
#include <gtest/gtest.h>

#include "support/appkit/appkit.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

/// An application that is not linked with anything of ours.
class TheBundle : public DrawingTest {
 protected:
  static NSBundle* Bundle() { return [NSBundle bundleWithPath:@KELVANE_APPKIT_BUNDLE]; }
};

TEST_F(TheBundle, RegistersTheClassWhenItIsLoaded) {
  ASSERT_EQ([NSImageRep imageRepClassForFileType:@"emf"], Nil);
  ASSERT_EQ([Bundle() load], YES);
  EXPECT_EQ([NSImageRep imageRepClassForFileType:@"emf"], NSClassFromString(@"TorviEMFImageRep"));
}

TEST_F(TheBundle, HasTheClassForItsPrincipalClass) {
  EXPECT_TRUE([NSStringFromClass([Bundle() principalClass]) isEqual:@"TorviEMFImageRep"]);
}

TEST_F(TheBundle, LetsImagesOpenMetafiles) {
  ASSERT_EQ([Bundle() load], YES);
  const std::vector<unsigned char> red = Metafile()
                                             .Bounds(0, 0, 40, 20)
                                             .CreateBrush(1, Rgb(255, 0, 0))
                                             .SelectObject(1)
                                             .Rectangle({-5, -5, 45, 25})
                                             .Build();
  NSImage* image = [[[NSImage alloc] initWithData:DataOf(red)] autorelease];
  const Raster picture = PictureOf(40, 20, [&] {
    [image drawInRect:NSMakeRect(0, 0, 40, 20)
             fromRect:NSZeroRect
            operation:NSCompositeSourceOver
             fraction:1];
  });
  EXPECT_EQ(picture.At(20, 10), (Raster::Color{254, 0, 0}));
}

}  // namespace
}  // namespace kelvane::test
