#import "support/appkit/appkit.h"

#import <AppKit/NSApplication.h>
#import <AppKit/NSBitmapImageRep.h>
#import <AppKit/NSColor.h>
#import <AppKit/NSView.h>
#import <AppKit/NSWindow.h>
#import <Foundation/NSString.h>

#include "support/appkit/x_server.h"

/// A view that draws what it is told to.
@interface TestView : NSView {
 @public
  const std::function<void()>* draw;  // lives as long as the view
}
@end

@implementation TestView

- (void)drawRect:(NSRect)__attribute__((unused))changed {
  [[NSColor whiteColor] set];
  NSRectFill([self bounds]);
  (*draw)();
}

@end

namespace kelvane::test {
namespace {

/// What stands in the view that has the focus.
Raster FocusedPicture(NSRect area) {
  NSBitmapImageRep* bitmap = [[[NSBitmapImageRep alloc] initWithFocusedViewRect:area] autorelease];
  const auto width = static_cast<std::size_t>([bitmap pixelsWide]);
  const auto height = static_cast<std::size_t>([bitmap pixelsHigh]);
  const auto samples = static_cast<std::size_t>([bitmap samplesPerPixel]);
  std::string pixels;
  for (std::size_t row = 0; row < height; ++row) {
    const unsigned char* pixel =
        [bitmap bitmapData] + row * static_cast<std::size_t>([bitmap bytesPerRow]);
    for (std::size_t column = 0; column < width; ++column, pixel += samples) {
      pixels.append(pixel, pixel + 3);
    }
  }
  return {static_cast<int>(width), static_cast<int>(height), std::move(pixels)};
}

}  // namespace

void DrawingTest::SetUpTestSuite() {
  static const XServer server;
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  [NSApplication sharedApplication];
  [pool release];
}

NSData* DataOf(const std::vector<unsigned char>& bytes) {
  return [NSData dataWithBytes:bytes.data() length:bytes.size()];
}

NSString* StringOf(const std::string& text) {
  return [NSString stringWithUTF8String:text.c_str()];
}

Raster PictureOf(int width, int height, const std::function<void()>& draw) {
  NSImage* image = [[[NSImage alloc] initWithSize:NSMakeSize(width, height)] autorelease];
  const NSRect area = NSMakeRect(0, 0, width, height);
  [image lockFocus];
  [[NSColor whiteColor] set];
  NSRectFill(area);
  draw();
  Raster picture = FocusedPicture(area);
  [image unlockFocus];
  return picture;
}

Raster WindowPictureOf(int width, int height, const std::function<void()>& draw) {
  const NSRect area = NSMakeRect(0, 0, width, height);
  NSWindow* window = [[NSWindow alloc] initWithContentRect:area
                                                 styleMask:NSBorderlessWindowMask
                                                   backing:NSBackingStoreBuffered
                                                     defer:NO];
  TestView* view = [[[TestView alloc] initWithFrame:area] autorelease];
  view->draw = &draw;
  [window setContentView:view];
  [window orderFront:nil];
  [view display];
  [view lockFocus];
  Raster picture = FocusedPicture(area);
  [view unlockFocus];
  [window orderOut:nil];
  [window release];
  return picture;
}

}  // namespace kelvane::test
