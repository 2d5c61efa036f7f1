#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>

#include "platform/raster/cairo_library.h"
#include "platform/raster/raster_lines.h"

namespace kelvane {

/// Edges in pixels, which need not be whole.
struct RasterBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  [[nodiscard]] RasterBox Grown(double by) const {
    return {left - by, top - by, right + by, bottom + by};
  }
};

/// @return around what the clip of a drawing lets through.
inline RasterBox SeenBox(cairo_t* drawing) {
  RasterBox seen;
  cairo_clip_extents(drawing, &seen.left, &seen.top, &seen.right, &seen.bottom);
  return seen;
}

/// Takes lines to say how many they are and where.
class RasterExtent {
 public:
  void Move(RasterPoint to) { Include(to); }
  void Line(RasterPoint to) {
    ++lines_;
    Include(to);
  }
  void Close() { ++lines_; }

  [[nodiscard]] std::size_t Lines() const { return lines_; }

  /// @return around all points, of which there is one at least.
  [[nodiscard]] const RasterBox& Box() const { return box_; }

 private:
  void Include(RasterPoint point) {
    box_ = {std::min(box_.left, point.x), std::min(box_.top, point.y),
            std::max(box_.right, point.x), std::max(box_.bottom, point.y)};
  }

  static constexpr double kFar = std::numeric_limits<double>::max();

  RasterBox box_ = {kFar, kFar, -kFar, -kFar};
  std::size_t lines_ = 0;
};

}  // namespace kelvane
