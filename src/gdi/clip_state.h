#pragma once

#include <cstddef>
#include <memory>

#include "gdi/area.h"

namespace kelvane {

/// One of the areas that what is painted is cut to, and those around it. It never changes, so clips
/// that were made from one another share what they have in common.
class ClipCut {
 public:
  ClipCut(std::shared_ptr<const ClipCut> outer, Area area)
      : area_(std::move(area)), depth_(outer ? outer->depth_ + 1 : 1), outer_(std::move(outer)) {}
  ~ClipCut();
  ClipCut(const ClipCut&) = delete;
  ClipCut& operator=(const ClipCut&) = delete;

  [[nodiscard]] const Area& CutTo() const { return area_; }

  /// How many cuts there are with this one.
  [[nodiscard]] std::size_t Depth() const { return depth_; }

  /// The cut before this one; null for the outermost.
  [[nodiscard]] const std::shared_ptr<const ClipCut>& Outer() const { return outer_; }

 private:
  Area area_;
  std::size_t depth_;
  mutable std::shared_ptr<const ClipCut> outer_;  // taken away by the destructor of what is inside
};

/// The clip and the meta region of a device context; copies share all that is large.
///
/// Painting is cut to the clip and to the meta region, one cut after the other. To cut once more is
/// all that most files do, and takes no arithmetic on shapes. Only modes which add to the clip need
/// it as one area.
class ClipState {
 public:
  /// What painting is cut to, innermost first; null when to nothing. A painter that comes from
  /// another state goes out to the cut both have, then in again.
  [[nodiscard]] const std::shared_ptr<const ClipCut>& Innermost() const { return clip_; }

  /// Without a clip, everything is inside of it.
  [[nodiscard]] bool HasClip() const { return clip_ != meta_; }

  /// Joins an area to the clip; the meta region stays.
  /// @return false, and changes nothing, for a mode that is none and when the steps run out.
  bool Join(const Area& area, RegionMode mode, Steps& steps);

  /// Drops the clip; the meta region stays.
  void Drop() { clip_ = meta_; }

  /// Makes the meta region what clip and meta region have in common, and drops the clip.
  void MoveIntoMeta() { meta_ = clip_; }

  /// Moves the clip, if there is one; the meta region stays.
  /// @return false, and changes nothing, when the steps run out.
  bool Offset(double x, double y, Steps& steps);

  /// True of states that come from one another; others may be equal without it.
  friend bool operator==(const ClipState&, const ClipState&) = default;

 private:
  bool CutTo(const Area& area, RegionMode mode, Steps& steps);
  bool CutToOutside(const Area& area, Steps& steps);
  [[nodiscard]] std::optional<Area> Whole(Steps& steps) const;

  std::shared_ptr<const ClipCut> meta_;
  std::shared_ptr<const ClipCut> clip_;  // of whose cuts the outermost are those of meta_
};

}  // namespace kelvane
