#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

/// Pens of every kind, stock and hollow brushes, objects replaced and deleted.
test::Metafile Pens();

/// Saved states within each other, each with a clip and a transform.
test::Metafile Nested();

/// Bitmaps of 4, 8 and 24 bits, and a rectangle painted by BitBlt.
test::Metafile Bitmaps();

}  // namespace kelvane::samples
