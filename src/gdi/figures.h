#pragma once

#include <array>
#include <cmath>
#include <optional>

#include "gdi/exactly.h"
#include "gdi/geometry.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// An upright ellipse.
struct EllipseD {
  PointD center;
  double xRadius = 0;
  double yRadius = 0;

  /// @param x, y  of the unit circle.
  [[nodiscard]] PointD At(double x, double y) const {
    return {center.x + x * xRadius, center.y + y * yRadius};
  }
};

/// A part of an ellipse. Angles are radians, from +x towards +y.
struct EllipticArc {
  EllipseD ellipse;
  double angle = 0;  // where it starts
  double sweep = 0;

  [[nodiscard]] PointD Start() const { return ellipse.At(std::cos(angle), std::sin(angle)); }
  [[nodiscard]] PointD End() const {
    return ellipse.At(std::cos(angle + sweep), std::sin(angle + sweep));
  }
};

/// @param box         its corners in any order.
/// @param start, end  give nothing but directions from the centre, in the shape of the box; equal
///                    ones, and one at the centre, give the whole ellipse.
/// @return nullopt for a box without width or height.
std::optional<EllipticArc> ArcIn(const RectangleD& box, PointD start, PointD end,
                                 ArcDirection direction);

/// @param startAngle, sweepAngle  degrees, counter-clockwise with y downwards; a sweep of more than
///                                a full turn either way is one full circle.
/// @return nullopt for angles that are no numbers.
std::optional<EllipticArc> ArcAround(PointD center, double radius, double startAngle,
                                     double sweepAngle);

/// A path under construction: logical coordinates in, device units out. Points are mapped in double
/// precision when they are added, and rounded once.
class FigurePath {
 public:
  /// @param path  borrowed; figures are added to it. @param toDevice  of the moment.
  FigurePath(CGPath& path, const TransformD& toDevice) : path_(path), toDevice_(toDevice) {}

  void MoveTo(PointD point) { path_.MoveTo(Mapped(point)); }
  void LineTo(PointD point) { path_.LineTo(Mapped(point)); }
  void CurveTo(PointD control1, PointD control2, PointD end) {
    path_.CurveTo(Mapped(control1), Mapped(control2), Mapped(end));
  }
  void Close() { path_.Close(); }

  // Boxes have their corners in any order, and right and bottom edge belong to their outline.

  /// A closed rectangle, from its top right corner.
  void AddRectangle(const RectangleD& box, ArcDirection direction);

  /// The same where it does not matter from which corner it runs: fewer numbers, as long as the
  /// space is upright.
  void AddPlainRectangle(const RectangleD& box);

  /// The closed ellipse in a box, from its rightmost point.
  void AddEllipse(const RectangleD& box, ArcDirection direction);

  /// A closed rectangle whose corners are quarters of an ellipse.
  /// @param width, height  of the ellipse; cut to the box, and their signs do not count.
  void AddRoundRectangle(const RectangleD& box, double width, double height,
                         ArcDirection direction);

  /// From where the path stands, which is to be the arc's start.
  void AddArc(const EllipticArc& arc);

 private:
  [[nodiscard]] CGPoint Mapped(PointD point) const { return Rounded(toDevice_.Map(point)); }

  CGPath& path_;
  TransformD toDevice_;
};

/// Adds a closed figure. @param corners  device units, in its order.
void AddQuadrilateral(CGPath& path, const std::array<PointD, 4>& corners);

}  // namespace kelvane
