#include "gdiplus/outline_builder.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <utility>

#include "gdi/exactly.h"
#include "gdi/surface_stroke.h"

namespace kelvane::gdiplus {
namespace {

PointD operator+(PointD a, PointD b) {
  return {a.x + b.x, a.y + b.y};
}
PointD operator-(PointD a, PointD b) {
  return {a.x - b.x, a.y - b.y};
}
PointD operator*(double factor, PointD v) {
  return {factor * v.x, factor * v.y};
}
double Dot(PointD a, PointD b) {
  return a.x * b.x + a.y * b.y;
}
double Cross(PointD a, PointD b) {
  return a.x * b.y - a.y * b.x;
}
PointD Direction(PointD from, PointD to) {
  return (1 / Distance(from, to)) * (to - from);
}
PointD LeftOf(PointD direction) {
  return {direction.y, -direction.x};
}

double AreaOf(const std::vector<PointD>& figure) {
  double area = 0;
  for (std::size_t i = 0; i < figure.size(); ++i)
    area += Cross(figure[i], figure[(i + 1) % figure.size()]);
  return area;
}

/// How far an arc may turn between its points.
/// @param radius  device units.
double StepOfArc(double radius) {
  constexpr double kTolerance = 1.0 / 32;  // device units
  return std::clamp(std::sqrt(8 * kTolerance / std::max(radius, kTolerance)), 0.02, 1.0);
}

/// One edge of a line, at a distance to its left.
class Edge {
 public:
  Edge(double distance, bool turnsAtTheMiddle, const LineJoin& join, double stepOfArc,
       std::vector<PointD>& points)
      : distance_(distance),
        turnsAtTheMiddle_(turnsAtTheMiddle),
        join_(join),
        stepOfArc_(stepOfArc),
        points_(points) {}

  void AddEnd(PointD at, PointD direction) { points_.push_back(Beside(at, direction)); }

  /// Goes around a corner.
  void AddCorner(PointD before, PointD at, PointD after) {
    constexpr double kNearlyStraight = 0.99;
    const PointD in = Direction(before, at);
    const PointD out = Direction(at, after);
    const double dot = Dot(in, out);
    if (dot > kNearlyStraight) return AddMeeting(at, in, out);
    if (Cross(in, out) * distance_ >= 0) return AddOutside(at, in, out);
    const double shorter = std::min(Distance(before, at), Distance(at, after));
    MeetsWithin(dot, shorter) ? AddMeeting(at, in, out) : AddInside(at, in, out);
  }

 private:
  [[nodiscard]] PointD Beside(PointD at, PointD direction) const {
    return at + distance_ * LeftOf(direction);
  }

  /// Whether the edges on the inside of a corner meet beside both of its lines. A part of a line
  /// that has the line's middle hides what is beyond in any case.
  /// @param dot  of their directions. @param shorter  the length of the shorter one.
  [[nodiscard]] bool MeetsWithin(double dot, double shorter) const {
    if (turnsAtTheMiddle_ || dot <= -1) return false;
    const double tangent = std::sqrt((1 - dot) / (1 + dot));  // of half of the turn
    return std::abs(distance_) * tangent <= shorter;
  }

  /// Where the edges of both lines meet.
  void AddMeeting(PointD at, PointD in, PointD out) {
    points_.push_back(at + distance_ / (1 + Dot(in, out)) * (LeftOf(in) + LeftOf(out)));
  }

  void AddBevel(PointD at, PointD in, PointD out) {
    points_.push_back(Beside(at, in));
    points_.push_back(Beside(at, out));
  }

  void AddInside(PointD at, PointD in, PointD out) {
    points_.push_back(Beside(at, in));
    if (turnsAtTheMiddle_) points_.push_back(at);
    points_.push_back(Beside(at, out));
  }

  void AddOutside(PointD at, PointD in, PointD out) {
    switch (join_.kind) {
      case EmfPlusLineJoin::kRound:
        return AddArc(at, in, out);
      case EmfPlusLineJoin::kMiter:
      case EmfPlusLineJoin::kMiterClipped:
        return AddMiter(at, in, out);
      case EmfPlusLineJoin::kBevel:
        break;
    }
    AddBevel(at, in, out);
  }

