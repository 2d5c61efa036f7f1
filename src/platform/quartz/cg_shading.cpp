#include "platform/quartz/cg_shading.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace kelvane {
namespace {

bool IsFinite(const CGColor& color) {
  return std::isfinite(color.red) && std::isfinite(color.green) && std::isfinite(color.blue) &&
         std::isfinite(color.alpha);
}

bool AreInOrder(const std::vector<CGGradientStop>& stops) {
  return stops.size() >= 2 && stops.front().location >= 0 && stops.back().location <= 1 &&
         std::ranges::is_sorted(stops, std::less(), &CGGradientStop::location) &&
         std::ranges::all_of(stops, [](const CGGradientStop& stop) {
           return std::isfinite(stop.location) && IsFinite(stop.color);
         });
}

/// Colours stay the same across the line. A transform that shears or scales unevenly turns that
/// direction otherwise than the line's own, so the end is laid where the line through the start
/// that is upright to it meets the colour of the end.
CGPoint MappedEnd(const CGAxialShading& shading, const CGAffineTransform& t, CGPoint start) {
  if (ScalesEvenly(t)) return CGPointApplyAffineTransform(shading.end, t);
  const double dx = static_cast<double>(shading.end.x) - shading.start.x;
  const double dy = static_cast<double>(shading.end.y) - shading.start.y;
  // How the way along the line, 0 to 1, grows with x and y of the mapped space.
  const double scale = Determinant(t) * (dx * dx + dy * dy);
  const double growthX = (t.d * dx - t.b * dy) / scale;
  const double growthY = (t.a * dy - t.c * dx) / scale;
  const double growth = growthX * growthX + growthY * growthY;
  return {static_cast<CGFloat>(start.x + growthX / growth),
          static_cast<CGFloat>(start.y + growthY / growth)};
}

std::optional<CGShading> MappedShading(const CGAxialShading& shading, const CGAffineTransform& t) {
  if (!AreInOrder(shading.stops) || Determinant(t) == 0) return std::nullopt;
  CGAxialShading mapped = shading;
  mapped.start = CGPointApplyAffineTransform(shading.start, t);
  mapped.end = MappedEnd(shading, t, mapped.start);
  const bool shows = kelvane::IsFinite(mapped.start) && kelvane::IsFinite(mapped.end) &&
                     !(mapped.start == mapped.end);
  return shows ? std::optional<CGShading>(std::move(mapped)) : std::nullopt;
}

std::optional<CGShading> MappedShading(const CGTriangleMesh& mesh, const CGAffineTransform& t) {
  CGTriangleMesh mapped = mesh;
  mapped.vertices.resize(mesh.vertices.size() / 3 * 3);
  for (CGMeshVertex& vertex : mapped.vertices) {
    vertex.point = CGPointApplyAffineTransform(vertex.point, t);
    if (!kelvane::IsFinite(vertex.point) || !IsFinite(vertex.color)) return std::nullopt;
  }
  return mapped.vertices.empty() ? std::nullopt : std::optional<CGShading>(std::move(mapped));
}

bool HasOpaqueColors(const CGAxialShading& axial) {
  return std::ranges::all_of(axial.stops, [](const auto& stop) { return stop.color.alpha == 1; });
}

bool HasOpaqueColors(const CGTriangleMesh& mesh) {
  return std::ranges::all_of(mesh.vertices,
                             [](const auto& vertex) { return vertex.color.alpha == 1; });
}

}  // namespace

bool IsOpaque(const CGShading& shading) {
  return std::visit([](const auto& kind) { return HasOpaqueColors(kind); }, shading);
}

std::optional<CGShading> Mapped(const CGShading& shading, const CGAffineTransform& transform) {
  return std::visit([&](const auto& kind) { return MappedShading(kind, transform); }, shading);
}

}  // namespace kelvane
