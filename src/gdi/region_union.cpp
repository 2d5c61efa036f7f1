// The union of many rectangles in one sweep from top to bottom. Joining them one by one would take
// the square of their number.

#include <algorithm>
#include <utility>

#include "gdi/region.h"
#include "gdi/region_builder.h"

namespace kelvane {
namespace {

/// How often each stretch between neighbouring coordinates is covered, as a tree of halves. A node
/// that is covered as a whole is never looked into, so that what is hidden below other rectangles
/// costs nothing.
class Coverage {
 public:
  /// @param xs  rising, at least two.
  explicit Coverage(std::vector<double> xs) : xs_(std::move(xs)), nodes_(NodeCount(xs_.size())) {}

  /// Covers from xs[first] to xs[last] once more, or once less.
  void Add(std::size_t first, std::size_t last, int times) {
    Add(0, {0, xs_.size() - 1}, {first, last}, times);
  }

  /// Gives the edges of what is covered to `band`.
  /// @return the nodes looked at.
  std::size_t WriteEdges(RegionBuilder& band) const {
    return WriteEdges(0, {0, xs_.size() - 1}, band);
  }

  [[nodiscard]] std::size_t IndexOf(double x) const {
    return static_cast<std::size_t>(
        std::distance(xs_.begin(), std::lower_bound(xs_.begin(), xs_.end(), x)));
  }

 private:
  struct Node {
    int times = 0;           // the whole stretch, by rectangles that end at or beyond its ends
    bool isCovered = false;  // any part of it
  };
  struct Stretch {
    std::size_t first;
    std::size_t last;
    [[nodiscard]] std::size_t Middle() const { return first + (last - first) / 2; }
  };

  /// Children of n are 2n + 1 and 2n + 2.
  static std::size_t NodeCount(std::size_t coordinates) {
    std::size_t leaves = 1;
    while (leaves < coordinates)
      leaves *= 2;
    return 2 * leaves;
  }

  void Add(std::size_t index, Stretch all, Stretch added, int times) {
    if (added.last <= all.first || all.last <= added.first) return;
    Node& node = nodes_[index];
    if (added.first <= all.first && all.last <= added.last) {
      node.times += times;
    } else {
      Add(2 * index + 1, {all.first, all.Middle()}, added, times);
      Add(2 * index + 2, {all.Middle(), all.last}, added, times);
    }
    const bool isLeaf = all.last - all.first == 1;
    node.isCovered =
        node.times > 0 ||
        (!isLeaf && (nodes_[2 * index + 1].isCovered || nodes_[2 * index + 2].isCovered));
  }

  std::size_t WriteEdges(std::size_t index, Stretch all, RegionBuilder& band) const {
    const Node& node = nodes_[index];
    if (!node.isCovered) return 1;
    if (node.times > 0) {
      band.AddEdge(xs_[all.first]);
      band.AddEdge(xs_[all.last]);
      return 1;
    }
    return 1 + WriteEdges(2 * index + 1, {all.first, all.Middle()}, band) +
           WriteEdges(2 * index + 2, {all.Middle(), all.last}, band);
  }

  std::vector<double> xs_;
  std::vector<Node> nodes_;
};

/// A top or bottom of a rectangle, where the sweep stops.
struct Stop {
  double y;
  double left;
  double right;
  int times;  // 1 at the top, -1 at the bottom
};

std::vector<Stop> StopsOf(std::span<const RectangleD> rectangles) {
  std::vector<Stop> stops;
  stops.reserve(2 * rectangles.size());
  for (const RectangleD& rectangle : rectangles) {
    const RectangleD r = {Saturated(rectangle.left), Saturated(rectangle.top),
                          Saturated(rectangle.right), Saturated(rectangle.bottom)};
    if (r.IsEmpty()) continue;
    stops.push_back({r.top, r.left, r.right, 1});
    stops.push_back({r.bottom, r.left, r.right, -1});
  }
  std::ranges::sort(stops, {}, &Stop::y);
  return stops;
}

std::vector<double> CoordinatesOf(const std::vector<Stop>& stops) {
  std::vector<double> xs;
  xs.reserve(stops.size());
  for (const Stop& stop : stops) {
    if (stop.times < 0) continue;
    xs.push_back(stop.left);
    xs.push_back(stop.right);
  }
  std::ranges::sort(xs);
  xs.erase(std::unique(xs.begin(), xs.end()), xs.end());
  return xs;
}

}  // namespace

std::optional<Region> Region::Union(std::span<const RectangleD> rectangles, Steps& steps) {
  const std::vector<Stop> stops = StopsOf(rectangles);
  if (stops.empty()) return Region();
  Coverage coverage(CoordinatesOf(stops));
  RegionBuilder result;
  for (auto stop = stops.begin(); stop != stops.end();) {
    const double top = stop->y;
    for (; stop != stops.end() && stop->y == top; ++stop) {
      coverage.Add(coverage.IndexOf(stop->left), coverage.IndexOf(stop->right), stop->times);
    }
    if (stop == stops.end()) break;  // below the last bottom there is nothing
    if (!steps.Take(coverage.WriteEdges(result))) return std::nullopt;
    result.EndBand(top, stop->y);
  }
  return result.Finish();
}

}  // namespace kelvane
