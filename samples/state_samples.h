#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

test::Metafile
Pens();  // pens of every kind, stock and hollow brushes, objects replaced and deleted
test::Metafile Nested();   // saved states within each other, each with a clip and a transform
test::Metafile Bitmaps();  // bitmaps of 4, 8 and 24 bits, and a rectangle painted by BitBlt

}  // namespace kelvane::samples
