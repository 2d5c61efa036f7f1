#pragma once

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"
#include "platform/raster/cairo_library.h"

namespace kelvane {

/// Fills a path with the source of a drawing. @param toPixels  maps its points.
void FillPath(cairo_t* drawing, const CGPath& path, const CGAffineTransform& toPixels,
              bool isEvenOdd);

}  // namespace kelvane
