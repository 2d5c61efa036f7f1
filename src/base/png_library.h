#pragma once

#include <png.h>

#include "base/late_library.h"

namespace kelvane {

// libpng, which only PNG data needs: it is loaded with the first of it.
inline constinit LateLibrary kPngLibrary("libpng16.so.16");

KELVANE_LATE_FUNCTION(kPngLibrary, png_create_info_struct)
KELVANE_LATE_FUNCTION(kPngLibrary, png_create_read_struct)
KELVANE_LATE_FUNCTION(kPngLibrary, png_create_write_struct)
KELVANE_LATE_FUNCTION(kPngLibrary, png_destroy_read_struct)
KELVANE_LATE_FUNCTION(kPngLibrary, png_destroy_write_struct)
KELVANE_LATE_FUNCTION(kPngLibrary, png_error)
KELVANE_LATE_FUNCTION(kPngLibrary, png_get_io_ptr)
KELVANE_LATE_FUNCTION(kPngLibrary, png_get_rowbytes)
KELVANE_LATE_FUNCTION(kPngLibrary, png_read_info)
KELVANE_LATE_FUNCTION(kPngLibrary, png_read_row)
KELVANE_LATE_FUNCTION(kPngLibrary, png_read_update_info)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_IHDR)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_add_alpha)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_chunk_malloc_max)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_compression_level)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_expand)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_filter)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_gray_to_rgb)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_interlace_handling)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_keep_unknown_chunks)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_longjmp_fn)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_pHYs)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_read_fn)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_scale_16)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_strip_alpha)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_user_limits)
KELVANE_LATE_FUNCTION(kPngLibrary, png_set_write_fn)
KELVANE_LATE_FUNCTION(kPngLibrary, png_write_end)
KELVANE_LATE_FUNCTION(kPngLibrary, png_write_info)
KELVANE_LATE_FUNCTION(kPngLibrary, png_write_row)

}  // namespace kelvane
