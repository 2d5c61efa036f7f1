#pragma once

#include <map>
#include <string>
#include <string_view>

#include "platform/pdf/cg_pdf_document.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// What a document is to say of itself, by the keys below. Others are not looked at, and empty
/// texts are left out.
class CFDictionary {
 public:
  std::map<std::string_view, std::u16string> texts;
};

inline constexpr std::string_view kCGPDFContextTitle = "/Title";
inline constexpr std::string_view kCGPDFContextCreator = "/Creator";  // what made the picture

/// Makes a surface that records into a PDF document.
/// @param consumer       where the document goes when it is closed; retained.
/// @param mediaBox       the page box of the document, in points; for pages whose own box is
///                       refused, too.
/// @param auxiliaryInfo  borrowed for the call; null for nothing.
/// @return a surface owned by the caller; null for a null consumer or box and for a box whose width
///         or height is zero or that is not finite. Throws std::bad_alloc.
CGContextRef CGPDFContextCreate(CGDataConsumerRef consumer, const CGRect* mediaBox,
                                CFDictionaryRef auxiliaryInfo);

/// Writes the document to its consumer and commits it, once: later calls do nothing. A context
/// released without this leaves no document. Throws std::bad_alloc, std::system_error when the
/// consumer cannot take it, std::exception otherwise.
void CGPDFContextClose(CGContextRef context);

/// Draws a page fitted into the rectangle. Drawn over the whole of an untouched page of the same
/// box it becomes that page; anywhere else it is a form. A null document, a page that it does not
/// have and a surface of another kind mark nothing. Throws std::exception when the page cannot be
/// read.
void CGContextDrawPDFDocument(CGContextRef context, const CGRect& rect, CGPDFDocumentRef document,
                              int page);

}  // namespace kelvane
