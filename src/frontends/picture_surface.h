#pragma once

#include <string>

#include "frontends/conversion_options.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

/// What a document says of itself.
struct PictureWords {
  std::u16string title;
  std::u16string creator;
};

/// @return the surface of a document in the format that the options ask for; null for a page
///         without an area. Throws std::bad_alloc.
CFOwned<CGContext> SurfaceFor(const ConversionOptions& options, const CGRect& firstPage,
                              const PictureWords& words, CGDataConsumerRef consumer);

/// @return whether a document of the format has more than one page.
bool HasPages(std::string_view format);

}  // namespace kelvane
