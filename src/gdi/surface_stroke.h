#pragma once

#include <vector>

#include "gdi/canvas.h"
#include "gdi/geometry.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// A line as the surface draws it. Lengths are the pen's.
struct SurfaceStroke {
  CGLineCap cap = kCGLineCapButt;
  CGLineJoin join = kCGLineJoinMiter;
  CGFloat miterLimit = 10;
  double width = 0;              // 0 is as thin as the output has it
  std::vector<double> dashes{};  // dash, gap, …, an even number; none for a solid line
  double dashPhase = 0;          // where in them a figure starts
};

/// Strokes the surface's current path, in the stroke colour that is set, with a pen that is as wide
/// in all directions.
/// @param widthUnit, dashUnit  device units in what the width and the dashes are counted in.
/// @param mode                 one that strokes.
void DrawEven(Canvas& canvas, const SurfaceStroke& stroke, double widthUnit, double dashUnit,
              CGPathDrawingMode mode);

/// The same with a pen that is round in its own space. It is squeezed only where that can be seen.
/// @param penToDevice  origins do not count.
void DrawThrough(Canvas& canvas, const SurfaceStroke& stroke, const TransformD& penToDevice,
                 CGPathDrawingMode mode);

/// How long a unit comes out in the direction in which it is longest, and across it.
struct Stretch {
  double most;
  double least;

  /// @return the side of a square as large as a unit square comes out.
  [[nodiscard]] double Mean() const;
};

Stretch StretchOf(const TransformD& transform);

}  // namespace kelvane
