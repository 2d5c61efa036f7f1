#include "gdi/blit.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace kelvane {
namespace {

constexpr double kInexactness = 1.0 / 1024;  // pixels; what arithmetic may be off by

constexpr std::array<PointD, 4> kUnitCorners = {{{0, 0}, {1, 0}, {1, 1}, {0, 1}}};

/// Pixels from one to another, as far as there are any.
struct PixelRange {
  double from;
  double to;

  [[nodiscard]] bool IsEmpty() const { return !(from < to); }
};

/// @param from, to  of the source, in this order. @param size  of the bitmap.
PixelRange WholePixels(double from, double to, std::size_t size) {
  return {std::max(std::floor(from + kInexactness), 0.0),
          std::min(std::ceil(to - kInexactness), static_cast<double>(size))};
}

bool IsWhole(double edge) {
  return std::abs(edge - std::round(edge)) <= kInexactness;
}

RectangleD BoxAround(const std::array<PointD, 4>& corners) {
  const auto [left, right] = std::ranges::minmax(corners, {}, &PointD::x);
  const auto [top, bottom] = std::ranges::minmax(corners, {}, &PointD::y);
  return {left.x, top.y, right.x, bottom.y};
}

}  // namespace

std::array<PointD, 4> CornersOf(const TransformD& unit) {
  std::array<PointD, 4> corners;
  std::ranges::transform(kUnitCorners, corners.begin(), [&](PointD p) { return unit.Map(p); });
  return corners;
}

TransformD UnitToDevice(const Blit& blit) {
  const TransformD unitToPixels = {static_cast<double>(blit.part.width),
                                   0,
                                   0,
                                   static_cast<double>(blit.part.height),
                                   static_cast<double>(blit.part.left),
                                   static_cast<double>(blit.part.top)};
  return unitToPixels.Then(blit.toDevice);
}

std::optional<Blit> PlaceBlit(Dib dib, const RectangleD& source, const TransformD& toPixels,
                              const TransformD& unitToDevice) {
  const TransformD unitToSource = {source.right - source.left, 0,           0,
                                   source.bottom - source.top, source.left, source.top};
  const TransformD unitToPixels = unitToSource.Then(toPixels);
  const auto pixelsToUnit = unitToPixels.Inverse();
  if (!pixelsToUnit || !unitToDevice.IsFinite() || !unitToDevice.Inverse()) return std::nullopt;
  const RectangleD box = BoxAround(CornersOf(unitToPixels));
  const PixelRange columns = WholePixels(box.left, box.right, dib.Width());
  const PixelRange rows = WholePixels(box.top, box.bottom, dib.Height());
  if (columns.IsEmpty() || rows.IsEmpty()) return std::nullopt;

  Blit blit = {.dib = std::move(dib),
               .part = {static_cast<std::size_t>(columns.from), static_cast<std::size_t>(rows.from),
                        static_cast<std::size_t>(columns.to - columns.from),
                        static_cast<std::size_t>(rows.to - rows.from)},
               .toDevice = pixelsToUnit->Then(unitToDevice)};
  const bool isStraight = unitToPixels.KeepsRectangles() && IsWhole(box.left) && IsWhole(box.top) &&
                          IsWhole(box.right) && IsWhole(box.bottom);
  if (!isStraight) blit.cut = CornersOf(unitToDevice);
  return blit;
}

}  // namespace kelvane
