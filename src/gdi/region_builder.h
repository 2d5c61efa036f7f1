#pragma once

#include <cstddef>

#include "gdi/region.h"

namespace kelvane {

/// Makes a region of bands that come top to bottom, each of edges that come left to right.
class RegionBuilder {
 public:
  /// Adds an edge to the band being made. Where the edge before lies at the same place both go, so
  /// that spans which touch become one and empty ones vanish.
  void AddEdge(double x);

  /// Ends the band, which may have no edges. It joins the band above where the two are one.
  /// @param top  not above the bottom of the band before.
  void EndBand(double top, double bottom);

  /// @return the region; the builder is not used again.
  [[nodiscard]] Region Finish();

 private:
  [[nodiscard]] bool ContinuesTheBandAbove(double top) const;

  Region region_;
  std::size_t firstEdge_ = 0;  // of the band being made
};

/// @return the coordinate, at most as far as the plane of regions goes.
double Saturated(double coordinate);

}  // namespace kelvane
