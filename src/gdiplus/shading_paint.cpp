#include "gdiplus/shading_paint.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <variant>

namespace kelvane::gdiplus {
namespace {

auto& ColoredParts(CGAxialShading& axial) {
  return axial.stops;
}
auto& ColoredParts(CGTriangleMesh& mesh) {
  return mesh.vertices;
}

/// Alpha that is the same everywhere is no business of the shading.
/// @return it; 1 where it changes, and nothing was taken.
template <class Shading>
CGFloat TakeEvenAlpha(Shading& shading) {
  auto& parts = ColoredParts(shading);
  const CGFloat alpha = parts.front().color.alpha;
  const auto isAlike = [alpha](const auto& part) { return part.color.alpha == alpha; };
  if (!std::ranges::all_of(parts, isAlike)) return 1;
  for (auto& part : parts)
    part.color.alpha = 1;
  return alpha;
}

/// A mesh of one colour still ends where it ends.
std::optional<CGColor> OnlyColor(const CGShading& shading) {
  const auto* axial = std::get_if<CGAxialShading>(&shading);
  if (axial == nullptr) return std::nullopt;
  const CGColor& first = axial->stops.front().color;
  const auto isAlike = [&](const CGGradientStop& stop) { return stop.color == first; };
  return std::ranges::all_of(axial->stops, isAlike) ? std::optional(first) : std::nullopt;
}

}  // namespace

std::optional<Paint> ShadingPaint(CGShading shading, const CGAffineTransform& matrix) {
  if (!Mapped(shading, matrix)) return std::nullopt;
  if (const auto color = OnlyColor(shading)) {
    return color->alpha > 0 ? std::optional(Paint{*color, nullptr}) : std::nullopt;
  }
  const CGFloat alpha = std::visit([](auto& kind) { return TakeEvenAlpha(kind); }, shading);
  if (alpha == 0) return std::nullopt;
  CGPattern pattern;
  pattern.matrix = matrix;
  pattern.shading = std::move(shading);
  return Paint{{0, 0, 0, alpha}, std::make_shared<const CGPattern>(std::move(pattern))};
}

}  // namespace kelvane::gdiplus
