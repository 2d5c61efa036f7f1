#pragma once

#import <AppKit/NSPDFImageRep.h>

#include "platform/appkit/pdf_page.h"

/// The first page of a PDF, drawn without the help of a program that the system may forbid to read
/// PDFs. Its size is the page's, in points. What lies below the page stays where the page is bare.
@interface KelvanePDFImageRep : NSPDFImageRep {
 @private
  NSData* document;  // lent to the page
  PopplerPage* page;
}

/// Opens a copy of the document. Releases the receiver and returns nil when there is no PDF that
/// can be read, or its page has no area.
- (instancetype)initWithData:(NSData*)data;

/// Draws in the current graphics context, the page fitted into the receiver's size at the origin,
/// at the resolution of the context. NO when there is no context, when it has no room for the page
/// or gives it more than 32767 pixels a side, and when memory runs out.
- (BOOL)draw;

@end
