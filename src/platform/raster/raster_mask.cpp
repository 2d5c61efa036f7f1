#include "platform/raster/raster_mask.h"

#include <algorithm>
#include <cmath>
#include <new>

namespace kelvane {

RasterMask::RasterMask(cairo_t* drawing, const RasterBox& box) {
  const RasterBox seen = SeenBox(drawing);
  left_ = static_cast<int>(std::floor(std::max(box.left, seen.left)));
  top_ = static_cast<int>(std::floor(std::max(box.top, seen.top)));
  width_ = std::max(static_cast<int>(std::ceil(std::min(box.right, seen.right))) - left_, 0);
  height_ = std::max(static_cast<int>(std::ceil(std::min(box.bottom, seen.bottom))) - top_, 0);
  pixels_.reset(cairo_image_surface_create(CAIRO_FORMAT_A8, width_, height_));
  if (cairo_surface_status(pixels_.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
}

void RasterMask::Paint(cairo_t* drawing) const {
  cairo_mask_surface(drawing, pixels_.get(), left_, top_);
}

}  // namespace kelvane
