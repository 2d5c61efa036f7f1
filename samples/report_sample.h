#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

/// A figure such as programs of an office record it: bars with gradients and hatches on dashed
/// lines, a pie, a legend with round corners, titles in bold and turned.
test::Metafile Report();

}  // namespace kelvane::samples
