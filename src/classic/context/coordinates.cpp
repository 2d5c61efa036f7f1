#include "classic/context/coordinates.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

#include "classic/reader/integer_arithmetic.h"
#include "platform/quartz/cg_context_calls.h"

namespace kelvane {
namespace {

// One coordinate of a path from window to viewport. Its distance from the origin wraps at 32 bits;
// the extents are divided first and the rest rounds once, so that equal inputs give equal pages on
// every machine. A text's reference point goes a way of its own.
std::int32_t MapPathCoordinate(std::int32_t coordinate, std::int32_t windowOrigin,
                               std::int32_t windowExtent, std::int32_t viewportOrigin,
                               std::int32_t viewportExtent) {
  if (windowExtent == 0) return coordinate;
  const double ratio = static_cast<double>(viewportExtent) / static_cast<double>(windowExtent);
  const double distance = WrappingSubtract(coordinate, windowOrigin);
  return Truncate(std::fma(distance, ratio, static_cast<double>(viewportOrigin)));
}

CGFloat Distance(std::int32_t from, std::int32_t to) {
  return static_cast<CGFloat>(std::abs(static_cast<std::int64_t>(WrappingSubtract(to, from))));
}

}  // namespace

void ChangeXY(const AbstractContext& context, std::int32_t& x, std::int32_t& y) {
  if (context.mapMode == kMapModeAnisotropic) {
    x = MapPathCoordinate(x, context.windowOrg.x, context.windowExt.cx, context.viewportOrg.x,
                          context.viewportExt.cx);
    y = MapPathCoordinate(y, context.windowOrg.y, context.windowExt.cy, context.viewportOrg.y,
                          context.viewportExt.cy);
  }
  y = WrappingNegate(y);
}

CGRect GetImageBox(const AbstractContext& /*context*/, const RectangleL& bounds) {
  return {{static_cast<CGFloat>(std::min(bounds.left, bounds.right)),
           static_cast<CGFloat>(WrappingNegate(bounds.bottom))},
          {Distance(bounds.left, bounds.right), Distance(bounds.top, bounds.bottom)}};
}

float DegreesToRadians(float degrees) {
  constexpr double kPi = 3.141592653589793;
  return static_cast<float>(static_cast<double>(degrees) / 180 * kPi);
}

CGRect RectangleToCGRect(const AbstractContext& context, RectangleL rectangle) {
  ChangeXY(context, rectangle.left, rectangle.bottom);
  ChangeXY(context, rectangle.right, rectangle.top);
  return {{static_cast<CGFloat>(std::min(rectangle.left, rectangle.right)),
           static_cast<CGFloat>(std::min(rectangle.top, rectangle.bottom))},
          {Distance(rectangle.left, rectangle.right), Distance(rectangle.bottom, rectangle.top)}};
}

void ContextSetCTM(AbstractContext& context, const CGAffineTransform& transform) {
  const CGAffineTransform current = CGContextGetCTM(context.context);
  CGContextConcatCTM(context.context, CGAffineTransformInvert(current));
  CGContextConcatCTM(context.context, transform);
}

void ContextSetCTM(AbstractContext& context, const XForm& transform) {
  const float sign = context.windowExtYPositive != 0 ? -1.0F : 1.0F;
  const auto dy = static_cast<CGFloat>(Truncate(static_cast<double>(sign * transform.eDy)));
  ContextSetCTM(context, CGAffineTransformMake(transform.eM11, transform.eM12, transform.eM21,
                                               transform.eM22, transform.eDx, dy));
}

void TransformContext(AbstractContext& context, std::int32_t mode, const XForm& transform) {
  context.ModifyWorldTransform(mode, transform);
  ContextSetCTM(context, context.worldTransform);
}

void ContextSetTextMatrix(AbstractContext& context, float degrees) {
  CGContextSetTextMatrix(context.context, CGAffineTransformMakeRotation(DegreesToRadians(degrees)));
  context.textAngle = degrees;
}

}  // namespace kelvane
