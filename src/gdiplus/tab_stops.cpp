#include "gdiplus/tab_stops.h"

#include <algorithm>
#include <cmath>

namespace kelvane::gdiplus {

TabStops::TabStops(double first, std::span<const float> distances, double usual) : step_(usual) {
  double stop = std::isfinite(first) ? std::max(first, 0.0) : 0;
  stops_.push_back(stop);
  for (const double distance : distances) {
    if (!(distance > 0) || !std::isfinite(distance)) continue;
    stop += distance;
    step_ = distance;
    stops_.push_back(stop);
  }
}

double TabStops::After(double pen) const {
  // A line that comes to within a hair of a stop goes to the next.
  const double hair = step_ / 1024;
  const auto next = std::upper_bound(stops_.begin(), stops_.end(), pen + hair);
  if (next != stops_.end()) return *next;
  const double last = stops_.back();
  const double steps = std::floor((pen + hair - last) / step_) + 1;
  return std::max(last + steps * step_, pen);
}

}  // namespace kelvane::gdiplus
