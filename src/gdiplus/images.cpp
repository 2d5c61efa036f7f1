#include "gdiplus/images.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "gdi/blit.h"
#include "gdi/exactly.h"
#include "gdi/image_marks.h"
#include "gdiplus/image_pixels.h"

namespace kelvane::gdiplus {
namespace {

/// @return the map of the unit square onto the parallelogram at three of its corners.
TransformD UnitToDevice(const Graphics& graphics, const std::array<PointF, 3>& corners) {
  std::array<PointD, 3> points;
  const TransformD toDevice = WorldToDevice(graphics);
  std::ranges::transform(corners, points.begin(), [&](PointF p) {
    return toDevice.Map({p.x, p.y});
  });
  const auto [upperLeft, upperRight, lowerLeft] = points;
  return {upperRight.x - upperLeft.x,
          upperRight.y - upperLeft.y,
          lowerLeft.x - upperLeft.x,
          lowerLeft.y - upperLeft.y,
          upperLeft.x,
          upperLeft.y};
}

/// Which of the pixels along one side of an image are drawn, where they begin and how many.
struct SourceSide {
  double from;
  double length;  // negative when they are mirrored

  [[nodiscard]] double Low() const { return std::min(from, from + length); }
  [[nodiscard]] double High() const { return std::max(from, from + length); }

  [[nodiscard]] bool IsSeen(double size) const {
    return std::isfinite(from + length) && length != 0 && Low() < size && High() > 0;
  }
  [[nodiscard]] bool IsAllOf(double size) const { return Low() <= 0 && High() >= size; }
};

/// Many sources begin half a pixel before the image, in the middle of a pixel that is not there.
/// What lies no farther from all of the image is all of it.
SourceSide Snapped(SourceSide side, double size) {
  constexpr double kHalf = 0.5;
  const bool isNear = std::abs(side.Low()) <= kHalf && std::abs(side.High() - size) <= kHalf;
  if (!isNear) return side;
  return side.length < 0 ? SourceSide{size, -size} : SourceSide{0, size};
}

void DrawPixels(Graphics& graphics, const CGImage& image, const RectF& source,
                const TransformD& unitToDevice) {
  const auto width = static_cast<double>(image.width);
  const auto height = static_cast<double>(image.height);
  const SourceSide x = Snapped({source.x, source.width}, width);
  const SourceSide y = Snapped({source.y, source.height}, height);
  if (!x.IsSeen(width) || !y.IsSeen(height)) return;
  const TransformD imageToUnit = {width / x.length,  0, 0, height / y.length, -x.from / x.length,
                                  -y.from / y.length};
  const TransformD imageToDevice = imageToUnit.Then(unitToDevice);
  if (!imageToDevice.IsFinite()) return;

  Canvas& canvas = *graphics.canvas;
  if (x.IsAllOf(width) && y.IsAllOf(height)) return DrawImage(canvas, image, imageToDevice, {});
  CGPath part;
  const std::array<PointD, 4> corners = CornersOf(unitToDevice);
  part.MoveTo(Rounded(corners[0]));
  for (std::size_t i = 1; i < corners.size(); ++i)
    part.LineTo(Rounded(corners[i]));
  part.Close();
  canvas.Surface().SaveGState();
  if (canvas.ClipTo(part)) DrawImage(canvas, image, imageToDevice, {});
  canvas.Surface().RestoreGState();
}

}  // namespace

void DrawImage(Graphics& graphics, const EmfPlusImage& image, const RectF& source,
               const std::array<PointF, 3>& corners, const EmfPlusImageAttributes* /*attributes*/,
               const PlayMetafile& play) {
  const TransformD unitToDevice = UnitToDevice(graphics, corners);
  if (!unitToDevice.IsFinite() || !BringClip(graphics)) return;
  if (const auto* metafile = std::get_if<EmfPlusMetafile>(&image)) {
    if (!play(*metafile, unitToDevice)) graphics.shortfalls.Add(Shortfall::kUnreadableBitmap);
    return;
  }
  const CFOwned<const CGImage> pixels = ImageFrom(graphics, image);
  if (pixels != nullptr) DrawPixels(graphics, *pixels, source, unitToDevice);
}

}  // namespace kelvane::gdiplus
