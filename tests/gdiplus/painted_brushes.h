#pragma once

#include <string>

#include <gtest/gtest.h>

#include "gdiplus/paint.h"
#include "gdiplus/traced_graphics.h"

namespace kelvane::gdiplus {

inline constexpr Argb kRed = {0, 0, 255, 255};
inline constexpr Argb kGreen = {0, 255, 0, 255};
inline constexpr Argb kBlue = {255, 0, 0, 255};
inline constexpr Argb kClearBlue = {255, 0, 0, 0};
inline constexpr Argb kHalfRed = {0, 0, 255, 128};
inline constexpr RectangleD kMark = {0, 0, 10, 10};

/// @return the state that a brush sets for a mark, and "nothing" for one that leaves none.
inline std::string PaintedWith(TracedGraphics& graphics, const EmfPlusBrush& brush,
                               const RectangleD& bounds = kMark) {
  const auto paint = PaintOf(graphics, brush, bounds);
  if (!paint) return "nothing";
  CGContext& surface = graphics.OnCanvas().Surface();
  SetFill(surface, *paint);
  surface.AddRect({{0, 0}, {1, 1}});
  surface.DrawPath(kCGPathFill);
  std::string trace = graphics.Take();
  const std::string mark = "rect 0 0 1 1\nfill\n";
  EXPECT_TRUE(trace.ends_with(mark)) << trace;
  return trace.substr(0, trace.size() - mark.size());
}

inline std::string PaintedWith(const EmfPlusBrush& brush, const RectangleD& bounds = kMark) {
  TracedGraphics graphics;
  return PaintedWith(graphics, brush, bounds);
}

}  // namespace kelvane::gdiplus
