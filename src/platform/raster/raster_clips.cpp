#include "platform/raster/raster_clips.h"

#include <new>
#include <utility>

#include "platform/raster/raster_fill.h"
#include "platform/raster/raster_geometry.h"

namespace kelvane {

void RasterClips::WriteSave() {
  cairo_save(drawing_);
  const Level& outer = levels_.back();
  levels_.push_back({outer.parts, {}, outer.isMasked, outer.mask});
}

void RasterClips::WriteRestore() {
  cairo_restore(drawing_);
  levels_.pop_back();
}

void RasterClips::WriteClip(const CGClip& clip) {
  constexpr std::size_t kMostParts = 512;
  Level& level = levels_.back();
  const std::size_t parts = level.parts + clip.area.Reached().elements;
  if (parts <= kMostParts) {
    level.parts = parts;
    return Cut(clip);
  }
  level.cuts.push_back(clip);
  level.isMasked = true;
  level.mask.reset();
}

cairo_pattern_t* RasterClips::Mask() {
  if (!levels_.back().isMasked) return nullptr;
  std::size_t first = levels_.size();
  while (first > 0 && levels_[first - 1].isMasked && levels_[first - 1].mask == nullptr)
    --first;
  for (; first < levels_.size(); ++first)
    MakeMask(first);
  return levels_.back().mask.get();
}

void RasterClips::MakeMask(std::size_t level) {
  SharedMask mask = level > 0 ? levels_[level - 1].mask : nullptr;
  for (const CGClip& cut : levels_[level].cuts)
    mask = MaskOf(cut, mask);
  levels_[level].mask = std::move(mask);
  ForgetSome(level);
}

// Masks are as large as the page, and clips may be as deep as a file is long. Those forgotten are
// made again from the next one below, so what is left lies ever farther apart.
void RasterClips::ForgetSome(std::size_t end) {
  constexpr std::size_t kMostMasks = 16;
  std::size_t count = 0;
  for (std::size_t i = 1; i <= end; ++i)
    if (levels_[i].mask != levels_[i - 1].mask) ++count;
  if (count <= kMostMasks) return;
  bool isKept = true;
  SharedMask last;
  for (std::size_t i = 0; i < end; ++i) {
    if (levels_[i].mask == nullptr) continue;
    if (levels_[i].mask != last) isKept = !isKept;
    last = levels_[i].mask;
    if (!isKept) levels_[i].mask.reset();
  }
}

void RasterClips::Cut(const CGClip& clip) const {
  SetPath(drawing_, clip.area, toPixels_);
  cairo_set_fill_rule(drawing_,
                      clip.isEvenOdd ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
  cairo_clip(drawing_);
}

/// @return what a clip leaves of a mask, or of everything.
RasterClips::SharedMask RasterClips::MaskOf(const CGClip& clip, const SharedMask& below) const {
  const CairoOwned<cairo_surface_t> pixels(
      cairo_image_surface_create(CAIRO_FORMAT_A8, page_.width, page_.height));
  if (cairo_surface_status(pixels.get()) != CAIRO_STATUS_SUCCESS) throw std::bad_alloc();
  const CairoOwned<cairo_t> drawing(cairo_create(pixels.get()));
  cairo_set_source_rgba(drawing.get(), 0, 0, 0, 1);
  if (below != nullptr) cairo_set_source(drawing.get(), below.get());
  FillPath(drawing.get(), clip.area, toPixels_, clip.isEvenOdd);
  return {cairo_pattern_create_for_surface(pixels.get()), CairoDestroyer()};
}

}  // namespace kelvane
