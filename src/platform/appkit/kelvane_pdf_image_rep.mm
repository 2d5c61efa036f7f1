#import "platform/appkit/kelvane_pdf_image_rep.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <memory>
#include <vector>

#import <AppKit/NSAffineTransform.h>
#import <AppKit/NSGraphics.h>
#import <AppKit/NSGraphicsContext.h>
#import <AppKit/NSImage.h>
#import <Foundation/NSAffineTransform.h>
#import <Foundation/NSData.h>

namespace {

using kelvane::BitmapSize;

struct ObjectRelease {
  void operator()(NSObject* object) const { [object release]; }
};

template <class Class>
using Owned = std::unique_ptr<Class, ObjectRelease>;

/// The bitmap for a room at the origin of a context.
BitmapSize BitmapSizeFor(NSSize room, NSGraphicsContext* context) {
  constexpr double kPrinterScale = 300.0 / 72;  // paper shows more than the points it is set in
  const double scale = [context isDrawingToScreen] ? 1 : kPrinterScale;
  const NSAffineTransformStruct toDevice = [[context GSCurrentCTM] transformStruct];
  return kelvane::BitmapSizeFor(room.width * std::hypot(toDevice.m11, toDevice.m12) * scale,
                                room.height * std::hypot(toDevice.m21, toDevice.m22) * scale);
}

/// The drawing goes to an image, until the end, also when AppKit raises.
class ImageFocus {
 public:
  explicit ImageFocus(NSImage* image) : image_(image) { [image lockFocus]; }
  ImageFocus(const ImageFocus&) = delete;
  ImageFocus& operator=(const ImageFocus&) = delete;
  ~ImageFocus() { [image_ unlockFocus]; }

 private:
  NSImage* image_;
};

/// The current context's state, restored at the end, also when AppKit raises.
class SavedGraphicsState {
 public:
  SavedGraphicsState() { [NSGraphicsContext saveGraphicsState]; }
  SavedGraphicsState(const SavedGraphicsState&) = delete;
  SavedGraphicsState& operator=(const SavedGraphicsState&) = delete;
  ~SavedGraphicsState() { [NSGraphicsContext restoreGraphicsState]; }
};

/// A page as an image of one unit a pixel. Throws and raises when memory runs out.
/// @return null when the page cannot be painted.
Owned<NSImage> ImageOfPage(PopplerPage* page, BitmapSize size) {
  std::vector<unsigned char> pixels(static_cast<std::size_t>(size.width) *
                                    static_cast<std::size_t>(size.height) * 4);
  if (!kelvane::PaintPage(page, size, pixels)) return nullptr;
  const std::array<const unsigned char*, 5> planes = {pixels.data()};
  const NSRect area = NSMakeRect(0, 0, size.width, size.height);
  Owned<NSImage> image([[NSImage alloc] initWithSize:area.size]);
  const ImageFocus focus(image.get());
  NSDrawBitmap(area, size.width, size.height, 8, 4, 32, NSInteger{size.width} * 4, NO, YES,
               NSDeviceRGBColorSpace, planes.data());
  return image;
}

/// Draws an image over what is in the current context. A bitmap would be drawn in its place.
void DrawOver(NSImage* image, NSSize room) {
  const NSSize size = [image size];
  // The image is drawn in its own size: on its way AppKit makes a bitmap of the size it is told.
  NSAffineTransform* toRoom = [NSAffineTransform transform];
  [toRoom scaleXBy:room.width / size.width yBy:room.height / size.height];
  const SavedGraphicsState saved;
  [toRoom concat];
  [image drawInRect:NSMakeRect(0, 0, size.width, size.height)
           fromRect:NSZeroRect
          operation:NSCompositeSourceOver
           fraction:1];
}

}  // namespace

@implementation KelvanePDFImageRep

- (instancetype)initWithData:(NSData*)data {
  // The base class's own initWithData: is what this class replaces.
  self = [super init];
  if (self == nil) return nil;
  document = [data copy];
  page =
      kelvane::OpenFirstPage({static_cast<const std::byte*>([document bytes]), [document length]})
          .release();
  const kelvane::PageSize size = page != nullptr ? kelvane::SizeOf(page) : kelvane::PageSize{};
  if (!(size.width > 0 && size.height > 0)) {
    [self release];
    return nil;
  }
  [self setSize:NSMakeSize(size.width, size.height)];
  [self setAlpha:YES];
  [self setOpaque:NO];
  return self;
}

- (void)dealloc {
  if (page != nullptr) g_object_unref(page);
  [document release];
  [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
  // The base class copies the variables bit by bit.
  KelvanePDFImageRep* copy = [super copyWithZone:zone];
  [copy->document retain];
  if (copy->page != nullptr) g_object_ref(copy->page);
  return copy;
}

- (BOOL)draw {
  NSGraphicsContext* context = [NSGraphicsContext currentContext];
  if (context == nil || page == nullptr) return NO;
  try {
    const BitmapSize bitmapSize = BitmapSizeFor([self size], context);
    if (bitmapSize.width == 0) return NO;
    const Owned<NSImage> image = ImageOfPage(page, bitmapSize);
    if (image == nullptr) return NO;
    DrawOver(image.get(), [self size]);
    return YES;
  } catch (...) {
    return NO;
  }
}

- (NSData*)PDFRepresentation {
  return document;
}

- (NSRect)bounds {
  if (page == nullptr) return NSZeroRect;
  PopplerRectangle box;
  poppler_page_get_crop_box(page, &box);
  return NSMakeRect(box.x1, box.y1, box.x2 - box.x1, box.y2 - box.y1);
}

- (NSInteger)pageCount {
  return 1;
}

- (NSInteger)currentPage {
  return 0;
}

@end
