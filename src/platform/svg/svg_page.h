#pragma once

#include <algorithm>

#include "platform/quartz/cg_geometry.h"
#include "platform/svg/svg_number.h"

namespace kelvane {

/// A page as its elements see it: x and y in points from the top left corner, y downwards.
struct SvgPage {
  explicit SvgPage(const CGRect& box)
      : size(box.size),
        fromPage{1, 0, 0, -1, -box.origin.x, box.origin.y + box.size.height},
        grid(Extent()) {}

  [[nodiscard]] double Extent() const { return std::max(size.width, size.height); }

  CGSize size;
  CGAffineTransform fromPage;  // from page space
  SvgGrid grid;
};

}  // namespace kelvane
