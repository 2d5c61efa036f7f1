#pragma once

#include <cstddef>
#include <optional>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_context.h"
#include "platform/quartz/cg_data_consumer.h"

namespace kelvane {

inline constexpr std::size_t kCGBitmapMostASide = 32767;  // pixels, which is what Cairo has

/// A picture of pixels as it is to be made.
struct CGBitmapDescription {
  std::size_t width = 0;                                    // pixels, 1 to kCGBitmapMostASide
  std::size_t height = 0;                                   // rows, as many
  std::optional<CGColor> background = CGColor{1, 1, 1, 1};  // none: what is not painted is clear
  double dotsPerInch = 96;                                  // as the file says it
};

/// Makes a surface that paints a page, as large as it is described, and writes it as a PNG file.
/// Edges are smooth, and lines of width 0 as wide as a pixel. Of several pages only the first is
/// painted.
/// @param consumer  where the file goes when the surface is closed; retained.
/// @return a surface owned by the caller; null for a null consumer and for sizes out of range.
///         Throws std::bad_alloc, std::runtime_error when Cairo is not installed.
CGContextRef CGBitmapContextCreate(CGDataConsumerRef consumer,
                                   const CGBitmapDescription& description);

}  // namespace kelvane
