#pragma once

#include <hb-ot.h>
#include <hb-subset.h>
#include <hb.h>

#include "base/late_library.h"

namespace kelvane {

// HarfBuzz, which only text needs: it is loaded with the first of it.
inline constinit LateLibrary kHarfBuzz("libharfbuzz.so.0");
inline constinit LateLibrary kHarfBuzzSubset("libharfbuzz-subset.so.0");

KELVANE_LATE_FUNCTION(kHarfBuzz, hb_blob_create)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_blob_create_from_file_or_fail)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_blob_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_blob_get_data)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_blob_get_empty)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_add_codepoints)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_add_utf16)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_allocation_successful)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_clear_contents)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_create)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_get_glyph_infos)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_get_glyph_positions)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_guess_segment_properties)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_set_direction)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_set_flags)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_buffer_set_script)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_draw_funcs_create)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_draw_funcs_make_immutable)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_draw_funcs_set_close_path_func)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_draw_funcs_set_cubic_to_func)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_draw_funcs_set_line_to_func)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_draw_funcs_set_move_to_func)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_create)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_create_for_tables)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_get_glyph_count)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_get_table_tags)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_get_upem)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_make_immutable)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_reference_blob)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_face_reference_table)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_create)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_funcs_create)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_funcs_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_funcs_set_glyph_h_advance_func)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_funcs_set_nominal_glyph_func)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_get_face)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_get_glyph_h_advance)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_get_glyph_shape)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_get_nominal_glyph)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_make_immutable)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_reference)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_set_funcs)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_font_set_scale)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_map_get)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_ot_metrics_get_position)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_ot_name_get_utf8)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_set_add)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_shape)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_unicode_compose)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_unicode_funcs_get_default)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_unicode_general_category)
KELVANE_LATE_FUNCTION(kHarfBuzz, hb_unicode_script)

KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_input_create_or_fail)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_input_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_input_glyph_set)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_input_set)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_input_set_flags)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_plan_create_or_fail)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_plan_destroy)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_plan_execute_or_fail)
KELVANE_LATE_FUNCTION(kHarfBuzzSubset, hb_subset_plan_old_to_new_glyph_mapping)

}  // namespace kelvane
