#include "gdiplus/path_gradients.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <utility>
#include <variant>
#include <vector>

#include "gdi/exactly.h"
#include "gdiplus/brush_spaces.h"
#include "gdiplus/gradient_blend.h"
#include "gdiplus/gradient_boundary.h"
#include "gdiplus/shading_paint.h"

namespace kelvane::gdiplus {
namespace {

using Boundary = std::vector<std::vector<BoundaryCorner>>;

struct MeshCorner {
  PointD point;  // the brush's space
  CGColor color;
};

/// The triangles of one tile, in the brush's space.
class GradientMesh {
 public:
  /// @param boundary  not empty.
  GradientMesh(const EmfPlusPathGradientBrush& brush, const Boundary& boundary)
      : brush_(brush), blend_(brush.blend, brush.isGammaCorrected) {
    for (const auto& figure : boundary) {
      for (std::size_t i = 0; i < figure.size(); ++i)
        AddSector(figure[i], figure[(i + 1) % figure.size()]);
    }
  }

  [[nodiscard]] const std::vector<MeshCorner>& Corners() const { return corners_; }  // by threes

 private:
  /// What lies between an edge of the boundary and the centre, ring by ring.
  void AddSector(const BoundaryCorner& a, const BoundaryCorner& b) {
    if (a.point == b.point) return;
    for (std::size_t level = 1; level < blend_.Size(); ++level) {
      if (blend_.Position(level) == blend_.Position(level - 1)) continue;
      const MeshCorner outerA = At(a, level - 1);
      const MeshCorner outerB = At(b, level - 1);
      const MeshCorner innerA = At(a, level);
      const MeshCorner innerB = At(b, level);
      AddTriangle(outerA, outerB, innerB);
      AddTriangle(outerA, innerB, innerA);
    }
    const std::size_t last = blend_.Size() - 1;
    const CGColor color = blend_.ColorAt(last, brush_.centerColor, brush_.centerColor);
    AddTriangle({At(a, last).point, color}, {At(b, last).point, color},
                {Exactly(brush_.center), color});
  }

  void AddTriangle(const MeshCorner& a, const MeshCorner& b, const MeshCorner& c) {
    if (a.point == b.point || b.point == c.point || c.point == a.point) return;
    corners_.insert(corners_.end(), {a, b, c});
  }

  [[nodiscard]] MeshCorner At(const BoundaryCorner& corner, std::size_t level) const {
    const PointD center = Exactly(brush_.center);
    const PointD focus = Exactly(brush_.focusScales);
    const double position = blend_.Position(level);
    const double x = 1 + (focus.x - 1) * position;
    const double y = 1 + (focus.y - 1) * position;
    return {
        {center.x + (corner.point.x - center.x) * x, center.y + (corner.point.y - center.y) * y},
        blend_.ColorAt(level, corner.color, brush_.centerColor)};
  }

  const EmfPlusPathGradientBrush& brush_;
  GradientBlend blend_;
  std::vector<MeshCorner> corners_;
};

RectangleD BoxAround(const Boundary& boundary) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  RectangleD box = {kInfinity, kInfinity, -kInfinity, -kInfinity};
  for (const auto& figure : boundary) {
    for (const auto& [point, color] : figure) {
      box = {std::min(box.left, point.x), std::min(box.top, point.y), std::max(box.right, point.x),
             std::max(box.bottom, point.y)};
    }
  }
  return box;
}

/// Which copies of the boundary's box are seen along an axis; the brush's own is number 0.
struct TileRange {
  double first = 0;
  double last = 0;

  [[nodiscard]] double Count() const { return last - first + 1; }
};

/// @param from  of what is seen, as `to`. @param low  of the box, as `high`.
TileRange TilesAcross(double from, double to, double low, double high) {
  const double first = std::floor((from - low) / (high - low));
  return {first, std::max(first, std::ceil((to - low) / (high - low)) - 1)};
}

/// Where tiles lie along an axis, and how.
struct TileAxis {
  double low;  // of the brush's own
  double high;
  bool mirrors;  // every other tile

