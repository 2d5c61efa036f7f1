#pragma once

#include <cmath>
#include <optional>

namespace kelvane {

struct PointD {
  double x = 0;
  double y = 0;

  friend bool operator==(const PointD&, const PointD&) = default;
};

inline bool IsFinite(PointD point) {
  return std::isfinite(point.x) && std::isfinite(point.y);
}

inline double Distance(PointD a, PointD b) {
  return std::hypot(b.x - a.x, b.y - a.y);
}

/// A rectangle by its edges; y grows downwards, right and bottom lie outside.
struct RectangleD {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  /// Also true of edges that are not numbers.
  [[nodiscard]] constexpr bool IsEmpty() const { return !(left < right && top < bottom); }

  friend bool operator==(const RectangleD&, const RectangleD&) = default;
};

/// The affine map of row vectors
///
///                        | m11 m12 0 |
///     [x' y' 1] = [x y 1]| m21 m22 0 |
///                        | dx  dy  1 |
struct TransformD {
  double m11 = 1;
  double m12 = 0;
  double m21 = 0;
  double m22 = 1;
  double dx = 0;
  double dy = 0;

  [[nodiscard]] constexpr PointD Map(PointD p) const {
    return {p.x * m11 + p.y * m21 + dx, p.x * m12 + p.y * m22 + dy};
  }

  /// Maps a distance, which has no place.
  [[nodiscard]] constexpr PointD MapVector(PointD v) const {
    return {v.x * m11 + v.y * m21, v.x * m12 + v.y * m22};
  }

  /// Upright rectangles stay upright: no turn but by right angles, and no shear.
  [[nodiscard]] constexpr bool KeepsRectangles() const {
    return (m12 == 0 && m21 == 0) || (m11 == 0 && m22 == 0);
  }

  [[nodiscard]] bool IsFinite() const {
    return std::isfinite(m11) && std::isfinite(m12) && std::isfinite(m21) && std::isfinite(m22) &&
           std::isfinite(dx) && std::isfinite(dy);
  }

  /// @return the map that applies this one, then `next`.
  [[nodiscard]] constexpr TransformD Then(const TransformD& next) const {
    const PointD x = next.MapVector({m11, m12});
    const PointD y = next.MapVector({m21, m22});
    const PointD origin = next.Map({dx, dy});
    return {x.x, x.y, y.x, y.y, origin.x, origin.y};
  }

  /// @return nullopt for a map onto a line or a point.
  [[nodiscard]] std::optional<TransformD> Inverse() const {
    const double determinant = m11 * m22 - m12 * m21;
    if (determinant == 0 || !std::isfinite(1 / determinant)) return std::nullopt;
    return TransformD{m22 / determinant,
                      -m12 / determinant,
                      -m21 / determinant,
                      m11 / determinant,
                      (m21 * dy - m22 * dx) / determinant,
                      (m12 * dx - m11 * dy) / determinant};
  }

  friend bool operator==(const TransformD&, const TransformD&) = default;
};

}  // namespace kelvane
