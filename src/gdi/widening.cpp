#include "gdi/widening.h"

#include <algorithm>
#include <clipper.hpp>
#include <cmath>
#include <vector>

#include "gdi/flat_lines.h"

namespace kelvane {
namespace {

namespace cl = ClipperLib;

constexpr double kTolerance = 1.0 / 64;                    // device units
constexpr double kFinest = 4096;                           // of a radius: some 140 lines around
constexpr double kFarthest = 1 << 21;                      // device units; far outside of any page
constexpr double kScale = 256;                             // fixed point
constexpr std::size_t kMostPoints = std::size_t{1} << 16;  // beyond it the outline takes too long

cl::EndType EndTypeOf(const PenStroke& stroke, bool isClosed) {
  if (isClosed) return cl::etClosedLine;
  switch (stroke.endCap) {
    case PS_ENDCAP_SQUARE:
      return cl::etOpenSquare;
    case PS_ENDCAP_FLAT:
      return cl::etOpenButt;
    default:
      return cl::etOpenRound;
  }
}

cl::JoinType JoinTypeOf(const PenStroke& stroke) {
  switch (stroke.join) {
    case PS_JOIN_MITER:
      return cl::jtMiter;
    case PS_JOIN_BEVEL:
      return cl::jtSquare;
    default:
      return cl::jtRound;
  }
}

cl::cInt Fixed(double coordinate) {
  if (std::isnan(coordinate)) return 0;
  return std::llround(std::clamp(coordinate, -kFarthest, kFarthest) * kScale);
}

/// A line and how far its stroke reaches.
struct Reach {
  double left;
  double top;
  double right;
  double bottom;
};

std::vector<Reach> ReachesOf(const CGPath& path, double width) {
  std::vector<Reach> reaches;
  for (const FlatLine& line : FlatLinesOf(path, kTolerance)) {
    for (std::size_t i = 0; i < line.points.size(); ++i) {
      const auto [x, y] = line.points[i];
      const auto [nextX, nextY] = line.points[(i + 1) % line.points.size()];
      reaches.push_back({std::min(x, nextX) - width / 2, std::min(y, nextY) - width / 2,
                         std::max(x, nextX) + width / 2, std::max(y, nextY) + width / 2});
    }
  }
  return reaches;
}

}  // namespace

// From above to below, as the lines are joined: those of which the strokes lie beside each other
// are compared, those which meet are cut.
std::uint64_t WorkOfWidening(const CGPath& path, double width) {
  constexpr std::uint64_t kCutting = 128;  // times what comparing takes
  std::vector<Reach> reaches = ReachesOf(path, width);
  std::ranges::sort(reaches, {}, &Reach::top);
  std::uint64_t work = reaches.size();
  for (std::size_t i = 0; i < reaches.size(); ++i) {
    for (std::size_t j = i + 1; j < reaches.size() && reaches[j].top <= reaches[i].bottom; ++j) {
      const bool meet = reaches[j].left <= reaches[i].right && reaches[i].left <= reaches[j].right;
      work += meet ? kCutting : 1;
      if (work > kMostWorkOfWidening) return work;
    }
  }
  return work;
}

// The pen's space is the mapping without its origins, so large that its fixed-point numbers are
// as fine as device units.
std::optional<CGPath> Widened(const CGPath& path, const PenStroke& stroke, double miterLimit,
                              const TransformD& toDevice) {
  const double unit =
      std::max(std::hypot(toDevice.m11, toDevice.m12), std::hypot(toDevice.m21, toDevice.m22));
  const TransformD penToDevice = {
      toDevice.m11 / unit, toDevice.m12 / unit, toDevice.m21 / unit, toDevice.m22 / unit, 0, 0};
  const auto deviceToPen = penToDevice.Inverse();
  const double radius = std::min(stroke.width * unit / 2, kFarthest);
  if (!deviceToPen || !path.IsFinite() || std::isnan(radius)) return std::nullopt;

  cl::ClipperOffset offset(miterLimit, std::max(kTolerance, radius / kFinest) * kScale);
  std::size_t count = 0;
  for (const FlatLine& line : FlatLinesOf(path, kTolerance)) {
    count += line.points.size();
    if (count > kMostPoints) return std::nullopt;
    cl::Path fixed;
    for (const PointD& point : line.points) {
      const PointD inPen = deviceToPen->Map(point);
      fixed.emplace_back(Fixed(inPen.x), Fixed(inPen.y));
    }
    offset.AddPath(fixed, JoinTypeOf(stroke), EndTypeOf(stroke, line.isClosed));
  }
  cl::Paths outlines;
  offset.Execute(outlines, radius * kScale);

  CGPath widened;
  for (const cl::Path& outline : outlines) {
    for (std::size_t i = 0; i < outline.size(); ++i) {
      const PointD point = penToDevice.Map(
          {static_cast<double>(outline[i].X) / kScale, static_cast<double>(outline[i].Y) / kScale});
      const CGPoint rounded = {static_cast<CGFloat>(point.x), static_cast<CGFloat>(point.y)};
      i == 0 ? widened.MoveTo(rounded) : widened.LineTo(rounded);
    }
    widened.Close();
  }
  return widened;
}

}  // namespace kelvane
