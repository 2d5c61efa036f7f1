#include "gdiplus/gradient_boundary.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <variant>

#include "gdi/exactly.h"
#include "gdi/flatten.h"

namespace kelvane::gdiplus {
namespace {

using Corners = std::vector<BoundaryCorner>;

std::uint8_t Between(std::uint8_t a, std::uint8_t b, double part) {
  return static_cast<std::uint8_t>(std::lround(a + (b - a) * part));
}

Argb Between(Argb a, Argb b, double part) {
  return {Between(a.blue, b.blue, part), Between(a.green, b.green, part),
          Between(a.red, b.red, part), Between(a.alpha, b.alpha, part)};
}

/// Takes the points of a boundary in order, each with the colour of its number.
class BoundaryBuilder {
 public:
  BoundaryBuilder(const EmfPlusPathGradientBrush& brush, double tolerance)
      : brush_(brush), tolerance_(tolerance) {}

  void Start(PointF point, std::size_t index) {
    figures_.emplace_back();
    Line(point, index);
  }

  void Line(PointF point, std::size_t index) {
    figures_.back().push_back({Exactly(point), ColorOf(index)});
  }

  /// Colours change evenly along the curve.
  /// @param points  two controls and the end. @param index  of the end.
  void Curve(const PointF* points, std::size_t index) {
    Corners& figure = figures_.back();
    const BoundaryCorner from = figure.back();
    const std::size_t before = figure.size();
    FlattenCurve(from.point, Exactly(points[0]), Exactly(points[1]), Exactly(points[2]), tolerance_,
                 [&](PointD point) {
                   figure.push_back({point, {}});
                 });
    const auto pieces = static_cast<double>(figure.size() - before);
    for (std::size_t i = before; i < figure.size(); ++i) {
      const double part = static_cast<double>(i - before + 1) / pieces;
      figure[i].color = Between(from.color, ColorOf(index), part);
    }
  }

  std::vector<Corners> Take() {
    for (Corners& figure : figures_) {
      if (figure.size() > 1 && figure.front().point == figure.back().point) figure.pop_back();
    }
    return std::move(figures_);
  }

 private:
  [[nodiscard]] Argb ColorOf(std::size_t index) const {
    const std::vector<Argb>& colors = brush_.surroundColors;
    return colors.empty() ? brush_.centerColor : colors[std::min(index, colors.size() - 1)];
  }

  const EmfPlusPathGradientBrush& brush_;
  double tolerance_;
  std::vector<Corners> figures_;
};

void AddBoundary(BoundaryBuilder& builder, const std::vector<PointF>& polygon) {
  for (std::size_t i = 0; i < polygon.size(); ++i)
    i == 0 ? builder.Start(polygon[i], i) : builder.Line(polygon[i], i);
}

void AddBoundary(BoundaryBuilder& builder, const EmfPlusPath& path) {
  const std::size_t count = std::min(path.points.size(), path.types.size());
  for (std::size_t i = 0; i < count; ++i) {
    const int type = path.types[i] & kEmfPlusPointTypeMask;
    if (i == 0 || type == kEmfPlusPointStart) {
      builder.Start(path.points[i], i);
    } else if (type == kEmfPlusPointBezier && i + 2 < count) {
      builder.Curve(&path.points[i], i + 2);
      i += 2;
    } else {
      builder.Line(path.points[i], i);
    }
  }
}

bool AreNumbers(const std::vector<PointF>& points) {
  return std::ranges::all_of(points, [](PointF p) { return IsFinite(Exactly(p)); });
}

}  // namespace

std::vector<Corners> BoundaryOf(const EmfPlusPathGradientBrush& brush, double tolerance) {
  BoundaryBuilder builder(brush, tolerance);
  if (const auto* path = std::get_if<EmfPlusPath>(&brush.boundary)) {
    if (AreNumbers(path->points)) AddBoundary(builder, *path);
  } else if (const auto* polygon = std::get_if<std::vector<PointF>>(&brush.boundary)) {
    if (AreNumbers(*polygon)) AddBoundary(builder, *polygon);
  }
  return builder.Take();
}

}  // namespace kelvane::gdiplus
