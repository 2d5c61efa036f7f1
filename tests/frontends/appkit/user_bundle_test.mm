#import <AppKit/NSImageRep.h>
#import <Foundation/NSArray.h>
#import <Foundation/NSDictionary.h>
#import <Foundation/NSString.h>
#import <Foundation/NSUserDefaults.h>
#include <gtest/gtest.h>

#include "support/appkit/appkit.h"

namespace kelvane::test {
namespace {

/// Any application of a user who has the bundle among those that AppKit is to load.
class AnyApplication : public DrawingTest {
 protected:
  static void SetUpTestSuite() {
    NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
    NSArray* bundles = [NSArray arrayWithObject:@KELVANE_APPKIT_BUNDLE];
    [[NSUserDefaults standardUserDefaults]
        registerDefaults:[NSDictionary dictionaryWithObject:bundles forKey:@"GSAppKitUserBundles"]];
    DrawingTest::SetUpTestSuite();
    [pool release];
  }
};

TEST_F(AnyApplication, FindsTheClassOfTheUsersBundle) {
  EXPECT_NE([NSImageRep imageRepClassForFileType:@"emf"], Nil);
}

}  // namespace
}  // namespace kelvane::test
