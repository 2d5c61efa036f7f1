#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "metafile/emfplus/emfplus_brush.h"
#include "platform/quartz/cg_color_space.h"

namespace kelvane::gdiplus {

/// How the colours of a gradient follow each other on the way from 0 to 1, so that between two
/// neighbouring levels they change evenly.
class GradientBlend {
 public:
  /// @param blend  one that makes no sense counts as none.
  /// @param isGammaCorrected  colours are mixed as light is: there are more levels.
  GradientBlend(const EmfPlusBlend& blend, bool isGammaCorrected);

  [[nodiscard]] std::size_t Size() const { return levels_.size(); }  // at least 2

  /// From 0, the first level's, to 1, the last one's; none before that of the level before.
  [[nodiscard]] double Position(std::size_t level) const { return levels_[level].position; }

  /// @return the colour of a level, where the gradient runs from `start` to `end`.
  [[nodiscard]] CGColor ColorAt(std::size_t level, const Argb& start, const Argb& end) const;

 private:
  struct Level {
    double position;
    double factor = 0;             // of the end colour
    std::optional<CGColor> color;  // in place of both
  };

  void AddLevelsUpTo(const Level& level);

  bool isGammaCorrected_;
  std::vector<Level> levels_;
};

}  // namespace kelvane::gdiplus
