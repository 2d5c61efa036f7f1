#include "gdiplus/figures.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <numbers>
#include <optional>

#include "gdi/exactly.h"
#include "gdi/figures.h"

namespace kelvane::gdiplus {
namespace {

constexpr double kRadians = std::numbers::pi / 180;
constexpr double kTurn = 360;

RectangleD EdgesOf(const RectF& box) {
  return {box.x, box.y, double{box.x} + box.width, double{box.y} + box.height};
}

/// @param degrees  where a ray from the centre goes. @return the angle on the unit circle that
///                 becomes the ellipse's point on that ray, within the same turn.
double AngleOnCircle(const EllipseD& ellipse, double degrees) {
  const double ray = degrees * kRadians;
  const double onCircle =
      std::atan2(std::sin(ray) * ellipse.xRadius, std::cos(ray) * ellipse.yRadius);
  return ray + std::remainder(onCircle - ray, 2 * std::numbers::pi);
}

std::optional<EllipticArc> PartOf(const RectF& box, float startAngle, float sweepAngle) {
  if (!std::isfinite(startAngle) || std::isnan(sweepAngle)) return std::nullopt;
  const auto [left, top, right, bottom] = EdgesOf(box);
  const EllipseD ellipse = {{(left + right) / 2, (top + bottom) / 2},
                            std::abs(right - left) / 2,
                            std::abs(bottom - top) / 2};
  if (!(ellipse.xRadius > 0 && ellipse.yRadius > 0)) return std::nullopt;
  const double start = std::remainder(double{startAngle}, kTurn);
  const double sweep = std::clamp(double{sweepAngle}, -kTurn, kTurn);
  const double from = AngleOnCircle(ellipse, start);
  return EllipticArc{ellipse, from, AngleOnCircle(ellipse, start + sweep) - from};
}

/// The control points of a cardinal spline through points, of which the neighbours count.
class Spline {
 public:
  Spline(std::span<const PointF> points, float tension, bool isClosed)
      : points_(points), pull_(double{tension} / 3), isClosed_(isClosed) {}

  [[nodiscard]] PointD At(std::size_t i) const { return Exactly(points_[i % points_.size()]); }

  [[nodiscard]] PointD After(std::size_t i) const { return Pulled(i, pull_); }
  [[nodiscard]] PointD Before(std::size_t i) const { return Pulled(i, -pull_); }

 private:
  /// The neighbour that an end of an open curve lacks is the end itself.
  [[nodiscard]] PointD Pulled(std::size_t i, double pull) const {
    const std::size_t count = points_.size();
    i %= count;
    const bool isFirst = i == 0;
    const bool isLast = i + 1 == count;
    const PointD previous = At(!isFirst ? i - 1 : isClosed_ ? count - 1 : i);
    const PointD next = At(!isLast ? i + 1 : isClosed_ ? 0 : i);
    const PointD at = At(i);
    return {at.x + pull * (next.x - previous.x), at.y + pull * (next.y - previous.y)};
  }

  std::span<const PointF> points_;
  double pull_;
  bool isClosed_;
};

void AddSegments(FigurePath& figure, const Spline& spline, std::size_t first, std::size_t count) {
  figure.MoveTo(spline.At(first));
  for (std::size_t i = first; i < first + count; ++i)
    figure.CurveTo(spline.After(i), spline.Before(i + 1), spline.At(i + 1));
}

}  // namespace

void AddLines(CGPath& path, const TransformD& toDevice, std::span<const PointF> points,
              bool isClosed) {
  if (points.empty()) return;
  FigurePath figure(path, toDevice);
  figure.MoveTo(Exactly(points.front()));
  for (const PointF& point : points.subspan(1))
    figure.LineTo(Exactly(point));
  if (isClosed) figure.Close();
}

void AddBeziers(CGPath& path, const TransformD& toDevice, std::span<const PointF> points) {
  if (points.empty()) return;
  FigurePath figure(path, toDevice);
  figure.MoveTo(Exactly(points.front()));
  for (std::size_t i = 1; i + 2 < points.size(); i += 3)
    figure.CurveTo(Exactly(points[i]), Exactly(points[i + 1]), Exactly(points[i + 2]));
}

void AddRectangle(CGPath& path, const TransformD& toDevice, const RectF& rectangle) {
  const auto [left, top, right, bottom] = EdgesOf(rectangle);
  FigurePath figure(path, toDevice);
  if (toDevice.KeepsRectangles() && toDevice.m12 == 0) {
    return figure.AddPlainRectangle({left, top, right, bottom});
  }
  figure.MoveTo({left, top});
  figure.LineTo({right, top});
  figure.LineTo({right, bottom});
  figure.LineTo({left, bottom});
  figure.Close();
}

void AddEllipse(CGPath& path, const TransformD& toDevice, const RectF& box) {
  FigurePath(path, toDevice).AddEllipse(EdgesOf(box), AD_CLOCKWISE);
}

void AddArc(CGPath& path, const TransformD& toDevice, const RectF& box, float startAngle,
            float sweepAngle) {
  const auto arc = PartOf(box, startAngle, sweepAngle);
  if (!arc) return;
  FigurePath figure(path, toDevice);
  figure.MoveTo(arc->Start());
  figure.AddArc(*arc);
  if (std::abs(sweepAngle) >= kTurn) figure.Close();
}

void AddPie(CGPath& path, const TransformD& toDevice, const RectF& box, float startAngle,
            float sweepAngle) {
  const auto arc = PartOf(box, startAngle, sweepAngle);
  if (!arc) return;
  FigurePath figure(path, toDevice);
  figure.MoveTo(arc->ellipse.center);
  figure.LineTo(arc->Start());
  figure.AddArc(*arc);
  figure.Close();
}

void AddCurve(CGPath& path, const TransformD& toDevice, std::span<const PointF> points,
              float tension, std::size_t offset, std::size_t segments) {
  if (points.size() < 2 || offset >= points.size() - 1) return;
  FigurePath figure(path, toDevice);
  const Spline spline(points, tension, false);
  AddSegments(figure, spline, offset, std::min(segments, points.size() - 1 - offset));
}

void AddClosedCurve(CGPath& path, const TransformD& toDevice, std::span<const PointF> points,
                    float tension) {
  if (points.size() < 2) return;
  FigurePath figure(path, toDevice);
  AddSegments(figure, Spline(points, tension, true), 0, points.size());
  figure.Close();
}

void AddPath(CGPath& path, const TransformD& toDevice, const EmfPlusPath& figures) {
  FigurePath figure(path, toDevice);
  const std::size_t count = std::min(figures.points.size(), figures.types.size());
  for (std::size_t i = 0; i < count; ++i) {
    const auto at = [&](std::size_t k) { return Exactly(figures.points[k]); };
    switch (figures.types[i] & kEmfPlusPointTypeMask) {
      case kEmfPlusPointStart:
        figure.MoveTo(at(i));
        break;
      case kEmfPlusPointLine:
        figure.LineTo(at(i));
        break;
      case kEmfPlusPointBezier:
        if (i + 2 >= count) return;
        figure.CurveTo(at(i), at(i + 1), at(i + 2));
        i += 2;
        break;
      default:
        continue;
    }
    if ((figures.types[i] & kEmfPlusPointCloses) != 0) figure.Close();
  }
}

}  // namespace kelvane::gdiplus
