#include "gdi/region_builder.h"

#include <algorithm>
#include <utility>

namespace kelvane {

double Saturated(double coordinate) {
  return std::clamp(coordinate, -Region::kFarthest, Region::kFarthest);
}

void RegionBuilder::AddEdge(double x) {
  auto& edges = region_.edges_;
  if (edges.size() > firstEdge_ && edges.back() == x) {
    edges.pop_back();
  } else {
    edges.push_back(x);
  }
}

void RegionBuilder::EndBand(double top, double bottom) {
  auto& bands = region_.bands_;
  auto& edges = region_.edges_;
  if (!(top < bottom)) edges.resize(firstEdge_);
  if (edges.size() == firstEdge_) return;

  auto& [left, boundsTop, right, boundsBottom] = region_.bounds_;
  if (bands.empty()) region_.bounds_ = {edges[firstEdge_], top, edges.back(), bottom};
  left = std::min(left, edges[firstEdge_]);
  right = std::max(right, edges.back());
  boundsBottom = bottom;

  if (ContinuesTheBandAbove(top)) {
    bands.back().bottom = bottom;
    edges.resize(firstEdge_);
  } else {
    bands.push_back({top, bottom, edges.size()});
    firstEdge_ = edges.size();
  }
}

Region RegionBuilder::Finish() {
  return std::move(region_);
}

bool RegionBuilder::ContinuesTheBandAbove(double top) const {
  const auto& bands = region_.bands_;
  if (bands.empty() || bands.back().bottom != top) return false;
  const std::span<const double> above = region_.EdgesOf(bands.size() - 1);
  const std::span<const double> here = std::span(region_.edges_).subspan(firstEdge_);
  return std::ranges::equal(above, here);
}

}  // namespace kelvane
