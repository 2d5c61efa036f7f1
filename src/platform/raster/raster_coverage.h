#pragma once

#include <cstddef>
#include <vector>

#include "platform/raster/raster_lines.h"
#include "platform/raster/raster_mask.h"

namespace kelvane {

/// Takes the lines of a path to say how much of each pixel of a mask lies within it, in time in
/// proportion to the pixels that the lines run through, however they cross.
class RasterCoverage {
 public:
  /// @param mask  stays the caller's.
  explicit RasterCoverage(const RasterMask& mask);

  void Move(RasterPoint to);
  void Line(RasterPoint to);
  void Close() { Line(start_); }

  /// Fills the mask.
  /// @param isEvenOdd  what lies within. Else by winding: in a pixel in which windings of both
  /// signs
  ///                   meet, they cancel out as far as their areas do.
  void Fill(bool isEvenOdd);

 private:
  void AddDownwards(RasterPoint from, RasterPoint to, float winding);
  void AddToRow(std::size_t row, double from, double to, float height);

  const RasterMask& mask_;
  std::size_t width_;         // of a row of steps
  std::vector<float> steps_;  // from the winding of a pixel to that of the next, row by row
  RasterPoint start_ = {0, 0};
  RasterPoint at_ = {0, 0};
};

}  // namespace kelvane
