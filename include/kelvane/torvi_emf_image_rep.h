/*
 * TorviEMFImageRep: metafiles as images in any AppKit application that has loaded kelvane's AppKit
 * library or bundle. The class registers itself; an application that only opens images needs no
 * line of this header.
 *
 * Failures give nil and are not logged. Objects follow AppKit's rules of ownership.
 */
#ifndef KELVANE_TORVI_EMF_IMAGE_REP_H
#define KELVANE_TORVI_EMF_IMAGE_REP_H

#import <AppKit/NSImageRep.h>

@class NSArray;
@class NSData;
@class NSMutableData;
@class NSPDFImageRep;

@interface TorviEMFImageRep : NSImageRep {
 @private
  NSMutableData* pdfData;     /* the metafile as a PDF of one page */
  NSPDFImageRep* pdfImageRep; /* draws it */
}

/* Whether data begins as a metafile does: at least 88 bytes, with the type, signature and version
 * of its header in place. NO for nil. */
+ (BOOL)canInitWithData:(NSData*)data;

/* The PDF image representation of the converted metafile, autoreleased; not an instance of this
 * class. nil when the data cannot be converted. */
+ (NSImageRep*)imageRepWithData:(NSData*)data;

/* Registers the class with NSImageRep. */
+ (void)load;

/* The uniform type "com.microsoft.metafile.emf". */
+ (NSArray*)imageUnfilteredTypes;

/* The extension "emf". */
+ (NSArray*)imageUnfilteredFileTypes;

/* Converts the metafile; its size is that of the PDF's page, one point a device unit. Releases the
 * receiver and returns nil when the data cannot be converted. */
- (id)initWithData:(NSData*)data;

/* The representation that draws; it belongs to the receiver. */
- (NSPDFImageRep*)pdfImageRep;

/* Draws the page at the origin of the current graphics context. NO when that failed. */
- (BOOL)draw;

@end

#endif
