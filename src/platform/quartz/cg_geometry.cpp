#include "platform/quartz/cg_geometry.h"

#include <algorithm>

namespace kelvane {

CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle) {
  const CGFloat sine = std::sin(angle);
  const CGFloat cosine = std::cos(angle);
  return {cosine, sine, -sine, cosine, 0, 0};
}

CGAffineTransform CGAffineTransformConcat(const CGAffineTransform& first,
                                          const CGAffineTransform& second) {
  return {first.a * second.a + first.b * second.c,
          first.a * second.b + first.b * second.d,
          first.c * second.a + first.d * second.c,
          first.c * second.b + first.d * second.d,
          first.tx * second.a + first.ty * second.c + second.tx,
          first.tx * second.b + first.ty * second.d + second.ty};
}

CGAffineTransform CGAffineTransformInvert(const CGAffineTransform& t) {
  const double determinant = Determinant(t);
  if (determinant == 0 || !std::isfinite(determinant)) return t;
  const auto element = [determinant](double numerator) {
    return static_cast<CGFloat>(numerator / determinant);
  };
  const double tx = t.tx;
  const double ty = t.ty;
  return {element(t.d),
          element(-t.b),
          element(-t.c),
          element(t.a),
          element(t.c * ty - t.d * tx),
          element(t.b * tx - t.a * ty)};
}

CGRect CGRectApplyAffineTransform(const CGRect& rect, const CGAffineTransform& transform) {
  const CGFloat right = rect.origin.x + rect.size.width;
  const CGFloat top = rect.origin.y + rect.size.height;
  const CGPoint corners[] = {CGPointApplyAffineTransform(rect.origin, transform),
                             CGPointApplyAffineTransform({right, rect.origin.y}, transform),
                             CGPointApplyAffineTransform({right, top}, transform),
                             CGPointApplyAffineTransform({rect.origin.x, top}, transform)};
  CGPoint low = corners[0];
  CGPoint high = corners[0];
  for (const CGPoint& corner : corners) {
    low = {std::min(low.x, corner.x), std::min(low.y, corner.y)};
    high = {std::max(high.x, corner.x), std::max(high.y, corner.y)};
  }
  return {low, {high.x - low.x, high.y - low.y}};
}

bool ScalesEvenly(const CGAffineTransform& t) {
  constexpr double kRounding = 1e-5;
  const double xLength = std::hypot(static_cast<double>(t.a), static_cast<double>(t.b));
  const double yLength = std::hypot(static_cast<double>(t.c), static_cast<double>(t.d));
  const double dot = static_cast<double>(t.a) * t.c + static_cast<double>(t.b) * t.d;
  return std::abs(xLength - yLength) <= kRounding * std::max(xLength, yLength) &&
         std::abs(dot) <= kRounding * xLength * yLength;
}

}  // namespace kelvane
