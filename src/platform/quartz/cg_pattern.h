#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "platform/corefoundation/cf_base.h"
#include "platform/quartz/cg_color_space.h"
#include "platform/quartz/cg_geometry.h"
#include "platform/quartz/cg_image.h"
#include "platform/quartz/cg_path.h"
#include "platform/quartz/cg_shading.h"

namespace kelvane {

/// What is filled in a cell of a pattern, in one colour, whose alpha counts.
struct CGPatternShape {
  CGPath path;  // pattern space, non-zero winding
  CGColor color;
};

/// What fills an area instead of a colour: a cell that is repeated over the plane, or a shading. It
/// never changes once it is in use, so states share it.
struct CGPattern {
  CGSize cell;               // pattern space; the cell lies at its origin
  CGAffineTransform matrix;  // pattern space to page space, whatever the CTM
  CGSize gap;                // bare, between a cell and the next
  bool mirrorsX = false;     // every other image in a row is its neighbour's mirror image
  bool mirrorsY = false;     // every other one in a column

  /// In place of cells, and of what is drawn in them. One that shows something, see Mapped, under a
  /// matrix that can be inverted.
  std::optional<CGShading> shading;

  // What is drawn in a cell, in this order; nothing beyond it shows.
  CFOwned<const CGImage> image;  // over the whole cell, its top row along the upper edge; or null
  std::vector<CGPatternShape> shapes;

  // What is repeated: so many images, mirror images among them, next to and above each other.
  [[nodiscard]] int Columns() const { return mirrorsX ? 2 : 1; }
  [[nodiscard]] int Rows() const { return mirrorsY ? 2 : 1; }

  /// @return the extent of them all, without the gap.
  [[nodiscard]] CGSize TileSize() const {
    return {cell.width * static_cast<CGFloat>(Columns()),
            cell.height * static_cast<CGFloat>(Rows())};
  }
};

/// Null where there is a plain colour.
using CGSharedPattern = std::shared_ptr<const CGPattern>;

}  // namespace kelvane
