#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <utility>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_image.h"
#include "platform/raster/cairo_library.h"

namespace kelvane {

/// Images as pixels that Cairo draws, kept as long as there is room for them.
class RasterImages {
 public:
  /// @param paint  what an image mask is painted in; of other images it does not matter.
  /// @return the image, its own mask included, as many pixels wide and high as the larger of the
  ///         two; null when a provider fell short, for a JPEG file, and for one that is larger than
  ///         Cairo has them. Valid until the next call. Throws as the provider does.
  cairo_surface_t* PixelsOf(const CGImage& image, const CGColor& paint);

 private:
  using Key = std::pair<std::uint64_t, std::uint32_t>;  // the serial, and the colour of a mask

  std::map<Key, CairoOwned<cairo_surface_t>> kept_;
  std::size_t pixels_ = 0;
};

/// @return from the pixels of an image, y downwards from its upper left corner, to the unit square
///         that they fill, y upwards.
CGAffineTransform PixelsToSquare(cairo_surface_t* pixels);

}  // namespace kelvane
