#pragma once

#include <span>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_glyph_run.h"
#include "platform/quartz/cg_graphics_state.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// An upright box by its edges; y grows upwards. One that is turned inside out holds nothing.
struct CGBox {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;

  [[nodiscard]] bool IsEmpty() const { return !(left < right && bottom < top); }

  friend bool operator==(const CGBox&, const CGBox&) = default;
};

/// @param by  less than 0 makes it smaller.
CGBox Grown(const CGBox& box, double by);
CGBox Intersection(const CGBox& a, const CGBox& b);
CGBox Hull(const CGBox& a, const CGBox& b);
CGBox BoxOf(const CGRect& rect);  // whose sizes are not negative

/// @return the box of its points, with the control points of curves; turned inside out for an empty
///         path.
CGBox BoxOf(const CGPath& path);

/// @param clips  at least one. @return the box that all of them leave.
CGBox BoxOf(std::span<const CGClip> clips);

// How far finished marks reach, page space.

/// @return how far a stroke goes beyond the sides of its path.
double StrokeMargin(const CGGraphicsState& state);

/// @return how far a stroke goes beyond its path, with its miters and ends.
double StrokeReach(const CGGraphicsState& state);

CGBox ExtentOf(const CGGlyphRun& run);

/// A line of colour has no end but the clip's, and without a clip none at all.
CGBox ExtentOf(const CGShading& shading, std::span<const CGClip> clips);

}  // namespace kelvane
