#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

test::Metafile Lines();       // polylines of every width, MoveTo and LineTo
test::Metafile Polygons();    // polygons, stars, several figures in one
test::Metafile Curves();      // Bezier curves
test::Metafile Shapes();      // rectangles, ellipses, arcs
test::Metafile Transforms();  // turned, slanted and stretched figures
test::Metafile Chart();  // bars and a line under MM_ANISOTROPIC, as an office suite exports them
test::Metafile Paths();  // path brackets, fills with holes, a clip

}  // namespace kelvane::samples
