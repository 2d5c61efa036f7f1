#include "gdiplus/pen_shape.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "gdi/surface_stroke.h"

namespace kelvane::gdiplus {
namespace {

constexpr double kWidest = 1 << 20;  // device units; wider than any page

TransformD WithoutOrigin(TransformD transform) {
  transform.dx = 0;
  transform.dy = 0;
  return transform;
}

std::vector<double> DashesIn(const EmfPlusPen& pen) {
  switch (pen.style) {
    case EmfPlusLineStyle::kDash:
      return {3, 1};
    case EmfPlusLineStyle::kDot:
      return {1, 1};
    case EmfPlusLineStyle::kDashDot:
      return {3, 1, 1, 1};
    case EmfPlusLineStyle::kDashDotDot:
      return {3, 1, 1, 1, 1, 1};
    case EmfPlusLineStyle::kCustom:
      return {pen.dashes.begin(), pen.dashes.end()};
    case EmfPlusLineStyle::kSolid:
      break;
  }
  return {};
}

/// Lengths that are no lengths make the line solid, and so do more than anyone can follow.
bool AreDashes(const std::vector<double>& dashes) {
  constexpr std::size_t kMost = 256;
  const auto isLength = [](double length) { return std::isfinite(length) && length >= 0; };
  return dashes.size() <= kMost && std::ranges::all_of(dashes, isLength) &&
         std::accumulate(dashes.begin(), dashes.end(), 0.0) > 0;
}

/// Dashes too short to be told apart are a solid line, too.
void SetDashes(PenShape& shape, const EmfPlusPen& pen) {
  constexpr double kShortestPeriod = 1.0 / 32;  // device units
  std::vector<double> dashes = DashesIn(pen);
  if (!AreDashes(dashes)) return;
  if (dashes.size() % 2 != 0) dashes.insert(dashes.end(), dashes.begin(), dashes.end());
  for (double& length : dashes)
    length *= shape.width;
  const double period = std::accumulate(dashes.begin(), dashes.end(), 0.0);
  if (period * StretchOf(shape.toDevice).most < kShortestPeriod) return;
  const double offset = std::fmod(pen.dashOffset * shape.width, period);
  if (std::isfinite(offset)) shape.dashOffset = offset < 0 ? offset + period : offset;
  shape.dashes = std::move(dashes);
}

}  // namespace

double MiterLimitOf(const EmfPlusPen& pen) {
  constexpr double kLongest = 1e4;
  return pen.miterLimit >= 1 ? std::min(double{pen.miterLimit}, kLongest) : 1;
}

PenShape ShapeOf(const Graphics& graphics, const EmfPlusPen& pen) {
  PenShape shape;
  const TransformD unit = WithoutOrigin(
      pen.unit == EmfPlusUnit::kWorld ? WorldToDevice(graphics) : UnitToDevice(graphics, pen.unit));
  const TransformD toDevice = WithoutOrigin(Exactly(pen.transform)).Then(unit);
  const double scale = StretchOf(toDevice).Mean();
  const double pixels = pen.width * scale;
  shape.isHairline = !(pixels > 0) || !toDevice.Inverse();
  if (!shape.isHairline && pixels >= 1) {
    shape.toDevice = toDevice;
    shape.width = std::min(double{pen.width}, kWidest / scale);
  }
  SetDashes(shape, pen);
  return shape;
}

}  // namespace kelvane::gdiplus
