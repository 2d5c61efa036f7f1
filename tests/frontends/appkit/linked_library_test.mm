#import <AppKit/NSImageRep.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSBundle.h>
#include <gtest/gtest.h>

#include "support/appkit/appkit.h"

namespace kelvane::test {
namespace {

using ALinkedApplication = AppKitTest;

TEST_F(ALinkedApplication, FindsTheClassThatItDoesNotName) {
  EXPECT_NE([NSImageRep imageRepClassForFileType:@"emf"], Nil);
}

TEST_F(ALinkedApplication, KeepsItsOneClassWhenItLoadsTheBundle) {
  NSArray* before = [[[NSImageRep registeredImageRepClasses] copy] autorelease];
  ASSERT_EQ([[NSBundle bundleWithPath:@KELVANE_APPKIT_BUNDLE] load], YES);
  EXPECT_TRUE([[NSImageRep registeredImageRepClasses] isEqual:before]);
}

}  // namespace
}  // namespace kelvane::test
