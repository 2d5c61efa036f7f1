#pragma once

#include <memory>

#include <cairo.h>

namespace kelvane {

/// The functions of Cairo that are used here. It is loaded with the first picture of pixels that is
/// made: other outputs do without it.
struct CairoLibrary {
  // Surfaces.
  decltype(&cairo_image_surface_create) createImage = nullptr;
  decltype(&cairo_image_surface_get_data) dataOf = nullptr;
  decltype(&cairo_image_surface_get_stride) strideOf = nullptr;
  decltype(&cairo_image_surface_get_width) widthOf = nullptr;
  decltype(&cairo_image_surface_get_height) heightOf = nullptr;
  decltype(&cairo_surface_flush) flush = nullptr;
  decltype(&cairo_surface_mark_dirty) markDirty = nullptr;
  decltype(&cairo_surface_status) statusOfSurface = nullptr;
  decltype(&cairo_surface_destroy) destroySurface = nullptr;

  // Drawing.
  decltype(&cairo_create) create = nullptr;
  decltype(&cairo_destroy) destroy = nullptr;
  decltype(&cairo_save) save = nullptr;
  decltype(&cairo_restore) restore = nullptr;
  decltype(&cairo_transform) transform = nullptr;
  decltype(&cairo_set_matrix) setMatrix = nullptr;
  decltype(&cairo_set_operator) setOperator = nullptr;
  decltype(&cairo_set_source) setSource = nullptr;
  decltype(&cairo_set_source_rgba) setColor = nullptr;
  decltype(&cairo_new_path) newPath = nullptr;
  decltype(&cairo_move_to) moveTo = nullptr;
  decltype(&cairo_line_to) lineTo = nullptr;
  decltype(&cairo_curve_to) curveTo = nullptr;
  decltype(&cairo_close_path) closePath = nullptr;
  decltype(&cairo_set_antialias) setAntialias = nullptr;
  decltype(&cairo_set_fill_rule) setFillRule = nullptr;
  decltype(&cairo_set_line_width) setLineWidth = nullptr;
  decltype(&cairo_set_line_cap) setLineCap = nullptr;
  decltype(&cairo_set_line_join) setLineJoin = nullptr;
  decltype(&cairo_set_miter_limit) setMiterLimit = nullptr;
  decltype(&cairo_copy_path_flat) copyPathFlat = nullptr;
  decltype(&cairo_path_destroy) destroyPath = nullptr;
  decltype(&cairo_fill) fill = nullptr;
  decltype(&cairo_stroke) stroke = nullptr;
  decltype(&cairo_clip) clip = nullptr;
  decltype(&cairo_clip_extents) clipExtents = nullptr;
  decltype(&cairo_paint) paint = nullptr;
  decltype(&cairo_paint_with_alpha) paintWithAlpha = nullptr;
  decltype(&cairo_mask) mask = nullptr;
  decltype(&cairo_push_group) pushGroup = nullptr;
  decltype(&cairo_pop_group) popGroup = nullptr;
  decltype(&cairo_get_group_target) groupTarget = nullptr;
  decltype(&cairo_surface_get_device_offset) deviceOffset = nullptr;
  decltype(&cairo_status) status = nullptr;

  // Patterns.
  decltype(&cairo_pattern_create_for_surface) createSurfacePattern = nullptr;
  decltype(&cairo_pattern_get_surface) surfaceOf = nullptr;
  decltype(&cairo_pattern_create_linear) createLinear = nullptr;
  decltype(&cairo_pattern_add_color_stop_rgba) addStop = nullptr;
  decltype(&cairo_pattern_set_matrix) setPatternMatrix = nullptr;
  decltype(&cairo_pattern_set_extend) setExtend = nullptr;
  decltype(&cairo_pattern_set_filter) setFilter = nullptr;
  decltype(&cairo_pattern_status) statusOfPattern = nullptr;
  decltype(&cairo_pattern_destroy) destroyPattern = nullptr;
};

/// @return the library, which stays loaded. Loads it once, for all threads. Throws
///         std::runtime_error when it is not installed.
const CairoLibrary& Cairo();

struct CairoDestroyer {
  void operator()(cairo_surface_t* surface) const { Cairo().destroySurface(surface); }
  void operator()(cairo_t* drawing) const { Cairo().destroy(drawing); }
  void operator()(cairo_pattern_t* pattern) const { Cairo().destroyPattern(pattern); }
};

/// An object of Cairo, owned.
template <class T>
using CairoOwned = std::unique_ptr<T, CairoDestroyer>;

}  // namespace kelvane
