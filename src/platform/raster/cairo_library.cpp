#include "platform/raster/cairo_library.h"

#include <optional>
#include <stdexcept>

#include "base/loaded_functions.h"

namespace kelvane {
namespace {

constexpr const char* kCairoLibrary = "libcairo.so.2";

void GetSurfaces(LoadedFunctions& functions, CairoLibrary& cairo) {
  functions.Get(cairo.createImage, "cairo_image_surface_create");
  functions.Get(cairo.dataOf, "cairo_image_surface_get_data");
  functions.Get(cairo.strideOf, "cairo_image_surface_get_stride");
  functions.Get(cairo.widthOf, "cairo_image_surface_get_width");
  functions.Get(cairo.heightOf, "cairo_image_surface_get_height");
  functions.Get(cairo.flush, "cairo_surface_flush");
  functions.Get(cairo.markDirty, "cairo_surface_mark_dirty");
  functions.Get(cairo.statusOfSurface, "cairo_surface_status");
  functions.Get(cairo.destroySurface, "cairo_surface_destroy");
}

void GetDrawing(LoadedFunctions& functions, CairoLibrary& cairo) {
  functions.Get(cairo.create, "cairo_create");
  functions.Get(cairo.destroy, "cairo_destroy");
  functions.Get(cairo.save, "cairo_save");
  functions.Get(cairo.restore, "cairo_restore");
  functions.Get(cairo.transform, "cairo_transform");
  functions.Get(cairo.setMatrix, "cairo_set_matrix");
  functions.Get(cairo.setOperator, "cairo_set_operator");
  functions.Get(cairo.setSource, "cairo_set_source");
  functions.Get(cairo.setColor, "cairo_set_source_rgba");
  functions.Get(cairo.newPath, "cairo_new_path");
  functions.Get(cairo.moveTo, "cairo_move_to");
  functions.Get(cairo.lineTo, "cairo_line_to");
  functions.Get(cairo.curveTo, "cairo_curve_to");
  functions.Get(cairo.closePath, "cairo_close_path");
  functions.Get(cairo.setAntialias, "cairo_set_antialias");
  functions.Get(cairo.setFillRule, "cairo_set_fill_rule");
  functions.Get(cairo.setLineWidth, "cairo_set_line_width");
  functions.Get(cairo.setLineCap, "cairo_set_line_cap");
  functions.Get(cairo.setLineJoin, "cairo_set_line_join");
  functions.Get(cairo.setMiterLimit, "cairo_set_miter_limit");
  functions.Get(cairo.copyPathFlat, "cairo_copy_path_flat");
  functions.Get(cairo.destroyPath, "cairo_path_destroy");
  functions.Get(cairo.fill, "cairo_fill");
  functions.Get(cairo.stroke, "cairo_stroke");
  functions.Get(cairo.clip, "cairo_clip");
  functions.Get(cairo.clipExtents, "cairo_clip_extents");
  functions.Get(cairo.paint, "cairo_paint");
  functions.Get(cairo.paintWithAlpha, "cairo_paint_with_alpha");
  functions.Get(cairo.mask, "cairo_mask");
  functions.Get(cairo.pushGroup, "cairo_push_group");
  functions.Get(cairo.popGroup, "cairo_pop_group");
  functions.Get(cairo.groupTarget, "cairo_get_group_target");
  functions.Get(cairo.deviceOffset, "cairo_surface_get_device_offset");
  functions.Get(cairo.status, "cairo_status");
}

void GetPatterns(LoadedFunctions& functions, CairoLibrary& cairo) {
  functions.Get(cairo.createSurfacePattern, "cairo_pattern_create_for_surface");
  functions.Get(cairo.surfaceOf, "cairo_pattern_get_surface");
  functions.Get(cairo.createLinear, "cairo_pattern_create_linear");
  functions.Get(cairo.addStop, "cairo_pattern_add_color_stop_rgba");
  functions.Get(cairo.setPatternMatrix, "cairo_pattern_set_matrix");
  functions.Get(cairo.setExtend, "cairo_pattern_set_extend");
  functions.Get(cairo.setFilter, "cairo_pattern_set_filter");
  functions.Get(cairo.statusOfPattern, "cairo_pattern_status");
  functions.Get(cairo.destroyPattern, "cairo_pattern_destroy");
}

std::optional<CairoLibrary> LoadNow() {
  LoadedFunctions functions(kCairoLibrary);
  CairoLibrary cairo;
  GetSurfaces(functions, cairo);
  GetDrawing(functions, cairo);
  GetPatterns(functions, cairo);
  if (!functions.AreAllThere()) return std::nullopt;
  return cairo;
}

}  // namespace

const CairoLibrary& Cairo() {
  static const std::optional<CairoLibrary> kLibrary = LoadNow();
  if (!kLibrary) throw std::runtime_error("PNG needs Cairo, which is not installed (libcairo2)");
  return *kLibrary;
}

}  // namespace kelvane
