#pragma once

#include <memory>

#include <cairo.h>

#include "base/late_library.h"

namespace kelvane {

// Cairo, which other outputs do without: it is loaded with the first picture of pixels.
inline constinit LateLibrary kCairo("libcairo.so.2");

KELVANE_LATE_FUNCTION(kCairo, cairo_clip)
KELVANE_LATE_FUNCTION(kCairo, cairo_clip_extents)
KELVANE_LATE_FUNCTION(kCairo, cairo_close_path)
KELVANE_LATE_FUNCTION(kCairo, cairo_create)
KELVANE_LATE_FUNCTION(kCairo, cairo_curve_to)
KELVANE_LATE_FUNCTION(kCairo, cairo_destroy)
KELVANE_LATE_FUNCTION(kCairo, cairo_fill)
KELVANE_LATE_FUNCTION(kCairo, cairo_image_surface_create)
KELVANE_LATE_FUNCTION(kCairo, cairo_image_surface_get_data)
KELVANE_LATE_FUNCTION(kCairo, cairo_image_surface_get_height)
KELVANE_LATE_FUNCTION(kCairo, cairo_image_surface_get_stride)
KELVANE_LATE_FUNCTION(kCairo, cairo_image_surface_get_width)
KELVANE_LATE_FUNCTION(kCairo, cairo_line_to)
KELVANE_LATE_FUNCTION(kCairo, cairo_mask)
KELVANE_LATE_FUNCTION(kCairo, cairo_mask_surface)
KELVANE_LATE_FUNCTION(kCairo, cairo_move_to)
KELVANE_LATE_FUNCTION(kCairo, cairo_new_path)
KELVANE_LATE_FUNCTION(kCairo, cairo_paint)
KELVANE_LATE_FUNCTION(kCairo, cairo_paint_with_alpha)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_add_color_stop_rgba)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_create_for_surface)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_create_linear)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_destroy)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_get_surface)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_set_extend)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_set_filter)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_set_matrix)
KELVANE_LATE_FUNCTION(kCairo, cairo_pattern_status)
KELVANE_LATE_FUNCTION(kCairo, cairo_pop_group)
KELVANE_LATE_FUNCTION(kCairo, cairo_push_group)
KELVANE_LATE_FUNCTION(kCairo, cairo_restore)
KELVANE_LATE_FUNCTION(kCairo, cairo_save)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_antialias)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_fill_rule)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_line_cap)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_line_join)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_line_width)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_miter_limit)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_operator)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_source)
KELVANE_LATE_FUNCTION(kCairo, cairo_set_source_rgba)
KELVANE_LATE_FUNCTION(kCairo, cairo_status)
KELVANE_LATE_FUNCTION(kCairo, cairo_stroke)
KELVANE_LATE_FUNCTION(kCairo, cairo_surface_destroy)
KELVANE_LATE_FUNCTION(kCairo, cairo_surface_flush)
KELVANE_LATE_FUNCTION(kCairo, cairo_surface_get_device_offset)
KELVANE_LATE_FUNCTION(kCairo, cairo_surface_mark_dirty)
KELVANE_LATE_FUNCTION(kCairo, cairo_surface_status)
KELVANE_LATE_FUNCTION(kCairo, cairo_transform)
KELVANE_LATE_FUNCTION(kCairo, cairo_translate)

struct CairoDestroyer {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* drawing) const { cairo_destroy(drawing); }
  void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};

/// An object of Cairo, owned.
template <class T>
using CairoOwned = std::unique_ptr<T, CairoDestroyer>;

}  // namespace kelvane
