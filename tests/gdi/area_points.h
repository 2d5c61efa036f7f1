#pragma once

#include <variant>

#include "gdi/area.h"
#include "gdi/clip_state.h"
#include "gdi/polygons.h"

namespace kelvane {

constexpr RectangleD kWholePage = {-100, -100, 100, 100};

/// Whether a point lies inside the figures: by how often they wind around it.
inline bool Contains(const Polygons& polygons, PointD point) {
  int winding = 0;
  for (const auto& figure : polygons.figures) {
    for (std::size_t i = 0; i < figure.size(); ++i) {
      const PointD& a = figure[i];
      const PointD& b = figure[(i + 1) % figure.size()];
      if ((a.y <= point.y) == (b.y <= point.y)) continue;
      const double x = a.x + (point.y - a.y) / (b.y - a.y) * (b.x - a.x);
      if (x > point.x) winding += a.y < b.y ? 1 : -1;
    }
  }
  return polygons.fillMode == WINDING ? winding != 0 : winding % 2 != 0;
}

/// As a painter sees it, who fills the area's path.
inline bool Contains(const Area& area, PointD point) {
  const auto* outline = std::get_if<Outline>(&area);
  const PolyFillMode mode = outline != nullptr ? outline->fillMode : ALTERNATE;
  return Contains(Flattened(PathOf(area, kWholePage), mode, 0.01), point);
}

inline bool Contains(const ClipState& clip, PointD point) {
  for (const ClipCut* cut = clip.Innermost().get(); cut != nullptr; cut = cut->Outer().get()) {
    if (!Contains(cut->CutTo(), point)) return false;
  }
  return true;
}

}  // namespace kelvane
