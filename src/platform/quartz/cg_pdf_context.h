#pragma once

#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// Options a document may be given; there are none yet.
class CFDictionary;
using CFDictionaryRef = const CFDictionary*;

/// Makes a surface that records into a PDF document.
/// @param consumer  where the document goes when it is closed; retained.
/// @param mediaBox  the page box of the document, in points; for pages whose own box is refused,
/// too.
/// @param auxiliaryInfo  null.
/// @return a surface owned by the caller; null for a null consumer or box and for a box whose width
/// or height is
///         zero or that is not finite. Throws std::bad_alloc.
CGContextRef CGPDFContextCreate(CGDataConsumerRef consumer, const CGRect* mediaBox,
                                CFDictionaryRef auxiliaryInfo);

/// Writes the document to its consumer and commits it, once: later calls do nothing. A context
/// released without this leaves no document. Throws std::bad_alloc, std::system_error when the
/// consumer cannot take it, std::exception otherwise.
void CGPDFContextClose(CGContextRef context);

}  // namespace kelvane
