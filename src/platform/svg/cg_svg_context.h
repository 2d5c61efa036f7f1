#pragma once

#include <string>

#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// What an SVG document is to be besides its picture.
struct CGSVGDescription {
  std::u16string title;     // empty for none
  bool embedsFonts = true;  // whether it carries the faces of its text, as far as they may travel
};

/// Makes a surface that records into an SVG 1.1 document, whose size is that of its page, in
/// points. Of several pages only the first is recorded.
/// @param consumer  where the document goes when it is closed; retained.
/// @return a surface owned by the caller; null for a null consumer. Throws std::bad_alloc.
CGContextRef CGSVGContextCreate(CGDataConsumerRef consumer, const CGSVGDescription& description);

}  // namespace kelvane
