#pragma once

#include <algorithm>
#include <cmath>

#include "gdi/geometry.h"

namespace kelvane {

/// Calls `add(point)` for the end of each line that a Bezier curve becomes; the last is its own.
/// @param tolerance  how far the lines may lie from the curve.
template <class Add>
void FlattenCurve(PointD a, PointD b, PointD c, PointD d, double tolerance, Add&& add) {
  constexpr double kMostPieces = 256;  // a full circle over 100 pages has fewer
  // How far a control point is off the middle of its neighbours.
  const auto bend = [](PointD p, PointD q, PointD r) {
    return std::hypot(p.x - 2 * q.x + r.x, p.y - 2 * q.y + r.y);
  };
  // The second derivative bounds the distance: it is at most 6 times the larger bend.
  const double pieces =
      std::ceil(std::sqrt(0.75 * std::max(bend(a, b, c), bend(b, c, d)) / tolerance));
  const int count = static_cast<int>(std::clamp(pieces, 1.0, kMostPieces));
  for (int i = 1; i < count; ++i) {
    const double t = static_cast<double>(i) / count;
    const double u = 1 - t;
    const double wa = u * u * u;
    const double wb = 3 * u * u * t;
    const double wc = 3 * u * t * t;
    const double wd = t * t * t;
    add(PointD{wa * a.x + wb * b.x + wc * c.x + wd * d.x,
               wa * a.y + wb * b.y + wc * c.y + wd * d.y});
  }
  add(d);
}

}  // namespace kelvane
