#pragma once

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// Adds a circular arc as Bezier curves of at most a quarter turn, each within 0.03 % of the
/// radius. A line joins the current point, if there is one, to the arc's start.
/// @param transform   maps the arc's space onto the path's.
/// @param radius      in the arc's space; 0 gives a point.
/// @param startAngle  radians, as is `endAngle`.
/// @param clockwise   false: by increasing angle, a full turn being added to the end until it is
///                    not below the start; true: by decreasing angle. A difference of a full turn
///                    or more, either way, is one full circle. Under an angle that is not finite
///                    the path is not finite, so it is never painted.
void AddArc(CGPath& path, const CGAffineTransform& transform, CGPoint center, CGFloat radius,
            CGFloat startAngle, CGFloat endAngle, bool clockwise);

/// Adds the closed ellipse inscribed in `rect`, from its rightmost point by increasing angle.
void AddEllipse(CGPath& path, const CGAffineTransform& transform, const CGRect& rect);

}  // namespace kelvane
