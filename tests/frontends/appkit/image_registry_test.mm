#import <AppKit/NSImage.h>
#import <AppKit/NSPDFImageRep.h>
#import <Foundation/NSString.h>
#include <gtest/gtest.h>

#import <kelvane/torvi_emf_image_rep.h>

#include "support/appkit/appkit.h"
#include "support/files.h"
#include "support/metafile.h"

namespace kelvane::test {
namespace {

std::vector<unsigned char> Page() {
  return Metafile().Bounds(0, 0, 120, 80).Rectangle({10, 10, 50, 40}).Build();
}

/// An application that is linked with the library and does nothing else about it.
using AppKitsRegistry = AppKitTest;

TEST_F(AppKitsRegistry, HasTheClassOnce) {
  NSArray* classes = [NSImageRep registeredImageRepClasses];
  const NSUInteger first = [classes indexOfObject:[TorviEMFImageRep class]];
  ASSERT_NE(first, static_cast<NSUInteger>(NSNotFound));
  const NSRange rest = NSMakeRange(first + 1, [classes count] - first - 1);
  EXPECT_EQ([classes indexOfObject:[TorviEMFImageRep class] inRange:rest],
            static_cast<NSUInteger>(NSNotFound));
}

TEST_F(AppKitsRegistry, FindsTheClassByExtension) {
  EXPECT_EQ([NSImageRep imageRepClassForFileType:@"emf"], [TorviEMFImageRep class]);
}

TEST_F(AppKitsRegistry, FindsTheClassByType) {
  EXPECT_EQ([NSImageRep imageRepClassForPasteboardType:@"com.microsoft.metafile.emf"],
            [TorviEMFImageRep class]);
}

TEST_F(AppKitsRegistry, FindsTheClassByData) {
  EXPECT_EQ([NSImageRep imageRepClassForData:DataOf(Page())], [TorviEMFImageRep class]);
}

TEST_F(AppKitsRegistry, FindsOtherClassesForOtherData) {
  std::vector<unsigned char> bytes = Page();
  bytes[40] = 'X';
  EXPECT_EQ([NSImageRep imageRepClassForData:DataOf(bytes)], Nil);
}

TEST_F(AppKitsRegistry, OpensFilesByExtension) {
  const TemporaryFolder folder;
  WriteFile(folder / "page.emf", Page());
  NSImageRep* image = [NSImageRep imageRepWithContentsOfFile:StringOf(folder / "page.emf")];
  EXPECT_TRUE([image isKindOfClass:[NSPDFImageRep class]]);
  EXPECT_EQ([image size].width, 120);
}

using AnImage = DrawingTest;

TEST_F(AnImage, OpensMetafileData) {
  NSImage* image = [[[NSImage alloc] initWithData:DataOf(Page())] autorelease];
  ASSERT_EQ([image isValid], YES);
  EXPECT_EQ([image size].width, 120);
  EXPECT_EQ([image size].height, 80);
  EXPECT_EQ([[image representations] count], 1U);
}

TEST_F(AnImage, OpensAMetafileOnDisk) {
  const TemporaryFolder folder;
  WriteFile(folder / "page.emf", Page());
  NSImage* image =
      [[[NSImage alloc] initWithContentsOfFile:StringOf(folder / "page.emf")] autorelease];
  ASSERT_EQ([image isValid], YES);
  EXPECT_EQ([image size].width, 120);
}

TEST_F(AnImage, IsNilForDataThatCannotBeConverted) {
  std::vector<unsigned char> bytes = Page();
  bytes.resize(88);
  EXPECT_EQ([[NSImage alloc] initWithData:DataOf(bytes)], nil);
}

}  // namespace
}  // namespace kelvane::test
