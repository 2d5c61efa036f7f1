#include <array>
#include <cstddef>
#include <memory>

#import <Foundation/NSArray.h>
#import <Foundation/NSAutoreleasePool.h>
#import <Foundation/NSData.h>
#import <Foundation/NSString.h>

#include <kelvane/kelvane.h>
#import <kelvane/torvi_emf_image_rep.h>

#import "platform/appkit/kelvane_pdf_image_rep.h"

namespace {

constexpr NSUInteger kHeaderLength = 88;
constexpr std::size_t kSignatureOffset = 40;
constexpr std::size_t kVersionOffset = 44;

using Word = std::array<unsigned char, 4>;
constexpr Word kHeaderType = {1, 0, 0, 0};
constexpr Word kSignature = {' ', 'E', 'M', 'F'};
constexpr Word kVersion = {0, 0, 1, 0};
constexpr Word kVersionOfSomeWriters = {0, 3, 0, 0};

Word WordAt(NSData* data, std::size_t offset) {
  Word word;
  [data getBytes:word.data() range:NSMakeRange(offset, word.size())];
  return word;
}

struct DataRelease {
  void operator()(CFMutableDataRef data) const { CFRelease(data); }
};

using OwnedData = std::unique_ptr<KelvaneData, DataRelease>;

}  // namespace

@implementation TorviEMFImageRep

+ (void)load {
  // Nobody has made a pool yet when the application's libraries are loaded.
  NSAutoreleasePool* pool = [[NSAutoreleasePool alloc] init];
  [NSImageRep registerImageRepClass:self];
  [pool release];
}

+ (NSArray*)imageUnfilteredTypes {
  return [NSArray arrayWithObject:@"com.microsoft.metafile.emf"];
}

// GNUstep asks for the types of pasteboards, which it does not tell from uniform types.
+ (NSArray*)imageUnfilteredPasteboardTypes {
  return [self imageUnfilteredTypes];
}

+ (NSArray*)imageUnfilteredFileTypes {
  return [NSArray arrayWithObject:@"emf"];
}

+ (BOOL)canInitWithData:(NSData*)data {
  if (data == nil || [data length] < kHeaderLength) return NO;
  if (WordAt(data, 0) != kHeaderType) return NO;
  if (WordAt(data, kSignatureOffset) != kSignature) return NO;
  const Word version = WordAt(data, kVersionOffset);
  return version == kVersion || version == kVersionOfSomeWriters;
}

+ (NSImageRep*)imageRepWithData:(NSData*)data {
  TorviEMFImageRep* representation = [[self alloc] initWithData:data];
  NSPDFImageRep* drawing = [[representation pdfImageRep] retain];
  [representation release];
  return [drawing autorelease];
}

- (id)initWithData:(NSData*)data {
  self = [super init];
  if (self == nil) return nil;
  try {
    pdfData = [[NSMutableData alloc] init];
    const OwnedData output(CFDataCreateMutable(nullptr, 0));
    if (output != nullptr && KELVANE(static_cast<const unsigned char*>([data bytes]), [data length],
                                     output.get()) != -1) {
      [pdfData appendBytes:CFDataGetBytePtr(output.get())
                    length:static_cast<NSUInteger>(CFDataGetLength(output.get()))];
      pdfImageRep = [[KelvanePDFImageRep alloc] initWithData:pdfData];
    }
  } catch (...) {  // what AppKit raises when memory runs out
    pdfImageRep = nil;
  }
  if (pdfImageRep == nil) {
    [self release];
    return nil;
  }
  [self setSize:[pdfImageRep size]];
  return self;
}

- (void)dealloc {
  [pdfData release];
  [pdfImageRep release];
  [super dealloc];
}

- (id)copyWithZone:(NSZone*)zone {
  // The base class copies the variables bit by bit.
  TorviEMFImageRep* copy = [super copyWithZone:zone];
  [copy->pdfData retain];
  [copy->pdfImageRep retain];
  return copy;
}

- (NSPDFImageRep*)pdfImageRep {
  return pdfImageRep;
}

- (BOOL)draw {
  return [pdfImageRep draw];
}

@end
