#pragma once

#include <cstdint>
#include <vector>

#include "platform/quartz/cg_geometry.h"

namespace kelvane {

/// How a line ends where it is not joined. The numbers are PDF's, too (ISO 32000-1, table 54).
enum CGLineCap : std::uint8_t {
  kCGLineCapButt = 0,
  kCGLineCapRound = 1,
  kCGLineCapSquare = 2,
};

/// How two segments of a line meet. The numbers are PDF's, too (ISO 32000-1, table 55).
enum CGLineJoin : std::uint8_t {
  kCGLineJoinMiter = 0,
  kCGLineJoinRound = 1,
  kCGLineJoinBevel = 2,
};

/// The dashes of a line, in the space in which its width is measured.
struct CGLineDash {
  std::vector<CGFloat> lengths;  // dash, gap, …; none for a solid line
  CGFloat phase = 0;             // how far into them each line starts

  [[nodiscard]] bool IsSolid() const { return lengths.empty(); }

  friend bool operator==(const CGLineDash&, const CGLineDash&) = default;
};

}  // namespace kelvane
