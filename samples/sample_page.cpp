#include "sample_page.h"

#include <cmath>
#include <numbers>

namespace kelvane::samples {

using test::At;
using test::Metafile;
using test::Points;

Metafile Page() {
  constexpr std::int32_t kPenWidth = 2;
  Metafile page;
  page.Bounds(0, 0, 480, 320);
  for (std::uint32_t i = 0; i < kColors.size(); ++i) {
    page.CreateBrush(Brush(Ink{i}), kColors[i]).CreatePen(Pen(Ink{i}), kPenWidth, kColors[i]);
  }
  return page;
}

void Select(Metafile& page, Ink fill, Ink outline) {
  page.SelectObject(Brush(fill)).SelectObject(Pen(outline));
}

double Radians(double degrees) {
  return degrees / 180 * std::numbers::pi;
}

At Polar(At centre, double radius, double degrees) {
  return {centre.x + static_cast<std::int32_t>(std::lround(radius * std::cos(Radians(degrees)))),
          centre.y - static_cast<std::int32_t>(std::lround(radius * std::sin(Radians(degrees))))};
}

Points Star(At centre, double radius, int count, int step) {
  Points points;
  for (int i = 0; i <= count; ++i) {
    points.push_back(Polar(centre, radius, 90.0 + 360.0 * i * step / count));
  }
  return points;
}

XForm Turned(double degrees, double scale, At origin) {
  const auto along = static_cast<float>(scale * std::cos(Radians(degrees)));
  const auto across = static_cast<float>(scale * std::sin(Radians(degrees)));
  return {
      along, across, -across, along, static_cast<float>(origin.x), static_cast<float>(origin.y)};
}

}  // namespace kelvane::samples
