#include "gdiplus/textures.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

#include "gdiplus/brush_spaces.h"
#include "gdiplus/image_pixels.h"

namespace kelvane::gdiplus {
namespace {

/// @param from  of what is seen. @param size  of a cell that begins at 0.
/// @return a gap beyond which no other cell is seen.
CGFloat GapAround(double from, double to, double size) {
  return static_cast<CGFloat>(std::ceil(std::max({-from, to - size, 0.0})) + 1);
}

bool Mirrors(EmfPlusWrapMode wrap, EmfPlusWrapMode oneWay) {
  return wrap == oneWay || wrap == EmfPlusWrapMode::kTileFlipXY;
}

}  // namespace

std::optional<Paint> TexturePaint(Graphics& graphics, const EmfPlusTextureBrush& brush,
                                  const RectangleD& bounds) {
  auto image = brush.image ? ImageFrom(graphics, *brush.image) : nullptr;
  if (image == nullptr) {
    graphics.shortfalls.Add(Shortfall::kUnreadablePattern);
    return std::nullopt;
  }
  const auto width = static_cast<double>(image->width);
  const auto height = static_cast<double>(image->height);
  // A cell's own space has y upwards.
  const TransformD toDevice = TransformD{1, 0, 0, -1, 0, height}.Then(
      BrushToDevice(graphics, brush.transform, brush.staysInPlace));
  const auto seen = SeenOf(graphics, toDevice, bounds);
  if (!seen) return std::nullopt;
  CGPattern pattern;
  pattern.cell = {static_cast<CGFloat>(width), static_cast<CGFloat>(height)};
  pattern.matrix = PatternMatrixOf(graphics, toDevice);
  pattern.image = std::move(image);
  pattern.mirrorsX = Mirrors(brush.wrap, EmfPlusWrapMode::kTileFlipX);
  pattern.mirrorsY = Mirrors(brush.wrap, EmfPlusWrapMode::kTileFlipY);
  if (brush.wrap == EmfPlusWrapMode::kClamp) {
    pattern.gap = {GapAround(seen->left, seen->right, width),
                   GapAround(seen->top, seen->bottom, height)};
  }
  return Paint{{0, 0, 0, 1}, std::make_shared<const CGPattern>(std::move(pattern))};
}

}  // namespace kelvane::gdiplus
