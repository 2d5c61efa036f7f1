#pragma once

#include <vector>

#include "gdi/geometry.h"
#include "gdiplus/graphics.h"
#include "metafile/emfplus/emfplus_pen.h"

namespace kelvane::gdiplus {

/// A pen as it comes out under the transforms of the moment.
struct PenShape {
  TransformD toDevice;         // from the space in which the pen is round, without origins
  double width = 1;            // in that space; on the device about a pixel or more
  bool isHairline = false;     // without a width of its own: as thin as the output has it
  std::vector<double> dashes;  // dash, gap, …, an even number, in that space; none for a solid line
  double dashOffset = 0;       // in that space, from 0 to below the sum of dashes
};

/// @return how long a miter may be in widths; 1 or more.
double MiterLimitOf(const EmfPlusPen& pen);

PenShape ShapeOf(const Graphics& graphics, const EmfPlusPen& pen);

}  // namespace kelvane::gdiplus
