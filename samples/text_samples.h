#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

/// Fonts, sizes, colours, alignments, an opaque box, a line that goes on.
test::Metafile Text();

/// Other scripts, from other faces where the font lacks them, and turned.
test::Metafile Scripts();

}  // namespace kelvane::samples
