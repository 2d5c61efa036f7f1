#include "gdiplus/linear_gradients.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "gdiplus/brush_spaces.h"
#include "gdiplus/gradient_blend.h"
#include "gdiplus/shading_paint.h"

namespace kelvane::gdiplus {
namespace {

using Stops = std::vector<CGGradientStop>;

/// Which repetitions of a gradient are seen; the first one of all is number 0.
struct Tiles {
  double first;
  double count;  // at least 1
};

/// @param seen       where 0 and 1 are the ends of the gradient.
/// @param halfPixel  by which marks may reach beyond an end without the gradient starting anew.
Tiles TilesSeen(const RectangleD& seen, double halfPixel) {
  const double first = std::floor(seen.left + halfPixel);
  return {first, std::max(1.0, std::ceil(seen.right - halfPixel) - first)};
}

bool IsMirrored(EmfPlusWrapMode wrap, double tile) {
  const bool mirrors = wrap == EmfPlusWrapMode::kTileFlipX || wrap == EmfPlusWrapMode::kTileFlipXY;
  return mirrors && std::fmod(tile, 2) != 0;
}

Stops StopsOf(const EmfPlusLinearGradientBrush& brush) {
  const GradientBlend blend(brush.blend, brush.isGammaCorrected);
  Stops stops;
  for (std::size_t i = 0; i < blend.Size(); ++i) {
    stops.push_back(
        {static_cast<CGFloat>(blend.Position(i)), blend.ColorAt(i, brush.start, brush.end)});
  }
  return stops;
}

Stops RepeatedStops(const Stops& stops, const Tiles& tiles, EmfPlusWrapMode wrap) {
  Stops repeated;
  const auto count = static_cast<std::size_t>(tiles.count);
  for (std::size_t number = 0; number < count; ++number) {
    const auto tile = static_cast<double>(number);
    const bool isMirrored = IsMirrored(wrap, tiles.first + tile);
    for (std::size_t i = 0; i < stops.size(); ++i) {
      const CGGradientStop& stop = stops[isMirrored ? stops.size() - 1 - i : i];
      const double position = isMirrored ? 1 - stop.location : stop.location;
      const CGGradientStop placed = {static_cast<CGFloat>((tile + position) / tiles.count),
                                     stop.color};
      if (repeated.empty() || !(repeated.back() == placed)) repeated.push_back(placed);
    }
  }
  return repeated;
}

/// What is left of a gradient that repeats within less than anyone can see.
Stops AverageOf(const Stops& stops) {
  CGColor sum = {0, 0, 0, 0};
  for (std::size_t i = 1; i < stops.size(); ++i) {
    const CGColor& a = stops[i - 1].color;
    const CGColor& b = stops[i].color;
    const CGFloat part = (stops[i].location - stops[i - 1].location) / 2;
    sum.red += (a.red + b.red) * part;
    sum.green += (a.green + b.green) * part;
    sum.blue += (a.blue + b.blue) * part;
    sum.alpha += (a.alpha + b.alpha) * part;
  }
  return {{0, sum}, {1, sum}};
}

}  // namespace

// Colours lie along the first axis of the unit square, which the brush's rectangle is the image of:
// so however that is turned and sheared, they stay along its left edge.
std::optional<Paint> LinearGradientPaint(Graphics& graphics,
                                         const EmfPlusLinearGradientBrush& brush,
                                         const RectangleD& bounds) {
  constexpr double kMostStops = 4096;
  const RectF& box = brush.rectangle;
  const TransformD toBrush = {box.width, 0, 0, box.height == 0 ? 1 : box.height, box.x, box.y};
  const TransformD toDevice =
      toBrush.Then(BrushToDevice(graphics, brush.transform, brush.staysInPlace));
  const auto seen = SeenOf(graphics, toDevice, bounds);
  if (!seen) return std::nullopt;
  if (!brush.verticalBlend.positions.empty()) graphics.shortfalls.Add(Shortfall::kBrushTooComplex);

  Stops stops = StopsOf(brush);
  Tiles tiles = {0, 1};
  if (brush.wrap != EmfPlusWrapMode::kClamp) {
    const auto inverse = toDevice.Inverse();
    tiles = TilesSeen(*seen, std::hypot(inverse->m11, inverse->m21) / 2);
  }
  const double count = tiles.count * static_cast<double>(stops.size());
  if (!(count <= kMostStops) || !graphics.canvas->Afford(static_cast<std::uint64_t>(count))) {
    graphics.shortfalls.Add(Shortfall::kBrushTooComplex);
    stops = AverageOf(stops);
    tiles = {0, 1};
  }
  return ShadingPaint(CGAxialShading{{static_cast<CGFloat>(tiles.first), 0},
                                     {static_cast<CGFloat>(tiles.first + tiles.count), 0},
                                     RepeatedStops(stops, tiles, brush.wrap)},
                      PatternMatrixOf(graphics, toDevice));
}

}  // namespace kelvane::gdiplus
