#pragma once

#include <optional>
#include <span>
#include <vector>

#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_extent.h"
#include "platform/quartz/cg_graphics_state.h"

namespace kelvane {

/// What is known of the colours on a page: plain rectangles cover what was there, all other marks
/// leave something unknown. Not more than a few areas are kept in mind, so that every mark costs
/// the same.
class CGGround {
 public:
  /// @param paper  the colour of the page before anything is on it.
  explicit CGGround(const CGColor& paper) : paper_(paper) {}

  /// A path is painted. @param clips  those in effect.
  void PathPainted(const CGGraphicsState& state, std::span<const CGClip> clips, const CGPath& path,
                   CGPathDrawingMode mode);

  /// Something is marked within a box, page space.
  void Disturb(const CGBox& box);

  /// @param box  page space.
  /// @return the colour that it has throughout; nullopt when it has several, or they are not known.
  [[nodiscard]] std::optional<CGColor> ColorOf(const CGBox& box) const;

 private:
  struct Area {
    CGBox box;
    std::optional<CGColor> color;  // nothing when it is not known
  };

  void Add(const CGBox& box, const std::optional<CGColor>& color);

  void ForgetOlderHalf();

  CGColor paper_;
  std::vector<Area> areas_;  // the oldest, which lies lowest, first
};

}  // namespace kelvane
