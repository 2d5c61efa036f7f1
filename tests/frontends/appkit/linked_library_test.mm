#import <AppKit/NSImageRep.h>
#include <gtest/gtest.h>

#include "support/appkit/appkit.h"

namespace kelvane::test {
namespace {

using ALinkedApplication = AppKitTest;

TEST_F(ALinkedApplication, FindsTheClassThatItDoesNotName) {
  EXPECT_NE([NSImageRep imageRepClassForFileType:@"emf"], Nil);
}

}  // namespace
}  // namespace kelvane::test
