#include "gdiplus/images.h"

#include <algorithm>
#include <cmath>
#include <variant>

#include "gdi/blit.h"
#include "gdi/figures.h"
#include "gdi/image_marks.h"
#include "gdiplus/image_pixels.h"
#include "gdiplus/painting.h"

namespace kelvane::gdiplus {
namespace {

/// @return the map of the unit square onto the parallelogram at three of its corners.
TransformD UnitTo(const std::array<PointF, 3>& corners) {
  const auto [upperLeft, upperRight, lowerLeft] = corners;
  const PointD origin = {upperLeft.x, upperLeft.y};
  return {upperRight.x - origin.x,
          upperRight.y - origin.y,
          lowerLeft.x - origin.x,
          lowerLeft.y - origin.y,
          origin.x,
          origin.y};
}

/// A matrix as a file has it.
XForm Stored(const TransformD& matrix) {
  return {static_cast<float>(matrix.m11), static_cast<float>(matrix.m12),
          static_cast<float>(matrix.m21), static_cast<float>(matrix.m22),
          static_cast<float>(matrix.dx),  static_cast<float>(matrix.dy)};
}

constexpr double kHalfPixel = 0.5;

/// Which of the pixels along one side of an image are drawn, where they begin and how many.
struct SourceSide {
  double from;
  double length;  // negative when they are mirrored

  [[nodiscard]] double Low() const { return std::min(from, from + length); }
  [[nodiscard]] double High() const { return std::max(from, from + length); }

  [[nodiscard]] bool IsThere() const { return std::isfinite(from + length) && length != 0; }
  [[nodiscard]] bool IsSeen(double size) const { return IsThere() && Low() < size && High() > 0; }
  [[nodiscard]] bool IsAllOf(double size) const { return Low() <= 0 && High() >= size; }
  [[nodiscard]] bool ReachesBeyond(double size) const {
    return Low() < -kHalfPixel || High() > size + kHalfPixel;
  }

  /// @return what of it is on the image, never mirrored.
  [[nodiscard]] SourceSide Within(double size) const {
    const double low = std::max(Low(), 0.0);
    return {low, std::min(High(), size) - low};
  }
};

/// Many sources begin half a pixel before the image, in the middle of a pixel that is not there.
/// What lies no farther from all of the image is all of it.
SourceSide Snapped(SourceSide side, double size) {
  const bool isNear =
      std::abs(side.Low()) <= kHalfPixel && std::abs(side.High() - size) <= kHalfPixel;
  if (!isNear) return side;
  return side.length < 0 ? SourceSide{size, -size} : SourceSide{0, size};
}

/// The part of an image that is drawn.
struct Source {
  double width;  // of the image, pixels
  double height;
  SourceSide x;
  SourceSide y;

  [[nodiscard]] bool IsSeen() const { return x.IsSeen(width) && y.IsSeen(height); }
  [[nodiscard]] bool IsAll() const { return x.IsAllOf(width) && y.IsAllOf(height); }
  [[nodiscard]] bool ReachesBeyond() const {
    return x.IsThere() && y.IsThere() && (x.ReachesBeyond(width) || y.ReachesBeyond(height));
  }

  /// From pixels to the unit square that the part fills.
  [[nodiscard]] TransformD PixelsToUnit() const {
    return {1 / x.length, 0, 0, 1 / y.length, -x.from / x.length, -y.from / y.length};
  }

  /// From the image's own unit square to the one that the part fills.
  [[nodiscard]] TransformD ImageToUnit() const {
    return TransformD{width, 0, 0, height, 0, 0}.Then(PixelsToUnit());
  }
};

Source SourceOf(const CGImage& image, const RectF& source) {
  const auto width = static_cast<double>(image.width);
  const auto height = static_cast<double>(image.height);
  return {width, height, Snapped({source.x, source.width}, width),
          Snapped({source.y, source.height}, height)};
}

void DrawPixels(Graphics& graphics, const CGImage& image, const Source& source,
                const TransformD& unitToDevice) {
  if (!source.IsSeen()) return;
  const TransformD imageToDevice = source.ImageToUnit().Then(unitToDevice);
  if (!imageToDevice.IsFinite()) return;

  Canvas& canvas = *graphics.canvas;
  if (source.IsAll()) return DrawImage(canvas, image, imageToDevice, {});
  CGPath part;
  AddQuadrilateral(part, CornersOf(unitToDevice));
  canvas.Surface().SaveGState();
  if (canvas.ClipTo(part)) DrawImage(canvas, image, imageToDevice, {});
  canvas.Surface().RestoreGState();
}

/// Fills what of the part lies beyond the image, which may be seen through itself.
void PaintAround(Graphics& graphics, const Source& source, const TransformD& unitToDevice,
                 Argb color) {
  CGPath around;
  AddQuadrilateral(around, CornersOf(unitToDevice));
  if (source.IsSeen()) {
    const SourceSide x = source.x.Within(source.width);
    const SourceSide y = source.y.Within(source.height);
    const TransformD seen = TransformD{x.length, 0, 0, y.length, x.from, y.from};
    AddQuadrilateral(around, CornersOf(seen.Then(source.PixelsToUnit()).Then(unitToDevice)));
  }
  PaintFill(graphics, around, ALTERNATE, color);
}

/// An image that is repeated is a texture, whose own space is that of its pixels.
void PaintRepeated(Graphics& graphics, const EmfPlusImage& image, const Source& source,
                   const std::array<PointF, 3>& corners, EmfPlusWrapMode wrap) {
  EmfPlusTextureBrush brush;
  brush.image = image;
  brush.wrap = wrap;
  brush.transform = Stored(source.PixelsToUnit().Then(UnitTo(corners)));
  CGPath part;
  AddQuadrilateral(part, CornersOf(UnitTo(corners).Then(WorldToDevice(graphics))));
  PaintFill(graphics, part, ALTERNATE, brush);
}

}  // namespace

void DrawImage(Graphics& graphics, const EmfPlusImage& image, const RectF& source,
               const std::array<PointF, 3>& corners, const EmfPlusImageAttributes* attributes,
               const PlayMetafile& play) {
  const TransformD unitToDevice = UnitTo(corners).Then(WorldToDevice(graphics));
  if (!unitToDevice.IsFinite() || !BringClip(graphics)) return;
  if (const auto* metafile = std::get_if<EmfPlusMetafile>(&image)) {
    if (const auto lack = play(*metafile, unitToDevice)) graphics.shortfalls.Add(*lack);
    return;
  }
  const CFOwned<const CGImage> pixels = ImageFrom(graphics, image);
  if (pixels == nullptr) return;
  const Source part = SourceOf(*pixels, source);
  if (attributes != nullptr && part.ReachesBeyond()) {
    if (attributes->wrap != EmfPlusWrapMode::kClamp) {
      return PaintRepeated(graphics, image, part, corners, attributes->wrap);
    }
    PaintAround(graphics, part, unitToDevice, attributes->clampColor);
  }
  DrawPixels(graphics, *pixels, part, unitToDevice);
}

}  // namespace kelvane::gdiplus
