#pragma once

#include "gdi/geometry.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

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

  /// The closed ellipse in a box, from its rightmost point.
  void AddEllipse(const RectangleD& box, ArcDirection direction);

  /// A closed rectangle whose corners are quarters of an ellipse.
  /// @param width, height  of the ellipse; cut to the box, and their signs do not count.
  void AddRoundRectangle(const RectangleD& box, double width, double height,
                         ArcDirection direction);

  /// A part of the ellipse in a box. The points give nothing but directions from its centre, in the
  /// shape of the box; equal ones, and one at the centre, give the whole ellipse. A line joins the
  /// path's open figure, if there is one, to its start. A box without width or height adds nothing.
  /// @return whether anything was added.
  bool AddArc(const RectangleD& box, PointD start, PointD end, ArcDirection direction);

  /// A part of a circle; a line joins the path's open figure, if there is one, to its start.
  /// @param startAngle, sweepAngle  degrees, counter-clockwise with y downwards; a sweep of more
  ///                                than a full turn either way is one full circle.
  void AddAngleArc(PointD center, double radius, double startAngle, double sweepAngle);

 private:
  struct Ellipse {
    PointD center;
    double xRadius;
    double yRadius;

    [[nodiscard]] PointD At(double x, double y) const {
      return {center.x + x * xRadius, center.y + y * yRadius};
    }
  };

  static Ellipse EllipseIn(const RectangleD& box);

  /// Curves from `angle` on, where the path stands already. Angles are radians, from +x towards +y.
  void AddCurves(const Ellipse& ellipse, double angle, double sweep);

  [[nodiscard]] CGPoint Mapped(PointD point) const {
    const PointD device = toDevice_.Map(point);
    return {static_cast<CGFloat>(device.x), static_cast<CGFloat>(device.y)};
  }

  CGPath& path_;
  TransformD toDevice_;
};

}  // namespace kelvane
