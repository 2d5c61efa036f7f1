#include "platform/raster/raster_clips.h"

#include <new>
#include <utility>

#include "platform/raster/raster_geometry.h"

namespace kelvane {

void RasterClips::WriteSave() {
  cairo_save(drawing_);
  saved_.push_back({parts_, mask_});
}

void RasterClips::WriteRestore() {
  cairo_restore(drawing_);
  parts_ = saved_.back().parts;
  mask_ = std::move(saved_.back().mask);
  saved_.pop_back();
}

void RasterClips::WriteClip(const CGClip& clip) {
  constexpr std::size_t kMostParts = 512;
  const std::size_t parts = parts_ + clip.area.Reached().elements;
  if (parts > kMostParts) {
    mask_ = MaskOf(clip);
    return;
  }
  parts_ = parts;
  Cut(drawing_, clip);
}

void RasterClips::Cut(cairo_t* drawing, const CGClip& clip) const {
  SetPath(drawing, clip.area, toPixels_);
  cairo_set_fill_rule(drawing, clip.isEvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
  cairo_clip(drawing);
}

/// @return what a clip leaves of the mask that there is.
std::shared_ptr<cairo_pattern_t> RasterClips::MaskOf(const CGClip& clip) const {
  const CairoOwned<cairo_surface_t> pixels(
      cairo_image_surface_create(CAIRO_FORMAT_A8, page_.width, page_.height));
  if (cairo_surface_status(pixels.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  const CairoOwned<cairo_t> drawing(cairo_create(pixels.get()));
  Cut(drawing.get(), clip);
  cairo_set_source_rgba(drawing.get(), 0, 0, 0, 1);
  mask_ == nullptr ? cairo_paint(drawing.get()) : cairo_mask(drawing.get(), mask_.get());
  return {cairo_pattern_create_for_surface(pixels.get()), CairoDestroyer()};
}

}  // namespace kelvane