  void AddArc(PointD at, PointD in, PointD out) {
    const double turn = std::acos(std::clamp(Dot(in, out), -1.0, 1.0));
    const double signedTurn = distance_ < 0 ? -turn : turn;
    const int count = std::max(1, static_cast<int>(std::ceil(turn / stepOfArc_)));
    for (int i = 0; i <= count; ++i) {
      const double angle = signedTurn * i / count;
      const double cosine = std::cos(angle);
      const double sine = std::sin(angle);
      points_.push_back(Beside(at, {in.x * cosine - in.y * sine, in.x * sine + in.y * cosine}));
    }
  }

  /// A spike beyond the limit is cut there, or left out.
  void AddMiter(PointD at, PointD in, PointD out) {
    const double cosine = std::sqrt(std::max(0.0, 1 + Dot(in, out)) / 2);  // of half of the turn
    if (cosine * join_.miterLimit >= 1) return AddMeeting(at, in, out);
    if (join_.kind == EmfPlusLineJoin::kMiterClipped) return AddBevel(at, in, out);
    const double sine = std::sqrt(std::max(0.0, 1 - cosine * cosine));
    const double length = std::abs(distance_) * (join_.miterLimit - cosine) / sine;
    points_.push_back(Beside(at, in) + length * in);
    points_.push_back(Beside(at, out) - length * out);
  }

  double distance_;
  bool turnsAtTheMiddle_;
  const LineJoin& join_;
  double stepOfArc_;
  std::vector<PointD>& points_;
};

void AddEdge(Edge& edge, std::span<const PointD> points, bool isClosed) {
  const std::size_t count = points.size();
  if (isClosed) {
    for (std::size_t i = 0; i < count; ++i)
      edge.AddCorner(points[(i + count - 1) % count], points[i], points[(i + 1) % count]);
    return;
  }
  edge.AddEnd(points.front(), Direction(points[0], points[1]));
  for (std::size_t i = 1; i + 1 < count; ++i)
    edge.AddCorner(points[i - 1], points[i], points[i + 1]);
  edge.AddEnd(points.back(), Direction(points[count - 2], points[count - 1]));
}

}  // namespace

FlatLine WithoutRepeats(const FlatLine& line) {
  FlatLine without = line;
  without.points.erase(std::unique(without.points.begin(), without.points.end()),
                       without.points.end());
  while (without.isClosed && without.points.size() > 1 &&
         without.points.front() == without.points.back()) {
    without.points.pop_back();
  }
  return without;
}

OutlineBuilder::OutlineBuilder(const TransformD& toDevice, std::size_t mostPoints)
    : toDevice_(toDevice), scale_(StretchOf(toDevice).most), mostPoints_(mostPoints) {}

void OutlineBuilder::AddFigures(std::vector<std::vector<PointD>> figures) {
  double area = 0;
  for (const auto& figure : figures)
    area += AreaOf(figure);
  for (auto& figure : figures) {
    if (area < 0) std::ranges::reverse(figure);
    Add(figure);
  }
}

void OutlineBuilder::AddDisc(PointD center, double radius) {
  const int count = static_cast<int>(std::ceil(2 * std::numbers::pi / StepOfArc(radius * scale_)));
  std::vector<PointD> figure;
  for (int i = 0; i < count; ++i) {
    const double angle = 2 * std::numbers::pi * i / count;
    figure.push_back(center + radius * PointD{std::cos(angle), std::sin(angle)});
  }
  Add(figure);
}

void OutlineBuilder::AddBand(const FlatLine& line, const Band& band, const LineJoin& join) {
  const FlatLine clean = WithoutRepeats(line);
  if (clean.points.size() < 2) return;
  const bool isClosed = clean.isClosed && clean.points.size() > 2;
  const bool hasTheMiddle = band.left >= 0 && band.right <= 0;
  const double width = std::max(std::abs(band.left), std::abs(band.right));
  const double step = StepOfArc(width * scale_);
  std::vector<PointD> points;
  Edge left(band.left, hasTheMiddle, join, step, points);
  AddEdge(left, clean.points, isClosed);
  if (isClosed) {
    Add(points);
    points.clear();
  }
  std::vector<PointD> backwards(clean.points.rbegin(), clean.points.rend());
  Edge right(-band.right, hasTheMiddle, join, step, points);
  AddEdge(right, backwards, isClosed);
  Add(points);
}

void OutlineBuilder::Add(std::span<const PointD> figure) {
  points_ += figure.size();
  if (IsFull() || figure.empty()) return;
  path_.MoveTo(Rounded(toDevice_.Map(figure.front())));
  for (const PointD& point : figure.subspan(1))
    path_.LineTo(Rounded(toDevice_.Map(point)));
  path_.Close();
}

}  // namespace kelvane::gdiplus
