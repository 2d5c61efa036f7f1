#include "gdi/region.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "gdi/region_builder.h"

namespace kelvane {
namespace {

constexpr double kNowhere = std::numeric_limits<double>::infinity();

/// Whether a point belongs to the result, by whether it belongs to each operand: bit 2a + b.
constexpr unsigned RuleOf(RegionMode mode) {
  switch (mode) {
    case RGN_AND:
      return 0b1000;
    case RGN_OR:
      return 0b1110;
    case RGN_XOR:
      return 0b0110;
    case RGN_DIFF:
      return 0b0100;
    case RGN_COPY:
      return 0b1010;
  }
  return 0;
}

/// Adds the band of the result whose operands have these edges.
void AddBand(std::span<const double> a, std::span<const double> b, unsigned rule,
             RegionBuilder& result) {
  std::size_t i = 0;
  std::size_t j = 0;
  bool inside = false;
  while (i < a.size() || j < b.size()) {
    const double x = std::min(i < a.size() ? a[i] : kNowhere, j < b.size() ? b[j] : kNowhere);
    if (i < a.size() && a[i] == x) ++i;
    if (j < b.size() && b[j] == x) ++j;
    // Behind an odd edge lies a span.
    const bool insideNow = (rule >> (2 * (i % 2) + j % 2) & 1) != 0;
    if (insideNow != inside) result.AddEdge(x);
    inside = insideNow;
  }
}

double Moved(double coordinate, double distance) {
  const bool endless = std::abs(coordinate) == Region::kFarthest;
  return endless || std::isnan(distance) ? coordinate : Saturated(coordinate + distance);
}

}  // namespace

Region::Region(const RectangleD& rectangle) {
  if (rectangle.IsEmpty()) return;
  RegionBuilder builder;
  builder.AddEdge(Saturated(rectangle.left));
  builder.AddEdge(Saturated(rectangle.right));
  builder.EndBand(Saturated(rectangle.top), Saturated(rectangle.bottom));
  *this = builder.Finish();
}

Region Region::Everything() {
  return Region({-kFarthest, -kFarthest, kFarthest, kFarthest});
}

bool Region::Contains(PointD point) const {
  const auto below = [](double y, const Band& band) { return y < band.bottom; };
  const auto band = std::upper_bound(bands_.begin(), bands_.end(), point.y, below);
  if (band == bands_.end() || point.y < band->top) return false;
  const std::span<const double> edges =
      EdgesOf(static_cast<std::size_t>(std::distance(bands_.begin(), band)));
  const auto passed = std::distance(edges.begin(), std::ranges::upper_bound(edges, point.x));
  return passed % 2 != 0;
}

Region Region::Translated(double x, double y) const {
  RegionBuilder moved;
  for (std::size_t i = 0; i < bands_.size(); ++i) {
    for (const double edge : EdgesOf(i))
      moved.AddEdge(Moved(edge, x));
    moved.EndBand(Moved(bands_[i].top, y), Moved(bands_[i].bottom, y));
  }
  return moved.Finish();
}

std::span<const double> Region::EdgesOf(std::size_t band) const {
  const std::size_t begin = band == 0 ? 0 : bands_[band - 1].endOfEdges;
  return std::span(edges_).subspan(begin, bands_[band].endOfEdges - begin);
}

std::optional<Region> Combine(const Region& a, const Region& b, RegionMode mode, Steps& steps) {
  /// The band of an operand that the sweep is in or comes to next.
  struct Cursor {
    const Region& region;
    std::size_t band = 0;

    [[nodiscard]] bool IsAtEnd() const { return band == region.bands_.size(); }
    [[nodiscard]] bool IsInside(double y) const {
      return !IsAtEnd() && region.bands_[band].top <= y;
    }
    [[nodiscard]] std::span<const double> EdgesAt(double y) const {
      return IsInside(y) ? region.EdgesOf(band) : std::span<const double>();
    }
    [[nodiscard]] double NextBoundary(double y) const {
      if (IsAtEnd()) return kNowhere;
      return IsInside(y) ? region.bands_[band].bottom : region.bands_[band].top;
    }
    void MoveTo(double y) {
      if (!IsAtEnd() && region.bands_[band].bottom == y) ++band;
    }
  };

  const unsigned rule = RuleOf(mode);
  Cursor inA{a};
  Cursor inB{b};
  RegionBuilder result;
  for (double top = -Region::kFarthest; !inA.IsAtEnd() || !inB.IsAtEnd();) {
    const double bottom = std::min(inA.NextBoundary(top), inB.NextBoundary(top));
    const std::span<const double> edgesOfA = inA.EdgesAt(top);
    const std::span<const double> edgesOfB = inB.EdgesAt(top);
    if (!steps.Take(1 + edgesOfA.size() + edgesOfB.size())) return std::nullopt;
    AddBand(edgesOfA, edgesOfB, rule, result);
    result.EndBand(top, bottom);
    inA.MoveTo(bottom);
    inB.MoveTo(bottom);
    top = bottom;
  }
  return result.Finish();
}

}  // namespace kelvane