  [[nodiscard]] double Place(double value, double tile) const {
    const bool isMirrored = mirrors && std::fmod(tile, 2) != 0;
    return (isMirrored ? low + high - value : value) + tile * (high - low);
  }
};

struct TileGrid {
  TileRange columns;
  TileRange rows;
  TileAxis x;
  TileAxis y;
};

TileGrid GridOf(EmfPlusWrapMode wrap, const RectangleD& box, const RectangleD& seen) {
  const bool isBoth = wrap == EmfPlusWrapMode::kTileFlipXY;
  TileGrid grid = {{},
                   {},
                   {box.left, box.right, isBoth || wrap == EmfPlusWrapMode::kTileFlipX},
                   {box.top, box.bottom, isBoth || wrap == EmfPlusWrapMode::kTileFlipY}};
  if (wrap == EmfPlusWrapMode::kClamp) return grid;
  grid.columns = TilesAcross(seen.left, seen.right, box.left, box.right);
  grid.rows = TilesAcross(seen.top, seen.bottom, box.top, box.bottom);
  return grid;
}

std::size_t CountOf(const TileRange& range) {
  return range.first <= range.last ? static_cast<std::size_t>(range.last - range.first) + 1 : 0;
}

CGTriangleMesh RepeatedMesh(const std::vector<MeshCorner>& corners, const TileGrid& grid,
                            const TransformD& toDevice, const Canvas& canvas) {
  const TransformD toPage = toDevice.Then(canvas.ToPage());
  CGTriangleMesh mesh;
  const std::size_t rows = CountOf(grid.rows);
  const std::size_t columns = CountOf(grid.columns);
  for (std::size_t i = 0; i < rows; ++i) {
    const double row = grid.rows.first + static_cast<double>(i);
    for (std::size_t j = 0; j < columns; ++j) {
      const double column = grid.columns.first + static_cast<double>(j);
      for (const auto& [point, color] : corners) {
        const PointD placed = {grid.x.Place(point.x, column), grid.y.Place(point.y, row)};
        mesh.vertices.push_back({canvas.RoundOnPage(Rounded(toPage.Map(placed))), color});
      }
    }
  }
  return mesh;
}

/// Up to how many corners a boundary may come to, before its curves are looked at.
bool IsAffordable(Graphics& graphics, double corners) {
  constexpr double kMostCorners = 3U << 16;
  return corners <= kMostCorners &&
         graphics.canvas->Afford(static_cast<std::uint64_t>(std::max(corners, 0.0)));
}

std::size_t PointsOf(const EmfPlusPathGradientBrush& brush) {
  if (const auto* path = std::get_if<EmfPlusPath>(&brush.boundary)) return path->points.size();
  const auto* polygon = std::get_if<std::vector<PointF>>(&brush.boundary);
  return polygon != nullptr ? polygon->size() : 0;
}

std::size_t CornersOf(const Boundary& boundary) {
  std::size_t size = 0;
  for (const auto& figure : boundary)
    size += figure.size();
  return size;
}

/// @return a centre's colour for what has too many parts to show others.
std::optional<Paint> CentersPaint(Graphics& graphics, const EmfPlusPathGradientBrush& brush) {
  graphics.shortfalls.Add(Shortfall::kBrushTooComplex);
  return PaintOf(graphics, brush.centerColor, {});
}

}  // namespace

std::optional<Paint> PathGradientPaint(Graphics& graphics, const EmfPlusPathGradientBrush& brush,
                                       const RectangleD& bounds) {
  constexpr double kTolerance = 0.1;  // device units
  constexpr double kCornersOfARing = 6;
  const TransformD toDevice = BrushToDevice(graphics, brush.transform, brush.staysInPlace);
  const auto seen = SeenOf(graphics, toDevice, bounds);
  if (!seen) return std::nullopt;
  const double scale =
      std::max(std::hypot(toDevice.m11, toDevice.m12), std::hypot(toDevice.m21, toDevice.m22));
  if (!IsAffordable(graphics, static_cast<double>(PointsOf(brush)))) {
    return CentersPaint(graphics, brush);
  }
  const Boundary boundary = BoundaryOf(brush, kTolerance / scale);
  const RectangleD box = BoxAround(boundary);
  if (box.IsEmpty()) return std::nullopt;

  const std::size_t rings = GradientBlend(brush.blend, brush.isGammaCorrected).Size();
  const double corners =
      static_cast<double>(CornersOf(boundary)) * static_cast<double>(rings) * kCornersOfARing;
  if (!IsAffordable(graphics, corners)) return CentersPaint(graphics, brush);
  const GradientMesh mesh(brush, boundary);
  // Marks may reach beyond the boundary by half a pixel without the gradient starting anew.
  const double half = 0.5 / scale;
  const RectangleD inside = {seen->left + half, seen->top + half, seen->right - half,
                             seen->bottom - half};
  TileGrid grid = GridOf(brush.wrap, box, inside);
  const double tiles = grid.columns.Count() * grid.rows.Count();
  if (tiles != 1 && !IsAffordable(graphics, tiles * static_cast<double>(mesh.Corners().size()))) {
    graphics.shortfalls.Add(Shortfall::kBrushTooComplex);
    grid = GridOf(EmfPlusWrapMode::kClamp, box, inside);
  }
  const Canvas& canvas = *graphics.canvas;
  return ShadingPaint(RepeatedMesh(mesh.Corners(), grid, toDevice, canvas),
                      canvas.PatternMatrix({}));
}

}  // namespace kelvane::gdiplus
