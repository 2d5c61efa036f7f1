#pragma once

#include <cstdint>

/// How the factory tells the poly records apart.
namespace kelvane::draw_modes {

enum class FigureMode : std::uint32_t {
  kPolyline = 0,  // lines; an open figure
  kPolygon = 1,   // lines; filled and stroked
  kBezier = 2,    // groups of control, control, end
};

enum class DrawFromPointMode : std::uint32_t {
  kMoveToFirst = 0,  // the figure starts with a move to its first point
  kContinue = 1,     // it continues from the current point, as the records named …TO do
};

}  // namespace kelvane::draw_modes
