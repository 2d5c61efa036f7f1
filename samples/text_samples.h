#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

test::Metafile Text();     // fonts, sizes, colours, alignments, an opaque box, a line that goes on
test::Metafile Scripts();  // other scripts, from other faces where the font lacks them, and turned

}  // namespace kelvane::samples
