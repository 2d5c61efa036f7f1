#pragma once

#include <span>
#include <vector>

namespace kelvane::gdiplus {

/// Where tabs take the pen, from the start of a line. Beyond the last stop they go on as far apart
/// as the last two.
class TabStops {
 public:
  /// @param first      before the first stop. @param distances  from each stop to the next; those
  ///                   that lead nowhere are none.
  /// @param usual      between stops when there are none; above 0.
  TabStops(double first, std::span<const float> distances, double usual);

  /// @return the next stop.
  [[nodiscard]] double After(double pen) const;

 private:
  std::vector<double> stops_;  // never empty; they rise
  double step_;                // beyond the last
};

}  // namespace kelvane::gdiplus
