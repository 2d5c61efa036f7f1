#pragma once

#include <functional>
#include <vector>

#import <AppKit/NSGraphics.h>
#import <AppKit/NSImage.h>
#import <Foundation/NSAutoreleasePool.h>
#import <Foundation/NSData.h>
#include <gtest/gtest.h>

#include "support/raster.h"

namespace kelvane::test {

/// A test that uses AppKit's objects, with a pool for what is autoreleased.
class AppKitTest : public testing::Test {
 protected:
  void SetUp() override { pool_ = [[NSAutoreleasePool alloc] init]; }
  void TearDown() override { [pool_ release]; }

 private:
  NSAutoreleasePool* pool_ = nil;
};

/// A test that draws, for which the process has a display and an application.
class DrawingTest : public AppKitTest {
 protected:
  static void SetUpTestSuite();
};

/// Both autoreleased.
NSData* DataOf(const std::vector<unsigned char>& bytes);
NSString* StringOf(const std::string& text);

/// What `draw` makes of a white picture off screen, of one pixel a unit.
Raster PictureOf(int width, int height, const std::function<void()>& draw);

/// The same in a window.
Raster WindowPictureOf(int width, int height, const std::function<void()>& draw);

}  // namespace kelvane::test
