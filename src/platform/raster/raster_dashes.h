#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"
#include "platform/raster/raster_extent.h"
#include "platform/raster/raster_lines.h"

namespace kelvane {

/// The dashes of a stroke.
struct RasterDashes {
  std::vector<double> lengths;  // dash, gap, …; none is less than 0, one at least is more
  double phase = 0;             // how far into them each figure starts
  CGAffineTransform toPixels;   // from their lengths; it has an inverse
};

/// Lines that are not closed.
class RasterFigures {
 public:
  /// @param points  one or more.
  void Add(std::span<const RasterPoint> points) {
    points_.insert(points_.end(), points.begin(), points.end());
    ends_.push_back(points_.size());
  }

  /// @param sink  takes `Move(to)`, which begins each figure, and `Line(to)`.
  template <class Sink>
  void GiveTo(Sink& sink) const {
    std::size_t i = 0;
    for (const std::size_t end : ends_) {
      sink.Move(points_[i++]);
      while (i < end)
        sink.Line(points_[i++]);
    }
  }

 private:
  std::vector<RasterPoint> points_;
  std::vector<std::size_t> ends_;  // of the points of each
};

/// Cuts the lines of a path into their dashes, but for what lies beyond the part of the page that
/// can be seen: a line may be as long as it likes. Dashes shorter than pixels are made longer, all
/// alike, so that as much of the line is painted.
/// @param toPixels  maps the points of the path.
/// @param seen      where lines can be seen, with what a stroke reaches beyond its path.
/// @param left      how many dashes and gaps there may still be. Behind the last of them lines are
///                  solid.
RasterFigures CutIntoDashes(const CGPath& path, const CGAffineTransform& toPixels,
                            const RasterDashes& dashes, const RasterBox& seen, std::size_t& left);

}  // namespace kelvane
