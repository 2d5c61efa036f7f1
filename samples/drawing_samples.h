#pragma once

#include "support/metafile.h"

namespace kelvane::samples {

/// Polylines of every width, MoveTo and LineTo.
test::Metafile Lines();

/// Polygons, stars, several figures in one.
test::Metafile Polygons();

/// Bezier curves.
test::Metafile Curves();

/// Rectangles, ellipses, arcs.
test::Metafile Shapes();

/// Turned, slanted and stretched figures.
test::Metafile Transforms();

/// Bars and a line under MM_ANISOTROPIC, as an office suite exports them.
test::Metafile Chart();

/// Path brackets, fills with holes, a clip.
test::Metafile Paths();

}  // namespace kelvane::samples
