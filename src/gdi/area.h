#pragma once

#include <memory>
#include <optional>
#include <span>
#include <variant>

#include "gdi/geometry.h"
#include "gdi/region.h"
#include "gdi/steps.h"
#include "metafile/gdi_enumerations.h"
#include "platform/quartz/cg_path.h"

namespace kelvane {

/// What lies inside a path, or outside of it, in device units.
struct Outline {
  std::shared_ptr<const CGPath> path;  // finite; shared, for it never changes
  PolyFillMode fillMode = ALTERNATE;
  bool isOutside = false;  // only of ALTERNATE, where one more figure around it says the same
  PointD offset = {};      // added to every point of the path

  /// As values; the same points in another path are not found out.
  friend bool operator==(const Outline&, const Outline&) = default;
};

/// An area to clip to or to paint: rectangles as long as rectangles are enough.
using Area = std::variant<Region, Outline>;

/// @return the union of the rectangles; as a path of its own where its bands would take much more
///         than the rectangles do.
Area AreaOf(std::span<const RectangleD> rectangles);

/// @return a rectangle as the transform leaves it, upright or not; nullopt when its corners are
///         no numbers.
/// @param rectangle  its edges in any order.
std::optional<Area> AreaOf(const RectangleD& rectangle, const TransformD& transform);

/// Rectangles are combined as they are; anything else as polygons, curves and all.
/// @return nullopt when the steps run out.
std::optional<Area> Combine(const Area& a, const Area& b, RegionMode mode, Steps& steps);

/// @return everything else; nullopt when the steps run out.
std::optional<Area> Complement(const Area& area, Steps& steps);

Area Translated(const Area& area, double x, double y);

/// The area as a path to fill: even-odd, unless it is the inside of a WINDING outline.
/// @param whole  what stands for the endless plane, not empty; rectangles are cut to it.
CGPath PathOf(const Area& area, const RectangleD& whole);

}  // namespace kelvane
