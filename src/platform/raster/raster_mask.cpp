#include "platform/raster/raster_mask.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace kelvane {

RasterMask::RasterMask(cairo_t* drawing, const RasterBox& box) {
  const RasterBox seen = SeenBox(drawing);
  // A box may lie off the page, farther than numbers of pixels reach.
  left_ = static_cast<int>(std::floor(std::clamp(box.left, seen.left, seen.right)));
  top_ = static_cast<int>(std::floor(std::clamp(box.top, seen.top, seen.bottom)));
  const double right = std::ceil(std::clamp(box.right, seen.left, seen.right));
  const double bottom = std::ceil(std::clamp(box.bottom, seen.top, seen.bottom));
  width_ = std::max(static_cast<int>(right) - left_, 0);
  height_ = std::max(static_cast<int>(bottom) - top_, 0);
  pixels_.reset(cairo_image_surface_create(CAIRO_FORMAT_A8, width_, height_));
  if (cairo_surface_status(pixels_.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
}

void RasterMask::Paint(cairo_t* drawing) const {
  cairo_mask_surface(drawing, pixels_.get(), left_, top_);
}

}  // namespace kelvane
