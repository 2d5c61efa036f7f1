#pragma once

#include <functional>
#include <string>

#include "platform/quartz/cg_context.h"

namespace kelvane::test {

using Drawing = std::function<void(CGContextRef)>;

/// @return the trace of what is drawn on a page of 100 by 100, without the page's own lines.
std::string TraceOf(const Drawing& draw);

/// @return the document with a page of 100 by 100.
std::string PdfOf(const Drawing& draw);

/// @return the text that an independent reader finds in a document, without the blank lines and
///         page break it ends with.
std::string TextIn(const std::string& pdf);

}  // namespace kelvane::test
