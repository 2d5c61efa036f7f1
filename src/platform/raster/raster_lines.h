#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

struct RasterPoint {
  double x;  // pixels
  double y;

  friend bool operator==(const RasterPoint&, const RasterPoint&) = default;
};

/// The lines of a path, its curves cut into some, for one who takes `Move(to)`, which begins each
/// figure, `Line(to)` and `Close()`.
template <class Sink>
class RasterLines {
 public:
  /// @param toPixels  maps the points of paths. Both stay the caller's.
  RasterLines(const CGAffineTransform& toPixels, Sink& sink) : toPixels_(toPixels), sink_(sink) {}

  void Take(const CGPath& path) {
    path.ForEach([this](CGPath::Element element, const CGPoint* points) {
      switch (element) {
        case CGPath::Element::kMove:
          return Move(points[0]);
        case CGPath::Element::kLine:
          return Line(At(points[0]));
        case CGPath::Element::kCurve:
          return Curve(At(points[0]), At(points[1]), At(points[2]));
        case CGPath::Element::kRectangle:
          return Rectangle(points[0], points[1]);
        case CGPath::Element::kClose:
          return Close();
      }
    });
  }

 private:
  /// Any finite point and matrix give a finite one.
  [[nodiscard]] RasterPoint At(CGPoint point) const {
    const double x = point.x;
    const double y = point.y;
    return {toPixels_.a * x + toPixels_.c * y + toPixels_.tx,
            toPixels_.b * x + toPixels_.d * y + toPixels_.ty};
  }

  void Move(CGPoint to) { Move(At(to)); }

  void Move(RasterPoint to) {
    start_ = at_ = to;
    isClosed_ = false;
    sink_.Move(to);
  }

  void Line(RasterPoint to) {
    if (isClosed_) Move(start_);
    at_ = to;
    sink_.Line(to);
  }

  /// What follows without a move begins a figure where this one began.
  void Close() {
    at_ = start_;
    isClosed_ = true;
    sink_.Close();
  }

  void Rectangle(CGPoint corner, CGPoint size) {
    Move(corner);
    Line(At({corner.x + size.x, corner.y}));
    Line(At({corner.x + size.x, corner.y + size.y}));
    Line(At({corner.x, corner.y + size.y}));
    Close();
  }

  void Curve(RasterPoint one, RasterPoint two, RasterPoint to) {
    const RasterPoint from = at_;
    const int count = LinesOfCurve(from, one, two, to);
    for (int i = 1; i < count; ++i) {
      const double way = static_cast<double>(i) / count;
      const double rest = 1 - way;
      const double parts[] = {rest * rest * rest, 3 * rest * rest * way, 3 * rest * way * way,
                              way * way * way};
      Line({parts[0] * from.x + parts[1] * one.x + parts[2] * two.x + parts[3] * to.x,
            parts[0] * from.y + parts[1] * one.y + parts[2] * two.y + parts[3] * to.y});
    }
    Line(to);
  }

  /// @return how many lines stay close enough to a curve.
  static int LinesOfCurve(RasterPoint from, RasterPoint one, RasterPoint two, RasterPoint to) {
    constexpr double kFarthest = 0.1;  // pixels
    constexpr double kMostLines = 1024;
    const auto bend = [](RasterPoint a, RasterPoint b, RasterPoint c) {
      return std::hypot(a.x - 2 * b.x + c.x, a.y - 2 * b.y + c.y);
    };
    const double most = std::max(bend(from, one, two), bend(one, two, to));
    return static_cast<int>(
        std::clamp(std::ceil(std::sqrt(0.75 * most / kFarthest)), 1.0, kMostLines));
  }

  const CGAffineTransform& toPixels_;
  Sink& sink_;
  RasterPoint start_ = {0, 0};
  RasterPoint at_ = {0, 0};
  bool isClosed_ = false;
};

/// Gives the lines of a path to one who takes them. @param toPixels  maps its points.
template <class Sink>
void GiveLines(const CGPath& path, const CGAffineTransform& toPixels, Sink& sink) {
  RasterLines<Sink>(toPixels, sink).Take(path);
}

}  // namespace kelvane
