#include "gdiplus/brush_spaces.h"

#include <algorithm>
#include <array>

#include "gdi/exactly.h"

namespace kelvane::gdiplus {
namespace {

RectangleD Intersection(const RectangleD& a, const RectangleD& b) {
  return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right),
          std::min(a.bottom, b.bottom)};
}

/// Marks of lines have no area, and the pens that draw them reach beyond them.
RectangleD Grown(const RectangleD& r, double by) {
  return {r.left - by, r.top - by, r.right + by, r.bottom + by};
}

}  // namespace

TransformD BrushToDevice(const Graphics& graphics, const XForm& transform, bool staysInPlace) {
  const TransformD toWorld = {transform.eM11, transform.eM12, transform.eM21,
                              transform.eM22, transform.eDx,  transform.eDy};
  return toWorld.Then(staysInPlace ? PageToDevice(graphics) : WorldToDevice(graphics));
}

CGAffineTransform PatternMatrixOf(const Graphics& graphics, const TransformD& toDevice) {
  const Canvas& canvas = *graphics.canvas;
  return canvas.PatternMatrix(Rounded(toDevice.Then(Exactly(canvas.DeviceToPage()))));
}

std::optional<RectangleD> SeenOf(const Graphics& graphics, const TransformD& toDevice,
                                 const RectangleD& bounds) {
  constexpr double kHair = 1.0 / 64;
  const auto toBrush = toDevice.Inverse();
  const RectangleD seen = Intersection(Grown(bounds, kHair), graphics.canvas->Whole());
  if (!toBrush || !toBrush->IsFinite() || seen.IsEmpty()) return std::nullopt;
  const std::array<PointD, 4> corners = {
      toBrush->Map({seen.left, seen.top}), toBrush->Map({seen.right, seen.top}),
      toBrush->Map({seen.right, seen.bottom}), toBrush->Map({seen.left, seen.bottom})};
  const auto [left, right] = std::ranges::minmax(corners, {}, &PointD::x);
  const auto [top, bottom] = std::ranges::minmax(corners, {}, &PointD::y);
  return RectangleD{left.x, top.y, right.x, bottom.y};
}

}  // namespace kelvane::gdiplus
