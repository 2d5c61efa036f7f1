#import <kelvane/torvi_emf_image_rep.h>

// The bundle brings the library, by naming its class, so that an application that is linked with
// the library and loads the bundle as well has the class once.

@interface KelvaneBundle : NSObject
+ (Class)imageRepClass;
@end

@implementation KelvaneBundle

+ (Class)imageRepClass {
  return [TorviEMFImageRep class];
}

@end
