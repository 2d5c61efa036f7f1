#include "gdi/widening.h"

#include <algorithm>
#include <clipper.hpp>
#include <cmath>

#include "gdi/flat_lines.h"

namespace kelvane {
namespace {

namespace cl = ClipperLib;

constexpr double kTolerance = 1.0 / 64;                    // device units
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

}  // namespace

// The pen's space is the mapping without its origins, so large that its fixed-point numbers are
// as fine as device units.
std::optional<CGPath> Widened(const CGPath& path, const PenStroke& stroke, double miterLimit,
                              const TransformD& toDevice) {
  const double unit =
      std::max(std::hypot(toDevice.m11, toDevice.m12), std::hypot(toDevice.m21, toDevice.m22));
  const TransformD penToDevice = {
      toDevice.m11 / unit, toDevice.m12 / unit, toDevice.m21 / unit, toDevice.m22 / unit, 0, 0};
  const auto deviceToPen = penToDevice.Inverse();
  if (!deviceToPen || !path.IsFinite()) return std::nullopt;

  cl::ClipperOffset offset(miterLimit, kTolerance * kScale);
  std::size_t count = 0;
  for (const FlatLine& line : FlatLinesOf(path, kTolerance)) {
    count += line.points.size();
    if (count > kMostPoints) return std::nullopt;
    cl::Path fixed;
    for (const PointD& point : line.points) {
      const PointD inPen = deviceToPen->Map(point);
      fixed.emplace_back(std::llround(std::clamp(inPen.x, -kFarthest, kFarthest) * kScale),
                         std::llround(std::clamp(inPen.y, -kFarthest, kFarthest) * kScale));
    }
    offset.AddPath(fixed, JoinTypeOf(stroke), EndTypeOf(stroke, line.isClosed));
  }
  cl::Paths outlines;
  offset.Execute(outlines, stroke.width * unit / 2 * kScale);

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
