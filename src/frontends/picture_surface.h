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
///         without an area. Throws std::bad_alloc, std::runtime_error when a picture would have too
///         many pixels or what makes them is not installed.
CFOwned<CGContext> SurfaceFor(const ConversionOptions& options, const CGRect& firstPage,
                              const PictureWords& words, CGDataConsumerRef consumer);

/// @return what the options wish of the size of a page, in points: those of pixels are not among
/// it.
PageSizeWish PageWishOf(const ConversionOptions& options);

/// @return whether a document of the format has more than one page.
bool HasPages(std::string_view format);

}  // namespace kelvane
