#pragma once

#include <fribidi.h>

#include "base/late_library.h"

namespace kelvane {

// FriBidi, which only text needs: it is loaded with the first of it.
inline constinit LateLibrary kFriBidi("libfribidi.so.0");

KELVANE_LATE_FUNCTION(kFriBidi, fribidi_get_bidi_types)
KELVANE_LATE_FUNCTION(kFriBidi, fribidi_get_bracket_types)
KELVANE_LATE_FUNCTION(kFriBidi, fribidi_get_par_embedding_levels_ex)
KELVANE_LATE_FUNCTION(kFriBidi, fribidi_reorder_line)

}  // namespace kelvane
