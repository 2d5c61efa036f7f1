#pragma once

#include <cmath>

namespace kelvane {

/// Every coordinate of the surface is single precision.
using CGFloat = float;

struct CGPoint {
  CGFloat x = 0;
  CGFloat y = 0;

  friend bool operator==(const CGPoint&, const CGPoint&) = default;
};

struct CGSize {
  CGFloat width = 0;
  CGFloat height = 0;

  friend bool operator==(const CGSize&, const CGSize&) = default;
};

/// A rectangle by its lower left corner and size; y grows upwards.
struct CGRect {
  CGPoint origin;
  CGSize size;

  friend bool operator==(const CGRect&, const CGRect&) = default;
};

constexpr CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  return {{x, y}, {width, height}};
}

inline bool IsFinite(CGPoint point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

inline bool IsFinite(const CGRect& rect) {
  return IsFinite(rect.origin) && std::isfinite(rect.size.width) && std::isfinite(rect.size.height);
}

/// The affine map of row vectors
///
///                        | a  b  0 |
///     [x' y' 1] = [x y 1]| c  d  0 |
///                        | tx ty 1 |
struct CGAffineTransform {
  CGFloat a = 1;
  CGFloat b = 0;
  CGFloat c = 0;
  CGFloat d = 1;
  CGFloat tx = 0;
  CGFloat ty = 0;

  friend bool operator==(const CGAffineTransform&, const CGAffineTransform&) = default;
};

inline constexpr CGAffineTransform CGAffineTransformIdentity{};

constexpr CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d,
                                                  CGFloat tx, CGFloat ty) {
  return {a, b, c, d, tx, ty};
}

constexpr CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy) {
  return {sx, 0, 0, sy, 0, 0};
}

/// @param angle  radians, counter-clockwise where y grows upwards.
CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle);

/// @return the transform that applies `first`, then `second`.
CGAffineTransform CGAffineTransformConcat(const CGAffineTransform& first,
                                          const CGAffineTransform& second);

/// @return the inverse, each element rounded once to single precision; a singular transform comes
///         back unchanged.
CGAffineTransform CGAffineTransformInvert(const CGAffineTransform& transform);

inline bool IsFinite(const CGAffineTransform& t) {
  return std::isfinite(t.a) && std::isfinite(t.b) && std::isfinite(t.c) && std::isfinite(t.d) &&
         std::isfinite(t.tx) && std::isfinite(t.ty);
}

constexpr CGPoint CGPointApplyAffineTransform(CGPoint point, const CGAffineTransform& t) {
  return {t.a * point.x + t.c * point.y + t.tx, t.b * point.x + t.d * point.y + t.ty};
}

/// @return the bounding box of the rectangle's four mapped corners.
CGRect CGRectApplyAffineTransform(const CGRect& rect, const CGAffineTransform& transform);

/// True when lengths are scaled alike in every direction: rotations, reflections and one scale.
/// Allows for the rounding of a rotation's sine and cosine.
bool ScalesEvenly(const CGAffineTransform& transform);

/// The determinant of the linear part, in double precision so that it neither overflows nor
/// vanishes.
constexpr double Determinant(const CGAffineTransform& t) {
  return static_cast<double>(t.a) * t.d - static_cast<double>(t.b) * t.c;
}

/// @return how much longer lengths become, on the average of all directions.
inline double LengthScale(const CGAffineTransform& t) {
  return std::sqrt(std::abs(Determinant(t)));
}

}  // namespace kelvane
