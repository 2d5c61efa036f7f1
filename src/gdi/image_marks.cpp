#include "gdi/image_marks.h"

#include <cmath>

#include "gdi/exactly.h"

namespace kelvane {
namespace {

/// Viewers give an image every pixel that it touches. So it must not reach into one by a rounding
/// error: each edge is taken in by less than anyone can see.
constexpr CGFloat kUnseen = 1.0F / 512;  // points

CGAffineTransform TakenIn(CGAffineTransform matrix) {
  const CGFloat width = std::hypot(matrix.a, matrix.b);
  const CGFloat height = std::hypot(matrix.c, matrix.d);
  if (width < 4 * kUnseen || height < 4 * kUnseen) return matrix;
  const CGFloat x = kUnseen / width;
  const CGFloat y = kUnseen / height;
  return CGAffineTransformConcat({1 - 2 * x, 0, 0, 1 - 2 * y, x, y}, matrix);
}

/// From the unit square of images, whose y grows upwards.
CGAffineTransform OnPage(const Canvas& canvas, const TransformD& unitToDevice) {
  const TransformD upright = TransformD{1, 0, 0, -1, 0, 1}.Then(unitToDevice);
  return TakenIn(CGAffineTransformConcat(Rounded(upright), canvas.DeviceToPage()));
}

}  // namespace

void DrawImage(Canvas& canvas, const CGImage& image, const TransformD& unitToDevice,
               const ImageBlending& blending) {
  CGContext& surface = canvas.Surface();
  surface.SaveGState();
  surface.SetBlendMode(blending.mode);
  surface.SetAlpha(blending.alpha);
  surface.SetBitOperation(blending.operation);
  surface.ConcatCTM(OnPage(canvas, unitToDevice));
  surface.DrawImage({{0, 0}, {1, 1}}, &image);
  surface.RestoreGState();
}

}  // namespace kelvane
