#include "gdi/polygons.h"

#include <algorithm>
#include <clipper.hpp>
#include <cmath>
#include <cstdint>

namespace kelvane {
namespace {

namespace cl = ClipperLib;

// Together 30 bits: beyond that the library goes over to numbers of 128 bits.
constexpr double kScale = 256;
constexpr double kFarthest = (1 << 21) - 1;

cl::cInt Fixed(double coordinate) {
  return std::llround(std::clamp(coordinate, -kFarthest, kFarthest) * kScale);
}

cl::Paths FixedPaths(const Polygons& polygons) {
  cl::Paths paths;
  paths.reserve(polygons.figures.size());
  for (const auto& figure : polygons.figures) {
    cl::Path& path = paths.emplace_back();
    path.reserve(figure.size());
    for (const PointD& point : figure) {
      if (IsFinite(point)) path.emplace_back(Fixed(point.x), Fixed(point.y));
    }
  }
  return paths;
}

/// An edge from its upper to its lower end.
struct Edge {
  cl::IntPoint upper;
  cl::IntPoint lower;

  [[nodiscard]] cl::cInt Left() const { return std::min(upper.X, lower.X); }
  [[nodiscard]] cl::cInt Right() const { return std::max(upper.X, lower.X); }
};

void AddEdges(const cl::Paths& paths, std::vector<Edge>& edges) {
  for (const cl::Path& path : paths) {
    for (std::size_t i = 0; i < path.size(); ++i) {
      const cl::IntPoint& from = path[i];
      const cl::IntPoint& to = path[i + 1 == path.size() ? 0 : i + 1];
      edges.push_back(from.Y <= to.Y ? Edge{from, to} : Edge{to, from});
    }
  }
}

/// On which side of the edge a point lies: the sign of a cross product.
cl::cInt SideOf(const Edge& edge, const cl::IntPoint& point) {
  return (edge.lower.X - edge.upper.X) * (point.Y - edge.upper.Y) -
         (edge.lower.Y - edge.upper.Y) * (point.X - edge.upper.X);
}

bool AreApart(cl::cInt a, cl::cInt b) {
  return (a > 0 && b > 0) || (a < 0 && b < 0);
}

/// True also of edges that touch, as all neighbours do.
bool Cross(const Edge& a, const Edge& b) {
  if (a.Right() < b.Left() || b.Right() < a.Left()) return false;
  return !AreApart(SideOf(a, b.upper), SideOf(a, b.lower)) &&
         !AreApart(SideOf(b, a.upper), SideOf(b, a.lower));
}

/// Takes what the library will: it looks at all edges in a row of the same height, and makes
/// corners where edges cross, of which there can be half the square of their number.
bool TakeSteps(const cl::Paths& a, const cl::Paths& b, Steps& steps) {
  constexpr std::uint64_t kStepsOfACrossing = 32;
  constexpr std::uint64_t kLooksInAStep = 8;
  std::vector<Edge> edges;
  AddEdges(a, edges);
  AddEdges(b, edges);
  std::ranges::sort(edges, {}, [](const Edge& edge) { return edge.upper.Y; });
  std::vector<Edge> active;
  for (const Edge& edge : edges) {
    std::erase_if(active, [&](const Edge& other) { return other.lower.Y < edge.upper.Y; });
    const auto crossings = static_cast<std::uint64_t>(
        std::ranges::count_if(active, [&](const Edge& other) { return Cross(edge, other); }));
    if (!steps.Take(1 + active.size() / kLooksInAStep + crossings * kStepsOfACrossing))
      return false;
    active.push_back(edge);
  }
  return true;
}

cl::ClipType ClipTypeOf(RegionMode mode) {
  switch (mode) {
    case RGN_AND:
      return cl::ctIntersection;
    case RGN_OR:
    case RGN_COPY:  // with nothing else, see below
      return cl::ctUnion;
    case RGN_XOR:
      return cl::ctXor;
    case RGN_DIFF:
      break;
  }
  return cl::ctDifference;
}

cl::PolyFillType FillTypeOf(const Polygons& polygons) {
  return polygons.fillMode == WINDING ? cl::pftNonZero : cl::pftEvenOdd;
}

}  // namespace

std::optional<Polygons> Combine(const Polygons& a, const Polygons& b, RegionMode mode,
                                Steps& steps) {
  const cl::Paths subject = mode == RGN_COPY ? cl::Paths() : FixedPaths(a);
  const cl::Paths clip = FixedPaths(b);
  if (!TakeSteps(subject, clip, steps)) return std::nullopt;

  cl::Clipper clipper;
  clipper.AddPaths(subject, cl::ptSubject, true);
  clipper.AddPaths(clip, cl::ptClip, true);
  cl::Paths solution;
  clipper.Execute(ClipTypeOf(mode), solution, FillTypeOf(a), FillTypeOf(b));

  Polygons result;
  for (const cl::Path& path : solution) {
    auto& figure = result.figures.emplace_back();
    for (const cl::IntPoint& point : path) {
      figure.push_back(
          {static_cast<double>(point.X) / kScale, static_cast<double>(point.Y) / kScale});
    }
  }
  return result;
}

}  // namespace kelvane
