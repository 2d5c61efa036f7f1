#include "gdi/area.h"

#include <algorithm>
#include <array>
#include <utility>

#include "gdi/exactly.h"
#include "gdi/polygons.h"

namespace kelvane {
namespace {

constexpr double kTolerance = 1.0 / 64;  // device units; below what a page shows at any zoom

template <class... Visitors>
struct Overloaded : Visitors... {
  using Visitors::operator()...;
};
template <class... Visitors>
Overloaded(Visitors...) -> Overloaded<Visitors...>;

void AddRectangle(const RectangleD& r, CGPath& path) {
  path.AddRectangle(Rounded(PointD{r.left, r.top}), {static_cast<CGFloat>(r.right - r.left),
                                                     static_cast<CGFloat>(r.bottom - r.top)});
}

std::vector<PointD> CornersOf(const RectangleD& r) {
  return {{r.left, r.top}, {r.right, r.top}, {r.right, r.bottom}, {r.left, r.bottom}};
}

CGPath MovedPath(const Outline& outline) {
  const CGPoint offset = Rounded(outline.offset);
  if (offset == CGPoint()) return *outline.path;
  return outline.path->Mapped({1, 0, 0, 1, offset.x, offset.y});
}

Polygons PolygonsOf(const Region& region) {
  Polygons polygons;
  region.ForEachRectangle([&](const RectangleD& r) { polygons.figures.push_back(CornersOf(r)); });
  return polygons;
}

Polygons PolygonsOf(const Outline& outline) {
  Polygons polygons = Flattened(MovedPath(outline), outline.fillMode, kTolerance);
  if (outline.isOutside) {
    polygons.figures.push_back(CornersOf(Region::Everything().Bounds()));
  }
  return polygons;
}

Polygons PolygonsOf(const Area& area) {
  return std::visit([](const auto& shape) { return PolygonsOf(shape); }, area);
}

CGPath PathOf(const Polygons& polygons) {
  CGPath path;
  for (const auto& figure : polygons.figures) {
    path.MoveTo(Rounded(figure.front()));
    for (std::size_t i = 1; i < figure.size(); ++i)
      path.LineTo(Rounded(figure[i]));
    path.Close();
  }
  return path;
}

/// What it takes at least to look at an area.
std::size_t PartsOf(const Area& area) {
  const auto* outline = std::get_if<Outline>(&area);
  return outline != nullptr ? outline->path->Reached().elements
                            : std::get<Region>(area).EdgeCount();
}

Area AreaOf(const Polygons& polygons) {
  if (polygons.figures.empty()) return Region();
  return Outline{std::make_shared<CGPath>(PathOf(polygons)), polygons.fillMode};
}

}  // namespace

Area AreaOf(std::span<const RectangleD> rectangles) {
  // Enough for bands of any kind that do not cut each other's rectangles into many.
  Steps steps(100 * rectangles.size());
  if (auto region = Region::Union(rectangles, steps)) return *std::move(region);
  CGPath path;
  for (const RectangleD& rectangle : rectangles) {
    if (!rectangle.IsEmpty()) AddRectangle(rectangle, path);
  }
  return Outline{std::make_shared<CGPath>(std::move(path)), WINDING};
}

std::optional<Area> AreaOf(const RectangleD& rectangle, const TransformD& transform) {
  std::array<PointD, 4> corners;
  std::ranges::transform(CornersOf(rectangle), corners.begin(),
                         [&](PointD corner) { return transform.Map(corner); });
  if (!std::ranges::all_of(corners, [](PointD corner) { return IsFinite(corner); })) {
    return std::nullopt;
  }
  if (transform.KeepsRectangles()) {
    const auto [left, right] = std::minmax(corners[0].x, corners[2].x);
    const auto [top, bottom] = std::minmax(corners[0].y, corners[2].y);
    return Region({left, top, right, bottom});
  }
  return AreaOf(Polygons{{{corners.begin(), corners.end()}}});
}

std::optional<Area> Combine(const Area& a, const Area& b, RegionMode mode, Steps& steps) {
  const auto* regionA = std::get_if<Region>(&a);
  const auto* regionB = std::get_if<Region>(&b);
  if (regionA != nullptr && regionB != nullptr) {
    return Combine(*regionA, *regionB, mode, steps);
  }
  if (!steps.Take(PartsOf(a) + PartsOf(b))) return std::nullopt;
  const auto polygons = Combine(PolygonsOf(a), PolygonsOf(b), mode, steps);
  if (!polygons) return std::nullopt;
  return AreaOf(*polygons);
}

std::optional<Area> Complement(const Area& area, Steps& steps) {
  if (const auto* region = std::get_if<Region>(&area)) {
    return Combine(Region::Everything(), *region, RGN_DIFF, steps);
  }
  Outline outline = std::get<Outline>(area);
  if (outline.fillMode == WINDING) {
    // Figures of which one is another's hole, whatever they were wound like.
    auto alternate = Combine(Region(), area, RGN_COPY, steps);
    if (!alternate) return std::nullopt;
    if (std::holds_alternative<Region>(*alternate)) return Region::Everything();
    outline = std::get<Outline>(*std::move(alternate));
  }
  outline.isOutside = !outline.isOutside;
  return outline;
}

Area Translated(const Area& area, double x, double y) {
  return std::visit(
      Overloaded{[&](const Region& region) -> Area { return region.Translated(x, y); },
                 [&](Outline outline) -> Area {
                   outline.offset.x += x;
                   outline.offset.y += y;
                   return outline;
                 }},
      area);
}

CGPath PathOf(const Area& area, const RectangleD& whole) {
  CGPath path;
  if (const auto* outline = std::get_if<Outline>(&area)) {
    path = MovedPath(*outline);
    if (outline->isOutside) AddRectangle(whole, path);
    return path;
  }
  std::get<Region>(area).ForEachRectangle([&](const RectangleD& r) {
    const RectangleD inside = {std::max(r.left, whole.left), std::max(r.top, whole.top),
                               std::min(r.right, whole.right), std::min(r.bottom, whole.bottom)};
    if (!inside.IsEmpty()) AddRectangle(inside, path);
  });
  return path;
}

}  // namespace kelvane
